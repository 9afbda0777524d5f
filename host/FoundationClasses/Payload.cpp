#include "FoundationClasses/Payload.h"

#include "Core/String/Ascii.h"
#include "Core/String/NumberText.h"
#include "FoundationClasses/AttributeReader.h"
#include "FoundationClasses/AttributeWriter.h"

#include <charconv>
#include <cmath>

namespace qev::fc {

namespace {

using step::StepValue;
using Kind = StepValue::Kind;

std::optional<std::int64_t> parseInteger(std::string_view text)
{
    text = str::trimmed(text);
    if (!text.empty() && text.front() == '+')
        text.remove_prefix(1);
    std::int64_t number = 0;
    auto const [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size() || text.empty())
        return std::nullopt;
    return number;
}

std::optional<double> parseReal(std::string_view text) { return str::parseDouble(str::trimmed(text)); }

/// The form that `payloadText` gives of a list: "(48, 8, 0)".
template <class Number, class Parse>
std::optional<Payload> parseList(std::string_view text, Parse parse)
{
    text = str::trimmed(text);
    if (text.size() < 2 || text.front() != '(' || text.back() != ')')
        return std::nullopt;
    text = text.substr(1, text.size() - 2);
    std::vector<Number> numbers;
    while (true) {
        auto const comma = text.find(',');
        auto const number = parse(text.substr(0, comma));
        if (!number)
            return std::nullopt;
        numbers.push_back(*number);
        if (comma == std::string_view::npos)
            return Payload(std::move(numbers));
        text.remove_prefix(comma + 1);
    }
}

/// The first digit tells how many bits of the second are unused.
bool isBinary(std::string_view digits)
{
    return !digits.empty() && digits.front() >= '0' && digits.front() <= '3' &&
           digits.find_first_not_of("0123456789ABCDEF") == std::string_view::npos;
}

std::optional<Payload> parseTruth(ValueKind kind, std::string_view text)
{
    std::string const word = str::toLower(str::trimmed(text));
    bool const isTrue = word == "true" || word == "1";
    bool const isFalse = word == "false" || word == "0";
    if (kind == ValueKind::Boolean)
        return isTrue || isFalse ? std::optional<Payload>(isTrue) : std::nullopt;
    if (isTrue || isFalse)
        return Payload(isTrue ? Logical::True : Logical::False);
    return word == "unknown" ? std::optional<Payload>(Logical::Unknown) : std::nullopt;
}

std::optional<bool> truthOf(StepValue const& value)
{
    if (value.kind() != Kind::Enumeration)
        return std::nullopt;
    if (value.textValue() == "T" || value.textValue() == "TRUE")
        return true;
    if (value.textValue() == "F" || value.textValue() == "FALSE")
        return false;
    return std::nullopt;
}

std::optional<Payload> readInteger(StepValue const& value)
{
    if (value.kind() == Kind::Integer)
        return Payload(value.integerValue());
    if (value.kind() != Kind::Real)
        return std::nullopt;
    // Counts were plain numbers before IFC4X3, so older files may hold "4." or "4.5".
    double const number = value.realValue();
    if (number == std::floor(number) && std::abs(number) < 9.0e15)
        return Payload(static_cast<std::int64_t>(number));
    return Payload(number);
}

std::optional<Payload> readNumbers(ValueKind kind, StepValue const& value)
{
    if (value.kind() != Kind::List)
        return std::nullopt;
    std::vector<std::int64_t> integers;
    std::vector<double> reals;
    for (StepValue const& item : value.items()) {
        if (!item.isNumber())
            return std::nullopt;
        integers.push_back(item.kind() == Kind::Integer ? item.integerValue()
                                                        : std::llround(item.realValue()));
        reals.push_back(item.realValue());
    }
    return kind == ValueKind::Integer ? Payload(std::move(integers)) : Payload(std::move(reals));
}

struct TextOfPayload
{
    using Result = std::optional<std::string>;

    Result operator()(std::monostate) const { return std::nullopt; }
    Result operator()(bool value) const { return value ? "true" : "false"; }
    Result operator()(Logical value) const
    {
        return value == Logical::True ? "true" : value == Logical::False ? "false" : "unknown";
    }
    Result operator()(std::int64_t value) const { return std::to_string(value); }
    Result operator()(double value) const { return str::shortestText(value); }
    Result operator()(std::string const& value) const { return value; }
    Result operator()(Binary const& value) const { return value.digits; }
    Result operator()(std::vector<std::int64_t> const& values) const { return join(values); }
    Result operator()(std::vector<double> const& values) const { return join(values); }

