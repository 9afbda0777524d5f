#include "UI/FoundationClasses/NumberTexts.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <stdexcept>
#include <system_error>

namespace qev::fc::ui {

namespace {

bool startsHexadecimal(char const* first, char const* last)
{
    return last - first > 2 && first[0] == '0' && (first[1] == 'x' || first[1] == 'X');
}

double parseMagnitude(char const* first, char const* last)
{
    bool const isHexadecimal = startsHexadecimal(first, last);
    if (isHexadecimal)
        first += 2;
    double number = 0;
    auto result = std::from_chars_result{first, std::errc::invalid_argument};
    // A second sign is no number, though the conversion would take it.
    if (first != last && *first != '-')
        result = std::from_chars(first, last, number,
                                 isHexadecimal ? std::chars_format::hex : std::chars_format::general);
    // Without digits behind its "0x" the number is the zero of the prefix.
    if (result.ec == std::errc::invalid_argument && !isHexadecimal)
        throw std::invalid_argument("not a number");
    if (result.ec == std::errc::result_out_of_range)
        throw std::out_of_range("number out of range");
    return number;
}

} // namespace

std::string sixDecimalText(double number)
{
    // Sign, the digits of the largest number, point and decimals.
    std::array<char, std::numeric_limits<double>::max_exponent10 + 16> buffer;
    auto const result =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), number, std::chars_format::fixed, 6);
    return {buffer.data(), result.ptr};
}

double leadingNumber(std::string const& text)
{
    auto const start = text.find_first_not_of(" \t\n\v\f\r");
    if (start == std::string::npos)
        throw std::invalid_argument("not a number");
    char const* first = text.data() + start;
    char const* const last = text.data() + text.size();
    bool const isNegative = *first == '-';
    if (isNegative || *first == '+')
        ++first;
    double const magnitude = parseMagnitude(first, last);
    return isNegative ? -magnitude : magnitude;
}

std::optional<double> leadingNumberBelow(std::string const& text, double limit)
{
    try {
        double const number = leadingNumber(text);
        return std::abs(number) < limit ? std::optional(number) : std::nullopt;
    } catch (std::invalid_argument const&) {
        return std::nullopt;
    }
}

} // namespace qev::fc::ui
