#include "QtListTest.h"
#include "Ui/Window/Controls/PopupControl/PopupControl.h"
#include "Ui/Window/Controls/PopupControl/PopupControlAborter.h"
#include "Ui/Window/MessageBox.h"

#include <QLineEdit>
#include <QMessageBox>
#include <QScreen>
#include <QSizeGrip>

namespace qev::test {
namespace {

using namespace ui;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

using ListPopup = PopupControl<ListControl>;

/// A popup over a list that has the focus, made as an edit controller makes it.
class QtPopupTest : public QtListTest
{
protected:
    QtPopupTest()
        : popup(std::make_unique<ListPopup>("Popup"))
    {
        popup->closed.iHandlerAdd([this] { log.push_back("closed"); });
    }
    ~QtPopupTest() override { popup.reset(); }

    std::shared_ptr<ListControl> create(std::optional<Position> position = Position{20, 30})
    {
        auto const placement = popup->getControlPlacement(dialog, std::nullopt, position);
        auto window =
            Window::create<ListControl>(dialog, popup->getStyleFlags() | 0x24U, 0, placement.placement, 10);
        popup->setControl(window);
        popup->onControlCreated(placement.listSettings);
        shown = backend->getListControl(*window);
        return window;
    }
    void show(std::shared_ptr<ListControl> const& window)
    {
        window->show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(shown));
        EXPECT_TRUE(QTest::qWaitFor([this] { return !shown->isWorking(); }, 10000));
        settle();
    }

    /// Rows that are opened, under one title.
    void showMenu(std::vector<std::string> rows)
    {
        auto const window = create();
        entries = std::move(rows);
        window->onGetColumnHeaderText.iHandlerAdd([](auto&, std::size_t column) {
            return column == 0 ? std::string("Entry") : std::string("About");
        });
        window->onGetItemText.iHandlerAdd([this](auto&, Item const& item) {
            return item.column == 0u ? entries.at(*item.item) : std::string(descriptions ? "about it" : "");
        });
        window->onItemActivated.iHandlerAdd([this](auto&, Item const& item) {
            log.push_back("chosen " + entries.at(*item.item));
            if (onChosen)
                onChosen();
        });
        window->setItemAndColumnCounts(entries.size(), 2);
        show(window);
    }
    /// A table of one column that grows below its last row.
    void showTable(std::vector<std::string> rows)
    {
        auto const window = create();
        entries = std::move(rows);
        window->enableLabelEdit();
        window->onGetItemText.iHandlerAdd([this](auto&, Item const& item) { return entries.at(*item.item); });
        window->onLabelEditBegin.iHandlerAdd([](auto&, ListControl::LabelEditBeginParams const&) {
            return ListControl::LabelEditBeginResultParams{ListControl::EditBox, {}};
        });
        window->onLabelEditEnd.iHandlerAdd(
            [this, list = window.get()](auto&, ListControl::LabelEditEndParams const& params) {
                if (!params.accepted)
                    return;
                auto const row = *params.getEditedItem().item;
                if (row == entries.size()) {
                    entries.emplace_back();
                    list->setItemAndColumnCounts(entries.size(), 1);
                }
                if (params.text == "bad")
                    params.refuse(params.getEditedItem());
                else
                    entries[row] = params.text;
            });
        window->setItemAndColumnCounts(entries.size(), 1);
        if (entries.empty())
            window->startLabelEdit(0);
        show(window);
    }

