#include "Ui/Window/MessageBox.h"
#include "Ui/Window/PopupMenu.h"
#include "Ui/Window/ProgressBarInterface.h"
#include "UiTest.h"

namespace {

using namespace qev;
using namespace qev::ui;

class MenusAndMessages : public test::UiTest
{
};

TEST_F(MenusAndMessages, AMenuNumbersItsEntries)
{
    PopupMenu menu;
    EXPECT_EQ(menu.iMenuElemAdd(std::make_unique<MenuEntry>("First")), 0);
    EXPECT_EQ(menu.iMenuElemAdd(std::make_unique<MenuEntry>("Second", false)), 1);
    EXPECT_EQ(menu.getEntries()[1]->getText(), "Second");
}

TEST_F(MenusAndMessages, OnlyAnEnabledEntryCanBeChosen)
{
    PopupMenu menu;
    menu.iMenuElemAdd(std::make_unique<MenuEntry>("First"));
    menu.iMenuElemAdd(std::make_unique<MenuEntry>("Second", false));
    EXPECT_EQ(menu.show({}), std::nullopt);
    std::size_t answer = 0;
    backend->setMenuAnswer([&](PopupMenu const&) { return std::optional(answer); });
    EXPECT_EQ(menu.show({}), 0u);
    answer = 1;
    EXPECT_EQ(menu.show({}), std::nullopt);
    answer = 2;
    EXPECT_EQ(menu.show({}), std::nullopt);
}

TEST_F(MenusAndMessages, AnEmptyMenuIsNotShown)
{
    bool asked = false;
    backend->setMenuAnswer([&](PopupMenu const&) {
        asked = true;
        return std::optional<std::size_t>();
    });
    EXPECT_EQ(PopupMenu().show({}), std::nullopt);
    EXPECT_FALSE(asked);
}

TEST_F(MenusAndMessages, AMessageIsShownAndItsEndTold)
{
    bool closed = false;
    MessageBox::vShowOk("The file is gone.", "Open", MessageBox::Icon::Warning,
                        MessageBox::DefaultButton::First, [&] { closed = true; });
    ASSERT_EQ(backend->getMessages().size(), 1u);
    EXPECT_EQ(backend->getMessages()[0].text, "The file is gone.");
    EXPECT_EQ(backend->getMessages()[0].title, "Open");
    EXPECT_EQ(backend->getMessages()[0].icon, MessageBox::Icon::Warning);
    EXPECT_TRUE(closed);
    MessageBox::vShowOk("Again.", "", MessageBox::Icon::None, MessageBox::DefaultButton::First, nullptr);
    EXPECT_EQ(backend->getMessages().size(), 2u);
}

TEST_F(MenusAndMessages, AMessageIsToldByNumbersThatOtherProgramsKnow)
{
    EXPECT_EQ(static_cast<int>(MessageBox::Icon::Information), 3);
    EXPECT_EQ(static_cast<int>(MessageBox::DefaultButton::First), 0);
}

TEST_F(MenusAndMessages, AMessageNobodyCanSeeIsOverAtOnce)
{
    ui::details::WindowInterfaceFactory::setBackend(nullptr);
    bool closed = false;
    MessageBox::vShowOk("Text", "", MessageBox::Icon::None, MessageBox::DefaultButton::First,
                        [&] { closed = true; });
    EXPECT_TRUE(closed);
}

class SilentBar : public ProgressBarInterface
{
public:
    void setProgress(double, std::string const&) override {}
    [[nodiscard]] bool isCancelled() const override { return false; }
};

TEST_F(MenusAndMessages, AProgressBarRunsAsLongAsItLives)
{
    EXPECT_FALSE(ProgressBarInterface::isRunning());
    {
        SilentBar const outer;
        SilentBar const inner;
        EXPECT_TRUE(ProgressBarInterface::isRunning());
    }
    EXPECT_FALSE(ProgressBarInterface::isRunning());
}

TEST_F(MenusAndMessages, AProgressBarShowsItsStepsAndEndsWithTheOperation)
{
    EXPECT_TRUE(backend->getProgress().empty());
    {
        auto const bar = ProgressBarInterface::create("Saving");
        EXPECT_THAT(backend->getProgress(), testing::ElementsAre(HeadlessProgress{"Saving", 0, ""}));
        bar->setProgress(0.5, "Writing records");
        EXPECT_THAT(backend->getProgress(),
                    testing::ElementsAre(HeadlessProgress{"Saving", 0.5, "Writing records"}));
        EXPECT_TRUE(ProgressBarInterface::isRunning());
        EXPECT_FALSE(bar->isCancelled());
    }
    EXPECT_TRUE(backend->getProgress().empty());
}

TEST_F(MenusAndMessages, AnOperationIsStoppedAtTheStepWhereTheUserWantsIt)
{
    backend->setProgressAnswer([](HeadlessProgress const& progress) { return progress.fraction >= 0.5; });
    auto const bar = ProgressBarInterface::create("Saving");
    int steps = 0;
    while (!bar->isCancelled() && steps < 10)
        bar->setProgress(0.1 * ++steps, "");
    EXPECT_EQ(steps, 5);
}

TEST_F(MenusAndMessages, AProgressBarNobodyCanSeeRunsAllTheSame)
{
    ui::details::WindowInterfaceFactory::setBackend(nullptr);
    auto const bar = ProgressBarInterface::create("Saving");
    bar->setProgress(1, "");
    EXPECT_FALSE(bar->isCancelled());
    EXPECT_TRUE(ProgressBarInterface::isRunning());
}

} // namespace
