#include "SettingsActions.h"

#include "ActionMenu.h"
#include "Classifications.h"
#include "Definitions.h"
#include "LanguageName.h"
#include "SettingsDialog.h"
#include "Texts.h"
#include "Ui/Qt/QtText.h"

#include <QApplication>
#include <QEvent>
#include <QLibraryInfo>
#include <QLocale>

namespace qev::application {

namespace {

using System = unit::UnitPreferences::System;

/// Windows pass the event on to all that stands in them.
void tellWindowsOfLanguage()
{
    for (auto* const window : QApplication::topLevelWidgets()) {
        QEvent event(QEvent::LanguageChange);
        QApplication::sendEvent(window, &event);
    }
}

QAction* appendChoice(QMenu& menu, QString const& text, bool isChosen, std::function<void()> action)
{
    auto* const entry = appendAction(menu, text, QKeySequence(), std::move(action));
    entry->setCheckable(true);
    entry->setChecked(isChosen);
    return entry;
}

} // namespace

SettingsActions::SettingsActions(QWidget& window)
    : m_window(window)
{
}

SettingsActions::~SettingsActions() { QCoreApplication::removeTranslator(&m_textsOfQt); }

void SettingsActions::fill(QMenu& menu, LiveTexts& texts)
{
    auto* const units = menu.addMenu(QString());
    auto* const languages = menu.addMenu(QString());
    texts.keep(*units->menuAction(), "Settings_Units");
    texts.keep(*languages->menuAction(), "Settings_Language");
    connect(units, &QMenu::aboutToShow, this, [this, units] { fillUnitsMenu(*units); });
    connect(languages, &QMenu::aboutToShow, this, [this, languages] { fillLanguageMenu(*languages); });
    menu.addSeparator();
    appendAction(menu, texts, "Settings_All", QKeySequence("Ctrl+,"), [this] { openDialog(); });
}

void SettingsActions::apply(ProgramSettings const& settings)
{
    fireEvents(onChanging);
    m_settings = settings;
    auto messages = settings.display.apply(getLanguageOfSystem());
    addDefinitionsOf(settings, messages);
    addClassificationsOf(settings, messages);
    m_theme.set(settings.theme);
    translateQt();
    tellWindowsOfLanguage();
    fireEvents(onChanged);
    if (!messages.empty() && m_tellProblem)
        m_tellProblem(getText("Settings_NotUnderstood"), getLines(messages));
}

void SettingsActions::change(ProgramSettings const& settings)
{
    if (settings == m_settings)
        return;
    settings.store();
    apply(settings);
}

void SettingsActions::fillUnitsMenu(QMenu& menu)
{
    menu.clear();
    auto const chosen = m_settings.display.units.system();
    for (auto const system : {System::Metric, System::Imperial}) {
        auto const text = getText(system == System::Metric ? "Settings_Metric" : "Settings_Imperial");
        appendChoice(menu, text, chosen == system, [this, system] {
            auto settings = m_settings;
            settings.display.units = unit::UnitPreferences(system);
            change(settings);
        });
    }
}

void SettingsActions::fillLanguageMenu(QMenu& menu)
{
    menu.clear();
    auto const& chosen = m_settings.display.language;
    auto const choose = [this](std::string const& code) {
        auto settings = m_settings;
        settings.display.language = code;
        change(settings);
    };
    appendChoice(menu, getText("Settings_LanguageOfSystem"), chosen.empty(), [choose] { choose({}); });
    for (auto const& language : getLanguages()) {
        auto const code = language.code();
        appendChoice(menu, getLanguageName(language), chosen == code, [choose, code] { choose(code); });
    }
}

void SettingsActions::openDialog()
{
    SettingsDialog dialog(m_settings, getLanguageOfSystem(), &m_window);
    if (dialog.exec() == QDialog::Accepted)
        change(dialog.getSettings());
}

void SettingsActions::addDefinitionsOf(ProgramSettings const& settings, std::vector<std::string>& messages)
{
    if (settings.definitions.empty() || !m_addedDefinitions.insert(settings.definitions).second)
        return;
    auto const result = addDefinitions(settings.definitions);
    messages.insert(messages.end(), result.messages.begin(), result.messages.end());
}

void SettingsActions::addClassificationsOf(ProgramSettings const& settings,
                                           std::vector<std::string>& messages)
{
    if (settings.classifications.empty() || !m_addedClassifications.insert(settings.classifications).second)
        return;
    auto const problems = addClassifications(settings.classifications);
    messages.insert(messages.end(), problems.begin(), problems.end());
}

void SettingsActions::translateQt()
{
    QCoreApplication::removeTranslator(&m_textsOfQt);
    auto const language = m_settings.display.getLocale(getLanguageOfSystem());
    if (m_textsOfQt.load(QLocale(ui::toQString(language.code())), "qtbase", "_",
                         QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&m_textsOfQt);
}

} // namespace qev::application
