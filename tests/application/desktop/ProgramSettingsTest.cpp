#include "ProgramSettings.h"

#include <gtest/gtest.h>
#include <QSettings>

namespace qev::test {
namespace {

using application::ProgramSettings;
using application::Theme;

class ProgramSettingsTest : public testing::Test
{
protected:
    ProgramSettingsTest() { QSettings().clear(); }
    ~ProgramSettingsTest() override { QSettings().clear(); }
};

TEST_F(ProgramSettingsTest, AreThoseOfTheSystemAtFirst)
{
    EXPECT_EQ(ProgramSettings::restore(), ProgramSettings());
    EXPECT_EQ(ProgramSettings().display.units.system(), unit::UnitPreferences::System::Metric);
}

TEST_F(ProgramSettingsTest, AreKeptForTheNextRun)
{
    ProgramSettings settings;
    settings.display.units = unit::UnitPreferences(unit::UnitPreferences::System::Imperial);
    settings.display.units.setChoice(unit::QuantityId::Length, {107, 1, unit::QppSettings::Style::Decimal});
    settings.display.decimalSign = ',';
    settings.display.language = "de";
    settings.display.texts = std::filesystem::path(u8"/texts/Türen");
    settings.theme = Theme::Dark;
    settings.definitions = "/definitions";
    settings.store();
    EXPECT_EQ(ProgramSettings::restore(), settings);

    ProgramSettings().store();
    EXPECT_EQ(ProgramSettings::restore(), ProgramSettings());
}

TEST_F(ProgramSettingsTest, ThatAreNotUnderstoodChangeNothing)
{
    QSettings settings;
    settings.setValue("display/units", QStringList({"length=cubit;3;decimal"}));
    settings.setValue("display/decimalSign", "'");
    settings.setValue("display/theme", "plaid");
    EXPECT_EQ(ProgramSettings::restore(), ProgramSettings());
}

} // namespace
} // namespace qev::test
