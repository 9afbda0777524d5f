#include "QtListTest.h"
#include "Ui/Qt/ListControl/QtListCellPainter.h"

#include <QAbstractItemModelTester>
#include <QAction>
#include <QComboBox>
#include <QLineEdit>
#include <QMimeData>
#include <QScrollBar>

namespace qev::test {
namespace {

using namespace ui;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

std::string clipboard() { return fromQString(QApplication::clipboard()->text()); }

class QtListViewTest : public QtListTest
{
protected:
    QtListViewTest()
        : tester(&list.getCells(), QAbstractItemModelTester::FailureReportingMode::Fatal)
    {
    }

    static void setClipboard(char const* text) { QApplication::clipboard()->setText(text); }
    void click(int position, std::size_t column, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::mouseClick(view.viewport(), Qt::LeftButton, modifiers,
                          view.visualRect(index(position, column)).center());
        settle();
    }
    void expectCurrent(std::size_t row, std::size_t column)
    {
        EXPECT_EQ(current(), (Item{row, column}));
        EXPECT_EQ(view.selectionModel()->selectedIndexes().size(), 1);
    }

    QAbstractItemModelTester tester;
};

/// The tester of Qt looks at each row, which takes too long here.
class QtLongListTest : public QtListTest
{
};

TEST_F(QtListViewTest, ArrowsMoveFromCellToCell)
{
    select(0, name);
    key(Qt::Key_Down);
    expectCurrent(1, name);
    key(Qt::Key_Right);
    expectCurrent(1, width);
    key(Qt::Key_Left);
    key(Qt::Key_Left);
    expectCurrent(1, name);
    key(Qt::Key_End, Qt::ControlModifier);
    expectCurrent(3, locked);
    key(Qt::Key_Down);
    expectCurrent(3, locked);
    key(Qt::Key_Home);
    expectCurrent(3, name);
    key(Qt::Key_Home, Qt::ControlModifier);
    expectCurrent(0, name);
    key(Qt::Key_Down, Qt::ControlModifier);
    expectCurrent(3, name);
}

TEST_F(QtListViewTest, TabAndReturnMoveAsInASpreadsheet)
{
    select(0, name);
    key(Qt::Key_Tab);
    expectCurrent(0, width);
    key(Qt::Key_Backtab, Qt::ShiftModifier);
    expectCurrent(0, name);
    key(Qt::Key_Return);
    expectCurrent(1, name);
    key(Qt::Key_Return, Qt::ShiftModifier);
    expectCurrent(0, name);
    select(0, locked);
    key(Qt::Key_Tab);
    expectCurrent(1, name);
}

TEST_F(QtListViewTest, ColumnsAreWalkedInTheOrderOnTheScreenPastHiddenOnes)
{
    list.setColumnHidden(width, true);
    view.getHeader().moveSection(view.getHeader().visualIndex(external), 0);
    select(0, external);
    key(Qt::Key_Right);
    expectCurrent(0, name);
    key(Qt::Key_Right);
    expectCurrent(0, rating);
}

TEST_F(QtListViewTest, ShiftExtendsTheSelectionToABlock)
{
    select(1, name);
    click(1, name);
    key(Qt::Key_Down, Qt::ShiftModifier);
    key(Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ(view.selectionModel()->selectedIndexes().size(), 4);
    EXPECT_THAT(control->getSelectedItems(), ElementsAre(1u, 2u));
    click(3, rating, Qt::ControlModifier);
    EXPECT_THAT(control->getSelectedItems(), ElementsAre(1u, 2u, 3u));
}

TEST_F(QtLongListTest, TheCurrentCellIsScrolledIntoView)
{
    setRowCount(1000000);
    select(0, name);
    key(Qt::Key_End, Qt::ControlModifier);
    EXPECT_EQ(current(), (Item{999999, locked}));
    EXPECT_TRUE(view.viewport()->rect().contains(view.visualRect(view.currentIndex()).center()));
    key(Qt::Key_PageUp);
    EXPECT_LT(*current().item, 999999u);
    EXPECT_TRUE(view.viewport()->rect().contains(view.visualRect(view.currentIndex()).center()));
    EXPECT_EQ(view.indexAt(view.visualRect(view.currentIndex()).center()), view.currentIndex());
}

TEST_F(QtListViewTest, TypingReplacesTheValueAndReturnGoesDown)
{
    select(0, name);
    type("New");
    EXPECT_EQ(texts[0][name], "Wall 1");
    key(Qt::Key_Return);
    EXPECT_EQ(texts[0][name], "New");
    EXPECT_THAT(edits, ElementsAre("set 0: New"));
    expectCurrent(1, name);
    EXPECT_TRUE(view.hasFocus());
}

TEST_F(QtListViewTest, F2OpensTheEditorWithTheValueAndEscapeLeavesIt)
{
    select(1, width);
    key(Qt::Key_F2);
    ASSERT_NE(editor<QLineEdit>(1, width), nullptr);
    EXPECT_EQ(editor<QLineEdit>(1, width)->text(), "10 m");
    type("7");
    key(Qt::Key_Escape);
    EXPECT_EQ(texts[1][width], "10 m");
    EXPECT_THAT(edits, ElementsAre("left 1"));
    expectCurrent(1, width);
}

TEST_F(QtListViewTest, AnEditorThatNobodyTypedInChangesNothing)
{
    select(1, width);
    key(Qt::Key_F2);
    key(Qt::Key_Return);
    EXPECT_THAT(edits, ElementsAre("left 1"));
}

TEST_F(QtListViewTest, TheEditorOpensWithTheTextThatTheOwnerHasForIt)
{
    control->onGetItemEditText.iHandlerAdd([](auto&, Item const&) { return std::string("2.123456789"); });
    select(0, width);
    key(Qt::Key_F2);
    EXPECT_EQ(editor<QLineEdit>(0, width)->text(), "2.123456789");
}

TEST_F(QtListViewTest, TabInTheEditorCommitsAndGoesToTheNextCell)
{
    select(0, name);
    type("New");
    key(Qt::Key_Tab);
    EXPECT_EQ(texts[0][name], "New");
    expectCurrent(0, width);
    EXPECT_FALSE(view.isEditing());
}

TEST_F(QtListViewTest, TabEditsTheNextCellThatCanBeWhereTheOwnerWantsIt)
{
    control->enableLabelEdit();
    select(0, width);
    view.beginEdit(index(0, width));
    type("3 m");
    key(Qt::Key_Tab);
    EXPECT_EQ(texts[0][width], "3 m");
    EXPECT_TRUE(view.isEditing());
    EXPECT_NE(editor<QComboBox>(0, rating), nullptr);
}

TEST_F(QtListViewTest, AnEditGoesToAllSelectedRows)
{
    select(0, width, 2, width);
    key(Qt::Key_F2);
    ASSERT_NE(editor<QLineEdit>(0, width), nullptr);
    EXPECT_EQ(editor<QLineEdit>(0, width)->text(), "") << "The values differ.";
    type("4 m");
    key(Qt::Key_Return);
    EXPECT_THAT(edits, ElementsAre("set 0 1 2: 4 m"));
    EXPECT_THAT(control->getSelectedItems(), ElementsAre(0u, 1u, 2u));
}

TEST_F(QtListViewTest, AnUntouchedEditorOverValuesThatDifferChangesNothing)
{
    select(0, width, 2, width);
    key(Qt::Key_F2);
    key(Qt::Key_Return);
    EXPECT_THAT(edits, ElementsAre("left 0 1 2"));
}

TEST_F(QtListViewTest, OneRowThatCannotBeEditedStopsTheEditOfAll)
{
    control->onLabelEditBegin.iHandlerAdd([](auto& event, ListControl::LabelEditBeginParams const& params) {
        for (auto const& item : params.items)
            if (item.item == 1u)
                return ListControl::LabelEditBeginResultParams();
        return forwardEvent(event, params);
    });
    select(0, width, 2, width);
    key(Qt::Key_F2);
    EXPECT_FALSE(view.isEditing());
    EXPECT_FALSE(list.getNotice().isEmpty());
    select(0, width);
    key(Qt::Key_F2);
    EXPECT_TRUE(view.isEditing());
}

TEST_F(QtListViewTest, ADropListOffersItsEntriesInTheCell)
{
    select(0, rating);
    key(Qt::Key_Down, Qt::AltModifier);
    auto* const combo = editor<QComboBox>(0, rating);
    ASSERT_NE(combo, nullptr);
    EXPECT_FALSE(combo->isEditable());
    EXPECT_EQ(combo->currentText(), "F30");
    combo->setCurrentIndex(2);
    emit combo->activated(2);
    settle();
    EXPECT_EQ(texts[0][rating], "F90");
    EXPECT_THAT(edits, ElementsAre("set 0: F90"));
}

TEST_F(QtListViewTest, AnEditBoxInAColumnOfComboBoxesIsADropDown)
{
    control->activateComboBoxEditingForColumn(name);
    select(0, name);
    key(Qt::Key_F2);
    auto* const combo = editor<QComboBox>(0, name);
    ASSERT_NE(combo, nullptr);
    EXPECT_TRUE(combo->isEditable());
    EXPECT_EQ(combo->currentText(), toQString(texts[0][name]));
    type("New");
    key(Qt::Key_Return);
    EXPECT_EQ(texts[0][name], "New");
}

TEST_F(QtListViewTest, ADropDownTakesOtherTextsToo)
{
    control->onLabelEditBegin.iHandlerAdd([](auto&, ListControl::LabelEditBeginParams const&) {
        return ListControl::LabelEditBeginResultParams{ListControl::DropDown, {"F30", "F60"}};
    });
    select(0, rating);
    key(Qt::Key_F2);
    auto* const combo = editor<QComboBox>(0, rating);
    ASSERT_NE(combo, nullptr);
    EXPECT_TRUE(combo->isEditable());
    combo->setEditText("F45");
    QTest::keyClick(combo, Qt::Key_Return);
    settle();
    EXPECT_THAT(edits, ElementsAre("set 0: F45"));
}

TEST_F(QtListViewTest, AValueThatIsNotTakenIsTold)
{
    select(0, width);
    type("bad");
    key(Qt::Key_Return);
    EXPECT_EQ(texts[0][width], "2 m");
    EXPECT_THAT(fromQString(list.getNotice()), HasSubstr("Width, row 1: does not take “bad”"));
    select(1, width);
    type("5 m");
    key(Qt::Key_Return);
    EXPECT_TRUE(list.getNotice().isEmpty());
}

TEST_F(QtListViewTest, NewRowsEndAnEditWithoutATrace)
{
    select(0, name);
    type("New");
    control->setItemAndColumnCounts(texts.size(), titles.size());
    settle();
    EXPECT_FALSE(view.isEditing());
    EXPECT_EQ(texts[0][name], "Wall 1");
    EXPECT_THAT(edits, ElementsAre("left 0"));
}

TEST_F(QtListViewTest, TheOwnerCanMakeTheRowsAnewWhenAnEditEnds)
{
    control->onLabelEditEnd.iHandlerAdd([this](auto& event, ListControl::LabelEditEndParams const& params) {
        forwardEvent(event, params);
        control->setItemAndColumnCounts(texts.size(), titles.size());
    });
    select(0, name);
    type("New");
    key(Qt::Key_Return);
    EXPECT_EQ(texts[0][name], "New");
    EXPECT_THAT(edits, ElementsAre("set 0: New"));
    EXPECT_TRUE(view.hasFocus());
}

TEST_F(QtListViewTest, AnEntryCanBeTypedBelowTheLastRow)
{
    control->onLabelEditEnd.iHandlerAdd([this](auto&, ListControl::LabelEditEndParams const& params) {
        if (!params.accepted)
            return;
        texts.push_back({params.text, "", "", "FALSE", ""});
        control->setItemAndColumnCounts(texts.size(), titles.size());
    });
    control->startLabelEdit(4, name);
    ASSERT_NE(editor<QLineEdit>(4, name), nullptr);
    type("Wall 3");
    key(Qt::Key_Return);
    EXPECT_EQ(control->getItemCount(), 5u);
    EXPECT_EQ(list.getCells().rowCount(), 5);
    EXPECT_EQ(texts[4][name], "Wall 3");
    control->startLabelEdit(5, name);
    key(Qt::Key_Escape);
    EXPECT_EQ(list.getCells().rowCount(), 5);
}

TEST_F(QtListViewTest, AnEntryBelowTheLastRowIsNotSelectedBeforeItIsThere)
{
    list.setSorting({{name, true}});
    settle();
    control->startLabelEdit(4, name);
    ASSERT_NE(editor<QLineEdit>(4, name), nullptr);
    EXPECT_THAT(control->getSelectedItems(), IsEmpty());
    control->redrawItem(4);
    key(Qt::Key_Escape);
}

TEST_F(QtListViewTest, OneClickTogglesOneBoxAndLeavesTheSelection)
{
    select(0, name, 2, name);
    auto const box = view.getCheckBoxArea(index(1, external));
    ASSERT_FALSE(box.isEmpty());
    QTest::mouseClick(view.viewport(), Qt::LeftButton, Qt::NoModifier, box.center());
    EXPECT_EQ(texts[1][external], "FALSE");
    EXPECT_EQ(texts[0][external], "FALSE");
    EXPECT_THAT(control->getSelectedItems(), ElementsAre(0u, 1u, 2u));
}

TEST_F(QtListViewTest, SpaceTogglesTheSelectedBoxes)
{
    select(0, external, 2, external);
    key(Qt::Key_Space);
    EXPECT_EQ(texts[0][external] + texts[1][external] + texts[2][external], "TRUETRUETRUE");
    EXPECT_EQ(texts[3][external], "FALSE");
}

TEST_F(QtListViewTest, ABoxThatIsReadOnlyStays)
{
    control->onIsItemReadOnly.iHandlerAdd([](auto&, Item const& item) { return item.item == 1u; });
    auto const box = view.getCheckBoxArea(index(1, external));
    QTest::mouseClick(view.viewport(), Qt::LeftButton, Qt::NoModifier, box.center());
    EXPECT_EQ(texts[1][external], "TRUE");
    EXPECT_THAT(fromQString(list.getNotice()), HasSubstr("External, row 2: cannot be changed"));
}

TEST_F(QtListViewTest, CopyGivesTextAndATable)
{
    select(0, rating, 1, locked);
    key(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(clipboard(), "F30\tFALSE\ta\nF60\tTRUE\tb\n");
    EXPECT_THAT(fromQString(QApplication::clipboard()->mimeData()->html()), HasSubstr("<td>F60</td>"));
    key(Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(clipboard(), "Rating\tExternal\tLocked\nF30\tFALSE\ta\nF60\tTRUE\tb\n");
}

TEST_F(QtListViewTest, KeysOfTheListGoBeforeThoseOfTheWindowAround)
{
    QAction action;
    action.setShortcut(QKeySequence("Ctrl+Shift+C"));
    QObject::connect(&action, &QAction::triggered, [this] { log.push_back("window"); });
    backend->getWidget(dialog->getHandle())->addAction(&action);
    select(0, name);
    key(Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(clipboard(), "Name\nWall 1\n");
    EXPECT_THAT(log, IsEmpty());
}

TEST_F(QtListViewTest, CopyKeepsTheOrderOnTheScreenAndLeavesHiddenColumnsOut)
{
    list.setColumnHidden(rating, true);
    view.getHeader().moveSection(view.getHeader().visualIndex(width), 0);
    clickHeader(name);
    select(0, name, 1, locked);
    addToSelection(0, width);
    addToSelection(1, width);
    key(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(clipboard(), "\tDoor\tFALSE\td\n2 m\tWall 1\tFALSE\ta\n");
}

TEST_F(QtListViewTest, ABlockIsPastedFromTheAnchorOn)
{
    setClipboard("1 m\tF60\n3 m\tF90\n");
    select(1, width);
    key(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(texts[1][width], "1 m");
    EXPECT_EQ(texts[1][rating], "F60");
    EXPECT_EQ(texts[2][width], "3 m");
    EXPECT_EQ(texts[2][rating], "F90");
    EXPECT_TRUE(list.getNotice().isEmpty());
}

TEST_F(QtListViewTest, CellsThatRefuseAreListed)
{
    setClipboard("bad\tF45\tx\n1 m\tF60\ty\n");
    select(0, width);
    key(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(texts[0][width], "2 m");
    EXPECT_EQ(texts[1][width], "1 m");
    auto const notice = fromQString(list.getNotice());
    EXPECT_THAT(notice, HasSubstr("Width, row 1: does not take “bad”"));
    EXPECT_THAT(notice, HasSubstr("Rating, row 1: “F45” is none of the values it can have"));
    EXPECT_THAT(notice, HasSubstr("External, row 1"));
}

TEST_F(QtListViewTest, WhatHasNoPlaceIsTold)
{
    setClipboard("a\nb\nc\n");
    select(2, name);
    key(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(texts[2][name] + texts[3][name], "ab");
    EXPECT_THAT(fromQString(list.getNotice()), HasSubstr("no place"));
}

TEST_F(QtListViewTest, OneCellIsPastedIntoTheWholeSelection)
{
    setClipboard("F60");
    select(0, rating, 3, rating);
    key(Qt::Key_V, Qt::ControlModifier);
    for (auto const& row : texts)
        EXPECT_EQ(row[rating], "F60");
}

TEST_F(QtListViewTest, FillDownTakesTheFirstOfTheSelectedCellsOrTheOneAbove)
{
    select(0, name, 2, width);
    key(Qt::Key_D, Qt::ControlModifier);
    EXPECT_EQ(texts[1][name] + texts[2][name], "Wall 1Wall 1");
    EXPECT_EQ(texts[1][width] + texts[2][width], "2 m2 m");
    select(3, name);
    key(Qt::Key_D, Qt::ControlModifier);
    EXPECT_EQ(texts[3][name], "Wall 1");
}

TEST_F(QtListViewTest, DeleteClearsTheSelectedCells)
{
    select(0, name, 1, rating);
    key(Qt::Key_Delete);
    for (auto const row : {0, 1})
        EXPECT_EQ(texts[row][name] + texts[row][width] + texts[row][rating], "");
    select(0, locked);
    key(Qt::Key_Delete);
    EXPECT_EQ(texts[0][locked], "a");
    EXPECT_THAT(fromQString(list.getNotice()), HasSubstr("Locked, row 1: cannot be changed"));
}

TEST_F(QtLongListTest, InputsToFarTooManyCellsAreRefused)
{
    setRowCount(QtListView::mostCells / titles.size() + 1);
    QApplication::clipboard()->setText("before");
    view.selectAll();
    key(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(clipboard(), "before");
    EXPECT_THAT(fromQString(list.getNotice()), HasSubstr("Too many cells"));
}

TEST_F(QtListViewTest, AColumnCanBeFittedToWhatIsSeen)
{
    texts[1][name] = "A name that is longer than the others by far";
    view.fitColumn(name);
    auto const needed = view.fontMetrics().horizontalAdvance(toQString(texts[1][name]));
    EXPECT_GE(view.getHeader().sectionSize(name), needed);
    EXPECT_LE(view.getHeader().sectionSize(name), needed + 40);
}

TEST_F(QtListViewTest, TheModelSpeaksToAssistiveToolsToo)
{
    EXPECT_EQ(index(1, external).data(Qt::AccessibleTextRole).toString(), "TRUE");
    EXPECT_EQ(index(1, external).data(Qt::CheckStateRole).toInt(), Qt::Checked);
    EXPECT_EQ(index(1, name).data(Qt::DisplayRole).toString(), "Wall 2");
    EXPECT_FALSE(index(1, name).data(Qt::CheckStateRole).isValid());
    EXPECT_EQ(list.getCells().headerData(1, Qt::Horizontal, Qt::DisplayRole).toString(), "Width");
}

} // namespace
} // namespace qev::test
