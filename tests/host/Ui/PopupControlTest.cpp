#include "Ui/Window/Controls/PopupControl/PopupControl.h"

#include "Ui/Window/Controls/PopupControl/PopupControlAborter.h"
#include "UiTest.h"

namespace {

using namespace qev;
using namespace qev::ui;

using ListPopup = PopupControl<ListControl>;

constexpr auto popupPath = "Ui/Window/Controls/PopupControl/PopupControl";

class PopupControlTest : public test::UiTest
{
protected:
    PopupControlTest()
        : popup(std::make_unique<ListPopup>("Popup"))
    {
        popup->closed.iHandlerAdd([this] { ++closedCount; });
        backend->setCursorPosition(Position{100, 200});
    }
    ~PopupControlTest() override { popup.reset(); }

    /// Opens the popup, with the focus.
    std::shared_ptr<ListControl> open(std::optional<Position> position = std::nullopt)
    {
        auto const placement = popup->getControlPlacement(dialog, std::nullopt, position);
        auto const control =
            Window::create<ListControl>(dialog, popup->getStyleFlags() | 0x24U, 0, placement.placement, 10);
        popup->setControl(control);
        popup->onControlCreated(placement.listSettings);
        control->show();
        control->setFocus();
        return control;
    }

    std::unique_ptr<ListPopup> popup;
    int closedCount = 0;
};

TEST_F(PopupControlTest, OpensBesideTheCursorInItsDefaultSize)
{
    auto const control = open();
    EXPECT_TRUE(control->isVisible());
    EXPECT_TRUE(control->isUsingReportStyle());
    EXPECT_EQ(control->getPositionOnScreen(), (Position{101, 201}));
    EXPECT_EQ(control->getSize(), Size(500, 300));
}

TEST_F(PopupControlTest, OpensAtAGivenPlace)
{
    EXPECT_EQ(open(Position{5, 6})->getPositionOnScreen(), (Position{5, 6}));
}

TEST_F(PopupControlTest, APlaceBeyondTheScreenIsPushedBack)
{
    auto const screen = HeadlessBackend::screenSize;
    auto const control = open(Position{static_cast<int>(screen.first) - 10, 6});
    EXPECT_EQ(control->getPositionOnScreen(), (Position{static_cast<int>(screen.first) - 500, 6}));
}

TEST_F(PopupControlTest, AStoredSizeReplacesTheSizeAndNotThePlace)
{
    dialog->storeSettings("Popup", {"ListControl", Size{640, 480}, ListControlSettings{{10, 20}, {1}}});
    auto const control = open();
    EXPECT_EQ(control->getSize(), Size(640, 480));
    EXPECT_EQ(control->getPositionOnScreen(), (Position{101, 201}));
    EXPECT_EQ(control->getSettings(), (ListControlSettings{{10, 20}, {1}}));
}

TEST_F(PopupControlTest, AStoredEntryWithoutASizeKeepsTheSizeThereIs)
{
    dialog->storeSettings("Popup", {"ListControl", std::nullopt, std::nullopt});
    EXPECT_EQ(open()->getSize(), Size(500, 300));
}

TEST_F(PopupControlTest, WithoutAParentThereIsNothingStored)
{
    auto const placement = popup->getControlPlacement(nullptr, std::nullopt, Position{1, 1});
    EXPECT_EQ(placement.placement, (WindowPlacement{1, 1, 501, 301}));
    EXPECT_FALSE(placement.listSettings);
}

TEST_F(PopupControlTest, ASettingsNameReplacesTheId)
{
    dialog->storeSettings("Shared", {"ListControl", Size{640, 480}, std::nullopt});
    auto const placement = popup->getControlPlacement(dialog, "Shared", Position{0, 0});
    EXPECT_EQ(placement.placement, (WindowPlacement{0, 0, 640, 480}));
    EXPECT_EQ(popup->getPopupId(), "Shared");
}

TEST_F(PopupControlTest, ANewPlacementEndsThePresentControlAndTakesItsSize)
{
    popup = std::make_unique<ListPopup>(std::nullopt);
    auto const control = open();
    control->setPlacement({0, 0, 320, 240});
    auto const placement = popup->getControlPlacement(dialog, std::nullopt, Position{1, 1});
    EXPECT_EQ(placement.placement, (WindowPlacement{1, 1, 321, 241}));
    EXPECT_FALSE(control->hasInterface());
    EXPECT_EQ(popup->getControl(), nullptr);
}

TEST_F(PopupControlTest, ANewControlStandsBesideTheCursorToo)
{
    open(Position{5, 6});
    backend->setCursorPosition(Position{300, 400});
    auto const placement = popup->getControlPlacement(dialog, std::nullopt, std::nullopt);
    EXPECT_EQ(placement.placement, (WindowPlacement{301, 401, 801, 701}));
}

TEST_F(PopupControlTest, ClosingHidesStoresAndTells)
{
    auto const control = open();
    control->setPlacement({0, 0, 320, 240});
    control->loadSettings(ListControlSettings{{10, 20}, {1}});
    EXPECT_TRUE(popup->close());
    EXPECT_FALSE(control->isVisible());
    EXPECT_EQ(closedCount, 1);
    auto const stored = dialog->getStoredSettings("Popup");
    ASSERT_TRUE(stored);
    EXPECT_EQ(stored->typeName, "ListControl");
    EXPECT_EQ(stored->size, Size(320, 240));
    EXPECT_EQ(stored->listSettings, (ListControlSettings{{10, 20}, {1}}));
}

TEST_F(PopupControlTest, TheHandlersOfTheCloseRunInTheOrderTheyCame)
{
    std::string order;
    popup->closed.iHandlerAdd([&order] { order += "first "; });
    popup->closed.iHandlerAdd([&order] { order += "second"; });
    open();
    EXPECT_TRUE(popup->close());
    EXPECT_EQ(order, "first second");
}

TEST_F(PopupControlTest, WithoutAnIdClosingTellsAndStoresNothing)
{
    popup = std::make_unique<ListPopup>(std::nullopt);
    popup->closed.iHandlerAdd([this] { ++closedCount; });
    open();
    EXPECT_TRUE(popup->close());
    EXPECT_EQ(closedCount, 1);
    EXPECT_TRUE(dialog->getAllStoredSettings().empty());
}

TEST_F(PopupControlTest, BelowAWindowThatIsNoDialogClosingTellsAndStoresNothing)
{
    auto const owner = Window::create<Window>(dialog, 0, 0, {0, 0, 700, 500});
    auto const control =
        Window::create<ListControl>(owner, popup->getStyleFlags() | 0x24U, 0, {10, 10, 60, 60});
    popup->setControl(control);
    popup->onControlCreated(std::nullopt);
    owner->show();
    control->show();
    EXPECT_TRUE(popup->close());
    EXPECT_EQ(closedCount, 1);
    EXPECT_TRUE(dialog->getAllStoredSettings().empty());
}

TEST_F(PopupControlTest, ASecondCloseIsHarmless)
{
    open();
    EXPECT_TRUE(popup->close());
    EXPECT_FALSE(popup->close());
    EXPECT_EQ(closedCount, 1);
    EXPECT_FALSE(ListPopup(std::nullopt).close());
}

TEST_F(PopupControlTest, AnOpenMenuKeepsThePopupOpen)
{
    auto const control = open();
    bool hasClosed = true;
    backend->setMenuAnswer([&](PopupMenu const&) {
        hasClosed = popup->close();
        return std::optional<std::size_t>();
    });
    PopupMenu menu;
    menu.iMenuElemAdd(std::make_unique<MenuEntry>("Delete"));
    static_cast<void>(menu.show({}));
    EXPECT_FALSE(hasClosed);
    EXPECT_TRUE(control->isVisible());
    EXPECT_EQ(closedCount, 0);
    EXPECT_FALSE(dialog->getStoredSettings("Popup"));
}

TEST_F(PopupControlTest, LosingTheFocusToItsOwnEditorKeepsThePopupOpen)
{
    auto const control = open();
    control->onLabelEditBegin.iHandlerAdd([](auto&, ListControl::LabelEditBeginParams const&) {
        return ListControl::LabelEditBeginResultParams{ListControl::EditBox, {}};
    });
    control->setItemAndColumnCounts(1, 1);
    EXPECT_TRUE(backend->getListControl(*control)->beginEdit(0, 0));
    EXPECT_TRUE(control->isVisible());
    EXPECT_EQ(closedCount, 0);
}

TEST_F(PopupControlTest, LosingTheFocusFromItsOwnEditorClosesThePopup)
{
    auto const control = open();
    std::vector<bool> accepted;
    control->onLabelEditBegin.iHandlerAdd([](auto&, ListControl::LabelEditBeginParams const&) {
        return ListControl::LabelEditBeginResultParams{ListControl::EditBox, {}};
    });
    control->onLabelEditEnd.iHandlerAdd([&accepted](auto&, ListControl::LabelEditEndParams const& params) {
        accepted.push_back(params.accepted);
    });
    control->setItemAndColumnCounts(1, 1);
    EXPECT_TRUE(backend->getListControl(*control)->beginEdit(0, 0));
    createGrid()->setFocus();
    EXPECT_FALSE(control->isVisible());
    EXPECT_EQ(closedCount, 1);
    EXPECT_EQ(accepted, std::vector{false});
}

TEST_F(PopupControlTest, APopupThatIsShownTakesTheFocus)
{
    auto const grid = createGrid();
    grid->setFocus();
    auto const placement = popup->getControlPlacement(dialog, std::nullopt, std::nullopt);
    auto const control =
        Window::create<ListControl>(dialog, popup->getStyleFlags() | 0x24U, 0, placement.placement, 10);
    EXPECT_EQ(WindowHandle::getFocusedWindow(), grid->getHandle());
    control->show();
    EXPECT_EQ(WindowHandle::getFocusedWindow(), control->getHandle());
}

TEST_F(PopupControlTest, LosingTheFocusToAnotherWindowClosesThePopup)
{
    auto const control = open();
    auto const grid = createGrid();
    grid->setFocus();
    EXPECT_FALSE(control->isVisible());
    EXPECT_EQ(closedCount, 1);
}

TEST_F(PopupControlTest, LosingTheFocusToNoWindowClosesThePopup)
{
    auto const control = open();
    backend->setFocusedWindow(nullptr);
    EXPECT_FALSE(control->isVisible());
    EXPECT_EQ(closedCount, 1);
}

TEST_F(PopupControlTest, AHandlerOfTheCloseMayEndThePopup)
{
    auto const control = open();
    popup->closed.iHandlerAdd([this] { popup.reset(); });
    createGrid()->setFocus();
    EXPECT_EQ(popup, nullptr);
    EXPECT_FALSE(control->hasInterface());
}

TEST_F(PopupControlTest, TheAborterFindsTheOpenPopupAndClosesIt)
{
    auto const control = open();
    EXPECT_EQ(PopupControlAborter::current().getOpenPopup(), control);
    EXPECT_TRUE(PopupControlAborter::current().abort());
    EXPECT_FALSE(control->isVisible());
    EXPECT_EQ(PopupControlAborter::current().getOpenPopup(), nullptr);
    EXPECT_FALSE(PopupControlAborter::current().abort());
    EXPECT_EQ(closedCount, 1);
}

TEST_F(PopupControlTest, TheAborterClosesAllPopupsWhereverTheFocusIs)
{
    ListPopup first(std::nullopt);
    ListPopup second(std::nullopt);
    for (auto* const each : {&first, &second}) {
        // A popup that does not hear of its focus stays as another one opens.
        each->setControl(
            Window::create<ListControl>(dialog, each->getStyleFlags() | 0x24U, 0, {0, 0, 50, 50}));
        each->getControl()->show();
    }
    createGrid()->setFocus();
    EXPECT_TRUE(PopupControlAborter::current().abort());
    EXPECT_FALSE(first.getControl()->isVisible());
    EXPECT_FALSE(second.getControl()->isVisible());
}

TEST_F(PopupControlTest, APopupMayEndAnotherOneWhenAllAreToClose)
{
    auto other = std::make_unique<ListPopup>(std::nullopt);
    open();
    popup->closed.iHandlerAdd([&] { other.reset(); });
    EXPECT_TRUE(PopupControlAborter::current().abort());
    EXPECT_EQ(other, nullptr);
}

TEST_F(PopupControlTest, APopupThatEndsLeavesTheAborter)
{
    open();
    popup.reset();
    EXPECT_EQ(PopupControlAborter::current().getOpenPopup(), nullptr);
    EXPECT_FALSE(PopupControlAborter::current().abort());
}

TEST_F(PopupControlTest, ReportsAControlThatWasNotMade)
{
    popup->onControlCreated(std::nullopt);
    test::expectReport("Error creating popup control.",
                       "qev::ui::PopupControl<ListControl>::onControlCreated", popupPath);
}

TEST_F(PopupControlTest, ReportsSettingsWithoutAnIdAndGoesOn)
{
    popup = std::make_unique<ListPopup>(std::nullopt);
    open();
    popup->storeSettings();
    test::expectReport("Only to be called when id is set.",
                       "qev::ui::PopupControl<ListControl>::storeSettings", popupPath);
    EXPECT_NE(popup->getStoredSettings(dialog), std::nullopt);
    test::expectReport("Only to be called when popup id is set.",
                       "qev::ui::PopupControl<ListControl>::getStoredSettings", popupPath);
}

} // namespace
