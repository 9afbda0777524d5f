#include "UI/FoundationClasses/Controllers/PopupLocalization.h"

#include "kit/ReportRecorder.h"
#include "library/kit/SetBuilder.h"
#include "library/kit/TranslationScope.h"

#include <gtest/gtest.h>

namespace {

using namespace qev;
using namespace qev::test;
using fc::ui::PopupLocalization;
using ifc::def::xml::Def;
using ifc::def::xml::SetDef;

using Item = ui::ListControl::ItemInfo;

struct PopupLocalizationTest : testing::Test
{
    TranslationScope texts;
    std::unique_ptr<ifc::def::pset::PropertySetDef> set =
        SetBuilder("Pset_Toy").single("Colour", "IfcLabel").description("What a toy has").take();
    std::vector<SetDef const*> sets{set.get()};
    std::vector<Def const*> properties{set->entries().front()};

    std::string setText(Item const& item, std::string const& prefix = "") const
    {
        return PopupLocalization::getLocalizedItemString(sets, item, prefix);
    }
    std::string propertyText(Item const& item) const
    {
        return PopupLocalization::getLocalizedItemString(properties, item, "Pset_Toy.");
    }
};

TEST_F(PopupLocalizationTest, WithoutATextTheDefinitionSpeaksForItself)
{
    EXPECT_EQ(setText({0, 0}), "Pset_Toy");
    EXPECT_EQ(setText({0, 1}), "What a toy has");
    EXPECT_EQ(propertyText({0, 0}), "Colour");
    EXPECT_EQ(propertyText({0, 1}), "");
}

TEST_F(PopupLocalizationTest, ThePrefixStandsBeforeTheNameAndNotBeforeTheDescription)
{
    texts.add("Pset_Toy.Colour", "Farbe");
    texts.add("Colour_Description", "Farbe des Spielzeugs");
    texts.add("Pset_Toy.Colour_Description", "not asked for");
    EXPECT_EQ(propertyText({0, 0}), "Farbe");
    EXPECT_EQ(propertyText({0, 1}), "Farbe des Spielzeugs");
}

TEST_F(PopupLocalizationTest, TheDictionaryOfNamesGoesBeforeThatOfProperties)
{
    texts.addIn("IfcProperties", "Pset_Toy", "second");
    EXPECT_EQ(setText({0, 0}), "second");
    texts.addIn("Ifc", "Pset_Toy", "first");
    EXPECT_EQ(setText({0, 0}), "first");
}

TEST_F(PopupLocalizationTest, AnAbsentRowOrColumnIsTheFirst)
{
    EXPECT_EQ(setText({std::nullopt, 1}), "What a toy has");
    EXPECT_EQ(setText({0, std::nullopt}), "Pset_Toy");
}

TEST_F(PopupLocalizationTest, ARowPastTheEndHasNoTextAndIsNotReported)
{
    EXPECT_EQ(setText({1, 0}), "");
    EXPECT_EQ(setText({1, 7}), "");
}

TEST_F(PopupLocalizationTest, ReportsAnotherColumn)
{
    EXPECT_EQ(setText({0, 2}), "");
    expectReport("Unknown column", "qev::fc::ui::PopupLocalization::getLocalizedItemString",
                 "UI/FoundationClasses/Controllers/PopupLocalization");
}

} // namespace
