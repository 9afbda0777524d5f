#pragma once

#include "Core/Utilities/Events/EventHandlerContainer.h"
#include "LiveTexts.h"
#include "ProgramSettings.h"

#include <functional>
#include <QAction>
#include <QMenu>
#include <QObject>
#include <QTranslator>
#include <set>
#include <string>
#include <vector>

namespace qev::application {

/// The settings menu, and what makes settings those of the running program.
class SettingsActions final : public QObject
{
public:
    using TellProblem = std::function<void(QString const& text, QString const& details)>;

    /// Opens dialogs over \p window, which lives longer than the actions.
    explicit SettingsActions(QWidget& window);
    ~SettingsActions() override;

    void fill(QMenu& menu, LiveTexts& texts);
    void setTellProblem(TellProblem tellProblem) { m_tellProblem = std::move(tellProblem); }

    [[nodiscard]] ProgramSettings const& getSettings() const { return m_settings; }
    /// Takes settings for this run of the program.
    void apply(ProgramSettings const& settings);
    /// Takes settings, and keeps them for the next run.
    void change(ProgramSettings const& settings);

    /// Fired before anything changes: what shows values or sets has to let go of them.
    EventHandlerContainer<void, void> onChanging;
    /// Fired when the settings hold. The language of the texts in windows has changed already.
    EventHandlerContainer<void, void> onChanged;

private:
    void fillUnitsMenu(QMenu& menu);
    void fillLanguageMenu(QMenu& menu);
    void openDialog();
    void addDefinitionsOf(ProgramSettings const& settings, std::vector<std::string>& messages);
    void addClassificationsOf(ProgramSettings const& settings, std::vector<std::string>& messages);
    void translateQt();

    QWidget& m_window;
    TellProblem m_tellProblem;
    ProgramSettings m_settings;
    ThemeSwitch m_theme;
    /// The texts of Qt's own dialogs, where the system has them.
    QTranslator m_textsOfQt;
    std::set<std::filesystem::path> m_addedDefinitions;
    std::set<std::filesystem::path> m_addedClassifications;
};

} // namespace qev::application
