#include "Object/PropertyText.h"

#include "Core/String/Ascii.h"
#include "Core/Unit/NumberFormat.h"
#include "Core/Unit/QuantityPresentation.h"

#include <charconv>
#include <variant>

namespace qev::object {

namespace {

using Kind = PropertyValue::Kind;

struct TextOfValue
{
    std::string operator()(std::monostate) const { return {}; }
    std::string operator()(bool value) const { return value ? "true" : "false"; }
    std::string operator()(std::string const& value) const { return value; }
    std::string operator()(double value) const { return unit::NumberFormat::current().write(value); }
    template <class Value>
    std::string operator()(std::optional<Value> const& value) const
    {
        return value ? (*this)(*value) : std::string();
    }
    template <class Integer>
    std::string operator()(Integer value) const
    {
        return std::to_string(value);
    }
};

template <class Integer>
std::optional<PropertyValue> readInteger(std::string const& text)
{
    Integer number = 0;
    auto const* const end = text.data() + text.size();
    auto const [stop, error] = std::from_chars(text.data(), end, number);
    if (error != std::errc() || stop != end)
        return std::nullopt;
    return PropertyValue(number);
}

std::optional<PropertyValue> readBoolean(std::string const& text)
{
    for (auto const* const word : {"true", "yes", "1"})
        if (str::equalIgnoringCase(text, word))
            return PropertyValue(true);
    for (auto const* const word : {"false", "no", "0"})
        if (str::equalIgnoringCase(text, word))
            return PropertyValue(false);
    return std::nullopt;
}

std::optional<PropertyValue> readNumber(std::string const& text,
                                        unit::QuantityPresentationBase const* presentation)
{
    auto const number = presentation ? presentation->parse(text) : unit::NumberFormat::current().read(text);
    return number ? std::optional<PropertyValue>(*number) : std::nullopt;
}

std::optional<PropertyValue> readPlain(std::string const& text, Kind kind,
                                       unit::QuantityPresentationBase const* presentation)
{
    switch (kind) {
    case Kind::Integer:
    case Kind::OptionalInteger:
        return readInteger<int>(text);
    case Kind::Unsigned:
    case Kind::OptionalUnsigned:
        return readInteger<std::uint32_t>(text);
    case Kind::Boolean:
    case Kind::OptionalBoolean:
        return readBoolean(text);
    case Kind::Double:
    case Kind::OptionalDouble:
        return readNumber(text, presentation);
    case Kind::Nothing:
    case Kind::String:
    case Kind::OptionalString:
        break;
    }
    return PropertyValue(text);
}

bool isOptional(PropertyValue const& value)
{
    switch (value.kind()) {
    case Kind::OptionalInteger:
    case Kind::OptionalUnsigned:
    case Kind::OptionalBoolean:
    case Kind::OptionalDouble:
    case Kind::OptionalString:
        return true;
    case Kind::Nothing:
    case Kind::Integer:
    case Kind::Unsigned:
    case Kind::Boolean:
    case Kind::Double:
    case Kind::String:
        break;
    }
    return false;
}

} // namespace

bool PropertyText::isUnset(PropertyValue const& value)
{
    return value.kind() == Kind::Nothing || value.isNullopt();
}

std::string PropertyText::getText(PropertyValue const& value)
{
    return std::visit(TextOfValue(), value.variant());
}

PropertyValue PropertyText::getLike(PropertyValue const& value, bool isNumber)
{
    if (value.kind() != Kind::Nothing)
        return value;
    return isNumber ? PropertyValue(std::optional<double>()) : PropertyValue(std::optional<std::string>());
}

PropertyValue PropertyText::bringTo(PropertyValue const& like, PropertyValue const& value)
{
    return isOptional(like) ? like.getWrappedOptionalValue(value) : value;
}

std::optional<PropertyValue> PropertyText::read(std::string const& text, PropertyValue const& like,
                                                unit::QuantityPresentationBase const* presentation)
{
    if (text.empty())
        return like.getWrappedOptionalValue(PropertyValue());
    auto const value = readPlain(text, like.kind(), presentation);
    return value ? std::optional(bringTo(like, *value)) : std::nullopt;
}

} // namespace qev::object
