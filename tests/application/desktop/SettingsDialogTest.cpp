#include "SettingsDialog.h"

#include "Texts.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QWheelEvent>

namespace qev::test {
namespace {

using namespace application;
using unit::QuantityId;
using unit::UnitPreferences;
using Style = unit::QppSettings::Style;
using System = UnitPreferences::System;

class SettingsDialogTest : public testing::Test
{
protected:
    SettingsDialogTest() { dialog.show(); }

    [[nodiscard]] QString getExample(QuantityId quantity) const
    {
        auto const& units = dialog.getUnits();
        return units.item(units.getRow(quantity), UnitTable::exampleColumn)->text();
    }

    void chooseUnit(QuantityId quantity, QString const& text) const
    {
        auto& box = dialog.getUnits().getUnitBox(dialog.getUnits().getRow(quantity));
        auto const entry = box.findText(text);
        ASSERT_GE(entry, 0);
        box.setCurrentIndex(entry);
    }

    void choose(QComboBox& box, QString const& text) const
    {
        box.setFocus();
        auto const entry = box.findText(text);
        ASSERT_GE(entry, 0);
        box.setCurrentIndex(entry);
        emit box.activated(entry);
    }

    SettingsDialog dialog{ProgramSettings(), locale::Locale()};
};

TEST_F(SettingsDialogTest, GivesBackWhatItWasGiven)
{
    ProgramSettings settings;
    settings.display.units = UnitPreferences(System::Imperial);
    settings.display.units.setChoice(QuantityId::Area, {119, 2, Style::Decimal});
    settings.display.decimalSign = ',';
    settings.display.language = "fr";
    settings.display.texts = "/texts";
    settings.theme = Theme::Light;
    settings.definitions = "/definitions";
    EXPECT_EQ(SettingsDialog(settings, locale::Locale()).getSettings(), settings);
    EXPECT_EQ(dialog.getSettings(), ProgramSettings());
}

TEST_F(SettingsDialogTest, HasARowForEachQuantityWithAnExample)
{
    auto const& units = dialog.getUnits();
    EXPECT_EQ(units.rowCount(), static_cast<int>(unit::quantityFacts.size()));
    EXPECT_EQ(getExample(QuantityId::Length), "12.346 m");
    EXPECT_EQ(getExample(QuantityId::Temperature), "12.35 °C");
    for (int row = 0; row < units.rowCount(); ++row)
        EXPECT_FALSE(units.item(row, UnitTable::exampleColumn)->text().isEmpty()) << row;
}

TEST_F(SettingsDialogTest, UnitBringsTheDecimalsThatFitIt)
{
    chooseUnit(QuantityId::Length, "mm");
    EXPECT_EQ(getExample(QuantityId::Length), "12346 mm");
    EXPECT_EQ(dialog.getSettings().display.units.choice(QuantityId::Length).decimals, 0);
    auto& units = dialog.getUnits();
    units.getDecimalsBox(units.getRow(QuantityId::Length)).setValue(1);
    EXPECT_EQ(getExample(QuantityId::Length), "12345.7 mm");
}

TEST_F(SettingsDialogTest, SystemChoosesAllUnitsAndASingleUnitMixesThem)
{
    choose(dialog.getSystemBox(), "Imperial");
    EXPECT_EQ(getExample(QuantityId::Length), "40' 6 1/16\"");
    EXPECT_EQ(dialog.getSettings().display.units.system(), System::Imperial);
    chooseUnit(QuantityId::Length, "ft");
    EXPECT_EQ(dialog.getSystemBox().currentText(), "Mixed");
    EXPECT_EQ(getExample(QuantityId::Length), "40.5 ft");
    choose(dialog.getSystemBox(), "Metric");
    EXPECT_EQ(dialog.getSettings(), ProgramSettings());
}

TEST_F(SettingsDialogTest, MixedCannotBeChosen)
{
    choose(dialog.getSystemBox(), "Mixed");
    EXPECT_EQ(dialog.getSystemBox().currentText(), "Metric");
}

TEST_F(SettingsDialogTest, DecimalSignShowsInTheExamples)
{
    choose(dialog.getLanguageBox(), "Deutsch");
    EXPECT_EQ(getExample(QuantityId::Length), "12,346 m");
    choose(dialog.getDecimalSignBox(), "Point (2.5)");
    EXPECT_EQ(getExample(QuantityId::Length), "12.346 m");
    EXPECT_EQ(dialog.getSettings().display.language, "de");
    EXPECT_EQ(dialog.getSettings().display.decimalSign, '.');
}

TEST_F(SettingsDialogTest, WheelOverABoxScrollsAndChangesNothing)
{
    auto& box = dialog.getUnits().getUnitBox(dialog.getUnits().getRow(QuantityId::Length));
    QWheelEvent wheel(QPointF(2, 2), box.mapToGlobal(QPointF(2, 2)), QPoint(), QPoint(0, -120), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&box, &wheel);
    EXPECT_EQ(dialog.getSettings(), ProgramSettings());
}

int getWidestCell(UnitTable const& units, int column)
{
    int widest = 0;
    for (int row = 0; row < units.rowCount(); ++row) {
        auto const* const box = units.cellWidget(row, column);
        widest =
            std::max(widest, box ? box->sizeHint().width()
                                 : units.fontMetrics().horizontalAdvance(units.item(row, column)->text()));
    }
    return widest;
}

/// Every text of the dialog has its room in each language.
class SettingsDialogLanguages : public testing::TestWithParam<char const*>
{
protected:
    static ProgramSettings settingsOf(char const* language)
    {
        ProgramSettings settings;
        settings.display.language = language;
        return settings;
    }

    SettingsDialogLanguages() { settingsOf(GetParam()).display.apply(locale::Locale()); }
    ~SettingsDialogLanguages() override { settingsOf("en").display.apply(locale::Locale()); }
};

TEST_P(SettingsDialogLanguages, ShowTheirTextsInFull)
{
    SettingsDialog dialog(settingsOf(GetParam()), locale::Locale());
    dialog.show();
    QCoreApplication::processEvents();
    EXPECT_EQ(dialog.windowTitle(), getText("Settings_Title"));
    auto& units = dialog.getUnits();
    for (int const column : {UnitTable::quantityColumn, UnitTable::unitColumn, UnitTable::decimalsColumn})
        EXPECT_GE(units.columnWidth(column), getWidestCell(units, column));
    EXPECT_LE(units.columnViewportPosition(UnitTable::exampleColumn), units.viewport()->width() * 3 / 4);
    for (auto const* const label : dialog.findChildren<QLabel*>()) {
        if (!label->wordWrap() && label->isVisible()) {
            EXPECT_GE(label->width(), label->sizeHint().width()) << label->text().toStdString();
        }
    }
    for (auto const* const button : dialog.findChildren<QPushButton*>()) {
        if (button->isVisible()) {
            EXPECT_GE(button->width(), button->minimumSizeHint().width()) << button->text().toStdString();
        }
    }
}

INSTANTIATE_TEST_SUITE_P(All, SettingsDialogLanguages, testing::Values("en", "de", "fr"),
                         [](auto const& tested) { return std::string(tested.param); });

} // namespace
} // namespace qev::test
