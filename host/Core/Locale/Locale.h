#pragma once

#include "HostCoreExport.h"

#include <compare>
#include <optional>
#include <string>
#include <string_view>

namespace qev::locale {

/// A language, and perhaps the region in which it is spoken.
class HOSTCORE_EXPORT Locale
{
public:
    /// English of no region.
    Locale();

    /// \p language is in small letters ("de"), \p region in capitals ("AT") or empty.
    Locale(std::string language, std::string region);

    /// A locale by its fixed number: 0 English of the United States, 1 English, 2 German, 3 French, 4
    /// Italian, 5 Spanish, 6 Japanese, 7 Korean, 8 Chinese. Any other number gives English.
    static Locale get(int number);

    /// Reads "de", "de-DE" or "de_DE", whatever the case of the letters; what stands behind ".", as in the
    /// names of locales of operating systems, is ignored. Nothing when \p code is no such text.
    static std::optional<Locale> fromCode(std::string_view code);

    [[nodiscard]] std::string const& language() const { return m_language; }
    /// Empty when the locale is of no region.
    [[nodiscard]] std::string const& region() const { return m_region; }
    /// "de" or "de-DE".
    [[nodiscard]] std::string code() const;

    /// The sign between the whole and the decimal digits of a number, as people of the language and the
    /// region write it: a point or a comma.
    [[nodiscard]] char decimalSign() const;

    /// The same language of no region.
    [[nodiscard]] Locale withoutRegion() const;

    friend bool operator==(Locale const&, Locale const&) = default;
    friend std::strong_ordering operator<=>(Locale const&, Locale const&) = default;

private:
    std::string m_language;
    std::string m_region;
};

} // namespace qev::locale
