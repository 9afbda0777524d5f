#include "GridFactoriesTest.h"

#include <gmock/gmock.h>

namespace {

using namespace qev::fc::ui;
using namespace qev::test;
using testing::ElementsAre;
using testing::IsEmpty;

class EnumeratedValueGridControlPropertyFactoryTest : public GridFactoriesTest
{
protected:
    ShownSet shown{SetBuilder("Pset").enumerated("Status", {"NEW", "OLD"}).take(), {wall}};
};

TEST_F(EnumeratedValueGridControlPropertyFactoryTest, AnEnumerationOffersNothingFirstAndTakesNoOtherText)
{
    auto const row = onlyRowOf(shown, true);

    EXPECT_EQ(row->getState().kind, Kind::Value);
    EXPECT_THAT(optionsOf(row), ElementsAre("", "NEW", "OLD"));
    EXPECT_TRUE(row->getState().optionsOnly);
    EXPECT_TRUE(row->getState().allowEdit);
    EXPECT_EQ(row->getState().description, shown["Status"].getLocalizedDescription());
    EXPECT_EQ(propertyOf(row), &shown["Status"]);
}

TEST_F(EnumeratedValueGridControlPropertyFactoryTest, ItsRowShowsTheValue)
{
    model.addSet(wall, "Pset")
        ->HasProperties.addProperty(enumeratedValue("Status", {label("OLD")}, {label("NEW"), label("OLD")}));

    EXPECT_EQ(onlyRowOf(shown, false)->getState().text, "OLD");
}

TEST_F(EnumeratedValueGridControlPropertyFactoryTest, WithoutAValueThereIsNoRowUnlessItIsWanted)
{
    EXPECT_THAT(groupOf(shown, false)->getChildren(), IsEmpty());
    EXPECT_EQ(onlyRowOf(shown, true)->getState().text, "");
}

TEST_F(EnumeratedValueGridControlPropertyFactoryTest, ItsRowHasAButtonOfItsOwnWhenTheHostWantsIt)
{
    wantCustomButtons();

    auto const row = onlyRowOf(shown, true);

    expectCustomButton(row);
    EXPECT_THAT(optionsOf(row), ElementsAre("", "NEW", "OLD"));
    EXPECT_EQ(propertyOf(row), &shown["Status"]);
}

} // namespace
