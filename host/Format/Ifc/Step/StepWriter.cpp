#include "Format/Ifc/Step/StepWriter.h"

#include "Format/Ifc/Step/StepText.h"

#include <charconv>
#include <cmath>

namespace qev::step {

std::string StepWriter::real(double number)
{
    if (!std::isfinite(number))
        return "$";
    char buffer[40];
    std::to_chars_result const written = std::to_chars(buffer, buffer + sizeof(buffer), number);
    std::string text(buffer, written.ptr);
    std::size_t const exponent = text.find('e');
    if (exponent != std::string::npos)
        text[exponent] = 'E';
    if (text.find('.') == std::string::npos)
        text.insert(exponent == std::string::npos ? text.size() : exponent, 1, '.');
    return text;
}

void StepWriter::append(std::string& out, StepValue const& value)
{
    switch (value.kind()) {
    case StepValue::Kind::Unset:
        out += '$';
        break;
    case StepValue::Kind::Derived:
        out += '*';
        break;
    case StepValue::Kind::Integer:
        out += std::to_string(value.integerValue());
        break;
    case StepValue::Kind::Real:
        out += real(value.realValue());
        break;
    case StepValue::Kind::Text:
        out += '\'';
        StepText::appendEncoded(out, value.textValue());
        out += '\'';
        break;
    case StepValue::Kind::Enumeration:
        out += '.' + value.textValue() + '.';
        break;
    case StepValue::Kind::Binary:
        out += '"' + value.textValue() + '"';
        break;
    case StepValue::Kind::Reference:
        out += '#' + std::to_string(value.referenceId());
        break;
    case StepValue::Kind::Typed:
        out += value.textValue() + '(' + arguments(value.items()) + ')';
        break;
    case StepValue::Kind::List:
        out += '(' + arguments(value.items()) + ')';
        break;
    }
}

std::string StepWriter::value(StepValue const& value)
{
    std::string out;
    append(out, value);
    return out;
}

std::string StepWriter::arguments(std::span<StepValue const> values)
{
    std::string out;
    for (StepValue const& value : values) {
        if (!out.empty())
            out += ',';
        append(out, value);
    }
    return out;
}

std::string StepWriter::record(InstanceId id, std::string_view keyword, std::span<StepValue const> values)
{
    return '#' + std::to_string(id) + '=' + std::string(keyword) + '(' + arguments(values) + ");";
}

} // namespace qev::step
