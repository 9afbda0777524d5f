#include "GridFactoriesTest.h"

#include "Core/Localization/LocalizationAdmin.h"

#include <gmock/gmock.h>

#include <map>

namespace {

using namespace qev::fc;
using namespace qev::fc::ui;
using namespace qev::test;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

using GridControlPropertyFactoriesTest = GridFactoriesTest;

/// Texts in a context that no other test uses.
void addTexts(std::string const& context, std::map<std::string, std::string> const& texts)
{
    qev::localization::Dictionary dictionary;
    for (auto const& [key, text] : texts)
        dictionary.set(key, text);
    auto& admin = qev::resource::localization::getAdminInstance();
    admin.add(context, admin.language(), dictionary);
}

// --- Sets ---------------------------------------------------------------------------------------

TEST_F(GridControlPropertyFactoriesTest, TheControlHearsOfEachRowBeforeAndAfterItStandsInTheGroup)
{
    ShownSet shown(
        SetBuilder("Pset").single("A", "IfcLabel").list("NoRow", "IfcLabel").single("B", "IfcLabel").take(),
        {wall});

    auto const group = groupOf(shown, true);

    EXPECT_THAT(grid.log, ElementsAre("created Pset A 0", "after Pset A 1 enabled", "created Pset B 1",
                                      "after Pset B 2 enabled"));
    EXPECT_EQ(group->getName(), "Pset");
    EXPECT_EQ(group->getUserData(), &shown.set());
}

TEST_F(GridControlPropertyFactoriesTest, TheControlIsToldOfARowThatItDisabled)
{
    grid.disablesRows = true;
    ShownSet shown(SetBuilder("Pset").single("A", "IfcLabel").take(), {wall});

    auto const row = onlyRowOf(shown, true);

    EXPECT_FALSE(row->getState().enabled);
    EXPECT_THAT(grid.log, ElementsAre("created Pset A 0", "after Pset A 1 disabled"));
}

TEST_F(GridControlPropertyFactoriesTest, BoundedAndListValuesHaveNoRow)
{
    model.addSet(wall, "Pset")->HasProperties.addProperty(boundedValue("A", real(1), real(2), real(1.5)));
    model.addSet(wall, "Pset")->HasProperties.addProperty(listValue("B", {label("X"), label("Y")}));
    ShownSet shown(SetBuilder("Pset").bounded("A", "IfcReal").list("B", "IfcLabel").take(), {wall});

    ASSERT_NE(shown["A"].getValue(), "");
    ASSERT_NE(shown["B"].getValue(), "");
    EXPECT_THAT(groupOf(shown, true)->getChildren(), IsEmpty());
    EXPECT_THAT(groupOf(shown, false)->getChildren(), IsEmpty());
    EXPECT_THAT(grid.log, IsEmpty());
}

TEST_F(GridControlPropertyFactoriesTest, AGroupShowsTheDescriptionOfItsSet)
{
    ShownSet shown(SetBuilder("Pset").description("All about it").take(), {wall});

    auto const group = groupOf(shown, true);

    EXPECT_EQ(group->getName(), "All about it");
    EXPECT_EQ(group->getState().description, "All about it");
    EXPECT_EQ(group->getState().kind, Kind::Group);
}

TEST_F(GridControlPropertyFactoriesTest, AGroupHasTheTextsOfTheLanguageWhereThereAreAny)
{
    addTexts("GridFactoriesSets", {{"Pset", "Our set"}, {"Pset_Description", "All about our set"}});
    ShownSet::Options options;
    options.contexts = {"GridFactoriesSets"};
    ShownSet shown(SetBuilder("Pset").description("All about it").take(), {wall}, options);

    auto const group = groupOf(shown, true);

    EXPECT_EQ(group->getName(), "Our set");
    EXPECT_EQ(group->getState().description, "All about our set");
}

TEST_F(GridControlPropertyFactoriesTest, AGroupWithoutANameInTheLanguageHasTheDescriptionInIt)
{
    addTexts("GridFactoriesDescriptions", {{"Pset_Description", "All about our set"}});
    ShownSet::Options options;
    options.contexts = {"GridFactoriesDescriptions"};
    ShownSet shown(SetBuilder("Pset").description("All about it").take(), {wall}, options);

    EXPECT_EQ(groupOf(shown, true)->getName(), "All about our set");
}

TEST_F(GridControlPropertyFactoriesTest, UnusedValuesHaveARowOnlyWhenWanted)
{
    ShownSet shown(SetBuilder("Pset")
                       .single("Code", "IfcLabel")
                       .single("Length", "IfcLengthMeasure")
                       .single("IsExternal", "IfcBoolean")
                       .single("Known", "IfcLogical")
                       .enumerated("Status", {"NEW"})
                       .take(),
                   {wall});
    ShownSet quantities(everyQuantity("Qto"), {wall});

    EXPECT_THAT(groupOf(shown, false)->getChildren(), IsEmpty());
    EXPECT_THAT(groupOf(quantities, false)->getChildren(), IsEmpty());
    EXPECT_THAT(namesOf(groupOf(shown, true)),
                ElementsAre("Pset.Code", "Pset.Length", "Pset.IsExternal", "Pset.Known", "Pset.Status"));
    EXPECT_THAT(groupOf(quantities, true)->getChildren(), testing::SizeIs(6));
}

// --- Attributes ---------------------------------------------------------------------------------

TEST_F(GridControlPropertyFactoriesTest, AttributesOfSupertypesStandFirstAndOnlyTheirCreationIsTold)
{
    auto const group = groupOf(*wall, true);

    EXPECT_EQ(group->getName(), "IfcWall");
    auto const names = namesOf(group);
    ASSERT_GT(names.size(), 5u);
    EXPECT_EQ(names.front(), "GlobalId");
    EXPECT_EQ(names.back(), "PredefinedType");
    EXPECT_THAT(grid.log, Contains("created IfcWall Name 2"));
    EXPECT_THAT(grid.log, Not(Contains(testing::StartsWith("after"))));
    EXPECT_EQ(group->getUserData(), nullptr);
}

TEST_F(GridControlPropertyFactoriesTest, AGivenLabelNamesTheGroupOfAttributes)
{
    addTexts("GridFactoriesLabels", {{"IfcWall", "A wall"}});

    EXPECT_EQ(groupOf(*wall, true, "This wall", {"GridFactoriesLabels"})->getName(), "This wall");
    EXPECT_THAT(grid.log, Contains("created This wall Name 2"));
}

TEST_F(GridControlPropertyFactoriesTest, TheFirstContextThatKnowsTheClassNamesTheGroupOfAttributes)
{
    addTexts("GridFactoriesFirst", {{"IfcDoor", "A door"}});
    addTexts("GridFactoriesSecond", {{"IfcWall", "A wall"}});
    addTexts("GridFactoriesThird", {{"IfcWall", "Not this one"}});

    auto const group =
        groupOf(*wall, true, {}, {"GridFactoriesFirst", "GridFactoriesSecond", "GridFactoriesThird"});

    EXPECT_EQ(group->getName(), "A wall");
    EXPECT_THAT(grid.log, Contains("created A wall Name 2"));
}

TEST_F(GridControlPropertyFactoriesTest, AnEmptyTextLeavesTheGroupOfAttributesTheNameOfTheClass)
{
    addTexts("GridFactoriesEmpty", {{"IfcWall", ""}});

    EXPECT_EQ(groupOf(*wall, true, {}, {"GridFactoriesEmpty"})->getName(), "IfcWall");
}

TEST_F(GridControlPropertyFactoriesTest, AClassThatTheAttributeSchemaDoesNotKnowHasAGroupWithoutRows)
{
    auto const road = model.add<domain::road::FcRoad>("R1");

    EXPECT_THAT(groupOf(*road, true)->getChildren(), IsEmpty());
}

TEST_F(GridControlPropertyFactoriesTest, AttributesAreThoseOfOneVersionOfTheStandard)
{
    // IFC4X1 is the first version with alignments and the last one without bridges.
    auto const alignment = model.add<core::productextension::FcAlignment>("A1");
    auto const bridge = model.add<core::productextension::FcBridge>("B1");

    EXPECT_THAT(namesOf(groupOf(*alignment, true)), Contains("Axis"));
    EXPECT_THAT(namesOf(groupOf(*alignment, true)), Contains("PredefinedType"));
    EXPECT_THAT(groupOf(*bridge, true)->getChildren(), IsEmpty());
}

} // namespace
