#include "GridFactoriesTest.h"

#include "Ui/PropertyGrid/PropertyGridEditing.h"

#include <gmock/gmock.h>

namespace {

using namespace qev::fc::ui;
using namespace qev::test;
using qev::ui::CheckState;
using qev::ui::PropertyGridEditing;
using testing::ElementsAre;
using testing::IsEmpty;

class BooleanValueGridControlPropertyFactoryTest : public GridFactoriesTest
{
protected:
    ShownSet shown{SetBuilder("Pset").single("IsExternal", "IfcBoolean").take(), {wall}};
};

TEST_F(BooleanValueGridControlPropertyFactoryTest, ABooleanWithoutAValueIsAnUncheckedBoxWhereItIsWanted)
{
    auto const row = onlyRowOf(shown, true);

    EXPECT_EQ(row->getState().kind, Kind::CheckBox);
    EXPECT_EQ(row->getCheckState(), CheckState::Unchecked);
    EXPECT_EQ(row->getState().valueKind, qev::ui::PropertyGridRowState::ValueKind::None);
    EXPECT_THAT(groupOf(shown, false)->getChildren(), IsEmpty());
}

TEST_F(BooleanValueGridControlPropertyFactoryTest, TheBoxIsCheckedForTrueAlone)
{
    model.addSet(wall, "Pset", {{"IsExternal", boolean(true)}});
    auto const row = onlyRowOf(shown, false);
    EXPECT_EQ(row->getCheckState(), CheckState::Checked);
    EXPECT_EQ(row->getName(), "Pset.IsExternal");
    EXPECT_EQ(row->getState().description, shown["IsExternal"].getLocalizedDescription());
    EXPECT_EQ(propertyOf(row), &shown["IsExternal"]);

    shown["IsExternal"].updateValue(*model.data(), PropertyOrQuantityValue::fromText("0"));

    EXPECT_EQ(onlyRowOf(shown, false)->getCheckState(), CheckState::Unchecked);
}

TEST_F(BooleanValueGridControlPropertyFactoryTest, AClickWritesTheBooleanAndThenTellsTheControl)
{
    auto const row = onlyRowOf(shown, true);
    grid.log.clear();
    grid.onClick = [this] { grid.log.push_back("the model has " + shown["IsExternal"].getValue()); };

    PropertyGridEditing::clickCheckBox(*row);
    PropertyGridEditing::clickCheckBox(*row);

    EXPECT_THAT(grid.log, ElementsAre("clicked Pset IsExternal on", "the model has 1",
                                      "clicked Pset IsExternal off", "the model has 0"));
}

TEST_F(BooleanValueGridControlPropertyFactoryTest, ABoxHasNoButtonOfItsOwn)
{
    wantCustomButtons();

    auto const row = onlyRowOf(shown, true);

    EXPECT_EQ(row->getState().kind, Kind::CheckBox);
    EXPECT_FALSE(row->getState().hasCustomButton);
}

} // namespace
