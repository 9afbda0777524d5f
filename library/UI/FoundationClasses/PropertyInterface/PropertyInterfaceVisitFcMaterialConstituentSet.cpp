#include "FoundationClasses/Localize.h"
#include "FoundationClasses/Resource/Material/FcMaterialConstituent.h"
#include "FoundationClasses/Resource/Material/FcMaterialConstituentSet.h"
#include "UI/FoundationClasses/PropertyInterface/GetProperties.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyDescription.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyName.h"
#include "UI/FoundationClasses/PropertyInterface/GetValue.h"
#include "UI/FoundationClasses/PropertyInterface/MaterialRows.h"
#include "UI/FoundationClasses/PropertyInterface/PropertyRows.h"
#include "UI/FoundationClasses/PropertyInterface/SetValue.h"
#include "UI/FoundationClasses/PropertyInterface/VisitReports.h"

namespace qev::fc::ui::propertyinterface {

using resource::material::FcMaterialConstituentSet;

namespace {

constexpr char constituentsId[] = "MaterialConstituents";

} // namespace

bool GetProperties::visit(FcMaterialConstituentSet const& set)
{
    set.FcMaterialDefinition::accept(*this);
    auto const group = groupOf(*this);
    if (!group)
        return false;
    auto const& constituents = set.MaterialConstituents.get();
    group->children.push_back(constituents ? makeList(constituentsId, set, constituents->get())
                                           : makeList(constituentsId, set));
    return false;
}

bool GetValue::visit(FcMaterialConstituentSet const& set)
{
    if (id.text() != constituentsId)
        return true;
    value = nameAndDescription(set.Name, set.Description);
    return false;
}

bool SetValue::visit(FcMaterialConstituentSet&)
{
    reportSetValueNotImplemented("FcMaterialConstituentSet");
    return true;
}

bool GetPropertyName::visit(FcMaterialConstituentSet const&)
{
    if (id.text() != constituentsId)
        return true;
    name = localizeWithFallback("IfcMaterialConstituentSet.MaterialConstituents", "MaterialConstituents");
    return false;
}

bool GetPropertyDescription::visit(FcMaterialConstituentSet const&)
{
    if (id.text() != constituentsId)
        return true;
    description =
        localizeWithFallback("IfcMaterialConstituentSet.MaterialConstituents_Description", "Material layers");
    return false;
}

} // namespace qev::fc::ui::propertyinterface
