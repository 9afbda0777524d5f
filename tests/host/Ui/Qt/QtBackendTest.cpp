#include "QtUiTest.h"
#include "Ui/Qt/QtDialog.h"
#include "Ui/Qt/QtProgressBar.h"
#include "Ui/Window/Controls/ListControl/ListControl.h"
#include "Ui/Window/GroupBox.h"
#include "Ui/Window/PopupMenu.h"

#include <QApplication>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

namespace qev::test {
namespace {

using namespace ui;
using testing::ElementsAre;

class QtBackendTest : public QtUiTest
{
protected:
    ~QtBackendTest() override { dialog.reset(); }

    /// Outlives the windows that tell of it.
    std::vector<bool> told;
};

class SizeWatchingDialog final : public Dialog
{
public:
    void onSizeChanged(Size const& size) override { sizes.push_back(size); }
    std::vector<Size> sizes;
};

class UnknownControl final : public DialogControl
{
public:
    [[nodiscard]] static char const* getClassName() { return "UnknownControl"; }
};

TEST_F(QtBackendTest, DialogHasTitleSizeAndIsShown)
{
    auto* const widget = backend->getWidget(dialog->getHandle());
    ASSERT_NE(widget, nullptr);
    EXPECT_EQ(widget->windowTitle(), "Test");
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_EQ(dialog->getClientAreaSize(), Size(500, 400));
}

TEST_F(QtBackendTest, ControlIsMadeInsideItsOwnerAtItsPlace)
{
    auto const grid = Window::create<PropertyGridControl>(dialog, 0, 0, {10, 20, 210, 320}, 77);
    ASSERT_NE(grid, nullptr);
    auto const* const widget = backend->getPropertyGrid(*grid);
    ASSERT_NE(widget, nullptr);
    EXPECT_EQ(widget->parentWidget(), backend->getWidget(dialog->getHandle()));
    EXPECT_EQ(widget->geometry(), QRect(10, 20, 200, 300));
    EXPECT_EQ(grid->getPlacement(), (WindowPlacement{10, 20, 210, 320}));
    EXPECT_EQ(grid->getDialogControlId(), 77);
    EXPECT_TRUE(grid->isVisible());
    EXPECT_TRUE(grid->getHandle().isDescendantOf(dialog->getHandle()));
    EXPECT_FALSE(dialog->getHandle().isDescendantOf(grid->getHandle()));
}

TEST_F(QtBackendTest, PlaceholderGivesItsPlaceToTheControlThatReplacesIt)
{
    backend->addPlaceholder(dialog, 101, {5, 6, 305, 206});
    auto const placeholder = dialog->getChildWindow(101);
    ASSERT_NE(placeholder, nullptr);
    auto const placement = placeholder->getPlacement();
    EXPECT_EQ(placement, (WindowPlacement{5, 6, 305, 206}));
    placeholder->detach(true);
    auto const grid = Window::create<PropertyGridControl>(dialog, 0, 0, placement, 101);
    EXPECT_EQ(dialog->getChildWindow(101), grid);
    EXPECT_EQ(grid->getPlacement(), placement);
}

TEST_F(QtBackendTest, WindowsOfUnknownClassAreRefused)
{
    EXPECT_EQ(Window::create<UnknownControl>(dialog, 0, 0, {0, 0, 10, 10}), nullptr);
    expectReport("Unable to create window", "qev::ui::Window::createWindow", "Ui/Window/Window");
}

TEST_F(QtBackendTest, DetachedControlTakesItsWidgetWithIt)
{
    auto grid = Window::create<PropertyGridControl>(dialog, 0, 0, {0, 0, 100, 100});
    QPointer<QWidget> const widget = backend->getPropertyGrid(*grid);
    grid->detach(true);
    EXPECT_FALSE(widget->isVisible());
    settle();
    EXPECT_TRUE(widget.isNull());
    EXPECT_FALSE(grid->hasInterface());
}

TEST_F(QtBackendTest, ControlOutlivesItsWidgetHarmlessly)
{
    auto const grid = Window::create<PropertyGridControl>(dialog, 0, 0, {0, 0, 100, 100});
    delete backend->getPropertyGrid(*grid);
    EXPECT_FALSE(grid->getHandle().isValid());
    EXPECT_FALSE(grid->isVisible());
    grid->addProperty(std::make_unique<PropertyGridProperty>("Group"));
    grid->adjustLayout();
    EXPECT_EQ(grid->getModel()->getRows().size(), 1u);
}

TEST_F(QtBackendTest, AttachedDialogHearsOfNewSizes)
{
    QWidget surroundings;
    auto* const area = new QtDialog(&surroundings);
    auto const attached = Window::attachTo<SizeWatchingDialog>(backend->addDialogWidget(*area));
    surroundings.show();
    area->resize(320, 240);
    EXPECT_THAT(attached->sizes, testing::Contains(Size(320, 240)));
}

TEST_F(QtBackendTest, FocusIsToldToTheWindowAroundTheWidget)
{
    auto const grid = Window::create<PropertyGridControl>(dialog, 0, 0, {0, 0, 200, 200});
    auto const box = Window::create<GroupBox>(dialog, 0, 0, {0, 200, 200, 300});
    grid->onFocus.iHandlerAdd([&](auto&, bool hasFocus) { told.push_back(hasFocus); });
    QApplication::setActiveWindow(backend->getWidget(dialog->getHandle()));
    grid->setFocus();
    EXPECT_EQ(WindowHandle::getFocusedWindow(), grid->getHandle());
    box->setFocus();
    EXPECT_THAT(told, ElementsAre(true, false));
}

TEST_F(QtBackendTest, MessageKeepsItsCallerUntilItIsClosed)
{
    std::vector<std::string> steps;
    QTimer::singleShot(0, qApp, [&] {
        auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        EXPECT_EQ(box->text(), "Text");
        steps.push_back("seen");
        box->accept();
    });
    MessageBox::vShowOk("Text", "Title", MessageBox::Icon::Warning, MessageBox::DefaultButton::First,
                        [&] { steps.push_back("closed"); });
    steps.push_back("back");
    EXPECT_THAT(steps, ElementsAre("seen", "closed", "back"));
}

TEST_F(QtBackendTest, MessageEndsWithTheWindowBelowIt)
{
    auto window = std::make_unique<QWidget>();
    window->show();
    QApplication::setActiveWindow(window.get());
    QTimer::singleShot(0, qApp, [&] {
        ASSERT_NE(QApplication::activeModalWidget(), nullptr);
        EXPECT_EQ(QApplication::activeModalWidget()->parentWidget(), window.get());
        window.reset();
    });
    bool isClosed = false;
    MessageBox::vShowOk("Text", "Title", MessageBox::Icon::Warning, MessageBox::DefaultButton::First,
                        [&] { isClosed = true; });
    EXPECT_TRUE(isClosed);
    EXPECT_EQ(window, nullptr);
}

TEST_F(QtBackendTest, MenuGivesTheChosenEntry)
{
    PopupMenu menu;
    menu.iMenuElemAdd(std::make_unique<MenuEntry>("First"));
    menu.iMenuElemAdd(std::make_unique<MenuEntry>("Second"));
    QTimer::singleShot(0, [] {
        auto* const widget = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_NE(widget, nullptr);
        widget->setActiveAction(widget->actions().at(1));
        QTest::keyClick(widget, Qt::Key_Return);
    });
    EXPECT_EQ(menu.show({10, 10}), 1u);
}

TEST_F(QtBackendTest, ProgressBarShowsHowFarTheOperationIsAndStopsIt)
{
    auto const bar = ProgressBarInterface::create("Opening");
    auto* const dialogOfBar = dynamic_cast<QtProgressBar&>(*bar).getDialog();
    EXPECT_EQ(dialogOfBar->windowTitle(), "Opening");
    EXPECT_TRUE(ProgressBarInterface::isRunning());
    bar->setProgress(0.25, "Reading walls");
    EXPECT_EQ(dialogOfBar->labelText(), "Reading walls");
    EXPECT_EQ(dialogOfBar->value() * 4, dialogOfBar->maximum());
    EXPECT_FALSE(bar->isCancelled());
    dialogOfBar->show();
    QTest::mouseClick(dialogOfBar->findChild<QPushButton*>(), Qt::LeftButton);
    EXPECT_TRUE(bar->isCancelled());
}

TEST_F(QtBackendTest, ProgressBarOutlivesItsWidgetHarmlessly)
{
    auto const bar = ProgressBarInterface::create("Opening");
    delete dynamic_cast<QtProgressBar&>(*bar).getDialog();
    bar->setProgress(0.5, "");
    EXPECT_FALSE(bar->isCancelled());
}

TEST_F(QtBackendTest, TabOrderFollowsThePredecessorsAndEndsWithTheLastAsked)
{
    auto const first = Window::create<PropertyGridControl>(dialog, 0, 0, {0, 0, 10, 10}, 1);
    auto const last = Window::create<PropertyGridControl>(dialog, 0, 0, {0, 0, 10, 10}, 2);
    auto const middle = Window::create<PropertyGridControl>(dialog, 0, 0, {0, 0, 10, 10}, 3, first);
    auto const getTabOrder = [&] {
        std::vector<int> ids;
        auto* const owner = backend->getWidget(dialog->getHandle());
        for (auto* next = owner->nextInFocusChain(); next != owner; next = next->nextInFocusChain())
            if (auto const window =
                    ui::details::WindowInterfaceFactory::pWindowFromHandle_(WindowHandle(next)))
                ids.push_back(window->getDialogControlId());
        return ids;
    };
    EXPECT_THAT(getTabOrder(), ElementsAre(1, 3, 2));
    first->setTabOrder(nullptr);
    EXPECT_THAT(getTabOrder(), ElementsAre(3, 2, 1));
}

TEST_F(QtBackendTest, RedrawStopsUntilTheGuardEnds)
{
    auto const grid = Window::create<PropertyGridControl>(dialog, 0, 0, {0, 0, 200, 200});
    auto const* const widget = backend->getPropertyGrid(*grid);
    {
        auto const outer = grid->suspendRedraw();
        auto const inner = grid->suspendRedraw();
        EXPECT_FALSE(widget->updatesEnabled());
    }
    EXPECT_TRUE(widget->updatesEnabled());
}

} // namespace
} // namespace qev::test
