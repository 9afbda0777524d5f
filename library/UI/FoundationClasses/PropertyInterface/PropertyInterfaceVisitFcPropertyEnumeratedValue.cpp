#include "Format/Ifc/Model/PropertyDefinitions.h"
#include "Format/Ifc/Model/PropertyValueMapping.h"
#include "FoundationClasses/Localize.h"
#include "FoundationClasses/Resource/Property/FcPropertyEnumeratedValue.h"
#include "UI/FoundationClasses/Property/PropertySettings.h"
#include "UI/FoundationClasses/PropertyInterface/CreateQuantityPresentation.h"
#include "UI/FoundationClasses/PropertyInterface/EnumerationText.h"
#include "UI/FoundationClasses/PropertyInterface/GetEnumeratedValues.h"
#include "UI/FoundationClasses/PropertyInterface/GetProperties.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyDescription.h"
#include "UI/FoundationClasses/PropertyInterface/GetPropertyName.h"
#include "UI/FoundationClasses/PropertyInterface/GetValue.h"
#include "UI/FoundationClasses/PropertyInterface/HasEnumeratedValues.h"
#include "UI/FoundationClasses/PropertyInterface/HasQuantityPresentation.h"
#include "UI/FoundationClasses/PropertyInterface/IsValueAllowed.h"
#include "UI/FoundationClasses/PropertyInterface/PropertyRows.h"
#include "UI/FoundationClasses/PropertyInterface/SetValue.h"

#include <algorithm>

namespace qev::fc::ui::propertyinterface {

using object::PropertyId;
using object::PropertyValue;
using resource::measure::FcSimpleValue;
using resource::measure::FcValue;
using resource::property::FcPropertyEnumeratedValue;

namespace {

constexpr char enumerationId[] = "EnumeratedValue";

std::vector<FcValue> labelsOf(std::string_view text, std::vector<std::string> const& possible)
{
    std::vector<FcValue> labels;
    for (auto const piece : enumerationPieces(text)) {
        if (auto form = possibleForm(piece, possible))
            labels.push_back(FcSimpleValue(std::move(*form)));
    }
    return labels;
}

/// A list in a file has at least one value: without any, there is no list.
void setValues(FcPropertyEnumeratedValue& property, std::vector<FcValue> values)
{
    auto const& current = property.EnumerationValues.get();
    if (!values.empty())
        property.EnumerationValues = std::move(values);
    else if (current && !current->empty())
        property.EnumerationValues = std::nullopt;
}

/// The text of a value of a kind of texts, where one that is not set is the empty text.
std::optional<std::string> textOf(PropertyValue const& value)
{
    if (value.is<std::string>())
        return value.get<std::string>();
    if (value.is<std::optional<std::string>>())
        return value.get<std::optional<std::string>>().value_or("");
    return std::nullopt;
}

bool isAllowed(FcPropertyEnumeratedValue const& property, PropertyValue const& value)
{
    auto const text = textOf(value);
    if (!text)
        return false;
    if (text->empty() || *text == " ")
        return true;
    auto const possible = ifc::getPossibleEnumValues(property);
    auto const pieces = enumerationPieces(*text);
    return std::all_of(pieces.begin(), pieces.end(), [&possible](std::string_view piece) {
        return possibleForm(piece, possible).has_value();
    });
}

bool isUserEditable(FcPropertyEnumeratedValue const& property)
{
    auto const names = ifc::getPsetAndPropertyName(property);
    auto const& settings = PropertySettings::getInstance();
    return names && settings && settings->isUserEditableEnumeration(names->first, names->second);
}

} // namespace

bool GetProperties::visit(FcPropertyEnumeratedValue const& property)
{
    auto row = makeRow(property.Name.get(), property);
    row->mappedId = PropertyId(enumerationId);
    properties.push_back(std::move(row));
    return false;
}

bool GetValue::visit(FcPropertyEnumeratedValue const& property)
{
    if (id.text() != enumerationId)
        return true;
    value = enumerationText(property.getAttributeAsString("EnumerationValues"));
    return false;
}

bool SetValue::visit(FcPropertyEnumeratedValue& property)
{
    if (id.text() != enumerationId)
        return true;
    auto const plain = value->getUnwrappedOptionalValue();
    if (!plain) {
        property.deleteProperty(data, true);
        return false;
    }
    auto const text = plain->get<std::string>();
    if (plain->is<std::string>())
        setValues(property, labelsOf(text, ifc::getPossibleEnumValues(property)));
    return false;
}

bool GetPropertyName::visit(FcPropertyEnumeratedValue const&)
{
    if (id.text() == enumerationId)
        id = PropertyId(propertyNameId);
    return true;
}

bool GetPropertyDescription::visit(FcPropertyEnumeratedValue const&)
{
    if (id.text() == enumerationId)
        id = PropertyId(propertyNameId);
    return true;
}

bool HasEnumeratedValues::visit(FcPropertyEnumeratedValue const& property)
{
    // What its user may extend is edited as free text.
    if (isUserEditable(property))
        return false;
    if (id.text() != enumerationId)
        return true;
    result = true;
    return false;
}

bool GetEnumeratedValues::visit(FcPropertyEnumeratedValue const& property)
{
    if (id.text() != enumerationId)
        return true;
    auto const names = ifc::getPsetAndPropertyName(property);
    for (auto const& possible : ifc::getPossibleEnumValues(property)) {
        auto const text =
            names ? localizeWithFallback(names->first + '.' + names->second + '.' + possible, possible)
                  : possible;
        values.push_back({text, PropertyValue(std::optional(possible))});
    }
    return false;
}

bool IsValueAllowed::visit(FcPropertyEnumeratedValue const& property)
{
    if (id.text() != enumerationId)
        return true;
    allowed = isAllowed(property, *value);
    return false;
}

bool HasQuantityPresentation::visit(FcPropertyEnumeratedValue const&) { return false; }

bool CreateQuantityPresentation::visit(FcPropertyEnumeratedValue const&) { return false; }

} // namespace qev::fc::ui::propertyinterface
