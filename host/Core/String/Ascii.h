#pragma once

#include <algorithm>
#include <string>
#include <string_view>

/// Characters of ASCII, whatever the locale; all other bytes are no letters and stay as they are.
namespace qev::str {

[[nodiscard]] constexpr bool isDigit(char c) { return c >= '0' && c <= '9'; }

[[nodiscard]] constexpr char toUpper(char c)
{
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

[[nodiscard]] constexpr char toLower(char c)
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

[[nodiscard]] inline std::string toUpper(std::string_view text)
{
    std::string upper(text);
    std::transform(upper.begin(), upper.end(), upper.begin(), [](char c) { return toUpper(c); });
    return upper;
}

[[nodiscard]] inline std::string toLower(std::string_view text)
{
    std::string lower(text);
    std::transform(lower.begin(), lower.end(), lower.begin(), [](char c) { return toLower(c); });
    return lower;
}

[[nodiscard]] inline bool equalIgnoringCase(std::string_view a, std::string_view b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](char x, char y) { return toLower(x) == toLower(y); });
}

/// \p text without blanks, tabs and line ends at its ends, or without the characters \p unwanted.
[[nodiscard]] constexpr std::string_view trimmed(std::string_view text, std::string_view unwanted = " \t\r\n")
{
    auto const first = text.find_first_not_of(unwanted);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(unwanted) - first + 1);
}

} // namespace qev::str
