#include "GridFactoriesTest.h"
#include "UI/FoundationClasses/Property/Types/FcPropertyLogicalType.h"

#include <gmock/gmock.h>

namespace {

using namespace qev::fc::ui;
using namespace qev::test;
using testing::ElementsAre;
using testing::IsEmpty;

class LogicalValueGridControlPropertyFactoryTest : public GridFactoriesTest
{
protected:
    ShownSet shown{SetBuilder("Pset").single("Known", "IfcLogical").take(), {wall}};
};

TEST_F(LogicalValueGridControlPropertyFactoryTest, ALogicalOffersFourChoicesAndNoFreeText)
{
    auto const row = onlyRowOf(shown, true);

    EXPECT_EQ(row->getState().kind, Kind::Value);
    EXPECT_THAT(optionsOf(row), ElementsAre("", "true", "false", "unknown"));
    EXPECT_FALSE(row->getState().allowEdit);
    EXPECT_EQ(propertyOf(row), &shown.as<FcPropertyLogicalType>("Known").getWrappedProperty());
}

TEST_F(LogicalValueGridControlPropertyFactoryTest, ItsRowShowsTheValue)
{
    model.addSet(wall, "Pset", {{"Known", logical(qev::fc::Logical::Unknown)}});

    EXPECT_EQ(onlyRowOf(shown, false)->getState().text, "unknown");
}

TEST_F(LogicalValueGridControlPropertyFactoryTest, WithoutAValueThereIsNoRowUnlessItIsWanted)
{
    EXPECT_THAT(groupOf(shown, false)->getChildren(), IsEmpty());
    EXPECT_EQ(onlyRowOf(shown, true)->getState().text, "");
}

TEST_F(LogicalValueGridControlPropertyFactoryTest, ItsRowHasAButtonOfItsOwnWhenTheHostWantsIt)
{
    wantCustomButtons();

    auto const row = onlyRowOf(shown, true);

    expectCustomButton(row);
    EXPECT_THAT(optionsOf(row), ElementsAre("", "true", "false", "unknown"));
}

} // namespace
