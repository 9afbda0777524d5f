#include "PropertySetGridControlTest.h"

#include "FoundationClasses/AllEntities.h"

#include <gmock/gmock.h>

namespace {

using namespace qev::fc;
using namespace qev::fc::ui;
using namespace qev::test;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

class PropertySetGridControlGroupsTest : public PropertySetGridControlTest
{
protected:
    void requestOrder(std::vector<std::string> const& names)
    {
        auto const toy = std::make_shared<ToyGridFormatter>();
        toy->order = names;
        gridFormatter = toy;
    }
};

TEST_F(PropertySetGridControlGroupsTest, AttributesStandBeforeTheAttributesOfTheTypeAndTheSets)
{
    filter->excludedSets.clear();
    auto const wall = model.wall("W1");
    model.assignType(model.wallType("WT1"), {wall});

    show({wall});

    EXPECT_THAT(groups(), ElementsAre("IfcWall", "IfcWallType", "Pset_A", "Pset_B"));
}

TEST_F(PropertySetGridControlGroupsTest, TheFilterMayRefuseTheInstanceAttributesAlone)
{
    filter->excludedSets = {"Instance Attributes"};
    auto const wall = model.wall("W1");
    model.assignType(model.wallType("WT1"), {wall});

    show({wall});

    EXPECT_THAT(groups(), ElementsAre("IfcWallType", "Pset_A", "Pset_B"));
}

TEST_F(PropertySetGridControlGroupsTest, WhatIsNoOccurrenceHasNoTypeGroup)
{
    filter->excludedSets.clear();

    show({model.wallType("WT1")});

    EXPECT_THAT(groups(), ElementsAre("IfcWallType", "Pset_A", "Pset_B"));
    EXPECT_THAT(filter->askedSets, Not(Contains("Type Attributes")));
}

TEST_F(PropertySetGridControlGroupsTest, WhatHasNoSetsHasItsAttributesOnly)
{
    filter->excludedSets.clear();

    show({singleValue("Code", label("A"))});

    EXPECT_THAT(groups(), ElementsAre("IfcPropertySingleValue"));
    EXPECT_THAT(filter->askedSets, ElementsAre("Instance Attributes"));
}

TEST_F(PropertySetGridControlGroupsTest, EachObjectHasItsAttributesAndThoseOfItsTypeInTheOrderOfTheObjects)
{
    filter->excludedSets.clear();
    auto const wall = model.wall("W1");
    auto const door = model.door("D1");
    model.assignType(model.wallType("WT1"), {wall});

    show({door, nullptr, wall});

    EXPECT_THAT(groups(), ElementsAre("IfcDoor", "IfcWall", "IfcWallType", "Pset_A", "Pset_B"));
}

TEST_F(PropertySetGridControlGroupsTest, WithoutAFilterAllGroupsAreShown)
{
    filter.reset();
    auto const wall = model.wall("W1");
    model.assignType(model.wallType("WT1"), {wall});

    show({wall});

    EXPECT_THAT(groups(), ElementsAre("IfcWall", "IfcWallType", "Pset_A", "Pset_B"));
}

TEST_F(PropertySetGridControlGroupsTest, TheFilterLeavesOutSets)
{
    filter->excludedSets.insert("Pset_A");

    show({model.wall("W1")});

    EXPECT_THAT(groups(), ElementsAre("Pset_B"));
}

TEST_F(PropertySetGridControlGroupsTest, ARequestedOrderIsTakenAsItStands)
{
    requestOrder({"Pset_B", "Pset_Unknown", "Pset_A"});

    show({model.wall("W1")});

    EXPECT_THAT(groups(), ElementsAre("Pset_B", "Pset_A"));
}

TEST_F(PropertySetGridControlGroupsTest, ASetThatIsRequestedTwiceIsShownTwice)
{
    requestOrder({"Pset_B", "Pset_B"});

    show({model.wall("W1")});

    EXPECT_THAT(groups(), ElementsAre("Pset_B", "Pset_B"));
}

TEST_F(PropertySetGridControlGroupsTest, ARequestedOrderIsMeasuredByTheSetsThatTheFilterLeaves)
{
    filter->excludedSets.insert("Pset_A");
    requestOrder({"Pset_B"});

    show({model.wall("W1")});

    EXPECT_THAT(groups(), ElementsAre("Pset_B"));
}

TEST_F(PropertySetGridControlGroupsTest, WithoutSetsNoOrderIsMissed)
{
    filter->excludedSets.clear();
    requestOrder({});

    show({singleValue("Code", label("A"))});

    EXPECT_THAT(groups(), ElementsAre("IfcPropertySingleValue"));
}

TEST_F(PropertySetGridControlGroupsTest, ARequestedOrderWithUnknownSetsShowsTheKnownOnes)
{
    requestOrder({"Pset_Unknown", "Pset_B"});

    show({model.wall("W1")});

    EXPECT_THAT(groups(), ElementsAre("Pset_B"));
}

TEST_F(PropertySetGridControlGroupsTest, ARequestedOrderWithTooFewEntriesIsReportedAndIgnored)
{
    requestOrder({"Pset_B"});

    show({model.wall("W1")});

    expectReport("List containing requested property set contains too few entries.",
                 "qev::fc::ui::SetsToBeDisplayed::getOrderedNames",
                 "UI/FoundationClasses/Controls/PropertySetGridControl/SetsToBeDisplayed");
    EXPECT_THAT(groups(), ElementsAre("Pset_A", "Pset_B"));
}

TEST_F(PropertySetGridControlGroupsTest, HiddenUnusedPropertiesLeaveNoTrace)
{
    auto const wall = model.wall("W1");
    model.addSet(wall, "Pset_A", {{"Code", label("A")}});
    show({wall});

    control->hideUnusedProperties();

    EXPECT_THAT(groups(), ElementsAre("Pset_A"));
    EXPECT_THAT(grid().findRow({"Pset_A"})->getChildren(), SizeIs(1));
    control->showUnusedProperties();
    EXPECT_THAT(groups(), ElementsAre("Pset_A", "Pset_B"));
    EXPECT_THAT(grid().findRow({"Pset_A"})->getChildren(), SizeIs(5));
}

TEST_F(PropertySetGridControlGroupsTest, AGroupWithoutRowsIsShownUnlessUnusedPropertiesAreHidden)
{
    schema = toySchemaWith(
        SetBuilder("Pset_Bounds").bounded("Range", "IfcReal").applicableTo("IfcProduct").take());

    show({model.wall("W1")});
    EXPECT_THAT(groups(), ElementsAre("Pset_Bounds"));
    control->hideUnusedProperties();

    EXPECT_THAT(groups(), IsEmpty());
}

TEST_F(PropertySetGridControlGroupsTest, HidingUnusedPropertiesBeforeTheWindowChangesTheFlagOnly)
{
    auto const wall = model.wall("W1");
    make()->hideUnusedProperties();
    EXPECT_EQ(control->getPropertyGridControl(), nullptr);

    control->setObject(model.data(), wall);
    control->init(gridId, std::nullopt, true);

    EXPECT_THAT(groups(), IsEmpty());
}

TEST_F(PropertySetGridControlGroupsTest, HidingUnusedPropertiesHoldsForTheNextObjectToo)
{
    show({model.wall("W1")});
    control->hideUnusedProperties();

    control->setObject(model.data(), model.wall("W2"));

    EXPECT_THAT(groups(), IsEmpty());
}

TEST_F(PropertySetGridControlGroupsTest, RowsAreLaidOutOncePerRefresh)
{
    show({model.wall("W1")});
    int const before = grid().getLayoutCount();

    control->setObject(model.data(), model.wall("W2"));

    EXPECT_EQ(grid().getLayoutCount(), before + 1);
}

TEST_F(PropertySetGridControlGroupsTest, AttributesAreTheSameWhateverSchemaTheControlHas)
{
    filter->excludedSets.clear();
    auto const wall = model.wall("W1");
    auto const namesBelow = [this](std::string const& group) {
        std::vector<std::string> names;
        for (auto const& child : grid().findRow({group})->getChildren())
            names.push_back(child->getName());
        return names;
    };
    show({wall});
    auto const ofToySchema = namesBelow("IfcWall");

    schema.reset();
    make()->init(0, std::nullopt, true);
    control->setObjects(model.data(), {wall});
    EXPECT_THAT(takeReportTexts(), ElementsAre("Schema entity doesn't exist."));

    EXPECT_THAT(namesBelow("IfcWall"), testing::ElementsAreArray(ofToySchema));
    EXPECT_THAT(ofToySchema, Contains("PredefinedType"));
}

} // namespace
