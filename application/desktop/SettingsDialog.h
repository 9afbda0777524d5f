#pragma once

#include "FolderBox.h"
#include "ProgramSettings.h"
#include "UnitTable.h"

#include <QComboBox>
#include <QDialog>

namespace qev::application {

/// Lets the user change the settings of the program. It only collects them; whoever opened it asks
/// `getSettings` once it was accepted.
class SettingsDialog final : public QDialog
{
public:
    SettingsDialog(ProgramSettings const& settings, locale::Locale const& ofSystem,
                   QWidget* parent = nullptr);
    ~SettingsDialog() override;

    [[nodiscard]] ProgramSettings getSettings() const;

    [[nodiscard]] UnitTable& getUnits() const { return *m_units; }
    [[nodiscard]] QComboBox& getSystemBox() const { return *m_system; }
    [[nodiscard]] QComboBox& getDecimalSignBox() const { return *m_decimalSign; }
    [[nodiscard]] QComboBox& getLanguageBox() const { return *m_language; }

private:
    [[nodiscard]] QWidget* createUnitsPage();
    [[nodiscard]] QWidget* createProgramPage();
    void fillLanguages();
    void fill(ProgramSettings const& settings);
    void takeSystem();
    void showSystem();
    void showDecimalSign();

    locale::Locale m_ofSystem;
    QComboBox* m_system;
    QComboBox* m_decimalSign;
    UnitTable* m_units;
    QComboBox* m_language;
    QComboBox* m_theme;
    FolderBox* m_definitions;
    FolderBox* m_classifications;
    FolderBox* m_texts;
};

} // namespace qev::application
