#include "Ui/Window/Window.h"

#include "Ui/Headless/HeadlessInterface.h"
#include "Ui/Window/DialogControlInterface.h"
#include "Ui/Window/GroupBox.h"
#include "UiTest.h"

#include <functional>
#include <utility>

namespace {

using namespace qev;
using namespace qev::ui;
using testing::ElementsAre;

class WindowTest : public test::UiTest
{
protected:
    /// An interface of a platform window that stands alone.
    [[nodiscard]] std::unique_ptr<WindowInterface> makeInterface() const
    {
        auto const platformWindow =
            std::make_shared<HeadlessWindow>(WindowClass::Window, 0, WindowPlacement{0, 0, 10, 10});
        backend->insertWindow(platformWindow, nullptr);
        return std::make_unique<HeadlessInterface<WindowInterface>>(platformWindow);
    }

    /// The control ids of the dialog's children.
    [[nodiscard]] std::vector<int> getTabOrder() const
    {
        std::vector<int> ids;
        for (auto const& child : backend->getPlatformWindow(dialog->getHandle())->getChildren())
            ids.push_back(child->getControlId());
        return ids;
    }
};

TEST_F(WindowTest, EachOperationReportsAMissingInterface)
{
    std::vector<std::pair<std::string, std::function<void(Window&)>>> const operations = {
        {"show", [](Window& window) { window.show(); }},
        {"hide", [](Window& window) { window.hide(); }},
        {"enable", [](Window& window) { window.enable(true); }},
        {"isEnabled", [](Window& window) { EXPECT_FALSE(window.isEnabled()); }},
        {"isVisible", [](Window& window) { EXPECT_FALSE(window.isVisible()); }},
        {"setFocus", [](Window& window) { window.setFocus(); }},
        {"suspendRedraw", [](Window& window) { static_cast<void>(window.suspendRedraw()); }},
        {"getDialogControlId", [](Window& window) { EXPECT_EQ(window.getDialogControlId(), 0); }},
        {"getPlacement", [](Window& window) { EXPECT_EQ(window.getPlacement(), WindowPlacement()); }},
        {"setPlacement", [](Window& window) { window.setPlacement({}); }},
        {"setTabOrder", [](Window& window) { window.setTabOrder(nullptr); }},
        {"getClientAreaSize", [](Window& window) { EXPECT_EQ(window.getClientAreaSize(), Size()); }},
        {"getSize", [](Window& window) { EXPECT_EQ(window.getSize(), Size()); }},
        {"getPositionOnScreen", [](Window& window) { EXPECT_EQ(window.getPositionOnScreen(), Position()); }},
        {"getOffscreenOffset", [](Window& window) { EXPECT_EQ(window.getOffscreenOffset(), Position()); }},
        {"moveDelta", [](Window& window) { window.moveDelta({1, 1}); }},
        {"getHandle", [](Window& window) { EXPECT_FALSE(window.getHandle().isValid()); }},
        {"getChildWindowManager", [](Window& window) { EXPECT_EQ(window.getChildWindowManager(), nullptr); }},
        {"detach", [](Window& window) { window.detach(true); }},
    };
    Window window;
    for (auto const& [name, operation] : operations) {
        operation(window);
        test::expectWindowReport("Window interface not set", name);
    }
}

TEST_F(WindowTest, CreateAttachesTheWindowAndAddsItToItsOwner)
{
    auto const grid = Window::create<PropertyGridControl>(dialog, 0, 0, {1, 2, 30, 40}, 321);
    ASSERT_TRUE(grid);
    EXPECT_EQ(grid->getDialogControlId(), 321);
    EXPECT_EQ(grid->getPlacement(), (WindowPlacement{1, 2, 30, 40}));
    EXPECT_EQ(grid->getOwner(), dialog);
    EXPECT_EQ(grid->shared_from_this(), grid);
    EXPECT_EQ(dialog->getChildWindow(321), grid);
    EXPECT_TRUE(dialog->getChildWindowManager()->isControlIdTaken(321));
    EXPECT_EQ(ui::details::WindowInterfaceFactory::pWindowFromHandle_(grid->getHandle()), grid);
}

TEST_F(WindowTest, CreateGivesAFreeIdForZeroAndForATakenOne)
{
    auto const first = Window::create<PropertyGridControl>(dialog, 0, 0, {}, 321);
    auto const second = Window::create<PropertyGridControl>(dialog, 0, 0, {}, 321);
    auto const third = Window::create<PropertyGridControl>(dialog, 0, 0, {}, 0);
    EXPECT_NE(second->getDialogControlId(), 321);
    EXPECT_NE(second->getDialogControlId(), 0);
    EXPECT_NE(third->getDialogControlId(), second->getDialogControlId());
    EXPECT_EQ(dialog->getChildWindow(second->getDialogControlId()), second);
}

TEST_F(WindowTest, CreatePutsTheWindowBehindItsPredecessorInTheTabOrder)
{
    auto const first = Window::create<PropertyGridControl>(dialog, 0, 0, {}, 1);
    auto const last = Window::create<PropertyGridControl>(dialog, 0, 0, {}, 2, first);
    auto const middle = Window::create<PropertyGridControl>(dialog, 0, 0, {}, 3, first);
    EXPECT_THAT(getTabOrder(), ElementsAre(1, 3, 2));
}

TEST_F(WindowTest, AWindowWithoutPredecessorComesLastInTheTabOrder)
{
    auto const first = Window::create<PropertyGridControl>(dialog, 0, 0, {}, 1);
    auto const second = Window::create<PropertyGridControl>(dialog, 0, 0, {}, 2);
    EXPECT_THAT(getTabOrder(), ElementsAre(1, 2));
    first->setTabOrder(nullptr);
    EXPECT_THAT(getTabOrder(), ElementsAre(2, 1));
    first->setTabOrder(second);
    second->setTabOrder(first);
    EXPECT_THAT(getTabOrder(), ElementsAre(1, 2));
}

TEST_F(WindowTest, CreateReportsAnOwnerWithoutInterface)
{
    auto const owner = std::make_shared<Dialog>();
    EXPECT_EQ(Window::create<PropertyGridControl>(owner, 0, 0, {}), nullptr);
    auto const reports = test::takeReports();
    ASSERT_EQ(reports.size(), 2u);
    EXPECT_EQ(reports[0].text, "Owner window doesn't exist");
    EXPECT_EQ(reports[0].function, "qev::ui::Window::create");
    EXPECT_EQ(reports[1].text, "Owner window not attached to OS window");
    EXPECT_EQ(reports[1].function, "qev::ui::Window::createWindow");
}

TEST_F(WindowTest, CreateReportsAnOwnerWhosePlatformWindowIsGone)
{
    backend->getPlatformWindow(dialog->getHandle())->destroy();
    EXPECT_EQ(Window::create<PropertyGridControl>(dialog, 0, 0, {}), nullptr);
    test::expectWindowReport("Owner window not attached to OS window", "createWindow");
}

TEST_F(WindowTest, CreateReportsABackEndThatMakesNoWindow)
{
    ui::details::WindowInterfaceFactory::setBackend(nullptr);
    EXPECT_EQ(Window::create<PropertyGridControl>(dialog, 0, 0, {}), nullptr);
    test::expectWindowReport("Unable to create window", "createWindow");
}

TEST_F(WindowTest, AttachReportsASecondWindow)
{
    auto const grid = createGrid();
    auto const handle = grid->getHandle();
    grid->attach(dialog->getHandle());
    test::expectWindowReport("Already attached to a window", "attach");
    EXPECT_EQ(grid->getHandle(), handle);
}

TEST_F(WindowTest, AttachReportsAWindowOfAnotherClass)
{
    auto const grid = Window::attachTo<PropertyGridControl>(dialog->getHandle());
    test::expectWindowReport("*this* isn't compatible with WINDOWCLASS.", "attach");
    EXPECT_FALSE(grid->hasInterface());
}

TEST_F(WindowTest, AttachReportsAHandleOfNoWindow)
{
    auto const grid = Window::attachTo<PropertyGridControl>(WindowHandle());
    test::expectWindowReport("Window interface not given.", "onInterfaceCreated");
    EXPECT_FALSE(grid->hasInterface());
}

TEST_F(WindowTest, OnInterfaceCreatedReportsASecondInterfaceAndTakesIt)
{
    Window window;
    window.onInterfaceCreated(makeInterface());
    auto second = makeInterface();
    auto const handle = second->getHandle();
    window.onInterfaceCreated(std::move(second));
    test::expectWindowReport("Window interface already set.", "onInterfaceCreated");
    EXPECT_EQ(window.getHandle(), handle);
}

TEST_F(WindowTest, OnInterfaceCreatedReportsNullAndKeepsWhatThereIs)
{
    Window window;
    window.onInterfaceCreated(nullptr);
    test::expectWindowReport("Window interface not given.", "onInterfaceCreated");
    EXPECT_FALSE(window.hasInterface());
}

TEST_F(WindowTest, ADialogControlReportsAnInterfaceOfNoDialogControl)
{
    DialogControl control;
    control.onInterfaceCreated(makeInterface());
    test::expectReport("Not a dialog control interface.", "qev::ui::DialogControl::setInterface",
                       "Ui/Window/DialogControl");
    EXPECT_EQ(control.getDialogControlInterface(), nullptr);
}

TEST_F(WindowTest, DetachLetsGoOfThePlatformWindowAndFreesTheId)
{
    auto const grid = Window::create<PropertyGridControl>(dialog, 0, 0, {}, 321);
    auto const handle = grid->getHandle();
    grid->detach(true);
    EXPECT_FALSE(grid->hasInterface());
    EXPECT_FALSE(grid->isBeingDetached());
    EXPECT_EQ(backend->getPlatformWindow(handle), nullptr);
    EXPECT_EQ(dialog->getChildWindow(321), nullptr);
    EXPECT_FALSE(dialog->getChildWindowManager()->isControlIdTaken(321));
    EXPECT_EQ(ui::details::WindowInterfaceFactory::pWindowFromHandle_(handle), nullptr);
}

TEST_F(WindowTest, DetachCanLeaveThePlatformWindowStanding)
{
    auto const grid = createGrid();
    auto const handle = grid->getHandle();
    grid->detach(false);
    EXPECT_NE(backend->getPlatformWindow(handle), nullptr);
    grid->attachToWindow(handle);
    EXPECT_EQ(grid->getHandle(), handle);
}

class DetachWatcher : public Dialog
{
public:
    void onChildWindowDetach(Window& child) override { wasBeingDetached = child.isBeingDetached(); }

