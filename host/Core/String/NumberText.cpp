#include "Core/String/NumberText.h"

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
        while (position < text.size() && text[position] >= '0' && text[position] <= '9')
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

} // namespace

std::string shortestText(double value)
{
    Buffer buffer;
    double const size = std::abs(value);
    bool const plain = size == 0 || (size >= smallestWithoutExponent && size < largestWithoutExponent);
    auto const format = plain ? std::chars_format::fixed : std::chars_format::scientific;
    return text(buffer, std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, format));
}

std::string stepRealText(double value)
{
    if (!std::isfinite(value))
        return "$";
    std::string result = shortestText(value);
    auto const exponent = result.find('e');
    if (exponent != std::string::npos)
        result[exponent] = 'E';
    if (result.find('.') == std::string::npos)
        result.insert(exponent == std::string::npos ? result.size() : exponent, 1, '.');
    return result;
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

} // namespace qev::str
