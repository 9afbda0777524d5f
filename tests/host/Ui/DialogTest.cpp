#include "Ui/Window/Dialog.h"

#include "Ui/Window/GroupBox.h"
#include "UiTest.h"

namespace {

using namespace qev;
using namespace qev::ui;

class DialogTest : public test::UiTest
{
};

TEST_F(DialogTest, APlaceholderGivesWayToAControlOfItsId)
{
    backend->addPlaceholder(dialog, 101, {10, 20, 300, 400});
    auto const placeholder = dialog->getChildWindow(101);
    ASSERT_TRUE(placeholder);
    auto const placement = placeholder->getPlacement();
    placeholder->detach(true);
    auto const grid = Window::create<PropertyGridControl>(dialog, 0, 0, placement, 101);
    EXPECT_EQ(grid->getDialogControlId(), 101);
    EXPECT_EQ(grid->getPlacement(), (WindowPlacement{10, 20, 300, 400}));
    EXPECT_EQ(dialog->getChildWindow(101), grid);
}

TEST_F(DialogTest, AControlBesideAnAttachedPlaceholderGetsAnotherId)
{
    backend->addPlaceholder(dialog, 101, {10, 20, 300, 400});
    auto const grid = Window::create<PropertyGridControl>(dialog, 0, 0, {}, 101);
    EXPECT_NE(grid->getDialogControlId(), 101);
}

TEST_F(DialogTest, KeepsTheSettingsOfPopupsById)
{
    EXPECT_EQ(dialog->getStoredSettings("Popup"), std::nullopt);
    StoredPopupSettings const settings{"ListControl", Size{400, 200}, ListControlSettings{{50, 60}, {1}}};
    dialog->storeSettings("Popup", settings);
    EXPECT_EQ(dialog->getStoredSettings("Popup"), settings);
    EXPECT_EQ(dialog->getStoredSettings("Other"), std::nullopt);
    EXPECT_EQ(dialog->getAllStoredSettings().size(), 1u);
}

TEST_F(DialogTest, TellsOfAPageThatIsActivated)
{
    std::vector<std::pair<std::size_t, std::size_t>> pages;
    dialog->onPropertySheetPageActivate.iHandlerAdd(
        [&](auto&, std::size_t previous, std::size_t current) { pages.emplace_back(previous, current); });
    fireEvent(dialog->onPropertySheetPageActivate, std::size_t{0}, std::size_t{2});
    EXPECT_THAT(pages, testing::ElementsAre(std::pair<std::size_t, std::size_t>(0, 2)));
}

TEST_F(DialogTest, ReportsATitleWithoutPlatformSide)
{
    Dialog unattached;
    unattached.setTitle("Walls");
    test::expectReport("Window interface not set", "qev::ui::Dialog::setTitle", "Ui/Window/Dialog");
    dialog->setTitle("Walls");
    EXPECT_EQ(backend->getPlatformWindow(dialog->getHandle())->getTitle(), "Walls");
}

} // namespace
