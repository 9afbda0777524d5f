#include "Core/Unit/QuantityPresentation.h"
#include "FoundationClasses/Resource/Property/FcPropertyTableValue.h"
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
using resource::measure::FcValue;
using resource::property::FcPropertyTableValue;

namespace {

constexpr char tableId[] = "TableValue";
/// Tables share this id with lists: an editor that asks for it hears that there is no presentation.
constexpr char listId[] = "ListValue";

std::string textOf(FcPropertyTableValue const& property, FcValue const& value,
                   std::optional<std::string> const& setName)
{
    if (auto const presentation = property.createQuantityPresentationFor(value, setName))
        return presentation->text();
    return value.getAsString(false).value_or("");
}

} // namespace

bool GetProperties::visit(FcPropertyTableValue const& property)
{
    auto row = makeGroup(property.Name.get(), property);
    row->mappedId = PropertyId(tableId);
    auto const& defining = property.DefiningValues.get();
    if (defining && property.DefinedValues.get())
        appendValueRows(defining->size(), property, *row);
    properties.push_back(std::move(row));
    return false;
}

bool GetValue::visit(FcPropertyTableValue const& property)
{
    if (!positionFromText(id.text()))
        return true;
    value = optionalValueOf(valueAt(property.DefinedValues, id));
    return false;
}

bool SetValue::visit(FcPropertyTableValue&) { return false; }

bool GetPropertyName::visit(FcPropertyTableValue const& property)
{
    if (id.text() == tableId)
        id = PropertyId(propertyNameId);
    if (!positionFromText(id.text()))
        return true;
    if (auto const* const defining = valueAt(property.DefiningValues, id))
        name = textOf(property, *defining, setName);
    return false;
}

bool GetPropertyDescription::visit(FcPropertyTableValue const&)
{
    if (id.text() == tableId)
        id = PropertyId(propertyNameId);
    return true;
}

bool HasQuantityPresentation::visit(FcPropertyTableValue const& property)
{
    if (id.text() != listId && !positionFromText(id.text()))
        return true;
    auto const* const defined = valueAt(property.DefinedValues, id);
    result = defined && property.createQuantityPresentationFor(*defined, std::nullopt);
    return false;
}

bool CreateQuantityPresentation::visit(FcPropertyTableValue const& property)
{
    if (id.text() != listId && !positionFromText(id.text()))
        return true;
    if (auto const* const defined = valueAt(property.DefinedValues, id))
        presentation = property.createQuantityPresentationFor(*defined, setName);
    return false;
}

} // namespace qev::fc::ui::propertyinterface
