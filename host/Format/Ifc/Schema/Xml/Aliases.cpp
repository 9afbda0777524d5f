#include "Format/Ifc/Schema/Xml/Aliases.h"

namespace qev::ifc::def::xml {

std::string Aliases::sValueFromLanguage(locale::Locale const& locale) const
{
    std::string const* sameLanguage = nullptr;
    for (auto const& [known, text] : m_texts) {
        if (known == locale)
            return text;
        if (!sameLanguage && known.language() == locale.language())
            sameLanguage = &text;
    }
    return sameLanguage ? *sameLanguage : std::string();
}

void Aliases::set(locale::Locale const& locale, std::string_view text)
{
    for (auto& [known, knownText] : m_texts) {
        if (known == locale) {
            knownText = text;
            return;
        }
    }
    m_texts.emplace_back(locale, text);
}

void Aliases::merge(Aliases const& other)
{
    for (auto const& [locale, text] : other.m_texts)
        set(locale, text);
}

} // namespace qev::ifc::def::xml
