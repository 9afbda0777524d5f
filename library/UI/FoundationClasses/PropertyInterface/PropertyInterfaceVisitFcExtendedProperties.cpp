#include "FoundationClasses/Localize.h"
#include "FoundationClasses/Resource/Property/FcExtendedProperties.h"
#include "FoundationClasses/Resource/Property/FcProperty.h"
#include "UI/FoundationClasses/PropertyInterface/GetProperties.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyDescription.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyName.h"
#include "UI/FoundationClasses/PropertyInterface/PropertyRows.h"
#include "UI/FoundationClasses/PropertyInterface/SetValue.h"
#include "UI/FoundationClasses/PropertyInterface/VisitReports.h"

namespace qev::fc::ui::propertyinterface {

using resource::property::FcExtendedProperties;

namespace {

constexpr char membersId[] = "Properties";

} // namespace

bool GetProperties::visit(FcExtendedProperties const& extended)
{
    extended.FcPropertyAbstraction::accept(*this);
    if (auto const group = groupOf(*this))
        group->children.push_back(makeList(membersId, extended, extended.Properties->get()));
    return false;
}

bool SetValue::visit(FcExtendedProperties&)
{
    reportSetValueNotImplemented("FcExtendedProperties");
    return false;
}

bool GetPropertyName::visit(FcExtendedProperties const&)
{
    if (id.text() != membersId)
        return true;
    name = localizeWithFallback("IfcExtendedProperties.Properties", membersId);
    return false;
}

bool GetPropertyDescription::visit(FcExtendedProperties const&)
{
    if (id.text() != membersId)
        return true;
    description = localize("IfcExtendedProperties.Properties_Description");
    return false;
}

} // namespace qev::fc::ui::propertyinterface
