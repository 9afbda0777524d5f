#include "Core/Unit/QuantityTextReader.h"

#include "Core/String/Ascii.h"
#include "Core/String/NumberText.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <utility>

namespace qev::unit {

namespace {

using str::isDigit;

bool isLetter(char character)
{
    return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z');
}

/// What users and other programs write, and what is read instead.
constexpr std::array<std::pair<std::string_view, std::string_view>, 11> replacements = {{
    {"\t", " "},
    {"\u00A0", " "},  // no-break space
    {"\u2009", " "},  // thin space
    {"\u202F", " "},  // narrow no-break space
    {"\u2212", "-"},  // minus sign
    {"\u2032", "'"},  // prime
    {"\u2019", "'"},  // right single quotation mark
    {"\u2033", "\""}, // double prime
    {"\u201D", "\""}, // right double quotation mark
    {"\u03BC", "µ"},  // the Greek letter for the micro sign
    {"\u00BA", "°"},  // the ordinal for the degree sign
}};

std::string plainSpelling(std::string_view text)
{
    std::string result;
    for (std::size_t i = 0; i < text.size();) {
        auto const replacement =
            std::find_if(replacements.begin(), replacements.end(),
                         [&](auto const& entry) { return text.substr(i).starts_with(entry.first); });
        if (replacement == replacements.end()) {
            result += text[i++];
        } else {
            result += replacement->second;
            i += replacement->first.size();
        }
    }
    auto const first = result.find_first_not_of(' ');
    if (first == std::string::npos)
        return {};
    return result.substr(first, result.find_last_not_of(' ') - first + 1);
}

bool groupsThousands(std::string_view wholePart, char separator)
{
    auto start = wholePart.find(separator);
    if (start == 0 || start == std::string_view::npos || start > 3)
        return false;
    while (start != std::string_view::npos) {
        auto const next = wholePart.find(separator, start + 1);
        auto const end = next == std::string_view::npos ? wholePart.size() : next;
        if (end - start - 1 != 3)
            return false;
        start = next;
    }
    return true;
}

std::string withoutCharacter(std::string_view text, char character)
{
    std::string result(text);
    std::erase(result, character);
    return result;
}

/// The digits of \p mantissa with "." alone for the decimal sign and without groups.
std::optional<std::string> plainMantissa(std::string_view mantissa)
{
    auto const last = mantissa.find_last_of(".,");
    if (last == std::string_view::npos)
        return std::string(mantissa);
    char const sign = mantissa[last];
    char const other = sign == '.' ? ',' : '.';
    std::string_view const whole = mantissa.substr(0, last);
    bool const repeats = whole.find(sign) != std::string_view::npos;
    bool const mixed = whole.find(other) != std::string_view::npos;
    if (repeats)
        return !mixed && groupsThousands(mantissa, sign) ? std::optional(withoutCharacter(mantissa, sign))
                                                         : std::nullopt;
    if (mixed && !groupsThousands(whole, other))
        return std::nullopt;
    return withoutCharacter(whole, other) + "." + std::string(mantissa.substr(last + 1));
}

} // namespace

std::optional<std::string> plainNumber(std::string_view text)
{
    auto const exponent = std::min(text.find_first_of("eE"), text.size());
    auto const mantissa = plainMantissa(text.substr(0, exponent));
    if (!mantissa)
        return std::nullopt;
    std::string number = *mantissa + std::string(text.substr(exponent));
    return str::parseDouble(number) ? std::optional(std::move(number)) : std::nullopt;
}

QuantityTextReader::QuantityTextReader(std::string_view text, UnitBase const& displayUnit,
                                       UnitBase const& target)
    : m_text(plainSpelling(text))
    , m_displayUnit(displayUnit)
    , m_target(target)
{
}

std::optional<double> QuantityTextReader::read()
{
    double const sign = readSign() ? -1.0 : 1.0;
    auto const first = readTerm();
    if (!first)
        return std::nullopt;
    if (atEnd())
        return inTarget(*first, first->unit ? *first->unit : m_displayUnit, sign);

    double sum = 0;
    for (auto term = first; term;) {
        if (!term->unit || term->unit->hasOffset() || term->number < 0)
            return std::nullopt;
        sum += term->unit->toSi(term->number);
        if (atEnd())
            return m_target.fromSi(sign * sum);
        auto const next = readTerm();
        if (next && next->unit && next->unit->toSi(1) >= term->unit->toSi(1))
            return std::nullopt;
        term = next;
    }
    return std::nullopt;
}

/// Reads a sign. \returns whether it is a minus.
bool QuantityTextReader::readSign()
{
    if (atEnd() || (m_text[m_position] != '-' && m_text[m_position] != '+'))
        return false;
    bool const negative = m_text[m_position] == '-';
    ++m_position;
    skipBlanks();
    return negative;
}

std::optional<QuantityTextReader::Term> QuantityTextReader::readTerm()
{
    Term term;
    if (!readNumberWithFraction(term))
        return std::nullopt;
    skipBlanks();
    if (atEnd())
        return term;
    term.unit = readUnit();
    if (!term.unit)
        return std::nullopt;
    // A hyphen often joins feet and inches.
    if (m_position + 1 < m_text.size() && m_text[m_position] == '-' && isDigit(m_text[m_position + 1]))
        ++m_position;
    skipBlanks();
    return term;
}

bool QuantityTextReader::readNumberWithFraction(Term& term)
{
    if (auto const fraction = readFraction()) {
        term.number = *fraction;
        return true;
    }
    auto number = plainNumber(readDigits());
    if (!number)
        return false;
    term.number = *str::parseDouble(*number);
    auto const start = m_position;
    skipBlanks();
    if (m_position > start) {
        if (auto const fraction = readFraction()) {
            term.number += *fraction;
            return true;
        }
    }
    m_position = start;
    term.digits = std::move(*number);
    return true;
}

/// Reads "1/2". Reads nothing when there is no such thing.
std::optional<double> QuantityTextReader::readFraction()
{
    auto const digitsAt = [this](std::size_t position) {
        auto end = position;
        while (end < m_text.size() && isDigit(m_text[end]))
            ++end;
        return std::string_view(m_text).substr(position, end - position);
    };
    auto const numerator = digitsAt(m_position);
    auto const slash = m_position + numerator.size();
    if (numerator.empty() || slash >= m_text.size() || m_text[slash] != '/')
        return std::nullopt;
    auto const denominator = digitsAt(slash + 1);
    auto const dividend = str::parseDouble(numerator);
    auto const divisor = str::parseDouble(denominator);
    if (!dividend || !divisor || *divisor == 0)
        return std::nullopt;
    m_position = slash + 1 + denominator.size();
    return *dividend / *divisor;
}

/// The digits, signs and exponent of a number, whether they form one or not.
std::string_view QuantityTextReader::readDigits()
{
    auto end = m_position;
    while (end < m_text.size() && (isDigit(m_text[end]) || m_text[end] == '.' || m_text[end] == ','))
        ++end;
    if (end < m_text.size() && (m_text[end] == 'e' || m_text[end] == 'E')) {
        auto exponent = end + 1;
        if (exponent < m_text.size() && (m_text[exponent] == '-' || m_text[exponent] == '+'))
            ++exponent;
        auto const digits = exponent;
        while (exponent < m_text.size() && isDigit(m_text[exponent]))
            ++exponent;
        if (exponent > digits)
            end = exponent;
    }
    auto const result = std::string_view(m_text).substr(m_position, end - m_position);
    m_position = end;
    return result;
}

/// The unit whose spelling is the longest that fits; the case of letters counts only where it has to.
UnitBase const* QuantityTextReader::readUnit()
{
    std::size_t length = 0;
    auto const* unit = matchUnit(false, length);
    if (!unit)
        unit = matchUnit(true, length);
    m_position += length;
    return unit;
}

UnitBase const* QuantityTextReader::matchUnit(bool ignoreCase, std::size_t& length) const
{
    UnitBase const* match = nullptr;
    bool ambiguous = false;
    for (auto const& unit : m_target.quantity().units()) {
        for (auto const spelling : unit->spellings()) {
            auto const candidate = rest().substr(0, spelling.size());
            bool const fits = ignoreCase ? str::equalIgnoringCase(candidate, spelling) : candidate == spelling;
            if (!fits || spelling.size() < length || !endsUnit(spelling.size()))
                continue;
            ambiguous = spelling.size() == length && match && match != unit.get();
            match = unit.get();
            length = spelling.size();
        }
    }
    if (ambiguous)
        length = 0;
    return ambiguous ? nullptr : match;
}

/// Whether a unit may end \p length characters on: not in the middle of a word.
bool QuantityTextReader::endsUnit(std::size_t length) const
{
    auto const end = m_position + length;
    if (end == m_text.size() || m_text[end] == ' ' || m_text[end] == '-')
        return true;
    return isDigit(m_text[end]) && !isLetter(m_text[end - 1]);
}

/// Between decimal units the digits are moved instead of being calculated with: 250.1 mm is exactly the
/// same number as 0.2501 m.
double QuantityTextReader::inTarget(Term const& term, UnitBase const& unit, double sign) const
{
    auto const from = unit.decimalExponent();
    auto const to = m_target.decimalExponent();
    if (from && to && !term.digits.empty()) {
        auto const moved = str::timesPowerOfTen(term.digits, *from - *to);
        auto const value = moved ? str::parseDouble(*moved) : std::nullopt;
        if (value)
            return sign * *value;
    }
    return convert(sign * term.number, unit, m_target);
}

void QuantityTextReader::skipBlanks()
{
    while (!atEnd() && m_text[m_position] == ' ')
        ++m_position;
}

} // namespace qev::unit
