#include "Format/Ifc/Model/Spelling.h"

#include "Core/String/Ascii.h"
#include "Format/Ifc/Step/StepRecordParser.h"
#include "Format/Ifc/Step/StepWriter.h"

#include <cmath>
#include <limits>
#include <optional>
#include <vector>

namespace qev::ifc {

namespace {

using step::StepValue;
using Kind = StepValue::Kind;

bool isSameNumber(double a, double b)
{
    // A product with the factor and a quotient by it are off by at most half a unit in the last place each.
    double const tolerance =
        4.0 * std::numeric_limits<double>::epsilon() * std::max(std::abs(a), std::abs(b));
    return a == b || std::abs(a - b) <= tolerance;
}

bool isSame(StepValue const& a, StepValue const& b)
{
    if (a.isNumber() && b.isNumber())
        return isSameNumber(a.realValue(), b.realValue());
    if (a.kind() != b.kind() || a.textValue() != b.textValue() || a.referenceId() != b.referenceId() ||
        a.items().size() != b.items().size())
        return false;
    for (std::size_t i = 0; i < a.items().size(); ++i) {
        if (!isSame(a.items()[i], b.items()[i]))
            return false;
    }
    return true;
}

/// Where the token that begins at \p position ends, so that nothing inside a text or comment is taken for
/// structure.
std::size_t skipOpaque(std::string_view text, std::size_t position)
{
    char const c = text[position];
    if (c == '\'' || c == '"') {
        std::size_t const end = text.find(c, position + 1);
        return end == std::string_view::npos ? text.size() : end + 1;
    }
    if (c == '/' && position + 1 < text.size() && text[position + 1] == '*') {
        std::size_t const end = text.find("*/", position + 2);
        return end == std::string_view::npos ? text.size() : end + 2;
    }
    return position + 1;
}

/// The texts of the elements of a list, without its parentheses.
std::vector<std::string_view> elementsOf(std::string_view list)
{
    std::vector<std::string_view> elements;
    std::string_view const inner = list.substr(1, list.size() - 2);
    std::size_t start = 0;
    int depth = 0;
    for (std::size_t position = 0; position < inner.size(); position = skipOpaque(inner, position)) {
        depth += inner[position] == '(' ? 1 : inner[position] == ')' ? -1 : 0;
        if (inner[position] != ',' || depth != 0)
            continue;
        elements.push_back(str::trimmed(inner.substr(start, position - start)));
        start = position + 1;
    }
    elements.push_back(str::trimmed(inner.substr(start)));
    return elements;
}

std::optional<StepValue> valueOf(std::string_view text)
{
    std::vector<StepValue> values;
    if (!step::parseArguments(std::string(text) + ")", values) || values.size() != 1)
        return std::nullopt;
    return values.front();
}

std::string withOldSpelling(std::string_view before, StepValue const& after)
{
    auto const old = valueOf(before);
    if (!old)
        return step::StepWriter::value(after);
    if (isSame(*old, after))
        return std::string(before);
    bool const areLists = old->kind() == Kind::List && after.kind() == Kind::List && !old->items().empty();
    if (!areLists || before.size() < 2 || before.front() != '(' || before.back() != ')')
        return step::StepWriter::value(after);
    auto const elements = elementsOf(before);
    std::string text = "(";
    for (std::size_t i = 0; i < after.items().size(); ++i) {
        text += i > 0 ? "," : "";
        text += i < elements.size() ? withOldSpelling(elements[i], after.items()[i])
                                    : step::StepWriter::value(after.items()[i]);
    }
    return text + ")";
}

} // namespace

std::string respelled(std::string_view before, StepValue const& after)
{
    std::string text = withOldSpelling(str::trimmed(before), after);
    // Odd escapes may hide where an element ends; then the plain text is the safe one.
    auto const readBack = valueOf(text);
    return readBack && isSame(*readBack, after) ? text : step::StepWriter::value(after);
}

} // namespace qev::ifc
