#include "FoundationClasses/Resource/DateTime/FcIrregularTimeSeries.h"
#include "FoundationClasses/Resource/DateTime/FcIrregularTimeSeriesValue.h"
#include "FoundationClasses/Resource/DateTime/FcRegularTimeSeries.h"
#include "FoundationClasses/Resource/DateTime/FcTimeSeriesValue.h"
#include "FoundationClasses/Resource/ExternalReference/FcExternalReference.h"
#include "FoundationClasses/Resource/Material/FcMaterialDefinition.h"
#include "FoundationClasses/Resource/Property/FcPropertyReferenceValue.h"
#include "FoundationClasses/Selects/FcObjectReferenceSelect.h"
#include "UI/FoundationClasses/PropertyInterface/GetValue.h"
#include "UI/FoundationClasses/PropertyInterface/PropertyRows.h"
#include "UI/FoundationClasses/PropertyInterface/SetValue.h"
#include "UI/FoundationClasses/PropertyInterface/VisitReports.h"

namespace qev::fc::ui::propertyinterface {

using object::PropertyValue;
using resource::datetime::FcIrregularTimeSeries;
using resource::datetime::FcRegularTimeSeries;
using resource::datetime::FcTimeSeries;
using resource::material::FcMaterialDefinition;
using resource::measure::FcValue;
using resource::property::FcObjectReferenceSelect;
using resource::property::FcPropertyReferenceValue;

namespace {

/// Layer sets alone call their name otherwise.
std::optional<std::string> nameOf(FcMaterialDefinition const& material)
{
    auto name = material.getAttributeAsString("Name");
    return name ? name : material.getAttributeAsString("LayerSetName");
}

template <class Series>
std::string listValuesOf(Series const& series)
{
    std::string text;
    char const* separator = "";
    for (auto const& moment : series.Values->get()) {
        for (auto const& value : moment->ListValues.get()) {
            text += separator + value.getAsString(false).value_or("");
            separator = ", ";
        }
    }
    return text;
}

std::optional<std::string> listValues(std::shared_ptr<FcTimeSeries> const& series)
{
    if (auto const irregular = entityCast<FcIrregularTimeSeries>(series))
        return listValuesOf(*irregular);
    if (auto const regular = entityCast<FcRegularTimeSeries>(series))
        return listValuesOf(*regular);
    return std::nullopt;
}

PropertyValue notImplemented(std::string const& type)
{
    reportInVisit(type + " type of PropertyReferenceValue not implemented", "GetValue",
                  "FcPropertyReferenceValue");
    return {};
}

PropertyValue valueOf(FcObjectReferenceSelect const& reference)
{
    switch (reference.tag()) {
    case FcObjectReferenceSelect::Address:
        return notImplemented("Address");
    case FcObjectReferenceSelect::AppliedValue:
        return notImplemented("AppliedValue");
    case FcObjectReferenceSelect::ExternalReference:
        return reference.getExternalReference()->getAttributeAsString("Name");
    case FcObjectReferenceSelect::MaterialDefinition:
        return nameOf(*reference.getMaterialDefinition());
    case FcObjectReferenceSelect::Organization:
        return notImplemented("Organization");
    case FcObjectReferenceSelect::Person:
        return notImplemented("Person");
    case FcObjectReferenceSelect::PersonAndOrganization:
        return notImplemented("PersonAndOrganization");
    case FcObjectReferenceSelect::Table:
        return notImplemented("Table");
    case FcObjectReferenceSelect::TimeSeries:
        return listValues(reference.getTimeSeries());
    default:
        return {};
    }
}

} // namespace

bool GetValue::visit(FcPropertyReferenceValue const& property)
{
    if (id.text() != propertyNameId)
        return true;
    // A reference to an entity that was deleted leads nowhere, whatever class it had.
    if (property.PropertyReference->entity())
        value = valueOf(property.PropertyReference);
    return false;
}

bool SetValue::visit(FcPropertyReferenceValue&)
{
    reportSetValueNotImplemented("FcPropertyReferenceValue");
    return false;
}

} // namespace qev::fc::ui::propertyinterface