    bool wasBeingDetached = false;
};

TEST_F(WindowTest, AWindowSaysThatItIsBeingDetached)
{
    auto const watcher = Window::create<DetachWatcher>(nullptr, 0, 0, {0, 0, 10, 10});
    auto const grid = Window::create<PropertyGridControl>(watcher, 0, 0, {});
    grid->detach(true);
    EXPECT_TRUE(watcher->wasBeingDetached);
}

TEST_F(WindowTest, AnOwnerThatEndsTakesItsChildrenWithIt)
{
    auto const grid = createGrid();
    dialog.reset();
    EXPECT_FALSE(grid->hasInterface());
    EXPECT_EQ(grid->getOwner(), nullptr);
}

TEST_F(WindowTest, VisibleMeansThatAllOwnersAreShown)
{
    auto const grid = createGrid();
    EXPECT_TRUE(grid->isVisible());
    dialog->hide();
    EXPECT_FALSE(grid->isVisible());
    dialog->show();
    grid->hide();
    EXPECT_FALSE(grid->isVisible());
}

TEST_F(WindowTest, PaintingStopsWhileAGuardLives)
{
    auto const grid = createGrid();
    auto const platformGrid = backend->getPropertyGrid(*grid);
    {
        auto const guard = grid->suspendRedraw();
        EXPECT_TRUE(platformGrid->isRedrawSuspended());
    }
    EXPECT_FALSE(platformGrid->isRedrawSuspended());
}

TEST_F(WindowTest, AGuardMayOutliveItsWindow)
{
    auto grid = createGrid();
    auto const guard = grid->suspendRedraw();
    grid->detach(true);
    grid.reset();
    EXPECT_TRUE(test::takeReports().empty());
}

TEST_F(WindowTest, AMovedGuardEndsTheSuspensionOnce)
{
    auto const grid = createGrid();
    auto const platformGrid = backend->getPropertyGrid(*grid);
    auto guard = grid->suspendRedraw();
    {
        auto const moved = std::move(guard);
        EXPECT_TRUE(platformGrid->isRedrawSuspended());
    }
    guard = RedrawGuard();
    EXPECT_FALSE(platformGrid->isRedrawSuspended());
}

TEST_F(WindowTest, PlacesAreRelativeToTheOwner)
{
    dialog->moveDelta({100, 50});
    auto const grid = createGrid();
    EXPECT_EQ(grid->getPositionOnScreen(), (Position{110, 60}));
    EXPECT_EQ(grid->getSize(), Size(390, 490));
}

TEST_F(WindowTest, TheOffscreenOffsetLeadsBackOntoTheScreen)
{
    dialog->setPlacement({1900, -30, 2000, 70});
    EXPECT_EQ(dialog->getOffscreenOffset(), (Position{-80, 30}));
    dialog->moveDelta(dialog->getOffscreenOffset());
    EXPECT_EQ(dialog->getOffscreenOffset(), Position());
}

TEST_F(WindowTest, TheFocusMovesAndBothWindowsHearOfIt)
{
    auto const grid = createGrid();
    auto const list = createList();
    std::vector<std::string> log;
    grid->onFocus.iHandlerAdd(
        [&](auto&, bool hasFocus) { log.push_back(hasFocus ? "grid in" : "grid out"); });
    list->onFocus.iHandlerAdd(
        [&](auto&, bool hasFocus) { log.push_back(hasFocus ? "list in" : "list out"); });
    grid->setFocus();
    list->setFocus();
    EXPECT_EQ(WindowHandle::getFocusedWindow(), list->getHandle());
    list->hide();
    EXPECT_FALSE(WindowHandle::getFocusedWindow().isValid());
    EXPECT_THAT(log, ElementsAre("grid in", "grid out", "list in", "list out"));
}

TEST_F(WindowTest, AWindowIsBelowItsOwnerAndNotBesideIt)
{
    auto const grid = createGrid();
    auto const list = createList();
    EXPECT_TRUE(grid->getHandle().isDescendantOf(dialog->getHandle()));
    EXPECT_TRUE(grid->getHandle().isDescendantOf(grid->getHandle()));
    EXPECT_FALSE(grid->getHandle().isDescendantOf(list->getHandle()));
    EXPECT_FALSE(WindowHandle().isDescendantOf(dialog->getHandle()));
}

TEST_F(WindowTest, TheFactoryKnowsCursorAndDefaultSizes)
{
    Position position{5, 5};
    EXPECT_FALSE(ui::details::WindowInterfaceFactory::boCursorPosGet_(position));
    EXPECT_EQ(position, (Position{5, 5}));
    backend->setCursorPosition(Position{20, 30});
    EXPECT_TRUE(ui::details::WindowInterfaceFactory::boCursorPosGet_(position));
    EXPECT_EQ(position, (Position{20, 30}));
    EXPECT_EQ(static_cast<int>(WindowClass::PropertyGridControl), 9);
    EXPECT_GT(
        ui::details::WindowInterfaceFactory::defaultWindowSize_(WindowClass::PropertyGridControl).second, 0u);
}

} // namespace
