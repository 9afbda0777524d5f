#include "Ui/List/ListColumns.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace qev::ui;
using testing::ElementsAre;

class ListColumnsTest : public testing::Test
{
protected:
    ListColumnsTest() { columns.setTitles({"Name", "Width", "Width", "Rating"}); }

    ListColumns columns;
};

TEST_F(ListColumnsTest, StandInTheirOwnOrderAtFirst)
{
    EXPECT_EQ(columns.getCount(), 4u);
    EXPECT_THAT(columns.getOrder(), ElementsAre(0u, 1u, 2u, 3u));
    EXPECT_FALSE(columns.isHidden(1));
    EXPECT_FALSE(columns.getWidth(1));
    EXPECT_FALSE(columns.getCheckBoxMode(1));
    EXPECT_EQ(columns.getSettings(), ListControlSettings());
}

TEST_F(ListColumnsTest, WhatTheOwnerSaysCountsUntilThereAreOtherColumns)
{
    columns.setCheckBoxes(1, 2);
    columns.activateComboBox(3);
    columns.setDefaultHidden({2});
    columns.setTitles({"Name", "Width", "Width", "Rating"});
    EXPECT_EQ(columns.getCheckBoxMode(1), 2);
    EXPECT_TRUE(columns.isComboBox(3));
    EXPECT_TRUE(columns.isHidden(2));
    columns.setTitles({"Name", "Other"});
    EXPECT_FALSE(columns.getCheckBoxMode(1));
    EXPECT_FALSE(columns.isComboBox(3));
    EXPECT_FALSE(columns.isHidden(2));
}

TEST_F(ListColumnsTest, WhatIsSaidBeforeOtherColumnsComeIsSaidOfThem)
{
    columns.setCheckBoxes(1, 2);
    columns.setTitles(columns.getTitles());
    columns.setCheckBoxes(0, 0);
    columns.setDefaultHidden({1});
    columns.setTitles({"A", "B"});
    EXPECT_EQ(columns.getCheckBoxMode(0), 0);
    EXPECT_FALSE(columns.getCheckBoxMode(1));
    EXPECT_TRUE(columns.isHidden(1));
    columns.setCheckBoxes(0, std::nullopt);
    EXPECT_FALSE(columns.getCheckBoxMode(0));
}

TEST_F(ListColumnsTest, NoColumnsAtAllMakeForgetWhatTheOwnerSaid)
{
    columns.setCheckBoxes(1, 2);
    columns.setTitles({});
    columns.setCheckBoxes(3, 0);
    columns.setTitles({"Name", "Width", "Width", "Rating"});
    EXPECT_FALSE(columns.getCheckBoxMode(1));
    EXPECT_EQ(columns.getCheckBoxMode(3), 0);
}

TEST_F(ListColumnsTest, TheUserCanShowWhatIsHiddenByDefault)
{
    columns.setDefaultHidden({0, 1});
    columns.setHidden(0, false);
    columns.setHidden(3, true);
    EXPECT_FALSE(columns.isHidden(0));
    EXPECT_TRUE(columns.isHidden(1));
    EXPECT_TRUE(columns.isHidden(3));
    columns.resetArrangement();
    EXPECT_TRUE(columns.isHidden(0));
    EXPECT_FALSE(columns.isHidden(3));
}

TEST_F(ListColumnsTest, WhatTheUserDidCountsForLaterColumnsOfTheSameTitle)
{
    columns.setHidden(2, true);
    columns.setWidth(3, 77);
    columns.setTitles({"Rating", "Width"});
    EXPECT_EQ(columns.getWidth(0), 77u);
    EXPECT_FALSE(columns.isHidden(1)) << "It was the second of that title that was hidden.";
    columns.setTitles({"Width", "Width"});
    EXPECT_TRUE(columns.isHidden(1));
    EXPECT_EQ(columns.findColumn({"Rating", "Width"}, 1), 0u);
    EXPECT_FALSE(columns.findColumn({"Rating", "Width"}, 0));
    EXPECT_FALSE(columns.findColumn({"Rating", "Width"}, 9));
}

TEST_F(ListColumnsTest, NewColumnsComeBehindTheirNeighbourOnTheLeft)
{
    columns.setOrder({3, 0, 1, 2});
    EXPECT_THAT(columns.getOrder(), ElementsAre(3u, 0u, 1u, 2u));
    columns.setTitles({"First", "Name", "Colour", "Rating", "Last"});
    EXPECT_THAT(columns.getOrder(), ElementsAre(0u, 3u, 4u, 1u, 2u));
}

TEST_F(ListColumnsTest, TheArrangementCanBeKeptAndGivenBack)
{
    columns.setDefaultHidden({2});
    columns.setWidth(1, 50);
    columns.setOrder({1, 0, 3, 2});
    auto const settings = columns.getSettings();
    EXPECT_EQ(settings, (ListControlSettings{{0, 50}, {2}, {1, 0, 3, 2}, {}}));

    ListColumns other;
    other.loadSettings(settings);
    EXPECT_EQ(other.getSettings(), settings) << "There are no columns yet.";
    other.setTitles(columns.getTitles());
    EXPECT_EQ(other.getSettings(), settings);
    EXPECT_TRUE(other.isHidden(2));
    EXPECT_FALSE(other.getWidth(0));
    other.loadSettings({});
    EXPECT_EQ(other.getSettings(), ListControlSettings());
}

} // namespace
