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

/// Whether a text of several units may have the unit.
bool canBeCombined(UnitBase const* unit) { return unit && !unit->hasOffset(); }

/// What the rounding of a quotient of units has left is taken away: a degree has 60 minutes.
double wholeIfNearly(double ratio)
{
    constexpr double roundingOfAQuotient = 1e-12;
    double const whole = std::round(ratio);
    return std::abs(ratio - whole) <= ratio * roundingOfAQuotient ? whole : ratio;
}

} // namespace

QuantityTextReader::QuantityTextReader(std::string_view text, UnitBase const& displayUnit,
                                       UnitBase const& target, NumberFormat const& format)
    : m_text(plainSpelling(text))
    , m_displayUnit(displayUnit)
    , m_target(target)
    , m_format(format)
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

    return readFurtherTerms(*first, sign);
}

/// The sum is kept in the smallest unit so far: 8 feet and 2 1/2 inches are exactly as much as 98.5 inches.
std::optional<double> QuantityTextReader::readFurtherTerms(Term const& first, double sign)
{
    if (!canBeCombined(first.unit))
        return std::nullopt;
    double sum = first.number;
    UnitBase const* unit = first.unit;
    while (!atEnd()) {
        auto const term = readTerm();
        if (!term || !canBeCombined(term->unit))
            return std::nullopt;
        double const ratio = unit->toSi(1) / term->unit->toSi(1);
        if (ratio <= 1)
            return std::nullopt;
        sum = sum * wholeIfNearly(ratio) + term->number;
        unit = term->unit;
    }
    return convert(sign * sum, *unit, m_target);
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
    auto const digits = readDigits();
    auto number = m_format.plainDigits(digits);
    if (!number) {
        if (m_format.isAmbiguous(digits))
            m_ambiguousNumber = digits;
        return false;
    }
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
            bool const fits =
                ignoreCase ? str::equalIgnoringCase(candidate, spelling) : candidate == spelling;
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
