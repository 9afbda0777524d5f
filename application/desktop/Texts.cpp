#include "Texts.h"

#include "Core/Localization/LocalizationAdmin.h"
#include "Core/Localization/Localize.h"
#include "dictionaryInspectorDe.h"
#include "dictionaryInspectorEn.h"
#include "dictionaryInspectorFr.h"
#include "Ui/Qt/QtText.h"

#include <utility>

namespace qev::application {

namespace {

constexpr auto context = "Inspector";

bool addDictionaries()
{
    std::pair<char const*, std::string_view> const sources[] = {{"en", embedded::dictionaryInspectorEn()},
                                                                {"de", embedded::dictionaryInspectorDe()},
                                                                {"fr", embedded::dictionaryInspectorFr()}};
    for (auto const& [language, text] : sources)
        resource::localization::getAdminInstance().add(context, locale::Locale(language, ""),
                                                       localization::Dictionary::parse(text).dictionary);
    return true;
}

} // namespace

QString getText(std::string_view key, std::vector<QString> const& arguments)
{
    [[maybe_unused]] static bool const isAdded = addDictionaries();
    std::vector<std::string> texts;
    texts.reserve(arguments.size());
    for (auto const& argument : arguments)
        texts.push_back(ui::fromQString(argument));
    return ui::toQString(localize(key, context, texts));
}

QString getLines(std::vector<std::string> const& lines)
{
    QString text;
    for (auto const& line : lines)
        text += ui::toQString(line) + '\n';
    return text;
}

} // namespace qev::application
