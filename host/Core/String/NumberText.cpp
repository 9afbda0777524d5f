#include "Core/String/NumberText.h"

#include "Core/String/Ascii.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <locale>
#include <sstream>
#include <system_error>

namespace qev::str {

namespace {

/// Long enough for the largest double with a hundred decimals.
using Buffer = std::array<char, 512>;

constexpr int maximumDecimals = 100;
constexpr double smallestWithoutExponent = 1e-4;
constexpr double largestWithoutExponent = 1e16;

std::string text(Buffer const& buffer, std::to_chars_result result)
{
    return result.ec == std::errc()
               ? std::string(buffer.data(), static_cast<std::size_t>(result.ptr - buffer.data()))
               : std::string();
}

bool isDecimalNumber(std::string_view text)
{
    std::size_t position = 0;
    auto const digits = [&] {
        std::size_t const start = position;
        while (position < text.size() && isDigit(text[position]))
            ++position;
        return position - start;
    };
    if (position < text.size() && (text[position] == '-' || text[position] == '+'))
        ++position;
    std::size_t mantissaDigits = digits();
    if (position < text.size() && text[position] == '.') {
        ++position;
        mantissaDigits += digits();
    }
    if (mantissaDigits == 0)
        return false;
    if (position < text.size() && (text[position] == 'e' || text[position] == 'E')) {
        ++position;
        if (position < text.size() && (text[position] == '-' || text[position] == '+'))
            ++position;
        if (digits() == 0)
            return false;
    }
    return position == text.size();
}

/// A result that is too small for a double is zero; one that is too large is none.
std::optional<double> readDecimalNumber(std::string_view text)
{
#if defined(__cpp_lib_to_chars)
    double value = 0;
    auto const result = std::from_chars(text.data(), text.data() + text.size(), value);
    if (result.ec == std::errc())
        return value;
#endif
    std::istringstream stream{std::string(text)};
    stream.imbue(std::locale::classic());
    double read = 0;
    stream >> read;
    return stream.fail() ? std::nullopt : std::optional(read);
}

/// Nothing for exponents far beyond those of any double.
std::optional<int> readExponent(std::string_view text)
{
    constexpr int limit = 100000;
    if (text.front() == '+')
        text.remove_prefix(1);
    int exponent = 0;
    auto const result = std::from_chars(text.data(), text.data() + text.size(), exponent);
    if (result.ec != std::errc() || exponent > limit || exponent < -limit)
        return std::nullopt;
    return exponent;
}

/// The number of the \p digits, which neither begin nor end with zero, with the point behind \p position of
/// them.
std::string withPointAt(std::string const& digits, int position)
{
    constexpr int smallestPosition = -3;
    constexpr int largestPosition = 16;
    int const count = static_cast<int>(digits.size());
    if (position < smallestPosition || position > largestPosition) {
        std::string const fraction = count > 1 ? "." + digits.substr(1) : "";
        return digits.substr(0, 1) + fraction + "e" + std::to_string(position - 1);
    }
    if (position <= 0)
        return "0." + std::string(static_cast<std::size_t>(-position), '0') + digits;
    auto const whole = static_cast<std::size_t>(position);
    if (position >= count)
        return digits + std::string(whole - digits.size(), '0');
    return digits.substr(0, whole) + "." + digits.substr(whole);
}

} // namespace

std::string shortestText(double value)
{
    Buffer buffer;
    double const size = std::abs(value);
    bool const plain = size == 0 || (size >= smallestWithoutExponent && size < largestWithoutExponent);
    auto const format = plain ? std::chars_format::fixed : std::chars_format::scientific;
    return text(buffer, std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, format));
}

std::string fixedText(double value, int decimals)
{
    Buffer buffer;
    int const precision = std::min(std::max(decimals, 0), maximumDecimals);
    return text(buffer, std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                      std::chars_format::fixed, precision));
}

std::string significantText(double value, int digits)
{
    Buffer buffer;
    return text(buffer,
                std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::general,
                              std::min(std::max(digits, 1), maximumDecimals)));
}

std::optional<double> parseDouble(std::string_view text)
{
    if (!isDecimalNumber(text))
        return std::nullopt;
    if (text.front() == '+')
        text.remove_prefix(1);
    return readDecimalNumber(text);
}

std::optional<std::string> timesPowerOfTen(std::string_view number, int exponent)
{
    if (!isDecimalNumber(number))
        return std::nullopt;
    std::string const sign = number.front() == '-' ? "-" : "";
    if (number.front() == '-' || number.front() == '+')
        number.remove_prefix(1);
    auto const end = std::min(number.find_first_of("eE"), number.size());
    auto const ownExponent = end == number.size() ? std::optional(0) : readExponent(number.substr(end + 1));
    if (!ownExponent)
        return std::nullopt;

    std::string digits(number.substr(0, end));
    auto const point = std::min(digits.find('.'), digits.size());
    int position = static_cast<int>(point) + *ownExponent + exponent;
    std::erase(digits, '.');
    auto const first = digits.find_first_not_of('0');
    if (first == std::string::npos)
        return sign + "0";
    position -= static_cast<int>(first);
    digits = digits.substr(first, digits.find_last_not_of('0') - first + 1);
    return sign + withPointAt(digits, position);
}

} // namespace qev::str
