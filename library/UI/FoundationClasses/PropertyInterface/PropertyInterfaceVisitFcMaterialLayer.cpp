#include "FoundationClasses/Localize.h"
#include "FoundationClasses/Resource/Material/FcMaterial.h"
#include "FoundationClasses/Resource/Material/FcMaterialLayer.h"
#include "UI/FoundationClasses/PropertyInterface/GetProperties.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyDescription.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyName.h"
#include "UI/FoundationClasses/PropertyInterface/MaterialRows.h"
#include "UI/FoundationClasses/PropertyInterface/PropertyRows.h"

namespace qev::fc::ui::propertyinterface {

using resource::material::FcMaterialLayer;

bool GetProperties::visit(FcMaterialLayer const& layer)
{
    layer.FcMaterialDefinition::accept(*this);
    auto const group = groupOf(*this);
    if (!group)
        return false;
    leaveNameToHeading(*group);
    appendPropertiesOf(layer.Material->get(), *group);
    return false;
}

bool GetPropertyName::visit(FcMaterialLayer const& layer)
{
    if (id.text() != FcBaseGroupProperty)
        return true;
    auto const& ownName = layer.Name.get();
    name = ownName ? *ownName : localize("IfcMaterialLayer");
    return false;
}

bool GetPropertyDescription::visit(FcMaterialLayer const&)
{
    if (id.text() != FcBaseGroupProperty)
        return true;
    description = localizeWithFallback("IfcMaterialLayer_Description", "Material layer");
    return false;
}

} // namespace qev::fc::ui::propertyinterface
