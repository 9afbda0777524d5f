#include "QtListTest.h"
#include "Ui/Qt/ListControl/QtListHeaderPanel.h"

#include <QComboBox>
#include <QListWidget>
#include <QScrollBar>

namespace qev::test {
namespace {

using namespace ui;
using testing::Contains;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

class QtListControlTest : public QtListTest
{
protected:
    QtListHeaderPanel& openPanel(int column) { return list.openHeaderPanel(column, QPoint(0, 0)); }
    [[nodiscard]] std::vector<std::string> shownTitles() const
    {
        std::vector<std::string> shown;
        for (auto const column : view.getHeader().getShownColumns())
            shown.push_back(fromQString(list.getTitle(column)));
        return shown;
    }
};

TEST_F(QtListControlTest, StandsInItsDialogAsAnyControl)
{
    EXPECT_EQ(list.parentWidget(), backend->getWidget(dialog->getHandle()));
    EXPECT_TRUE(control->isVisible());
    EXPECT_TRUE(control->isUsingReportStyle());
    EXPECT_EQ(control->getItemCount(), 4u);
    EXPECT_EQ(control->getColumnCount(), 5u);
    EXPECT_EQ(control->getCheckBoxMode(external), ListControl::BoxAlone);
    EXPECT_FALSE(control->getCheckBoxMode(name));
}

TEST_F(QtListControlTest, AsksForTheVisibleCellsAlone)
{
    setRowCount(100000);
    readCells.clear();
    view.viewport()->repaint();
    auto const columns = view.getHeader().getShownColumns().size();
    auto const rows = static_cast<std::size_t>(view.countVisiblePositions());
    EXPECT_EQ(readCells.size(), rows * columns);
    EXPECT_LE(rows, 40u);
    readCells.clear();
    view.verticalScrollBar()->setValue(50000);
    view.viewport()->repaint();
    EXPECT_EQ(readCells.size(), rows * columns);
    EXPECT_EQ(readCells.front().item, 50000u);
}

TEST_F(QtListControlTest, OneRowIsPaintedAgainWhenItIsRedrawn)
{
    readCells.clear();
    control->redrawItem(2);
    settle();
    ASSERT_FALSE(readCells.empty());
    for (auto const& cell : readCells)
        EXPECT_EQ(cell.item, 2u);
}

TEST_F(QtListControlTest, NothingIsPaintedWhileRedrawIsSuspended)
{
    {
        auto const guard = control->suspendRedraw();
        readCells.clear();
        control->redrawItem(2);
        settle();
        EXPECT_THAT(readCells, IsEmpty());
    }
    settle();
    EXPECT_FALSE(readCells.empty());
}

TEST_F(QtListControlTest, AskedColoursAndMarksArePainted)
{
    colours[{1, width}] = attr::Colour{0xFF, 200, 100, 50};
    localCells.insert({0, rating});
    view.viewport()->update();
    auto const picture = view.viewport()->grab().toImage();
    auto const inside = view.visualRect(index(1, width));
    EXPECT_EQ(picture.pixelColor(inside.right() - 4, inside.top() + 2), QColor(200, 100, 50));
    auto const marked = view.visualRect(index(0, rating));
    EXPECT_EQ(picture.pixelColor(marked.topLeft() + QPoint(1, 1)),
              view.palette().color(QPalette::Active, QPalette::Highlight));
    auto const plain = view.visualRect(index(2, rating));
    EXPECT_EQ(picture.pixelColor(plain.topLeft() + QPoint(1, 1)), view.palette().color(QPalette::Base));
}

TEST_F(QtListControlTest, GreyCellsAreNoLampsOnADarkSheet)
{
    colours[{1, width}] = attr::Colour{0xFF, 0xE6, 0xE6, 0xE6};
    colours[{1, rating}] = attr::Colour{0xFF, 200, 100, 50};
    QPalette palette = view.palette();
    palette.setColor(QPalette::Base, QColor(30, 30, 30));
    palette.setColor(QPalette::Text, QColor(Qt::white));
    view.setPalette(palette);
    auto const picture = view.viewport()->grab().toImage();
    auto const backgroundAt = [&](std::size_t column) {
        auto const area = view.visualRect(index(1, column));
        return picture.pixelColor(area.right() - 4, area.top() + 2);
    };
    EXPECT_GT(backgroundAt(width).lightness(), 30) << "It is still told apart from the sheet.";
    EXPECT_LT(backgroundAt(width).lightness(), 80);
    EXPECT_EQ(backgroundAt(rating), QColor(200, 100, 50));
}

TEST_F(QtListControlTest, ColumnsHiddenByDefaultAreNotShownUntilTheUserShowsThem)
{
    control->getHeader().setDefaultHiddenColumns({width});
    EXPECT_THAT(shownTitles(), ElementsAre("Name", "Rating", "External", "Locked"));
    auto& panel = openPanel(0);
    panel.getColumnList().item(1)->setCheckState(Qt::Checked);
    EXPECT_THAT(shownTitles(), ElementsAre("Name", "Width", "Rating", "External", "Locked"));
    panel.getColumnList().item(0)->setCheckState(Qt::Unchecked);
    EXPECT_THAT(shownTitles(), ElementsAre("Width", "Rating", "External", "Locked"));
    control->setItemAndColumnCounts(texts.size(), 5);
    EXPECT_THAT(shownTitles(), ElementsAre("Width", "Rating", "External", "Locked"));
    list.resetArrangement();
    EXPECT_THAT(shownTitles(), ElementsAre("Name", "Rating", "External", "Locked"));
}

TEST_F(QtListControlTest, TheListOfColumnsCanBeSearched)
{
    auto& panel = openPanel(0);
    ASSERT_EQ(panel.getColumnList().count(), 5);
    panel.getSearchBox().setText("ER");
    std::vector<std::string> shown;
    for (int row = 0; row < panel.getColumnList().count(); ++row)
        if (auto const* const item = panel.getColumnList().item(row); !item->isHidden())
            shown.push_back(fromQString(item->text()));
    EXPECT_THAT(shown, ElementsAre("External"));
}

TEST_F(QtListControlTest, ColumnsThatTheOwnerKeepsAreNotOffered)
{
    control->onQueryColumn.iHandlerAdd([](auto&, std::size_t column) { return column != name; });
    EXPECT_EQ(openPanel(0).getColumnList().count(), 4);
}

TEST_F(QtListControlTest, TheArrangementIsKeptAndLoaded)
{
    auto& header = view.getHeader();
    header.moveSection(0, 2);
    header.resizeSection(1, 123);
    list.setColumnHidden(external, true);
    list.setSorting({{rating, true}});
    auto const settings = control->getSettings();
    EXPECT_EQ(settings.columnOrder, (std::vector<std::size_t>{1, 2, 0, 3, 4}));
    EXPECT_EQ(settings.hiddenColumns, std::set<std::size_t>{external});
    EXPECT_EQ(settings.columnWidths.at(1), 123u);
    EXPECT_EQ(settings.sorting, (std::vector<ListSortColumn>{{rating, true}}));

    auto const other = createList();
    auto const& otherList = *backend->getListControl(*other);
    other->loadSettings(settings);
    EXPECT_EQ(other->getSettings(), settings) << "There are no columns yet.";
    attachTo(*other);
    other->setItemAndColumnCounts(texts.size(), 5);
    EXPECT_EQ(other->getSettings(), settings);
    EXPECT_THAT(otherList.getView().getHeader().getShownColumns(), ElementsAre(1, 2, 0, 4));
    EXPECT_EQ(otherList.getView().getHeader().sectionSize(1), 123);
}

TEST_F(QtListControlTest, AClickOnTheHeaderSortsAndAnotherSortsTheOtherWay)
{
    clickHeader(name);
    EXPECT_THAT(shownRows(), ElementsAre(3u, 0u, 1u, 2u));
    clickHeader(name);
    EXPECT_THAT(shownRows(), ElementsAre(2u, 1u, 0u, 3u));
    clickHeader(name);
    EXPECT_THAT(shownRows(), ElementsAre(0u, 1u, 2u, 3u));
}

TEST_F(QtListControlTest, AClickWithShiftSortsByOneMoreColumn)
{
    clickHeader(rating);
    clickHeader(width, Qt::ShiftModifier);
    clickHeader(width, Qt::ShiftModifier);
    EXPECT_THAT(list.getCells().getOrder().getSorting(),
                ElementsAre(ListSortColumn{rating, false}, ListSortColumn{width, true}));
    EXPECT_THAT(shownRows(), ElementsAre(0u, 3u, 1u, 2u)) << "The empty width of the door comes last.";
    clickHeader(width, Qt::ShiftModifier);
    EXPECT_THAT(list.getCells().getOrder().getSorting(), ElementsAre(ListSortColumn{rating, false}));
}

TEST_F(QtListControlTest, NumbersOfTheOwnerDecideTheOrder)
{
    control->onGetItemNumber.iHandlerAdd([](auto&, ListControl::ItemInfo const& item) {
        return item.column == width ? std::optional(10.0 - static_cast<double>(*item.item)) : std::nullopt;
    });
    clickHeader(width);
    EXPECT_THAT(shownRows(), ElementsAre(2u, 1u, 0u, 3u)) << "The door shows no width.";
}

TEST_F(QtListControlTest, CheckBoxesSortAndFilterByTheirState)
{
    clickHeader(external);
    EXPECT_THAT(shownRows(), ElementsAre(0u, 2u, 3u, 1u));
    list.setColumnFilter(external, "=true");
    finish();
    EXPECT_THAT(shownRows(), ElementsAre(1u));
}

TEST_F(QtListControlTest, TheFilterLooksAtAllShownColumns)
{
    QTest::keyClicks(&list.getFilterBox(), "wall f60");
    finish();
    EXPECT_THAT(shownRows(), ElementsAre(1u));
    list.setColumnHidden(rating, true);
    finish();
    EXPECT_THAT(shownRows(), IsEmpty());
    list.getFilterBox().clear();
    finish();
    EXPECT_THAT(shownRows(), ElementsAre(0u, 1u, 2u, 3u));
}

TEST_F(QtListControlTest, EachColumnHasAFilterOfItsOwn)
{
    openPanel(width).getFilterBox().setText(">2.2");
    finish();
    EXPECT_THAT(shownRows(), ElementsAre(1u, 2u));
    list.setColumnFilter(name, "10");
    finish();
    EXPECT_THAT(shownRows(), ElementsAre(2u));
    EXPECT_EQ(list.getColumnFilter(width), ">2.2");
    list.setColumnFilter(width, " ");
    list.setColumnFilter(name, {});
    finish();
    EXPECT_EQ(shownRows().size(), 4u);
}

TEST_F(QtListControlTest, OrderAndFilterGoWithTheirColumnsWhenThereAreOthers)
{
    clickHeader(rating);
    list.setColumnFilter(width, "!=");
    titles = {"Rating", "Width"};
    setRows({{"F90", "1 m"}, {"F30", "2 m"}, {"F60", ""}});
    EXPECT_THAT(list.getCells().getOrder().getSorting(), ElementsAre(ListSortColumn{0, false}));
    EXPECT_EQ(list.getColumnFilter(1), "!=");
    EXPECT_THAT(shownRows(), ElementsAre(1u, 0u));
    titles = {"Other"};
    setRows({{"b"}, {"a"}});
    EXPECT_THAT(shownRows(), ElementsAre(0u, 1u));
}

TEST_F(QtListControlTest, CountsTellShownSelectedAndAllRows)
{
    EXPECT_EQ(list.getCountText(), "4 rows");
    list.setColumnFilter(name, "wall");
    finish();
    EXPECT_EQ(list.getCountText(), "3 of 4 rows shown");
    select(0, name, 1, width);
    EXPECT_EQ(list.getCountText(), "3 of 4 rows shown, 2 selected");
    select(0, name);
    addToSelection(0, width);
    EXPECT_EQ(list.getCountText(), "3 of 4 rows shown, 1 selected");
}

TEST_F(QtListControlTest, TheSelectionStaysWithItsRowsWhenTheirOrderChanges)
{
    select(1, name, 2, width);
    EXPECT_THAT(control->getSelectedItems(), ElementsAre(1u, 2u));
    clickHeader(name);
    EXPECT_THAT(control->getSelectedItems(), ElementsAre(1u, 2u));
    list.setColumnFilter(name, "2");
    finish();
    EXPECT_THAT(control->getSelectedItems(), ElementsAre(1u));
    control->setItemAndColumnCounts(texts.size(), 5);
    finish();
    EXPECT_THAT(control->getSelectedItems(), ElementsAre(1u));
}

TEST_F(QtListControlTest, AllRowsOfALongListCanBeSelectedAtOnce)
{
    setRowCount(100000);
    key(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(view.countSelectedRows(), 100000u);
    EXPECT_EQ(view.selectionModel()->selection().size(), 1);
}

TEST_F(QtListControlTest, FindGoesFromHitToHit)
{
    select(0, name);
    key(Qt::Key_F, Qt::ControlModifier);
    EXPECT_TRUE(list.getFindBox().hasFocus());
    QTest::keyClicks(&list.getFindBox(), "f30");
    QTest::keyClick(&list.getFindBox(), Qt::Key_Return);
    finish();
    EXPECT_EQ(current(), (ListControl::ItemInfo{0, rating}));
    view.setFocus();
    key(Qt::Key_F3);
    finish();
    EXPECT_EQ(current(), (ListControl::ItemInfo{3, rating}));
    key(Qt::Key_F3, Qt::ShiftModifier);
    finish();
    EXPECT_EQ(current(), (ListControl::ItemInfo{0, rating}));
    list.getFindBox().setText("nowhere");
    list.findNext(true);
    finish();
    EXPECT_EQ(current(), (ListControl::ItemInfo{0, rating}));
}

TEST_F(QtListControlTest, RowsAreOpenedAndAskedAbout)
{
    select(1, name);
    key(Qt::Key_Return, Qt::ControlModifier);
    QTest::mouseClick(view.viewport(), Qt::MiddleButton, Qt::NoModifier,
                      view.visualRect(index(2, name)).center());
    QTest::mouseDClick(view.viewport(), Qt::LeftButton, Qt::NoModifier,
                       view.visualRect(index(3, locked)).center());
    EXPECT_THAT(log, ElementsAre("activated 1", "asked 2", "activated 3"));
}

TEST_F(QtListControlTest, ADisabledListCanStillBeLookedThroughAndCopied)
{
    control->enable(false);
    EXPECT_FALSE(control->isEnabled());
    select(0, name);
    key(Qt::Key_F2);
    EXPECT_FALSE(view.isEditing());
    key(Qt::Key_Delete);
    EXPECT_EQ(texts[0][name], "Wall 1");
    key(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), "Wall 1\n");
    key(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_THAT(log, Contains("activated 0"));
    control->enable(true);
    EXPECT_TRUE(control->isEnabled());
}

TEST_F(QtListControlTest, WhatIsBeingTypedIsNotTakenByAListThatIsDisabled)
{
    select(0, name);
    key(Qt::Key_F2);
    ASSERT_TRUE(view.isEditing());
    auto* const editor = view.indexWidget(index(0, name));
    ASSERT_NE(editor, nullptr);
    QTest::keyClicks(editor, "X");
    control->enable(false);
    QTest::keyClick(editor, Qt::Key_Return);
    settle();
    EXPECT_FALSE(view.isEditing());
    EXPECT_EQ(texts[0][name], "Wall 1");
}

TEST_F(QtListControlTest, TheContextMenuOffersWhatTheOwnerAndTheListCanDo)
{
    control->onContextMenu.iHandlerAdd([](auto&, ListControl::ItemInfo const&, PopupMenu& menu) {
        menu.iMenuElemAdd(std::make_unique<MenuEntry>("Zoom"));
    });
    control->onContextMenuCommand.iHandlerAdd([this](auto&, ListControl::ItemInfo const& item, int command) {
        log.push_back("command " + std::to_string(command) + " on " + std::to_string(*item.item));
    });
    EXPECT_THAT(openMenu(2, name, "Zoom"),
                ElementsAre("Zoom", "Copy", "Copy with headers", "Paste", "Fill down", "Clear"));
    EXPECT_THAT(log, ElementsAre("command 0 on 2"));
    EXPECT_THAT(control->getSelectedItems(), ElementsAre(2u));
    openMenu(2, name, "Copy");
    EXPECT_EQ(QApplication::clipboard()->text(), "Wall 10\n");
}

TEST_F(QtListControlTest, LocalValuesAreResetForAllSelectedRowsOfTheColumn)
{
    localCells.insert({1, rating});
    EXPECT_THAT(openMenu(0, rating, ""), testing::Not(testing::Contains("Reset to global value")));
    select(0, rating, 1, rating);
    openMenu(1, rating, "Reset to global value");
    EXPECT_THAT(log, ElementsAre("reset 0 1 of 2"));
}

TEST_F(QtListControlTest, APopupStandsByItselfAndOpensRows)
{
    auto const popup = createList(ListControl::PopupStyle | ListControl::PopupReportStyle);
    auto& popupList = *backend->getListControl(*popup);
    attachTo(*popup);
    EXPECT_FALSE(popup->isVisible());
    EXPECT_TRUE(popupList.isWindow());
    popup->setItemAndColumnCounts(texts.size(), 5);
    popup->show();
    QApplication::setActiveWindow(&popupList);
    popup->setFocus();
    EXPECT_EQ(WindowHandle::getFocusedWindow(), popup->getHandle());
    key(Qt::Key_Down);
    key(Qt::Key_Return);
    EXPECT_THAT(log, ElementsAre("activated 1"));
    EXPECT_THAT(popup->getSelectedItems(), ElementsAre(1u));
}

TEST_F(QtListControlTest, InAPopupWithoutAnythingToOpenADoubleClickEdits)
{
    auto const popup = createList(ListControl::PopupStyle | ListControl::PopupReportStyle);
    auto& popupView = backend->getListControl(*popup)->getView();
    attachEditing(*popup);
    popup->setItemAndColumnCounts(texts.size(), 5);
    popup->show();
    auto const doubleClick = [&](std::size_t column) {
        auto const area = popupView.visualRect(popupView.model()->index(0, static_cast<int>(column)));
        QTest::mouseDClick(popupView.viewport(), Qt::LeftButton, Qt::NoModifier, area.center());
    };
    doubleClick(locked);
    EXPECT_FALSE(popupView.isEditing());
    doubleClick(name);
    EXPECT_TRUE(popupView.isEditing());
}

} // namespace
} // namespace qev::test
