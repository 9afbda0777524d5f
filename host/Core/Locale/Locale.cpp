#include "Core/Locale/Locale.h"

#include "Core/String/Ascii.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

namespace qev::locale {

namespace {

constexpr std::array<std::pair<char const*, char const*>, 9> numbered = {{
    {"en", "US"},
    {"en", ""},
    {"de", ""},
    {"fr", ""},
    {"it", ""},
    {"es", ""},
    {"ja", ""},
    {"ko", ""},
    {"zh", ""},
}};

/// The languages of Europe and South America in which a comma is the decimal sign.
constexpr std::array<std::string_view, 29> languagesWithComma = {
    "bg", "bs", "ca", "cs", "da", "de", "el", "es", "et", "fi", "fr", "hr", "hu", "id", "is",
    "it", "lt", "lv", "nb", "nl", "nn", "pl", "pt", "ro", "ru", "sk", "sl", "sv", "tr"};

/// The regions that write a point although their language has a comma elsewhere.
constexpr std::array<std::string_view, 12> regionsWithPoint = {"CH", "LI", "MX", "US", "GT", "HN",
                                                               "NI", "PA", "PE", "PR", "SV", "DO"};

bool isWord(std::string_view text, std::size_t shortest, std::size_t longest)
{
    return text.size() >= shortest && text.size() <= longest &&
           std::all_of(text.begin(), text.end(),
                       [](char c) { return str::toLower(c) >= 'a' && str::toLower(c) <= 'z'; });
}

} // namespace

Locale::Locale()
    : m_language("en")
{
}

Locale::Locale(std::string language, std::string region)
    : m_language(std::move(language))
    , m_region(std::move(region))
{
}

Locale Locale::get(int number)
{
    if (number < 0 || number >= static_cast<int>(numbered.size()))
        return Locale();
    auto const& entry = numbered[static_cast<std::size_t>(number)];
    return Locale(entry.first, entry.second);
}

std::optional<Locale> Locale::fromCode(std::string_view code)
{
    code = code.substr(0, code.find('.'));
    auto const separator = std::min(code.find_first_of("-_"), code.size());
    auto const language = code.substr(0, separator);
    if (!isWord(language, 2, 3))
        return std::nullopt;
    if (separator == code.size())
        return Locale(str::toLower(language), "");
    auto const region = code.substr(separator + 1);
    if (!isWord(region, 2, 2))
        return std::nullopt;
    return Locale(str::toLower(language), str::toUpper(region));
}

std::string Locale::code() const { return m_region.empty() ? m_language : m_language + "-" + m_region; }

char Locale::decimalSign() const
{
    auto const isListed = [](auto const& list, std::string const& text) {
        return std::find(list.begin(), list.end(), text) != list.end();
    };
    return isListed(languagesWithComma, m_language) && !isListed(regionsWithPoint, m_region) ? ',' : '.';
}

Locale Locale::withoutRegion() const { return Locale(m_language, ""); }

} // namespace qev::locale
