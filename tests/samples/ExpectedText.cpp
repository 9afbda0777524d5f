#include "ExpectedText.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <sstream>

namespace qev::test::samples {

using reference::ReferenceProperty;
using reference::ReferenceValue;
using reference::StepArgument;
using Kind = ReferenceProperty::Kind;

namespace {

std::string wordOf(ReferenceValue const& value)
{
    if (value.kind != StepArgument::Kind::Enumeration)
        return value.text;
    if (value.text == "T")
        return "true";
    if (value.text == "F")
        return "false";
    return value.text == "U" ? "unknown" : value.text;
}

/// "(a, b)" of two or more, a single one as it is.
ExpectedText enumerated(std::vector<ReferenceValue> const& values)
{
    ExpectedText text;
    if (values.size() == 1)
        return text.add(values.front());
    for (std::size_t i = 0; i < values.size(); ++i)
        text.add(i == 0 ? "(" : ", ").add(values[i]);
    return values.empty() ? text : text.add(")");
}

ExpectedText list(std::vector<ReferenceValue> const& values)
{
    ExpectedText text;
    for (std::size_t i = 0; i < values.size(); ++i)
        text.add(i == 0 ? "" : "; ").add(values[i]);
    return text;
}

ExpectedText bounded(ReferenceProperty const& property)
{
    ExpectedText text;
    if (property.lower || property.upper) {
        text.add("(");
        if (property.lower)
            text.add(*property.lower);
        text.add(", ");
        if (property.upper)
            text.add(*property.upper);
        text.add(")");
        if (property.setPoint)
            text.add(" ");
    }
    if (property.setPoint)
        text.add(*property.setPoint);
    return text;
}

} // namespace

ExpectedText& ExpectedText::add(std::string_view text)
{
    m_pieces.emplace_back(std::string(text));
    return *this;
}

ExpectedText& ExpectedText::add(double number)
{
    m_pieces.emplace_back(number);
    return *this;
}

ExpectedText& ExpectedText::add(ReferenceValue const& value)
{
    auto const number = value.si();
    return number ? add(*number) : add(wordOf(value));
}

ExpectedText& ExpectedText::add(ExpectedText const& other)
{
    m_pieces.insert(m_pieces.end(), other.m_pieces.begin(), other.m_pieces.end());
    return *this;
}

bool ExpectedText::matches(std::string_view shown) const
{
    std::string const all(shown);
    char const* rest = all.c_str();
    for (auto const& piece : m_pieces) {
        if (auto const* const text = std::get_if<std::string>(&piece)) {
            if (std::string_view(rest).substr(0, text->size()) != *text)
                return false;
            rest += text->size();
            continue;
        }
        char* end = nullptr;
        double const found = std::strtod(rest, &end);
        double const wanted = std::get<double>(piece);
        if (end == rest || std::abs(found - wanted) > 0.51e-6 + 1e-9 * std::abs(wanted))
            return false;
        rest = end;
    }
    return rest == all.c_str() + all.size();
}

std::optional<bool> ExpectedText::isSame(ExpectedText const& other) const
{
    if (m_pieces.size() != other.m_pieces.size())
        return false;
    bool isClear = true;
    for (std::size_t i = 0; i < m_pieces.size(); ++i) {
        auto const* const number = std::get_if<double>(&m_pieces[i]);
        auto const* const otherNumber = std::get_if<double>(&other.m_pieces[i]);
        if (m_pieces[i] == other.m_pieces[i])
            continue;
        double const rounding = number ? 2e-6 + 1e-9 * std::abs(*number) : 0.0;
        if (!number || !otherNumber || std::abs(*number - *otherNumber) > rounding)
            return false;
        isClear = false;
    }
    return isClear ? std::optional(true) : std::nullopt;
}

std::string ExpectedText::describe() const
{
    std::ostringstream out;
    out.precision(12);
    for (auto const& piece : m_pieces)
        std::visit([&out](auto const& content) { out << content; }, piece);
    return out.str();
}

bool ExpectedText::isEmpty() const
{
    return std::all_of(m_pieces.begin(), m_pieces.end(), [](auto const& piece) {
        auto const* const text = std::get_if<std::string>(&piece);
        return text && text->empty();
    });
}

bool isSameNumber(double a, double b) { return std::abs(a - b) <= 1e-9 * std::max(std::abs(a), std::abs(b)); }

ExpectedText expectedText(ReferenceProperty const& property)
{
    switch (property.kind) {
    case Kind::Single:
        return property.values.empty() ? ExpectedText() : ExpectedText().add(property.values.front());
    case Kind::Enumerated:
        return enumerated(property.values);
    case Kind::Bounded:
        return bounded(property);
    case Kind::List:
        return list(property.values);
    case Kind::Length:
    case Kind::Area:
    case Kind::Volume:
    case Kind::Count:
    case Kind::Weight:
    case Kind::Time:
        return ExpectedText().add(property.values.front());
    default:
        return {};
    }
}

} // namespace qev::test::samples