    [[nodiscard]] QtListView& cells() const { return shown->getView(); }
    [[nodiscard]] QModelIndex cell(int position, int column = 0) const
    {
        return cells().model()->index(position, column);
    }
    void click(int position)
    {
        QTest::mouseClick(cells().viewport(), Qt::LeftButton, Qt::NoModifier,
                          cells().visualRect(cell(position)).center());
        settle();
    }
    void typeText(char const* typed)
    {
        type(typed);
        EXPECT_TRUE(QTest::qWaitFor([this] { return !shown->isWorking(); }, 10000));
    }
    void turnElsewhere()
    {
        QApplication::setActiveWindow(backend->getWidget(dialog->getHandle()));
        view.setFocus();
        settle();
    }
    [[nodiscard]] bool isOpen() const
    {
        return popup && popup->getWindow() && popup->getWindow()->isVisible();
    }
    [[nodiscard]] std::vector<std::string> shownEntries() const
    {
        std::vector<std::string> result;
        for (int position = 0; position < shown->getCells().rowCount(); ++position)
            result.push_back(entries.at(*shown->getCells().getItem(position, 0).item));
        return result;
    }
    [[nodiscard]] QLineEdit* openEditor() const { return cells().viewport()->findChild<QLineEdit*>(); }

    std::unique_ptr<ListPopup> popup;
    QPointer<QtListControl> shown;
    std::vector<std::string> entries;
    std::function<void()> onChosen;
    bool descriptions = true;
};

TEST_F(QtPopupTest, StandsWhereItIsPutInItsDefaultSizeAndHasTheFocus)
{
    showMenu({"One", "Two"});
    EXPECT_TRUE(shown->isWindow());
    EXPECT_TRUE(shown->windowFlags().testFlag(Qt::FramelessWindowHint));
    EXPECT_EQ(shown->geometry(), QRect(20, 30, 500, 300));
    EXPECT_TRUE(cells().hasFocus());
    EXPECT_EQ(cells().currentIndex(), cell(0));
    EXPECT_EQ(PopupControlAborter::current().getOpenPopup(), popup->getWindow());
}

TEST_F(QtPopupTest, IsPushedBackOntoTheScreen)
{
    auto const screen = QApplication::primaryScreen()->availableGeometry();
    auto const window = create(Position{screen.right() - 5, screen.bottom() - 5});
    EXPECT_EQ(shown->geometry().bottomRight(), screen.bottomRight());
}

TEST_F(QtPopupTest, StandsBesideTheCursor)
{
    QCursor::setPos(40, 60);
    auto const window = create(std::nullopt);
    EXPECT_EQ(window->getPositionOnScreen(), (Position{QCursor::pos().x() + 1, QCursor::pos().y() + 1}));
}

TEST_F(QtPopupTest, ARowIsOpenedByAClick)
{
    showMenu({"One", "Two"});
    click(1);
    EXPECT_THAT(log, ElementsAre("chosen Two"));
}

TEST_F(QtPopupTest, TheSecondHalfOfADoubleClickOpensNothing)
{
    showMenu({"One", "Two"});
    click(0);
    auto const place = cells().visualRect(cell(0)).center();
    QTest::mouseDClick(cells().viewport(), Qt::LeftButton, Qt::NoModifier, place);
    QTest::mouseRelease(cells().viewport(), Qt::LeftButton, Qt::NoModifier, place);
    settle();
    EXPECT_THAT(log, ElementsAre("chosen One"));
}

TEST_F(QtPopupTest, APressThatIsLetGoElsewhereOpensNothing)
{
    showMenu({"One", "Two"});
    QTest::mousePress(cells().viewport(), Qt::LeftButton, Qt::NoModifier,
                      cells().visualRect(cell(0)).center());
    QTest::mouseRelease(cells().viewport(), Qt::LeftButton, Qt::NoModifier,
                        cells().visualRect(cell(1)).center());
    EXPECT_THAT(log, IsEmpty());
}

TEST_F(QtPopupTest, ARowIsOpenedByKeys)
{
    showMenu({"One", "Two", "Three"});
    key(Qt::Key_Down);
    key(Qt::Key_Down);
    key(Qt::Key_Up);
    key(Qt::Key_Return);
    EXPECT_THAT(log, ElementsAre("chosen Two"));
}

TEST_F(QtPopupTest, WhatAClickOpensMayEndThePopup)
{
    onChosen = [this] { popup.reset(); };
    showMenu({"One", "Two"});
    click(1);
    EXPECT_THAT(log, ElementsAre("chosen Two"));
    EXPECT_TRUE(shown.isNull());
}

TEST_F(QtPopupTest, WhatReturnOpensMayEndThePopup)
{
    onChosen = [this] { popup.reset(); };
    showMenu({"One", "Two"});
    key(Qt::Key_Return);
    EXPECT_THAT(log, ElementsAre("chosen One"));
    EXPECT_TRUE(shown.isNull());
}

TEST_F(QtPopupTest, EscapeClosesAndGivesTheFocusBack)
{
    showMenu({"One"});
    key(Qt::Key_Escape);
    EXPECT_FALSE(isOpen());
    EXPECT_THAT(log, ElementsAre("closed"));
    EXPECT_TRUE(view.hasFocus());
}

TEST_F(QtPopupTest, ClosesWhenTheUserTurnsElsewhere)
{
    showMenu({"One"});
    turnElsewhere();
    EXPECT_FALSE(isOpen());
    EXPECT_THAT(log, ElementsAre("closed"));
}

TEST_F(QtPopupTest, ASizeThatTheUserGaveItIsKeptForTheNextOne)
{
    showMenu({"One"});
    auto* const grip = shown->findChild<QSizeGrip*>();
    ASSERT_NE(grip, nullptr);
    EXPECT_EQ(grip->geometry().bottomRight(), shown->rect().bottomRight() - QPoint(1, 1));
    shown->resize(320, 240);
    turnElsewhere();
    showMenu({"One"});
    EXPECT_EQ(shown->geometry(), QRect(20, 30, 320, 240));
}

TEST_F(QtPopupTest, TheFirstColumnFitsItsTextsAndTheLastTakesTheRest)
{
    showMenu({"One", "An entry that is quite a bit longer"});
    auto const& header = cells().getHeader();
    EXPECT_FALSE(header.isHidden());
    auto const needed = cells().fontMetrics().horizontalAdvance("An entry that is quite a bit longer");
    EXPECT_GT(header.sectionSize(0), needed);
    EXPECT_LT(header.sectionSize(0), 2 * needed);
    EXPECT_EQ(header.length(), cells().viewport()->width());
    shown->resize(800, 300);
    settle();
    EXPECT_EQ(header.length(), cells().viewport()->width());
}

TEST_F(QtPopupTest, ColumnsWithoutTitlesHaveNoHeader)
{
    showTable({"One"});
    EXPECT_TRUE(cells().getHeader().isHidden());
    EXPECT_EQ(cells().getHeader().length(), cells().viewport()->width());
    shown->resize(300, 200);
    settle();
    EXPECT_EQ(cells().getHeader().length(), cells().viewport()->width());
}

TEST_F(QtPopupTest, AMenuDoesNotShowAColumnThatSaysNothing)
{
    descriptions = false;
    showMenu({"One", "Two"});
    EXPECT_THAT(cells().getHeader().getShownColumns(), ElementsAre(0));
    EXPECT_EQ(cells().getHeader().sectionSize(0), cells().viewport()->width());
}

TEST_F(QtPopupTest, ALongMenuHasAFilterFromTheStart)
{
    showMenu({"One", "Two"});
    EXPECT_FALSE(shown->getFilterBox().isVisible());
    turnElsewhere();
    showMenu(std::vector<std::string>(40, "Entry"));
    EXPECT_TRUE(shown->getFilterBox().isVisible());
    EXPECT_TRUE(cells().hasFocus());
}

TEST_F(QtPopupTest, WhatIsTypedFindsRows)
{
    showMenu({"Pset_DoorCommon", "Pset_WallCommon", "Qto_WallBaseQuantities"});
    typeText("wall");
    EXPECT_EQ(shown->getFilterBox().text(), "wall");
    EXPECT_TRUE(isOpen());
    EXPECT_THAT(shownEntries(), ElementsAre("Pset_WallCommon", "Qto_WallBaseQuantities"));
    key(Qt::Key_Down);
    EXPECT_TRUE(cells().hasFocus());
    key(Qt::Key_Down);
    key(Qt::Key_Return);
    EXPECT_THAT(log, ElementsAre("chosen Qto_WallBaseQuantities"));
}

TEST_F(QtPopupTest, ReturnInTheFilterOpensTheFirstRowThatIsLeft)
{
    showMenu({"Pset_DoorCommon", "Pset_WallCommon", "Qto_WallBaseQuantities"});
    type("wall");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_THAT(log, ElementsAre("chosen Pset_WallCommon"));
}

TEST_F(QtPopupTest, EscapeClearsTheFilterBeforeItCloses)
{
    showMenu({"Pset_DoorCommon", "Pset_WallCommon"});
    typeText("wall");
    key(Qt::Key_Escape);
    EXPECT_TRUE(isOpen());
    EXPECT_EQ(shown->getFilterBox().text(), "");
    EXPECT_TRUE(cells().hasFocus());
    key(Qt::Key_Escape);
    EXPECT_FALSE(isOpen());
}

TEST_F(QtPopupTest, ATickNeedsAClickOnTheBoxOrTheSpaceBar)
{
    auto const window = create();
    std::vector<bool> ticks{false, true};
    window->onGetItemText.iHandlerAdd([](auto&, Item const&) { return std::string("Value"); });
    window->onGetCheckState.iHandlerAdd([&ticks](auto&, Item const& item) {
        return std::optional(ticks[*item.item] ? CheckState::Checked : CheckState::Unchecked);
    });
    window->onCheckBoxClicked.iHandlerAdd([&ticks](auto&, Item const& item, CheckState state) {
        ticks[*item.item] = state == CheckState::Checked;
    });
    window->setItemAndColumnCounts(2, 1);
    window->enableColumnCheckBoxes(0, ListControl::BoxWithValue, nullptr, nullptr);
    show(window);

    key(Qt::Key_Space);
    EXPECT_THAT(ticks, ElementsAre(true, true));
    QTest::mouseClick(cells().viewport(), Qt::LeftButton, Qt::NoModifier,
                      cells().getCheckBoxArea(cell(1)).center());
    EXPECT_THAT(ticks, ElementsAre(true, false));
    click(0);
    EXPECT_THAT(ticks, ElementsAre(true, false));
    EXPECT_TRUE(isOpen());
}

TEST_F(QtPopupTest, ItsEditorKeepsItOpen)
{
    showTable({"One", "Two"});
    key(Qt::Key_F2);
    ASSERT_NE(openEditor(), nullptr);
    EXPECT_TRUE(isOpen());
    type("Three");
    key(Qt::Key_Return);
    EXPECT_THAT(entries, ElementsAre("Three", "Two"));
    EXPECT_TRUE(isOpen());
    EXPECT_EQ(cells().currentIndex(), cell(1));
}

TEST_F(QtPopupTest, EscapeInItsEditorLeavesTheEditorAlone)
{
    showTable({"One"});
    key(Qt::Key_F2);
    type("Three");
    key(Qt::Key_Escape);
    EXPECT_TRUE(isOpen());
    EXPECT_THAT(entries, ElementsAre("One"));
}

TEST_F(QtPopupTest, WhatWasTypedCountsWhenTheUserTurnsElsewhere)
{
    showTable({"One"});
    key(Qt::Key_F2);
    type("Three");
    turnElsewhere();
    EXPECT_THAT(entries, ElementsAre("Three"));
    EXPECT_THAT(log, ElementsAre("closed"));
}

TEST_F(QtPopupTest, AnEmptyTableOpensWithItsEditor)
{
    showTable({});
    ASSERT_NE(openEditor(), nullptr);
    EXPECT_TRUE(openEditor()->hasFocus());
    EXPECT_TRUE(openEditor()->isVisible());
    type("One");
    key(Qt::Key_Return);
    EXPECT_THAT(entries, ElementsAre("One"));
    type("Two");
    key(Qt::Key_Return);
    EXPECT_THAT(entries, ElementsAre("One", "Two"));
    EXPECT_TRUE(isOpen());
}

TEST_F(QtPopupTest, ANewRowThatNothingWasTypedForDoesNotComeIntoBeing)
{
    showTable({});
    key(Qt::Key_Return);
    EXPECT_THAT(entries, IsEmpty());
    EXPECT_FALSE(cells().isEditing());
    key(Qt::Key_F2);
    EXPECT_TRUE(cells().isEditing());
    turnElsewhere();
    EXPECT_THAT(entries, IsEmpty());
    EXPECT_THAT(log, ElementsAre("closed"));
}

TEST_F(QtPopupTest, ATableGrowsBelowItsLastRow)
{
    showTable({"One"});
    key(Qt::Key_Down);
    ASSERT_NE(openEditor(), nullptr);
    type("Two");
    key(Qt::Key_Tab);
    EXPECT_THAT(entries, ElementsAre("One", "Two"));
    ASSERT_TRUE(cells().isEditing());
    key(Qt::Key_Escape);
    auto const last = cells().visualRect(cell(1));
    QTest::mouseDClick(cells().viewport(), Qt::LeftButton, Qt::NoModifier,
                       last.center() + QPoint(0, 3 * last.height()));
    ASSERT_NE(openEditor(), nullptr);
    type("Three");
    key(Qt::Key_Return);
    EXPECT_THAT(entries, ElementsAre("One", "Two", "Three"));
}

TEST_F(QtPopupTest, SaysWhatWasRefused)
{
    showTable({"One"});
    key(Qt::Key_F2);
    type("bad");
    key(Qt::Key_Return);
    EXPECT_THAT(fromQString(shown->getNotice()), HasSubstr("One, row 1: does not take “bad”"));
}

TEST_F(QtPopupTest, ItsMenuHasTheEntriesOfTheOwnerAndKeepsItOpen)
{
    showTable({"One", "Two"});
    auto const window = std::static_pointer_cast<ListControl>(popup->getWindow());
    window->onContextMenu.iHandlerAdd([](auto&, Item const&, PopupMenu& menu) {
        menu.iMenuElemAdd(std::make_unique<MenuEntry>("Delete row"));
    });
    window->onContextMenuCommand.iHandlerAdd([this](auto&, Item const& item, int command) {
        log.push_back("command " + std::to_string(command) + " on " + std::to_string(*item.item));
    });
    std::vector<std::string> menuTexts;
    QTimer::singleShot(0, [&] {
        auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_NE(menu, nullptr);
        EXPECT_FALSE(popup->close());
        for (auto const* const action : menu->actions())
            menuTexts.push_back(fromQString(action->text()));
        menu->setActiveAction(menu->actions().front());
        QTest::keyClick(menu, Qt::Key_Return);
    });
    auto const place = cells().visualRect(cell(1)).center();
    QContextMenuEvent event(QContextMenuEvent::Mouse, place, cells().viewport()->mapToGlobal(place));
    QApplication::sendEvent(cells().viewport(), &event);
    settle();
    EXPECT_THAT(menuTexts, ElementsAre("Delete row"));
    EXPECT_THAT(log, ElementsAre("command 0 on 1"));
    EXPECT_TRUE(isOpen());
}

TEST_F(QtPopupTest, AMessageClosesItAndStays)
{
    bool isSeen = false;
    onChosen = [&] {
        QTimer::singleShot(0, qApp, [&] {
            auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_NE(box, nullptr);
            QApplication::setActiveWindow(box);
            settle();
            isSeen = box->isVisible() && !isOpen();
            box->accept();
        });
        MessageBox::vShowOk("There already", "Classification", MessageBox::Icon::Information,
                            MessageBox::DefaultButton(), {});
    };
    showMenu({"One"});
    click(0);
    EXPECT_TRUE(isSeen);
}

TEST_F(QtPopupTest, TheAborterClosesIt)
{
    showMenu({"One"});
    EXPECT_TRUE(PopupControlAborter::current().abort());
    EXPECT_FALSE(isOpen());
    EXPECT_THAT(log, ElementsAre("closed"));
}

} // namespace
} // namespace qev::test
