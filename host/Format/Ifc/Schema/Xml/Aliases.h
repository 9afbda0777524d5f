#pragma once

#include "Core/Locale/Locale.h"

#include "HostIfcSchemaExport.h"

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace qev::ifc::def::xml {

/// A text in several languages.
class HOSTIFCSCHEMA_EXPORT Aliases
{
public:
    /// The text of \p locale, else of another region of its language; empty when there is none.
    [[nodiscard]] std::string sValueFromLanguage(locale::Locale const& locale) const;

    /// Adds a text, or replaces the one of the same language and region.
    void set(locale::Locale const& locale, std::string_view text);
    /// Takes over all texts of \p other; where both have one, that of \p other wins.
    void merge(Aliases const& other);

    [[nodiscard]] bool empty() const { return m_texts.empty(); }
    [[nodiscard]] std::vector<std::pair<locale::Locale, std::string>> const& texts() const { return m_texts; }

private:
    std::vector<std::pair<locale::Locale, std::string>> m_texts;
};

} // namespace qev::ifc::def::xml
