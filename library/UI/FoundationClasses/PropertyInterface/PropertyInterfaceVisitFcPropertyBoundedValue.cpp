#include "Core/Unit/QuantityPresentation.h"
#include "FoundationClasses/Resource/Property/FcPropertyBoundedValue.h"
#include "UI/FoundationClasses/PropertyInterface/CreateQuantityPresentation.h"
#include "UI/FoundationClasses/PropertyInterface/GetProperties.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyDescription.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyName.h"
#include "UI/FoundationClasses/PropertyInterface/GetValue.h"
#include "UI/FoundationClasses/PropertyInterface/HasQuantityPresentation.h"
#include "UI/FoundationClasses/PropertyInterface/PropertyRows.h"
#include "UI/FoundationClasses/PropertyInterface/SetValue.h"

namespace qev::fc::ui::propertyinterface {

using object::PropertyId;
using resource::measure::FcValue;
using resource::property::FcPropertyBoundedValue;

namespace {

constexpr char boundedId[] = "BoundedValue";

/// A value that tells the measure of all three: they are of one type.
FcValue const& anyValueOf(FcPropertyBoundedValue const& property)
{
    if (!property.SetPointValue->isEmpty())
        return property.SetPointValue;
    return property.LowerBoundValue->isEmpty() ? property.UpperBoundValue : property.LowerBoundValue;
}

} // namespace

bool GetProperties::visit(FcPropertyBoundedValue const& property)
{
    auto row = makeRow(property.Name.get(), property);
    row->mappedId = PropertyId(boundedId);
    properties.push_back(std::move(row));
    return false;
}

bool GetValue::visit(FcPropertyBoundedValue const& property)
{
    if (id.text() != boundedId)
        return true;
    value = property.getAsOneLineString(setName);
    return false;
}

bool SetValue::visit(FcPropertyBoundedValue&) { return false; }

bool GetPropertyName::visit(FcPropertyBoundedValue const&)
{
    if (id.text() == boundedId)
        id = PropertyId(propertyNameId);
    return true;
}

bool GetPropertyDescription::visit(FcPropertyBoundedValue const&)
{
    if (id.text() == boundedId)
        id = PropertyId(propertyNameId);
    return true;
}

bool HasQuantityPresentation::visit(FcPropertyBoundedValue const&)
{
    // One line of text with up to three values is no number.
    return id.text() != boundedId;
}

bool CreateQuantityPresentation::visit(FcPropertyBoundedValue const& property)
{
    if (id.text() != propertyNameId)
        return true;
    presentation = property.createQuantityPresentationFor(anyValueOf(property), setName);
    return false;
}

} // namespace qev::fc::ui::propertyinterface
