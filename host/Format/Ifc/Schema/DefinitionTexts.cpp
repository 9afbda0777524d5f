#include "Format/Ifc/Schema/DefinitionTexts.h"

#include "Core/Localization/LocalizationAdmin.h"
#include "Format/Ifc/Schema/SchemaPropertySetDefinitions.h"
#include "Format/Ifc/Schema/Xml/Def.h"
#include "Format/Ifc/Schema/Xml/SetDef.h"

#include <map>

namespace qev::ifc::def {

namespace {

using Texts = std::map<locale::Locale, localization::Dictionary>;

void addText(Texts& texts, locale::Locale const& language, std::string const& key, std::string const& text)
{
    if (!text.empty())
        texts[language].set(key, text);
}

void addDescriptions(Texts& texts, std::string const& key, xml::DefBase const& definition)
{
    addText(texts, locale::Locale::get(1), key, definition.description);
    for (auto const& [language, text] : definition.definitionAliases.texts())
        addText(texts, language, key, text);
}

} // namespace

void addTexts(SchemaPropertySetDefinitions const& definitions, std::string const& context,
              localization::LocalizationAdmin& dictionaries)
{
    Texts texts;
    for (auto const& set : definitions.sets()) {
        addDescriptions(texts, set->name + "_Description", *set);
        for (xml::Def const* const entry : set->entries()) {
            std::string const key = entry->getConcept();
            for (auto const& [language, text] : entry->nameAliases.texts())
                addText(texts, language, key, text);
            addDescriptions(texts, key + "_Description", *entry);
        }
    }
    for (auto const& [language, dictionary] : texts)
        dictionaries.add(context, language, dictionary);
}

} // namespace qev::ifc::def
