#include "DisplaySettings.h"

#include "Core/Localization/LocalizationAdmin.h"
#include "Core/String/Utf8.h"
#include "Core/Unit/QppBase.h"

namespace qev::application {

namespace {

std::string toLine(localization::LocalizationAdmin::Message const& message)
{
    std::string line = str::utf8FromPath(message.file);
    if (message.line > 0)
        line += ", line " + std::to_string(message.line);
    return line + ": " + message.text;
}

} // namespace

locale::Locale DisplaySettings::getLocale(locale::Locale const& ofSystem) const
{
    return locale::Locale::fromCode(language).value_or(ofSystem);
}

std::vector<std::string> DisplaySettings::apply(locale::Locale const& ofSystem) const
{
    auto const locale = getLocale(ofSystem);
    auto effective = units;
    effective.setNumberFormat({decimalSign.value_or(locale.decimalSign())});
    unit::QppBase::registrationNonConst().setPreferences(effective);

    auto& dictionaries = resource::localization::getAdminInstance();
    dictionaries.setLanguage(locale);
    dictionaries.removeFolders();
    std::vector<std::string> lines;
    if (texts.empty())
        return lines;
    for (auto const& message : dictionaries.addFolder(texts))
        lines.push_back(toLine(message));
    return lines;
}

} // namespace qev::application
