#include "FoundationClasses/Localize.h"
#include "FoundationClasses/Resource/Material/FcMaterial.h"
#include "FoundationClasses/Resource/Material/FcMaterialConstituent.h"
#include "UI/FoundationClasses/PropertyInterface/GetProperties.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyDescription.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyName.h"
#include "UI/FoundationClasses/PropertyInterface/MaterialRows.h"
#include "UI/FoundationClasses/PropertyInterface/PropertyRows.h"

namespace qev::fc::ui::propertyinterface {

using resource::material::FcMaterialConstituent;

bool GetProperties::visit(FcMaterialConstituent const& constituent)
{
    constituent.FcMaterialDefinition::accept(*this);
    auto const group = groupOf(*this);
    if (!group)
        return false;
    leaveNameToHeading(*group);
    appendPropertiesOf(constituent.Material->get(), *group);
    return false;
}

bool GetPropertyName::visit(FcMaterialConstituent const& constituent)
{
    if (id.text() != FcBaseGroupProperty)
        return true;
    auto const& ownName = constituent.Name.get();
    name = ownName ? *ownName : localize("IfcMaterialConstituent");
    return false;
}

bool GetPropertyDescription::visit(FcMaterialConstituent const&)
{
    if (id.text() != FcBaseGroupProperty)
        return true;
    description = localizeWithFallback("IfcMaterialConstituent_Description", "Material constituent");
    return false;
}

} // namespace qev::fc::ui::propertyinterface
