#include "DisplaySettings.h"

#include "Core/Localization/LocalizationAdmin.h"
#include "Core/Localization/Localize.h"
#include "Core/Unit/QuantityPresentation.h"
#include "TemporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace qev::test {
namespace {

using application::DisplaySettings;
using testing::ElementsAre;
using testing::EndsWith;
using testing::IsEmpty;
using unit::UnitPreferences;

class DisplaySettingsTest : public testing::Test
{
protected:
    ~DisplaySettingsTest() override { DisplaySettings().apply(english); }

    static std::string shownLength(double metres)
    {
        return unit::makeQuantityPresentation<unit::LengthUnit>(metres)->text();
    }

    TemporaryFolder folder;
    locale::Locale english;
    locale::Locale german{"de", "DE"};
    DisplaySettings settings;
};

TEST_F(DisplaySettingsTest, LanguageIsThatOfTheSystemUnlessOneIsChosen)
{
    EXPECT_EQ(settings.getLocale(german), german);
    settings.language = "fr";
    EXPECT_EQ(settings.getLocale(german), locale::Locale::get(3));
    settings.language = "nonsense!";
    EXPECT_EQ(settings.getLocale(german), german);
}

TEST_F(DisplaySettingsTest, DecimalSignFollowsTheLanguageUnlessOneIsChosen)
{
    settings.apply(german);
    EXPECT_EQ(shownLength(2.5), "2,5 m");
    settings.decimalSign = '.';
    settings.apply(german);
    EXPECT_EQ(shownLength(2.5), "2.5 m");
    EXPECT_EQ(localize("LogicalValue_True", "FoundationClassesUi"), "Wahr");
}

TEST_F(DisplaySettingsTest, UnitsHoldForPresentationsMadeFromThenOn)
{
    auto const before = unit::makeQuantityPresentation<unit::LengthUnit>(3.048);
    settings.units = UnitPreferences(UnitPreferences::System::Imperial);
    settings.apply(english);
    EXPECT_EQ(shownLength(3.048), "10' 0\"");
    EXPECT_EQ(before->text(), "3.048 m");
}

TEST_F(DisplaySettingsTest, TextsOfTheFolderHoldUntilAnotherIsChosen)
{
    folder.write("FoundationClassesUi.en.txt", "LogicalValue_True\tYes\nnot understood\n");
    settings.texts = folder.path();
    EXPECT_THAT(
        settings.apply(english),
        ElementsAre(EndsWith("FoundationClassesUi.en.txt, line 2: expected a key, a tab and a text")));
    EXPECT_EQ(localize("LogicalValue_True", "FoundationClassesUi"), "Yes");
    settings.texts.clear();
    EXPECT_THAT(settings.apply(english), IsEmpty());
    EXPECT_EQ(localize("LogicalValue_True", "FoundationClassesUi"), "True");
}

TEST_F(DisplaySettingsTest, FolderThatIsNotThereIsTold)
{
    settings.texts = folder.path() / "missing";
    EXPECT_EQ(settings.apply(english).size(), 1u);
}

} // namespace
} // namespace qev::test
