#include "FoundationClasses/Localize.h"
#include "FoundationClasses/Resource/Property/FcComplexProperty.h"
#include "UI/FoundationClasses/PropertyInterface/GetProperties.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyDescription.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyName.h"
#include "UI/FoundationClasses/PropertyInterface/PropertyRows.h"
#include "UI/FoundationClasses/PropertyInterface/SetValue.h"
#include "UI/FoundationClasses/PropertyInterface/VisitReports.h"

namespace qev::fc::ui::propertyinterface {

using resource::property::FcComplexProperty;

namespace {

constexpr char membersId[] = "HasProperties";

} // namespace

bool GetProperties::visit(FcComplexProperty const& property)
{
    property.FcProperty::accept(*this);
    if (auto const row = groupOf(*this))
        row->children.push_back(makeList(membersId, property, property.HasProperties->get()));
    return false;
}

bool SetValue::visit(FcComplexProperty&)
{
    reportSetValueNotImplemented("FcComplexProperty");
    return false;
}

bool GetPropertyName::visit(FcComplexProperty const&)
{
    if (id.text() != membersId)
        return true;
    name = localizeWithFallback("IfcComplexProperty.HasProperties", membersId);
    return false;
}

bool GetPropertyDescription::visit(FcComplexProperty const&)
{
    if (id.text() != membersId)
        return true;
    description = localize("IfcComplexProperty.HasProperties_Description");
    return false;
}

} // namespace qev::fc::ui::propertyinterface
