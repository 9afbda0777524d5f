#include "Format/Ifc/Model/PropertyValueMapping.h"

#include "Core/String/Ascii.h"
#include "Format/Ifc/Model/PropertyDefinitions.h"
#include "Format/Ifc/Schema/Pset/PropertyDef.h"
#include "Format/Ifc/Schema/Pset/TypePropertyEnumeratedValue.h"
#include "Format/Ifc/Schema/Pset/TypePropertyListValue.h"
#include "Format/Ifc/Schema/Pset/TypePropertySingleValue.h"
#include "Format/Ifc/Schema/Pset/TypePropertyTableValue.h"
#include "FoundationClasses/Resource/Property/FcPropertyEnumeratedValue.h"
#include "FoundationClasses/Resource/Property/FcPropertyEnumeration.h"
#include "FoundationClasses/Resource/Property/FcPropertyListValue.h"
#include "FoundationClasses/Resource/Property/FcPropertyTableValue.h"

namespace qev::ifc {

using namespace def::pset;
using fc::resource::measure::FcValue;
using fc::resource::property::FcProperty;
using fc::resource::property::FcPropertyEnumeratedValue;
using fc::resource::property::FcPropertyListValue;
using fc::resource::property::FcPropertyTableValue;

namespace {

using OptionalValues = std::optional<std::vector<FcValue>>;

/// The default value of the type named \p schemaName; the empty value for another name.
FcValue defaultOf(std::string_view schemaName)
{
    constexpr std::string_view prefix = "Ifc";
    FcValue value;
    if (schemaName.starts_with(prefix))
        value.setTypeFromString(std::string(schemaName.substr(prefix.size())));
    return value;
}

/// The default value of the type that the first typed one of \p values has.
FcValue defaultLike(OptionalValues const& values)
{
    if (!values)
        return {};
    for (FcValue const& value : *values) {
        if (auto const* const type = value.typeInfo())
            return defaultOf(type->schemaName);
    }
    return {};
}

/// Empty for a definition without one type.
std::string_view valueTypeOf(PropertyType const* type)
{
    if (auto const* const single = dynamic_cast<TypePropertySingleValue const*>(type))
        return single->valueType;
    if (auto const* const list = dynamic_cast<TypePropertyListValue const*>(type))
        return list->valueType;
    if (auto const* const enumerated = dynamic_cast<TypePropertyEnumeratedValue const*>(type))
        return enumerated->valueType;
    return {};
}

PropertyType const* definedTypeOf(FcProperty const& property)
{
    auto const* const definition = dynamic_cast<PropertyDef const*>(findSchemaDefForProperty(property));
    return definition ? definition->propertyType.get() : nullptr;
}

/// Stores what \p source holds in \p target, in the type of \p target, where it fits.
void takeOver(FcValue& target, FcValue const& source)
{
    auto const number = source.valueAsDoubleGet();
    if (number && target.setDoubleValue(*number))
        return;
    if (auto const text = source.getAsString(false))
        target.setValueOnTypeFromString(*text);
}

std::vector<std::string> textsOf(std::vector<FcValue> const& values)
{
    std::vector<std::string> texts;
    for (FcValue const& value : values) {
        if (auto const text = value.getAsString(false))
            texts.emplace_back(str::trimmed(*text));
    }
    return texts;
}

} // namespace

void setCorrectValueType(PropertyDef const& definition, FcValue& value)
{
    FcValue required = defaultOf(valueTypeOf(definition.propertyType.get()));
    if (required.isEmpty() || required.typeInfo() == value.typeInfo())
        return;
    takeOver(required, value);
    value = std::move(required);
}

std::vector<std::string> getPossibleEnumValues(FcPropertyEnumeratedValue const& property)
{
    if (auto const enumeration = property.EnumerationReference->get()) {
        auto texts = textsOf(enumeration->EnumerationValues.get());
        if (!texts.empty())
            return texts;
    }
    auto const* const type = dynamic_cast<TypePropertyEnumeratedValue const*>(definedTypeOf(property));
    return type ? type->values : std::vector<std::string>();
}

std::optional<std::pair<FcValue, FcValue>> createTableValue(FcPropertyTableValue const& property)
{
    FcValue defining = defaultLike(property.DefiningValues.get());
    FcValue defined = defaultLike(property.DefinedValues.get());
    if (auto const* const type = dynamic_cast<TypePropertyTableValue const*>(definedTypeOf(property))) {
        if (defining.isEmpty())
            defining = defaultOf(type->definingValueType);
        if (defined.isEmpty())
            defined = defaultOf(type->definedValueType);
    }
    if (defining.isEmpty() || defined.isEmpty())
        return std::nullopt;
    return std::pair(std::move(defining), std::move(defined));
}

bool addListValue(FcPropertyListValue& property)
{
    FcValue value = defaultLike(property.ListValues.get());
    if (value.isEmpty())
        value = defaultOf(valueTypeOf(definedTypeOf(property)));
    if (value.isEmpty())
        return false;
    property.ListValues.edit([&value](OptionalValues& values) {
        if (!values)
            values.emplace();
        values->push_back(std::move(value));
    });
    return true;
}

} // namespace qev::ifc
