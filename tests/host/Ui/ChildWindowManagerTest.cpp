#include "Ui/Window/Details/ChildWindowManager.h"

#include "Ui/Window/GroupBox.h"
#include "UiTest.h"

namespace {

using namespace qev;
using namespace qev::ui;
using ui::details::ChildWindowManager;
using ui::details::WindowHolder;
using ui::details::WindowHolderBase;

constexpr auto managerPath = "Ui/Window/Details/ChildWindowManager";
constexpr auto holderPath = "Ui/Window/Details/WindowHolder";

/// Two classes that go by the same name.
class FirstTwin : public Window
{
public:
    static char const* getClassName() { return "Twin"; }
};
class SecondTwin : public Window
{
public:
    static char const* getClassName() { return "Twin"; }
};

class Nameless : public Window
{
public:
    static char const* getClassName() { return ""; }
};

TEST(ChildWindowManager, GivesAChildByClassAndId)
{
    ChildWindowManager manager;
    auto const box = std::make_shared<GroupBox>();
    manager.vWindowAdd(7, box);

    std::shared_ptr<GroupBox> found;
    EXPECT_TRUE(manager.boWindowGet(7, found));
    EXPECT_EQ(found, box);
    EXPECT_EQ(manager.windowGet<GroupBox>(7), box);
    EXPECT_EQ(manager.findWindow(7), box);
}

TEST(ChildWindowManager, KeepsEachClassApart)
{
    ChildWindowManager manager;
    auto const box = std::make_shared<GroupBox>();
    auto const list = std::make_shared<ListControl>();
    manager.vWindowAdd(7, box);
    manager.vWindowAdd(7, list);
    EXPECT_EQ(manager.windowGet<GroupBox>(7), box);
    EXPECT_EQ(manager.windowGet<ListControl>(7), list);
}

TEST(ChildWindowManager, AnUnknownIdOrClassIsNotThere)
{
    ChildWindowManager manager;
    std::shared_ptr<GroupBox> found;
    EXPECT_FALSE(manager.boWindowGet(7, found));
    manager.vWindowAdd(7, std::make_shared<GroupBox>());
    EXPECT_FALSE(manager.boWindowGet(8, found));
    EXPECT_EQ(found, nullptr);
}

TEST(ChildWindowManager, ReportsAClassOfWhichThereIsNoChild)
{
    ChildWindowManager manager;
    manager.vWindowAdd(7, std::make_shared<ListControl>());
    EXPECT_EQ(manager.windowGet<GroupBox>(7), nullptr);
    test::expectReport("Invalid window holder type", "qev::ui::details::ChildWindowManager::windowGet",
                       managerPath);
}

TEST(ChildWindowManager, KeepsChildrenWithIdZeroWithoutId)
{
    ChildWindowManager manager;
    manager.vWindowAdd(0, std::make_shared<GroupBox>());
    manager.vWindowAdd(0, std::make_shared<GroupBox>());
    EXPECT_EQ(manager.getWindows().size(), 2u);
    EXPECT_EQ(manager.findWindow(0), nullptr);
}

TEST(ChildWindowManager, ReportsANullWindow)
{
    ChildWindowManager manager;
    manager.vWindowAdd(7, std::shared_ptr<GroupBox>());
    test::expectReport("window == nullptr", "qev::ui::details::ChildWindowManager::vWindowAdd", managerPath);
    EXPECT_TRUE(manager.getWindows().empty());
}

TEST(ChildWindowManager, ReportsAClassWithoutName)
{
    ChildWindowManager manager;
    manager.vWindowAdd(7, std::make_shared<Nameless>());
    test::expectReport("Unable to insert window holder into list.",
                       "qev::ui::details::ChildWindowManager::vWindowAdd", managerPath);
    EXPECT_TRUE(manager.getWindows().empty());
}

TEST(ChildWindowManager, ReportsTwoClassesOfOneName)
{
    ChildWindowManager manager;
    manager.vWindowAdd(7, std::make_shared<FirstTwin>());

    manager.vWindowAdd(8, std::make_shared<SecondTwin>());
    test::expectReport("Invalid window holder type", "qev::ui::details::ChildWindowManager::vWindowAdd",
                       managerPath);
    EXPECT_EQ(manager.getWindows().size(), 1u);

    std::shared_ptr<SecondTwin> found;
    EXPECT_FALSE(manager.boWindowGet(7, found));
    test::expectReport("Invalid window holder type", "qev::ui::details::ChildWindowManager::boWindowGet",
                       managerPath);

    EXPECT_EQ(manager.windowGet<SecondTwin>(7), nullptr);
    test::expectReport("Invalid window holder type", "qev::ui::details::ChildWindowManager::windowGet",
                       managerPath);
}

TEST(ChildWindowManager, FlagsAControlIdOnce)
{
    ChildWindowManager manager;
    EXPECT_TRUE(manager.boControlIdFlagAsTaken(7));
    EXPECT_FALSE(manager.boControlIdFlagAsTaken(7));
    test::expectReport("Control id already taken",
                       "qev::ui::details::ChildWindowManager::boControlIdFlagAsTaken", managerPath);
}

TEST(ChildWindowManager, TheIdForNoIdMayBeTakenAgain)
{
    ChildWindowManager manager;
    EXPECT_TRUE(manager.boControlIdFlagAsTaken(65535));
    EXPECT_FALSE(manager.boControlIdFlagAsTaken(65535));
}

TEST(ChildWindowManager, AFreeControlIdIsNotTaken)
{
    ChildWindowManager manager;
    auto const first = manager.getFreeControlId();
    manager.boControlIdFlagAsTaken(first);
    auto const second = manager.getFreeControlId();
    EXPECT_NE(first, second);
    EXPECT_FALSE(manager.isControlIdTaken(second));
}

TEST(WindowHolder, ReportsAnIdThatIsNotThere)
{
    WindowHolder<GroupBox> holder;
    EXPECT_EQ(holder.windowGet(7), nullptr);
    test::expectReport("Window doesn't exist", "qev::ui::details::WindowHolder::windowGet", holderPath);

    holder.removeWindowWithId(7);
    test::expectReport("Window doesn't exist", "qev::ui::details::WindowHolder::removeWindowWithId",
                       holderPath);
}

TEST(WindowHolder, ReportsAWindowOfAnotherClass)
{
    WindowHolder<GroupBox> holder;
    holder.addWindowWithId(7, std::make_shared<ListControl>());
    EXPECT_EQ(holder.windowGet(7), nullptr);
    test::expectReport("Element doesn't correspond to expected window",
                       "qev::ui::details::WindowHolder::windowGet", holderPath);
}

TEST(WindowHolder, ReportsASecondWindowOfOneIdAndKeepsTheFirst)
{
    WindowHolder<GroupBox> holder;
    auto const first = std::make_shared<GroupBox>();
    holder.addWindowWithId(7, first);
    holder.addWindowWithId(7, std::make_shared<GroupBox>());
    test::expectReport("Window already added", "qev::ui::details::WindowHolder::addWindowWithId", holderPath);
    EXPECT_EQ(holder.windowGet(7), first);
}

TEST(WindowHolder, RemovesAWindowById)
{
    WindowHolder<GroupBox> holder;
    holder.addWindowWithId(7, std::make_shared<GroupBox>());
    holder.removeWindowWithId(7);
    EXPECT_TRUE(holder.getWindows().empty());
}

class WindowHolderOfDialog : public test::UiTest
{
};

TEST_F(WindowHolderOfDialog, KnowsTheControlIdOfAWindow)
{
    auto const grid = Window::create<PropertyGridControl>(dialog, 0, 0, {}, 321);
    EXPECT_EQ(WindowHolderBase::getDialogControlId(*grid), 321);
}

} // namespace