    template <class T>
    Result join(std::vector<T> const& values) const
    {
        std::string text = "(";
        for (T const& value : values)
            text += (text.size() > 1 ? ", " : "") + *(*this)(value);
        return text + ")";
    }
};

struct StepOfPayload
{
    std::string_view typeName;
    AttributeWriter const& writer;

    StepValue operator()(std::monostate) const { return {}; }
    StepValue operator()(bool value) const { return StepValue::enumeration(value ? "T" : "F"); }
    StepValue operator()(Logical value) const
    {
        return StepValue::enumeration(value == Logical::True ? "T" : value == Logical::False ? "F" : "U");
    }
    StepValue operator()(std::int64_t value) const { return StepValue::integer(value); }
    StepValue operator()(double value) const
    {
        return StepValue::real(writer.scaleOf(typeName).fromSi(value));
    }
    StepValue operator()(std::string const& value) const { return StepValue::text(value); }
    StepValue operator()(Binary const& value) const { return StepValue::binary(value.digits); }
    StepValue operator()(std::vector<std::int64_t> const& values) const
    {
        std::vector<StepValue> items;
        for (std::int64_t const value : values)
            items.push_back(StepValue::integer(value));
        return StepValue::list(std::move(items));
    }
    StepValue operator()(std::vector<double> const& values) const
    {
        std::vector<StepValue> items;
        for (double const value : values)
            items.push_back(StepValue::real(value));
        return StepValue::list(std::move(items));
    }
};

} // namespace

Payload defaultPayload(ValueKind kind, bool isAggregate)
{
    if (isAggregate)
        return kind == ValueKind::Integer ? Payload(std::vector<std::int64_t>())
                                          : Payload(std::vector<double>());
    switch (kind) {
    case ValueKind::Boolean:
        return false;
    case ValueKind::Logical:
        return Logical::Unknown;
    case ValueKind::Integer:
        return std::int64_t{0};
    case ValueKind::Real:
        return 0.0;
    case ValueKind::Text:
        return std::string();
    case ValueKind::Binary:
        return Binary{"0"};
    default:
        return {};
    }
}

std::optional<std::string> payloadText(Payload const& payload)
{
    return std::visit(TextOfPayload(), payload);
}

std::optional<double> payloadNumber(Payload const& payload)
{
    if (auto const* const real = std::get_if<double>(&payload))
        return *real;
    if (auto const* const integer = std::get_if<std::int64_t>(&payload))
        return static_cast<double>(*integer);
    return std::nullopt;
}

std::optional<Payload> parsePayload(ValueKind kind, bool isAggregate, std::string_view text)
{
    if (isAggregate)
        return kind == ValueKind::Integer ? parseList<std::int64_t>(text, parseInteger)
                                          : parseList<double>(text, parseReal);
    switch (kind) {
    case ValueKind::Boolean:
    case ValueKind::Logical:
        return parseTruth(kind, text);
    case ValueKind::Integer:
        if (auto const number = parseInteger(text))
            return Payload(*number);
        return std::nullopt;
    case ValueKind::Real:
        if (auto const number = parseReal(text))
            return Payload(*number);
        return std::nullopt;
    case ValueKind::Text:
        return Payload(std::string(text));
    case ValueKind::Binary:
        return isBinary(text) ? std::optional<Payload>(Binary{std::string(text)}) : std::nullopt;
    default:
        return std::nullopt;
    }
}

std::optional<Payload> readPayload(std::string_view typeName, ValueKind kind, bool isAggregate,
                                   StepValue const& value, AttributeReader const& reader)
{
    if (isAggregate)
        return readNumbers(kind, value);
    switch (kind) {
    case ValueKind::Boolean:
        if (auto const truth = truthOf(value))
            return Payload(*truth);
        return std::nullopt;
    case ValueKind::Logical:
        if (auto const truth = truthOf(value))
            return Payload(*truth ? Logical::True : Logical::False);
        if (value.kind() == Kind::Enumeration && (value.textValue() == "U" || value.textValue() == "UNKNOWN"))
            return Payload(Logical::Unknown);
        return std::nullopt;
    case ValueKind::Integer:
        return readInteger(value);
    case ValueKind::Real:
        if (!value.isNumber())
            return std::nullopt;
        return Payload(reader.scaleOf(typeName).toSi(value.realValue()));
    case ValueKind::Text:
        if (value.kind() != Kind::Text)
            return std::nullopt;
        return Payload(value.textValue());
    case ValueKind::Binary:
        if (value.kind() != Kind::Binary)
            return std::nullopt;
        return Payload(Binary{value.textValue()});
    default:
        return std::nullopt;
    }
}

StepValue writePayload(std::string_view typeName, Payload const& payload, AttributeWriter const& writer)
{
    return std::visit(StepOfPayload{typeName, writer}, payload);
}

} // namespace qev::fc
