#include "Core/Localization/Dictionaries.h"

#include "dictionaryFoundationClassesUiDe.h"
#include "dictionaryFoundationClassesUiEn.h"
#include "dictionaryIfcDe.h"
#include "dictionaryIfcEn.h"
#include "dictionaryIfcPropertiesDe.h"

#include <algorithm>

namespace qev::localization {

std::vector<std::string> Dictionaries::getContexts(std::string_view topic)
{
    if (topic == "IFC")
        return {"Ifc", "IfcProperties"};
    return {std::string(topic)};
}

Dictionaries Dictionaries::builtIn()
{
    struct Source
    {
        char const* context;
        char const* language;
        std::string_view text;
    };
    Source const sources[] = {
        {"FoundationClassesUi", "en", embedded::dictionaryFoundationClassesUiEn()},
        {"FoundationClassesUi", "de", embedded::dictionaryFoundationClassesUiDe()},
        {"Ifc", "en", embedded::dictionaryIfcEn()},
        {"Ifc", "de", embedded::dictionaryIfcDe()},
        {"IfcProperties", "de", embedded::dictionaryIfcPropertiesDe()},
    };
    Dictionaries result;
    for (auto const& source : sources)
        result.add(source.context, locale::Locale(source.language, ""),
                   Dictionary::parse(source.text).dictionary);
    return result;
}

void Dictionaries::add(std::string const& context, locale::Locale const& language,
                       Dictionary const& dictionary)
{
    m_dictionaries[{context, language}].merge(dictionary);
}

std::optional<std::string> Dictionaries::text(std::string_view context, std::string_view key,
                                              locale::Locale const& language) const
{
    if (auto text = exactText(context, key, language))
        return text;
    if (!language.region().empty()) {
        if (auto text = exactText(context, key, language.withoutRegion()))
            return text;
    }
    return exactText(context, key, locale::Locale());
}

std::vector<locale::Locale> Dictionaries::languages() const
{
    std::vector<locale::Locale> result;
    for (auto const& [place, dictionary] : m_dictionaries) {
        if (dictionary.size() > 0)
            result.push_back(place.second);
    }
    std::sort(result.begin(), result.end());
    result.erase(std::unique(result.begin(), result.end()), result.end());
    return result;
}

std::optional<std::string> Dictionaries::exactText(std::string_view context, std::string_view key,
                                                   locale::Locale const& language) const
{
    auto const entry = m_dictionaries.find({std::string(context), language});
    return entry == m_dictionaries.end() ? std::nullopt : entry->second.text(key);
}

} // namespace qev::localization
