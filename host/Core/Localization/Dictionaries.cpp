#include "Core/Localization/Dictionaries.h"

#include "dictionaryFoundationClassesUiDe.h"
#include "dictionaryFoundationClassesUiEn.h"
#include "dictionaryFoundationClassesUiFr.h"
#include "dictionaryIfcDe.h"
#include "dictionaryIfcEn.h"
#include "dictionaryIfcFr.h"
#include "dictionaryIfcPropertiesDe.h"
#include "dictionaryIfcPropertiesFr.h"
#include "dictionaryUiDe.h"
#include "dictionaryUiEn.h"
#include "dictionaryUiFr.h"
#include "dictionaryUnitsDe.h"
#include "dictionaryUnitsEn.h"
#include "dictionaryUnitsFr.h"

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
        {"FoundationClassesUi", "fr", embedded::dictionaryFoundationClassesUiFr()},
        {"Ifc", "en", embedded::dictionaryIfcEn()},
        {"Ifc", "de", embedded::dictionaryIfcDe()},
        {"Ifc", "fr", embedded::dictionaryIfcFr()},
        {"IfcProperties", "de", embedded::dictionaryIfcPropertiesDe()},
        {"IfcProperties", "fr", embedded::dictionaryIfcPropertiesFr()},
        {"Ui", "en", embedded::dictionaryUiEn()},
        {"Ui", "de", embedded::dictionaryUiDe()},
        {"Ui", "fr", embedded::dictionaryUiFr()},
        {"Units", "en", embedded::dictionaryUnitsEn()},
        {"Units", "de", embedded::dictionaryUnitsDe()},
        {"Units", "fr", embedded::dictionaryUnitsFr()},
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
    for (auto const& fallback : getFallbacks(language)) {
        if (auto text = exactText(context, key, fallback))
            return text;
    }
    return std::nullopt;
}

std::vector<locale::Locale> Dictionaries::getFallbacks(locale::Locale const& language)
{
    std::vector<locale::Locale> result{language};
    for (auto const& fallback : {language.withoutRegion(), locale::Locale()}) {
        if (result.back() != fallback)
            result.push_back(fallback);
    }
    return result;
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
