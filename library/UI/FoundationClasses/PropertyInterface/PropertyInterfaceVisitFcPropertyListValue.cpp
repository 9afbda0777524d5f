#include "Core/Unit/QuantityPresentation.h"
#include "FoundationClasses/Resource/Property/FcPropertyListValue.h"
#include "UI/FoundationClasses/PropertyInterface/CreateQuantityPresentation.h"
#include "UI/FoundationClasses/PropertyInterface/GetProperties.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyDescription.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyName.h"
#include "UI/FoundationClasses/PropertyInterface/GetValue.h"
#include "UI/FoundationClasses/PropertyInterface/HasQuantityPresentation.h"
#include "UI/FoundationClasses/PropertyInterface/PropertyRows.h"
#include "UI/FoundationClasses/PropertyInterface/SetValue.h"
#include "UI/FoundationClasses/PropertyInterface/ValueRows.h"

namespace qev::fc::ui::propertyinterface {

using object::PropertyId;
using object::PropertyValue;
using resource::property::FcPropertyListValue;

namespace {

constexpr char listId[] = "ListValue";

void setElement(FcPropertyListValue& property, std::size_t position, PropertyValue const& value)
{
    property.ListValues.edit(
        [&](Values& values) { (*values)[position].updateValueFromPropertyValue(value); });
}

/// A list in a file has at least one element: without any, there is no list.
void removeElement(FcPropertyListValue& property, std::size_t position)
{
    property.ListValues.edit([position](Values& values) {
        values->erase(values->begin() + static_cast<std::ptrdiff_t>(position));
        if (values->empty())
            values.reset();
    });
}

} // namespace

bool GetProperties::visit(FcPropertyListValue const& property)
{
    auto row = makeGroup(property.Name.get(), property);
    row->mappedId = PropertyId(listId);
    auto const& values = property.ListValues.get();
    appendValueRows(values ? values->size() : 0, property, *row);
    properties.push_back(std::move(row));
    return false;
}

bool GetValue::visit(FcPropertyListValue const& property)
{
    if (!positionFromText(id.text()))
        return true;
    value = optionalValueOf(valueAt(property.ListValues, id));
    return false;
}

bool SetValue::visit(FcPropertyListValue& property)
{
    if (id.text() == listId)
        return false;
    auto const position = positionFromText(id.text());
    if (!position)
        return true;
    if (!valueAt(property.ListValues, id))
        return false;
    if (auto const plain = value->getUnwrappedOptionalValue())
        setElement(property, *position, *plain);
    else
        removeElement(property, *position);
    return false;
}

bool GetPropertyName::visit(FcPropertyListValue const&)
{
    if (id.text() == listId) {
        id = PropertyId(propertyNameId);
        return true;
    }
    name = std::to_string(std::stoi(id.text()) + 1);
    return false;
}

bool GetPropertyDescription::visit(FcPropertyListValue const&)
{
    if (id.text() == listId)
        id = PropertyId(propertyNameId);
    return true;
}

bool HasQuantityPresentation::visit(FcPropertyListValue const& property)
{
    if (id.text() != listId && !positionFromText(id.text()))
        return true;
    auto const* const element = valueAt(property.ListValues, id);
    result = element && property.createQuantityPresentationFor(*element, std::nullopt);
    return false;
}

bool CreateQuantityPresentation::visit(FcPropertyListValue const& property)
{
    if (id.text() != listId && !positionFromText(id.text()))
        return true;
    if (auto const* const element = valueAt(property.ListValues, id))
        presentation = property.createQuantityPresentationFor(*element, setName);
    return false;
}

} // namespace qev::fc::ui::propertyinterface
