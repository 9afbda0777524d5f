#include "GridFactoriesTest.h"

#include <gmock/gmock.h>

namespace {

using namespace qev::fc::ui;
using namespace qev::test;
using testing::Contains;
using testing::Not;

using GridControlValueFactoryTest = GridFactoriesTest;

TEST_F(GridControlValueFactoryTest, AttributesCannotBeEditedAndLeadToNoProperty)
{
    auto const group = groupOf(*wall, true);

    for (auto const& row : group->getChildren()) {
        EXPECT_FALSE(row->getState().allowEdit);
        EXPECT_EQ(row->getUserData(), nullptr);
    }
}

TEST_F(GridControlValueFactoryTest, AnAttributeIsItsText)
{
    auto const name = named(groupOf(*wall, false), "Name");

    ASSERT_NE(name, nullptr);
    EXPECT_EQ(name->getState().text, "W1");
    EXPECT_EQ(name->getState().description, "IfcLabel");
}

TEST_F(GridControlValueFactoryTest, AnUnusedTextHasARowOnlyWhenItIsWanted)
{
    EXPECT_EQ(named(groupOf(*wall, false), "Description"), nullptr);
    ASSERT_NE(named(groupOf(*wall, true), "Description"), nullptr);
    EXPECT_EQ(named(groupOf(*wall, true), "Description")->getState().text, "");
}

TEST_F(GridControlValueFactoryTest, AnAttributeWithAPresentationHasARowEvenWithoutAValue)
{
    auto const height = named(groupOf(*model.door("D1"), false), "OverallHeight");

    ASSERT_NE(height, nullptr);
    EXPECT_EQ(height->getState().number, 0.0);
}

TEST_F(GridControlValueFactoryTest, AnAttributeIsShownInUnits)
{
    auto const door = model.door("D1");
    door->OverallHeight = 2.125;

    auto const height = named(groupOf(*door, false), "OverallHeight");

    EXPECT_EQ(height->getState().number, 2.125);
    EXPECT_TRUE(height->hasQuantityPresentation());
}

TEST_F(GridControlValueFactoryTest, AnEnumerationListsNothingAndItsItems)
{
    auto const options = optionsOf(named(groupOf(*wall, true), "PredefinedType"));

    ASSERT_FALSE(options.empty());
    EXPECT_EQ(options.front(), "");
    EXPECT_THAT(options, Contains("MOVABLE"));
}

TEST_F(GridControlValueFactoryTest, RowsHaveTheirOwnButtonWhenTheHostWantsIt)
{
    wantCustomButtons();
    auto const door = model.door("D1");
    door->OverallHeight = 2.125;

    auto const group = groupOf(*door, true);

    for (auto const& row : group->getChildren()) {
        expectCustomButton(row);
        EXPECT_EQ(row->getUserData(), nullptr);
    }
    EXPECT_EQ(named(group, "OverallHeight")->getState().number, 2.125);
    EXPECT_TRUE(named(group, "OverallHeight")->hasQuantityPresentation());
    EXPECT_EQ(named(group, "Name")->getState().text, "D1");
}

} // namespace
