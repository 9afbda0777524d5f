#include "Core/Unit/QppSettings.h"

#include "Core/Localization/Localize.h"
#include "Core/String/NumberText.h"
#include "Core/Unit/QuantityTextReader.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <numeric>

namespace qev::unit {

namespace {

/// From here on the digits of a number without exponent would be made up.
constexpr double largestPlainNumber = 1e15;
/// Digits shown of a number that rounding would turn into zero.
constexpr int smallNumberDigits = 3;
/// What is left of a number by this share of the offset of a unit is noise of the conversion.
constexpr double offsetNoise = 1e-12;
/// All doubles differ in this many digits.
constexpr int distinctDigits = 17;
constexpr int firstDigitsTried = 6;
constexpr long long sixteenthsInFoot = 192;

void trimZeros(std::string& text)
{
    if (text.find('.') == std::string::npos)
        return;
    text.erase(text.find_last_not_of('0') + 1);
    if (text.back() == '.')
        text.pop_back();
}

bool isZero(std::string_view text) { return text.find_first_of("123456789") == std::string_view::npos; }

/// Whether the symbol of a unit follows the number without a blank.
bool isAttached(std::string_view symbol) { return symbol == "°" || symbol == "'" || symbol == "\""; }

/// Plain words for a number: no exponent unless the number asks for one.
std::string plainText(double value, int digits)
{
    std::string const text = str::significantText(value, digits);
    auto const number = str::parseDouble(text);
    return number ? str::shortestText(*number) : text;
}

std::string feetAndInches(double feet)
{
    auto const sixteenths = std::llround(std::abs(feet) * sixteenthsInFoot);
    auto const wholeFeet = sixteenths / sixteenthsInFoot;
    auto const wholeInches = sixteenths % sixteenthsInFoot / 16;
    auto const fraction = sixteenths % 16;
    std::string text = feet < 0 ? "-" : "";
    if (wholeFeet > 0)
        text += std::to_string(wholeFeet) + "' ";
    if (wholeInches > 0 || fraction == 0)
        text += std::to_string(wholeInches);
    if (fraction > 0) {
        auto const divisor = std::gcd(fraction, 16LL);
        text += (wholeInches > 0 ? " " : "") + std::to_string(fraction / divisor) + "/" +
                std::to_string(16 / divisor);
    }
    return text + "\"";
}

std::string degreesMinutesSeconds(double degrees, int decimals, bool trims)
{
    constexpr double secondsInDegree = 3600;
    constexpr double secondsInMinute = 60;
    double const scale = std::pow(10.0, decimals);
    double const seconds = std::round(std::abs(degrees) * secondsInDegree * scale) / scale;
    double const wholeDegrees = std::floor(seconds / secondsInDegree);
    double const wholeMinutes = std::floor((seconds - wholeDegrees * secondsInDegree) / secondsInMinute);
    double const rest = seconds - wholeDegrees * secondsInDegree - wholeMinutes * secondsInMinute;
    std::string restText = str::fixedText(std::max(rest, 0.0), decimals);
    if (trims)
        trimZeros(restText);
    return (degrees < 0 ? "-" : "") + str::fixedText(wholeDegrees, 0) + "° " +
           str::fixedText(wholeMinutes, 0) + "' " + restText + "\"";
}

} // namespace

QppSettings::QppSettings(QuantityBase const& quantity)
    : m_quantity(&quantity)
    , m_displayUnit(quantity.unitFromId(factsOfQuantity(quantity.id()).displayUnit))
    , m_decimals(factsOfQuantity(quantity.id()).decimals)
{
    if (!m_displayUnit && !quantity.units().empty())
        m_displayUnit = quantity.units().front().get();
}

bool QppSettings::setDisplayUnit(UnitBase const& unit)
{
    if (&unit.quantity() != m_quantity)
        return false;
    m_displayUnit = &unit;
    return true;
}

void QppSettings::setDecimals(int decimals) { m_decimals = std::clamp(decimals, 0, maximumDecimals); }

std::string QppSettings::writeToString(double value, UnitBase const& unit) const
{
    UnitBase const& shown = displayUnitFor(unit);
    double const number = convert(value, unit, shown);
    if (auto const text = writeWithStyle(number))
        return m_numberFormat.withDecimalSign(*text);
    std::string text = m_numberFormat.withDecimalSign(writeDecimal(number, shown));
    if (!m_showsUnit || shown.symbol().empty())
        return text;
    if (!isAttached(shown.symbol()))
        text += ' ';
    return text.append(shown.symbol());
}

std::string QppSettings::writeNumberToString(double value, UnitBase const& unit) const
{
    UnitBase const& shown = displayUnitFor(unit);
    return m_numberFormat.withDecimalSign(writeDecimal(convert(value, unit, shown), shown));
}

std::optional<double> QppSettings::parse(std::string_view text, UnitBase const& unit) const
{
    auto const value = QuantityTextReader(text, displayUnitFor(unit), unit, m_numberFormat).read();
    if (!value || !std::isfinite(*value))
        return std::nullopt;
    return *value + 0.0;
}

std::string QppSettings::describeExpected(std::string_view text, UnitBase const& unit) const
{
    QuantityTextReader reader(text, displayUnitFor(unit), unit, m_numberFormat);
    static_cast<void>(reader.read());
    if (auto const& number = reader.ambiguousNumber(); !number.empty())
        return m_numberFormat.describeExpected(number);
    std::string const example = m_numberFormat.withDecimalSign("2.5");
    std::string const symbols = symbolsOf(unit);
    if (symbols.empty())
        return localize("Expected_Number", "Units", {example});
    std::string_view const shown = displayUnitFor(unit).symbol();
    if (shown.empty())
        return localize("Expected_NumberOrUnit", "Units", {example, symbols});
    return localize("Expected_NumberWithUnit", "Units", {example, std::string(shown), symbols});
}

double QppSettings::dInternal(std::string const& text, UnitBase const& unit) const
{
    return parse(text, unit).value_or(std::numeric_limits<double>::quiet_NaN());
}

double QppSettings::dValueWithoutApplyingUnit(std::string const& text, NumberFormat const* format) const
{
    constexpr double none = std::numeric_limits<double>::quiet_NaN();
    if (!format)
        return m_numberFormat.read(text).value_or(none);
    bool const hasOtherSign = text.find(format->decimalSign == '.' ? ',' : '.') != std::string::npos;
    bool const hasGroups = std::count(text.begin(), text.end(), format->decimalSign) > 1;
    return hasOtherSign || hasGroups ? none : format->read(text).value_or(none);
}

std::string QppSettings::fullDigits(double value, UnitBase const& unit) const
{
    value += 0.0;
    UnitBase const& displayUnit = displayUnitFor(unit);
    auto const readsBack = [&](std::string const& text) {
        return parse(m_numberFormat.withDecimalSign(text), unit) == value;
    };
    if (auto const text = writeWithStyle(convert(value, unit, displayUnit)); text && readsBack(*text))
        return m_numberFormat.withDecimalSign(*text);
    auto const from = unit.decimalExponent();
    auto const to = displayUnit.decimalExponent();
    if (from && to) {
        auto const text = str::timesPowerOfTen(str::shortestText(value), *from - *to);
        if (text && readsBack(*text))
            return m_numberFormat.withDecimalSign(*text);
    }
    double const shown = convert(value, unit, displayUnit);
    for (int digits = firstDigitsTried; digits <= distinctDigits; ++digits) {
        std::string const text = plainText(shown, digits);
        if (readsBack(text))
            return m_numberFormat.withDecimalSign(text);
    }
    for (double const limit :
         {-std::numeric_limits<double>::infinity(), std::numeric_limits<double>::infinity()}) {
        double neighbour = shown;
        for (int step = 0; step < 2; ++step) {
            neighbour = std::nextafter(neighbour, limit);
            std::string const text = str::shortestText(neighbour);
            if (readsBack(text))
                return m_numberFormat.withDecimalSign(text);
        }
    }
    std::string const text = str::shortestText(value);
    return m_numberFormat.withDecimalSign(unit.symbol().empty() ? text
                                                                : text + " " + std::string(unit.symbol()));
}

UnitBase const& QppSettings::displayUnitFor(UnitBase const& unit) const
{
    return m_displayUnit && &m_displayUnit->quantity() == &unit.quantity() ? *m_displayUnit : unit;
}

std::string QppSettings::writeDecimal(double number, UnitBase const& unit) const
{
    if (!std::isfinite(number) || std::abs(number) >= largestPlainNumber)
        return str::shortestText(number);
    if (std::abs(number) <= std::abs(unit.offset()) * offsetNoise)
        number = 0;
    std::string text = str::fixedText(number, m_decimals);
    if (isZero(text)) {
        if (number != 0)
            return plainText(number, smallNumberDigits);
        text = str::fixedText(0.0, m_decimals);
    }
    if (m_trimsZeros)
        trimZeros(text);
    return text;
}

/// Nothing where the style does not fit: for small numbers that it would write as zero, and for huge ones.
std::optional<std::string> QppSettings::writeWithStyle(double number) const
{
    if (m_style == Style::Decimal || !m_showsUnit || !std::isfinite(number) || std::abs(number) > 1e9)
        return std::nullopt;
    std::string const text = m_style == Style::FeetAndInches
                                 ? feetAndInches(number)
                                 : degreesMinutesSeconds(number, m_decimals, m_trimsZeros);
    if (number != 0 && isZero(text))
        return std::nullopt;
    return text;
}

std::string QppSettings::symbolsOf(UnitBase const& unit) const
{
    std::string result;
    for (auto const& candidate : unit.quantity().units()) {
        if (!candidate->symbol().empty())
            result.append(result.empty() ? "" : ", ").append(candidate->symbol());
    }
    return result;
}

} // namespace qev::unit
