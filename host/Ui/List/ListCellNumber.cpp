#include "Ui/List/ListCellNumber.h"

#include "Core/String/Ascii.h"
#include "Core/String/NumberText.h"

#include <algorithm>

namespace qev::ui {

namespace {

constexpr auto digitCharacters = "0123456789";
constexpr double inchesPerFoot = 12;

/// How many characters at the beginning of \p text are a number with sign, decimals and exponent.
std::size_t getNumberLength(std::string_view text)
{
    std::size_t position = text.starts_with('-') || text.starts_with('+') ? 1 : 0;
    auto const skipDigits = [&] {
        auto const end = std::min(text.find_first_not_of(digitCharacters, position), text.size());
        bool const any = end > position;
        position = end;
        return any;
    };
    if (!skipDigits())
        return 0;
    if (position < text.size() && (text[position] == '.' || text[position] == ',')) {
        ++position;
        skipDigits();
    }
    if (position < text.size() && (text[position] == 'e' || text[position] == 'E')) {
        auto const beforeExponent = position++;
        if (position < text.size() && (text[position] == '-' || text[position] == '+'))
            ++position;
        if (!skipDigits())
            position = beforeExponent;
    }
    return position;
}

std::optional<double> readNumber(std::string_view text)
{
    std::string plain(text);
    if (auto const comma = plain.find(','); comma != std::string::npos)
        plain[comma] = '.';
    return str::parseDouble(plain);
}

std::optional<double> readFraction(std::string_view text)
{
    auto const bar = text.find('/');
    if (bar == std::string_view::npos)
        return str::parseDouble(text);
    auto const numerator = str::parseDouble(text.substr(0, bar));
    auto const denominator = str::parseDouble(text.substr(bar + 1));
    if (!numerator || !denominator || *denominator == 0)
        return std::nullopt;
    return *numerator / *denominator;
}

/// Inches without their mark: "2", "2.5", "1/2" or "2 1/2".
std::optional<double> readInches(std::string_view text)
{
    auto const blank = text.find(' ');
    if (blank == std::string_view::npos)
        return readFraction(text);
    auto const whole = str::parseDouble(text.substr(0, blank));
    auto const part = readFraction(str::trimmed(text.substr(blank)));
    if (!whole || !part)
        return std::nullopt;
    return *whole + *part;
}

std::optional<double> readFeetAndInches(std::string_view text)
{
    bool const isNegative = text.starts_with('-');
    if (isNegative)
        text.remove_prefix(1);
    double inches = 0;
    if (auto const mark = text.find('\''); mark != std::string_view::npos) {
        auto const feet = str::parseDouble(text.substr(0, mark));
        if (!feet)
            return std::nullopt;
        inches = *feet * inchesPerFoot;
        text = str::trimmed(text.substr(mark + 1));
        if (text.empty())
            return isNegative ? -inches : inches;
    }
    if (!text.ends_with('"'))
        return std::nullopt;
    auto const rest = readInches(str::trimmed(text.substr(0, text.size() - 1)));
    if (!rest)
        return std::nullopt;
    inches += *rest;
    return isNegative ? -inches : inches;
}

} // namespace

std::optional<ListCellNumber> ListCellNumber::read(std::string_view text)
{
    text = str::trimmed(text);
    if (auto const inches = readFeetAndInches(text))
        return ListCellNumber{*inches, "ft in"};
    auto const length = getNumberLength(text);
    auto const value = readNumber(text.substr(0, length));
    if (!value)
        return std::nullopt;
    auto const unit = str::trimmed(text.substr(length));
    // Dates, fractions and lists of numbers are more than one number with its unit.
    constexpr std::string_view noUnitBegin = "0123456789+-/.,";
    if (unit.find(' ') != std::string_view::npos ||
        (!unit.empty() && noUnitBegin.find(unit.front()) != std::string_view::npos))
        return std::nullopt;
    return ListCellNumber{*value, std::string(unit)};
}

} // namespace qev::ui
