#include "GridFactoriesTest.h"

#include <gmock/gmock.h>

namespace {

using namespace qev::fc::ui;
using namespace qev::test;
using testing::ElementsAre;
using testing::IsEmpty;

class QuantityFactoryTest : public GridFactoriesTest
{
protected:
    ShownSet shown{everyQuantity("Qto"), {wall}};
};

TEST_F(QuantityFactoryTest, AQuantityIsItsText)
{
    model.addQuantities(wall, "Qto", {{"Area", 2.5, QuantityKind::Area}});

    auto const row = onlyRowOf(shown, false);

    EXPECT_EQ(row->getName(), "Area");
    EXPECT_EQ(row->getState().text, "2.500000");
    EXPECT_EQ(row->getState().number, std::nullopt);
    EXPECT_FALSE(row->hasQuantityPresentation());
    EXPECT_THAT(optionsOf(row), IsEmpty());
    EXPECT_EQ(propertyOf(row), &shown["Area"]);
}

TEST_F(QuantityFactoryTest, UnusedQuantitiesHaveARowOnlyWhenTheyAreWanted)
{
    EXPECT_THAT(groupOf(shown, false)->getChildren(), IsEmpty());
    EXPECT_THAT(namesOf(groupOf(shown, true)),
                ElementsAre("Area", "Count", "Length", "Time", "Volume", "Weight"));
}

TEST_F(QuantityFactoryTest, RowsHaveTheirOwnButtonWhenTheHostWantsIt)
{
    wantCustomButtons();

    auto const group = groupOf(shown, true);

    for (auto const& row : group->getChildren())
        expectCustomButton(row);
}

} // namespace
