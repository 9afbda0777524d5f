#pragma once

#include <algorithm>
#include <string>
#include <string_view>

/// Letters of ASCII, whatever the locale; all other bytes stay as they are.
namespace qev::str {

[[nodiscard]] constexpr char toUpper(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; }

[[nodiscard]] constexpr char toLower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

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
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](char x, char y) { return toLower(x) == toLower(y); });
}

} // namespace qev::str
