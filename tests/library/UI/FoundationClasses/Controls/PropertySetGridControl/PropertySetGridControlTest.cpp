#include "PropertySetGridControlTest.h"

#include "FoundationClasses/AllEntities.h"

#include <gmock/gmock.h>

namespace {

using namespace qev::fc;
using namespace qev::fc::ui;
using namespace qev::test;
using qev::ui::WindowPlacement;
using testing::ElementsAre;
using testing::IsEmpty;

TEST_F(PropertySetGridControlTest, ConstructionMakesNoWindow)
{
    EXPECT_EQ(make()->getPropertyGridControl(), nullptr);
}

TEST_F(PropertySetGridControlTest, TheWindowReplacesThePlaceholderOfItsId)
{
    make()->init(gridId, std::nullopt, true);

    auto const window = control->getPropertyGridControl();
    ASSERT_NE(window, nullptr);
    EXPECT_EQ(window->getDialogControlId(), gridId);
    EXPECT_EQ(window->getPlacement(), placeholderPlacement);
    EXPECT_EQ(dialog->getChildWindow(gridId), window);
}

TEST_F(PropertySetGridControlTest, AGivenPlacementLeavesThePlaceholderWhereItIs)
{
    auto const placeholder = dialog->getChildWindow(gridId);
    WindowPlacement const placement{1, 2, 301, 402};

    make()->init(gridId, placement, true);

    EXPECT_EQ(control->getPropertyGridControl()->getPlacement(), placement);
    EXPECT_TRUE(placeholder->hasInterface());
    EXPECT_EQ(dialog->getChildWindow(gridId), placeholder);
}

/// The placement left free in the dialog of 800 by 600, above a row of buttons.
WindowPlacement freePlacement()
{
    auto const defaultSize = qev::ui::details::WindowInterfaceFactory::defaultWindowSize_(
        qev::ui::WindowClass::PropertyGridControl);
    return {10, 10, 790, 600 - static_cast<int>(defaultSize.second) - 20};
}

TEST_F(PropertySetGridControlTest, AnIdThatTheDialogDoesNotHaveGetsThePlacementLeftFree)
{
    make()->init(999, std::nullopt, true);

    EXPECT_EQ(control->getPropertyGridControl()->getPlacement(), freePlacement());
    EXPECT_NE(control->getPropertyGridControl()->getDialogControlId(), 999);
}

TEST_F(PropertySetGridControlTest, AGivenPlacementIsForAnIdThatTheDialogHas)
{
    make()->init(999, WindowPlacement{1, 2, 301, 402}, true);

    EXPECT_EQ(control->getPropertyGridControl()->getPlacement(), freePlacement());
}

TEST_F(PropertySetGridControlTest, AnIdNotAboveZeroNamesNoPlaceholder)
{
    backend->addPlaceholder(dialog, -5, placeholderPlacement);
    auto const placeholder = dialog->getChildWindow(-5);

    make()->init(-5, std::nullopt, true);

    EXPECT_TRUE(placeholder->hasInterface());
    EXPECT_EQ(control->getPropertyGridControl()->getPlacement(), freePlacement());
    EXPECT_NE(control->getPropertyGridControl()->getDialogControlId(), -5);
}

TEST_F(PropertySetGridControlTest, WithoutADialogThereIsNoWindow)
{
    dialog.reset();

    make()->init(gridId, std::nullopt, true);

    EXPECT_EQ(control->getPropertyGridControl(), nullptr);
}

TEST_F(PropertySetGridControlTest, ASecondInitIsReportedAndReplacesTheWindow)
{
    show({model.wall("W1")});
    auto const first = control->getPropertyGridControl();

    control->init(gridId, std::nullopt, true);

    expectControlReport("Assertion failed: Double init?", "init");
    EXPECT_NE(control->getPropertyGridControl(), first);
    EXPECT_FALSE(first->hasInterface());
    EXPECT_THAT(groups(), ElementsAre("Pset_A", "Pset_B"));
}

TEST_F(PropertySetGridControlTest, ObjectsGivenBeforeTheWindowAreShownWithIt)
{
    make()->setObject(model.data(), model.wall("W1"));

    control->init(gridId, std::nullopt, true);

    EXPECT_THAT(groups(), ElementsAre("Pset_A", "Pset_B"));
}

TEST_F(PropertySetGridControlTest, APropertySheetPageMakesTheWindowWhenFirstActivated)
{
    make()->initOnPropertySheetPageActivate(gridId);
    EXPECT_EQ(control->getPropertyGridControl(), nullptr);

    qev::fireEvent(dialog->onPropertySheetPageActivate, 0u, 1u);
    auto const window = control->getPropertyGridControl();
    qev::fireEvent(dialog->onPropertySheetPageActivate, 1u, 0u);

    ASSERT_NE(window, nullptr);
    EXPECT_EQ(window->getPlacement(), placeholderPlacement);
    EXPECT_EQ(control->getPropertyGridControl(), window);
}

TEST_F(PropertySetGridControlTest, AGridOfAPropertySheetPageTakesEdits)
{
    auto const wall = model.wall("W1");
    make()->initOnPropertySheetPageActivate(gridId);
    control->setObject(model.data(), wall);
    qev::fireEvent(dialog->onPropertySheetPageActivate, 0u, 1u);

    EXPECT_TRUE(grid().type(row("Pset_A", "Code"), "K7"));

    EXPECT_EQ(valueOfProperty(wall, "Pset_A", "Code"), label("K7"));
}

TEST_F(PropertySetGridControlTest, APageThatIsActivatedAfterInitIsASecondInit)
{
    make()->initOnPropertySheetPageActivate(gridId);
    control->init(gridId, std::nullopt, true);

    qev::fireEvent(dialog->onPropertySheetPageActivate, 0u, 1u);

    expectControlReport("Assertion failed: Double init?", "init");
}

TEST_F(PropertySetGridControlTest, WithoutADialogThereIsNoPageToWaitFor)
{
    dialog.reset();

    make()->initOnPropertySheetPageActivate(gridId);

    EXPECT_EQ(control->getPropertyGridControl(), nullptr);
}

TEST_F(PropertySetGridControlTest, APageMayOutliveTheControlThatWaitsForIt)
{
    make()->initOnPropertySheetPageActivate(gridId);
    control.reset();

    qev::fireEvent(dialog->onPropertySheetPageActivate, 0u, 1u);

    EXPECT_EQ(dialog->getChildWindow(gridId)->getPlacement(), placeholderPlacement);
}

TEST_F(PropertySetGridControlTest, ShowsAndHidesItsWindow)
{
    make()->init(gridId, std::nullopt, true);

    control->hide();
    EXPECT_FALSE(control->getPropertyGridControl()->isVisible());
    control->show();
    EXPECT_TRUE(control->getPropertyGridControl()->isVisible());
}

TEST_F(PropertySetGridControlTest, TheRowsGoWithTheControlAndTheWindowStays)
{
    show({model.wall("W1")});
    auto const window = control->getPropertyGridControl();

    control.reset();

    EXPECT_TRUE(window->hasInterface());
    EXPECT_THAT(window->getModel()->getRows(), IsEmpty());
}

TEST_F(PropertySetGridControlTest, WithoutAModelThereIsNothingToShow)
{
    make()->init(gridId, std::nullopt, true);

    control->setObjects(nullptr, {});

    expectControlReport("Data object must be set.", "refreshDisplay");
}

TEST_F(PropertySetGridControlTest, AModelIsMissedBeforeAWindowIs)
{
    make()->setObjects(nullptr, {});

    expectControlReport("Data object must be set.", "refreshDisplay");
}

} // namespace
