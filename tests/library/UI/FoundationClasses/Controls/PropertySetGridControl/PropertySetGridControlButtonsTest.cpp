#include "DressedRowTest.h"

#include "FoundationClasses/AllEntities.h"

#include <gmock/gmock.h>

namespace {

using namespace qev::fc;
using namespace qev::fc::ui;
using namespace qev::test;
using testing::ElementsAre;
using testing::IsEmpty;

using PropertySetGridControlButtonsTest = DressedRowTest;

TEST_F(PropertySetGridControlButtonsTest, AButtonTellsTheGridFormatter)
{
    toyGridFormatter->buttons = true;
    show({model.wall("W1")});
    toyGridFormatter->log.clear();

    EXPECT_TRUE(grid().pressButton(row("Pset_A", "Code")));

    EXPECT_THAT(toyGridFormatter->log, ElementsAre("clicked Pset_A Code"));
    EXPECT_THAT(handled, IsEmpty());
}

TEST_F(PropertySetGridControlButtonsTest, AnOwnButtonTellsThePropertyFormatterAndThenTheHandlers)
{
    useFormatter();
    toyGridFormatter->customButtons = true;
    show({model.wall("W1")});
    toyFormatter->log.clear();

    EXPECT_TRUE(grid().pressButton(row("Pset_A", "Code")));

    EXPECT_THAT(toyFormatter->log, ElementsAre("button Pset_A Code"));
    EXPECT_THAT(handled, ElementsAre("Pset_A Code { 0 }"));
}

TEST_F(PropertySetGridControlButtonsTest, AButtonOfAnAttributeLeadsNowhereAndIsReported)
{
    filter->excludedSets = {"Type Attributes", "Pset_A"};
    toyGridFormatter->buttons = true;
    show({model.wall("W1")});

    grid().pressButton(grid().findRow({"IfcWall", "Name"}));

    expectControlReport("Interface not set.", "onButtonClicked");
}

TEST_F(PropertySetGridControlButtonsTest, AnOwnButtonOfAnAttributeLeadsNowhereAndIsReported)
{
    filter->excludedSets = {"Type Attributes", "Pset_A"};
    toyGridFormatter->customButtons = true;
    show({model.wall("W1")});

    grid().pressButton(grid().findRow({"IfcWall", "Name"}));

    expectControlReport("Interface not set.", "onCustomButtonClicked");
    EXPECT_THAT(handled, IsEmpty());
}

TEST_F(PropertySetGridControlButtonsTest, ARowThatCannotHaveItsOwnButtonIsReportedAndStays)
{
    schema = toySchemaWith(
        SetBuilder("Pset_A").single("IsExternal", "IfcBoolean").applicableTo("IfcProduct").take());
    toyGridFormatter->customButtons = true;

    show({model.wall("W1")});

    expectControlReport("Should be a custom button property.", "setupOnCustomButtonClickedHandler");
    EXPECT_NE(row("Pset_A", "IsExternal"), nullptr);
}

} // namespace
