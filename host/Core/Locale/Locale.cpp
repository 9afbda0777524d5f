#include "Core/Locale/Locale.h"

#include "Core/String/Ascii.h"

#include <algorithm>
#include <array>
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

Locale Locale::withoutRegion() const { return Locale(m_language, ""); }

} // namespace qev::locale
