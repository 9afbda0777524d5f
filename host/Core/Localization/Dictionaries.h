#pragma once

#include "Core/Locale/Locale.h"
#include "Core/Localization/Dictionary.h"
#include "HostCoreExport.h"

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace qev::localization {

/// Dictionaries by context and language.
class HOSTCORE_EXPORT Dictionaries
{
public:
    /// The names of the contexts that hold the texts of a topic, in the order in which they are to be asked.
    /// "IFC" has two: the names of classes, attributes and headings, and those of property sets and
    /// properties. A topic of its own name has that one context.
    static std::vector<std::string> getContexts(std::string_view topic);

    /// The dictionaries that the program brings along.
    static Dictionaries builtIn();

    /// Adds texts; those of a key that is there already are replaced.
    void add(std::string const& context, locale::Locale const& language, Dictionary const& dictionary);

    /// The text in \p language; if there is none, in the same language of no region; if there is none, in
    /// English.
    [[nodiscard]] std::optional<std::string> text(std::string_view context, std::string_view key,
                                                  locale::Locale const& language) const;

    /// The text in exactly \p language.
    [[nodiscard]] std::optional<std::string> exactText(std::string_view context, std::string_view key,
                                                       locale::Locale const& language) const;

    /// The languages that are asked for a text in \p language, in this order.
    [[nodiscard]] static std::vector<locale::Locale> getFallbacks(locale::Locale const& language);

    /// The languages in which some text is there, in the order of their codes.
    [[nodiscard]] std::vector<locale::Locale> languages() const;

private:
    std::map<std::pair<std::string, locale::Locale>, Dictionary> m_dictionaries;
};

} // namespace qev::localization
