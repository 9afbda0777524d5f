#include "FoundationClasses/Localize.h"
#include "FoundationClasses/Resource/Material/FcMaterial.h"
#include "FoundationClasses/Resource/Material/FcMaterialProfile.h"
#include "UI/FoundationClasses/PropertyInterface/GetProperties.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyDescription.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyName.h"
#include "UI/FoundationClasses/PropertyInterface/PropertyRows.h"
#include "UI/FoundationClasses/PropertyInterface/SetValue.h"
#include "UI/FoundationClasses/PropertyInterface/VisitReports.h"

namespace qev::fc::ui::propertyinterface {

using resource::material::FcMaterialProfile;

bool GetProperties::visit(FcMaterialProfile const& profile)
{
    profile.FcMaterialDefinition::accept(*this);
    auto const group = groupOf(*this);
    if (!group)
        return false;
    group->id = object::PropertyId("Name");
    appendPropertiesOf(profile.Material->get(), *group);
    return false;
}

bool SetValue::visit(FcMaterialProfile&)
{
    reportSetValueNotImplemented("FcMaterialProfile");
    return true;
}

bool GetPropertyName::visit(FcMaterialProfile const& profile)
{
    if (id.text() != FcBaseGroupProperty)
        return true;
    auto const& ownName = profile.Name.get();
    name = ownName ? *ownName : localize("IfcMaterialProfile");
    return false;
}

bool GetPropertyDescription::visit(FcMaterialProfile const&)
{
    if (id.text() != FcBaseGroupProperty)
        return true;
    description = localizeWithFallback("IfcMaterialProfile_Description", "Material profile");
    return false;
}

} // namespace qev::fc::ui::propertyinterface
