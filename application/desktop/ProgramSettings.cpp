#include "ProgramSettings.h"

#include "FilePath.h"
#include "Ui/Qt/QtText.h"

#include <QSettings>
#include <QStringList>

namespace qev::application {

namespace {

using ui::fromQString;
using ui::toQString;

constexpr auto unitsKey = "display/units";
constexpr auto decimalSignKey = "display/decimalSign";
constexpr auto languageKey = "display/language";
constexpr auto textsKey = "display/texts";
constexpr auto themeKey = "display/theme";
constexpr auto definitionsKey = "definitions";
constexpr auto classificationsKey = "classifications";

std::vector<std::string> toLines(QStringList const& list)
{
    std::vector<std::string> lines;
    for (auto const& line : list)
        lines.push_back(fromQString(line));
    return lines;
}

QStringList fromLines(std::vector<std::string> const& lines)
{
    QStringList list;
    for (auto const& line : lines)
        list.append(toQString(line));
    return list;
}

QString getName(Theme theme)
{
    switch (theme) {
    case Theme::Light:
        return QStringLiteral("light");
    case Theme::Dark:
        return QStringLiteral("dark");
    case Theme::OfSystem:
        break;
    }
    return {};
}

Theme getTheme(QString const& name)
{
    for (auto const theme : {Theme::Light, Theme::Dark}) {
        if (getName(theme) == name)
            return theme;
    }
    return Theme::OfSystem;
}

} // namespace

ProgramSettings ProgramSettings::restore()
{
    QSettings const settings;
    ProgramSettings result;
    result.display.units = unit::UnitPreferences::fromLines(toLines(settings.value(unitsKey).toStringList()));
    auto const sign = settings.value(decimalSignKey).toString();
    if (sign == "." || sign == ",")
        result.display.decimalSign = sign.at(0).toLatin1();
    result.display.language = fromQString(settings.value(languageKey).toString());
    result.display.texts = toPath(settings.value(textsKey).toString());
    result.theme = getTheme(settings.value(themeKey).toString());
    result.definitions = toPath(settings.value(definitionsKey).toString());
    result.classifications = toPath(settings.value(classificationsKey).toString());
    return result;
}

void ProgramSettings::store() const
{
    QSettings settings;
    settings.setValue(unitsKey, fromLines(display.units.toLines()));
    settings.setValue(decimalSignKey, display.decimalSign ? QString(QChar(*display.decimalSign)) : QString());
    settings.setValue(languageKey, toQString(display.language));
    settings.setValue(textsKey, fromPath(display.texts));
    settings.setValue(themeKey, getName(theme));
    settings.setValue(definitionsKey, fromPath(definitions));
    settings.setValue(classificationsKey, fromPath(classifications));
}

} // namespace qev::application
