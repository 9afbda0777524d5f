#include "FoundationClasses/Core/Kernel/FcPropertySet.h"
#include "FoundationClasses/Localize.h"
#include "FoundationClasses/Resource/Property/FcProperty.h"
#include "FoundationClasses/Resource/Property/SetsOfProperty.h"
#include "UI/FoundationClasses/PropertyInterface/GetProperties.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyDescription.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyName.h"
#include "UI/FoundationClasses/PropertyInterface/GetValue.h"
#include "UI/FoundationClasses/PropertyInterface/PropertyRows.h"
#include "UI/FoundationClasses/PropertyInterface/SetValue.h"
#include "UI/FoundationClasses/PropertyInterface/VisitReports.h"

namespace qev::fc::ui::propertyinterface {

using resource::property::FcProperty;

namespace {

/// The key of the texts of a property, by the first of its sets that has a name; nothing without such a set.
std::optional<std::string> textKey(FcProperty const& property)
{
    std::optional<std::string> key;
    resource::property::visitSetsOf(property, [&](core::kernel::FcPropertySet const& set) {
        if (auto const& setName = set.Name.get())
            key = *setName + '.' + property.Name.get();
        return !key;
    });
    return key;
}

} // namespace

bool GetProperties::visit(FcProperty const& property)
{
    auto row = makeRow(property.Name.get(), property);
    row->mappedId = object::PropertyId(propertyNameId);
    properties.push_back(std::move(row));
    return false;
}

bool GetValue::visit(FcProperty const& property)
{
    if (id.text() == propertyNameId)
        value = property.Name.get();
    else
        reportInVisit(std::string("Property of ") + property.getEntityName() + " has not been implemented.",
                      "GetValue", "FcProperty");
    return false;
}

bool SetValue::visit(FcProperty&)
{
    reportSetValueNotImplemented("FcProperty");
    return true;
}

bool GetPropertyName::visit(FcProperty const& property)
{
    if (id.text() != propertyNameId)
        return true;
    auto const key = textKey(property);
    name = key ? localizeWithFallback(*key, property.Name.get()) : property.Name.get();
    return false;
}

bool GetPropertyDescription::visit(FcProperty const& property)
{
    if (id.text() != propertyNameId)
        return true;
    if (auto const key = textKey(property))
        description = localize(*key + "_Description");
    return false;
}

} // namespace qev::fc::ui::propertyinterface
