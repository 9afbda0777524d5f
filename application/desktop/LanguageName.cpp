#include "LanguageName.h"

#include "Core/Localization/LocalizationAdmin.h"
#include "Ui/Qt/QtText.h"

#include <QLocale>

namespace qev::application {

std::vector<locale::Locale> getLanguages() { return resource::localization::getAdminInstance().languages(); }

QString getLanguageName(locale::Locale const& language)
{
    auto const code = ui::toQString(language.code());
    QLocale const known(code);
    auto name = known.language() == QLocale::C ? QString() : known.nativeLanguageName();
    if (name.isEmpty())
        return code;
    // English is called "American English" where no region is named.
    if (language.region().empty() && language.language() == "en")
        return QStringLiteral("English");
    name[0] = name[0].toUpper();
    return language.region().empty() ? name : name + " (" + known.nativeTerritoryName() + ')';
}

locale::Locale getLanguageOfSystem()
{
    return locale::Locale::fromCode(ui::fromQString(QLocale::system().name())).value_or(locale::Locale());
}

} // namespace qev::application
