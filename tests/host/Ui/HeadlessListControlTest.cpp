#include "Ui/Headless/HeadlessListControl.h"

#include "UiTest.h"

namespace {

using namespace qev;
using namespace qev::ui;
using testing::ElementsAre;

/// A list over a small table; column 1 has check boxes.
class HeadlessListControlTest : public test::UiTest
{
protected:
    HeadlessListControlTest()
        : control(createList())
        , list(backend->getListControl(*control))
    {
        control->onGetColumnHeaderText.iHandlerAdd(
            [](auto&, std::size_t column) { return "Column " + std::to_string(column); });
        control->onGetItemText.iHandlerAdd(
            [this](auto&, ListControl::ItemInfo const& item) { return texts[*item.item][*item.column]; });
        control->onGetCheckState.iHandlerAdd(
            [this](auto&, ListControl::ItemInfo const& item) -> std::optional<CheckState> {
                return *item.item == checkedRow ? CheckState::Checked : CheckState::Unchecked;
            });
        control->onQueryColumn.iHandlerAdd([](auto&, std::size_t) { return true; });
        control->enableColumnCheckBoxes(1, ListControl::BoxAlone, nullptr, nullptr);
        control->setItemAndColumnCounts(texts.size(), 3);
    }

    void answerEditsWith(unsigned int editType, std::vector<std::string> const& entries = {})
    {
        control->onLabelEditBegin.iHandlerAdd([=](auto&, ListControl::LabelEditBeginParams const&) {
            return ListControl::LabelEditBeginResultParams{editType, entries};
        });
        control->onLabelEditEnd.iHandlerAdd(
            [this](auto&, ListControl::LabelEditEndParams const& params) { ends.push_back(params); });
    }

    std::vector<std::vector<std::string>> texts = {{"W1", "", "F30"}, {"W2", "", "F60"}, {"W10", "", ""}};
    std::size_t checkedRow = 1;
    std::vector<ListControl::LabelEditEndParams> ends;
    std::shared_ptr<ListControl> control;
    std::shared_ptr<HeadlessListControl> list;
};

TEST_F(HeadlessListControlTest, DumpsTheVisibleColumnsAsATable)
{
    list->select({1});
    EXPECT_EQ(list->dump(), R"(  Column 0 | Column 1 | Column 2
  W1 | [ ] | F30
> W2 | [x] | F60
  W10 | [ ] | 
)");
    EXPECT_TRUE(list->hideColumn(1, true));
    EXPECT_EQ(list->dump(), R"(  Column 0 | Column 2
  W1 | F30
> W2 | F60
  W10 | 
)");
}

TEST_F(HeadlessListControlTest, TheSelectionIsTold)
{
    EXPECT_TRUE(list->select({0, 2}));
    EXPECT_THAT(control->getSelectedItems(), ElementsAre(0u, 2u));
    EXPECT_FALSE(list->select({3}));
    control->setItemAndColumnCounts(1, 3);
    EXPECT_THAT(control->getSelectedItems(), ElementsAre(0u));
}

TEST_F(HeadlessListControlTest, AClickOnACheckBoxAsksForTheOtherState)
{
    std::vector<std::pair<std::size_t, CheckState>> clicks;
    control->onCheckBoxClicked.iHandlerAdd([&](auto&, ListControl::ItemInfo const& item, CheckState state) {
        clicks.emplace_back(*item.item, state);
    });
    EXPECT_TRUE(list->clickCheckBox(0, 1));
    EXPECT_TRUE(list->clickCheckBox(1, 1));
    EXPECT_FALSE(list->clickCheckBox(0, 0));
    EXPECT_THAT(clicks, ElementsAre(std::pair<std::size_t, CheckState>(0, CheckState::Checked),
                                    std::pair<std::size_t, CheckState>(1, CheckState::Unchecked)));
}

TEST_F(HeadlessListControlTest, RowsAreActivatedAndAskedAbout)
{
    std::vector<std::string> log;
    control->onItemActivated.iHandlerAdd([&](auto&, ListControl::ItemInfo const& item) {
        log.push_back("activated " + std::to_string(*item.item));
    });
    control->onItemSecondaryEvent.iHandlerAdd([&](auto&, ListControl::ItemInfo const& item) {
        log.push_back("asked " + std::to_string(*item.item));
    });
    EXPECT_TRUE(list->activate(1, 0));
    EXPECT_TRUE(list->triggerSecondaryEvent(2, 0));
    EXPECT_FALSE(list->activate(3, 0));
    EXPECT_THAT(log, ElementsAre("activated 1", "asked 2"));
}

TEST_F(HeadlessListControlTest, ACellIsEditedOnlyWhenTheOwnerSaysHow)
{
    EXPECT_FALSE(list->beginEdit(0, 0));
    answerEditsWith(ListControl::EditBox);
    EXPECT_TRUE(list->beginEdit(0, 2));
    EXPECT_EQ(list->getEdit()->text, "F30");
    EXPECT_TRUE(list->commitText("F90"));
    ASSERT_EQ(ends.size(), 1u);
    EXPECT_TRUE(ends[0].accepted);
    EXPECT_EQ(ends[0].text, "F90");
    EXPECT_EQ(ends[0].getColumnIndex(), 2u);
    EXPECT_FALSE(ends[0].hasSelection);
    EXPECT_FALSE(list->getEdit());
}

TEST_F(HeadlessListControlTest, AnEditInASelectedRowIsForAllSelectedRows)
{
    answerEditsWith(ListControl::EditBox);
    list->select({0, 2});
    EXPECT_TRUE(list->type(2, 2, "F90"));
    EXPECT_TRUE(list->type(1, 2, "F90"));
    ASSERT_EQ(ends.size(), 2u);
    EXPECT_THAT(ends[0].items, ElementsAre(ListControl::ItemInfo{0, 2}, ListControl::ItemInfo{2, 2}));
    EXPECT_THAT(ends[1].items, ElementsAre(ListControl::ItemInfo{1, 2}));
}

TEST_F(HeadlessListControlTest, TheSpaceBarClicksTheBoxesOfAllSelectedRows)
{
    std::vector<std::size_t> rows;
    control->onCheckBoxClicked.iHandlerAdd([&](auto&, ListControl::ItemInfo const& item, CheckState state) {
        EXPECT_EQ(state, CheckState::Checked);
        rows.push_back(*item.item);
    });
    EXPECT_FALSE(list->clickCheckBoxes(1));
    list->select({0, 1, 2});
    EXPECT_TRUE(list->clickCheckBoxes(1));
    EXPECT_THAT(rows, ElementsAre(0u, 2u));
}

TEST_F(HeadlessListControlTest, AReadOnlyCheckBoxCannotBeClicked)
{
    control->onIsItemReadOnly.iHandlerAdd([](auto&, ListControl::ItemInfo const&) { return true; });
    EXPECT_FALSE(list->clickCheckBox(0, 1));
}

TEST_F(HeadlessListControlTest, SelectedRowsAreCopiedPastedFilledAndCleared)
{
    answerEditsWith(ListControl::EditBox);
    list->select({0, 2});
    EXPECT_EQ(list->copy({0, 2}, true), (ListBlock{{"Column 0", "Column 2"}, {"W1", "F30"}, {"W10", ""}}));

    EXPECT_EQ(list->paste(2, 0, {{"W"}}).takenCells, 2u);
    EXPECT_THAT(ends.back().items, ElementsAre(ListControl::ItemInfo{0, 0}, ListControl::ItemInfo{2, 0}));
    EXPECT_EQ(list->paste(1, 0, {{"W"}}).takenCells, 1u);
    EXPECT_THAT(ends.back().items, ElementsAre(ListControl::ItemInfo{1, 0}));

    EXPECT_EQ(list->fillDown(2).takenCells, 1u);
    EXPECT_EQ(ends.back().text, "F30");
    EXPECT_THAT(ends.back().items, ElementsAre(ListControl::ItemInfo{2, 2}));
    EXPECT_EQ(list->clear(2).takenCells, 1u);
    EXPECT_EQ(ends.back().text, "");
    EXPECT_THAT(ends.back().items, ElementsAre(ListControl::ItemInfo{0, 2}));
}

TEST_F(HeadlessListControlTest, ABlockGoesIntoTheVisibleColumns)
{
    answerEditsWith(ListControl::EditBox);
    list->hideColumn(1, true);
    EXPECT_EQ(list->paste(1, 0, {{"A", "B"}, {"C", "D"}, {"E", "F"}}).takenCells, 4u);
    std::vector<ListControl::ItemInfo> cells;
    for (auto const& end : ends)
        cells.push_back(end.items.front());
    EXPECT_THAT(cells, ElementsAre(ListControl::ItemInfo{1, 0}, ListControl::ItemInfo{2, 0},
                                   ListControl::ItemInfo{1, 2}, ListControl::ItemInfo{2, 2}));
}

TEST_F(HeadlessListControlTest, ToldTheSameHiddenColumnsAgainTheUsersChoiceStays)
{
    control->getHeader().setDefaultHiddenColumns({2});
    EXPECT_TRUE(list->isColumnHidden(2));
    EXPECT_TRUE(list->hideColumn(2, false));
    control->getHeader().setDefaultHiddenColumns({2});
    EXPECT_FALSE(list->isColumnHidden(2));
    control->getHeader().setDefaultHiddenColumns({0});
    EXPECT_TRUE(list->isColumnHidden(0));
}

TEST_F(HeadlessListControlTest, ADropListTakesItsEntriesOnly)
{
    answerEditsWith(ListControl::DropList, {"F30", "F60"});
    EXPECT_FALSE(list->type(0, 2, "F90"));
    EXPECT_TRUE(list->type(0, 2, "F60"));
    ASSERT_EQ(ends.size(), 2u);
    EXPECT_FALSE(ends[0].accepted);
    EXPECT_EQ(ends[1].getSelectedDropListIndex(), 1u);
}

TEST_F(HeadlessListControlTest, ADropDownTakesOtherTextsToo)
{
    answerEditsWith(ListControl::DropDown, {"F30", "F60"});
    EXPECT_TRUE(list->type(0, 2, "F90"));
    EXPECT_TRUE(list->type(0, 2, "F60"));
    EXPECT_FALSE(ends[0].hasSelection);
    EXPECT_EQ(ends[0].getEditBoxText(), "F90");
    EXPECT_TRUE(ends[1].hasSelection);
    EXPECT_EQ(ends[1].getSelectedDropListIndex(), 1u);
}

TEST_F(HeadlessListControlTest, AnOpenEditorHasTheFocusAndStandsBelowTheList)
{
    answerEditsWith(ListControl::EditBox);
    control->setFocus();
    list->beginEdit(0, 0);
    auto const focused = WindowHandle::getFocusedWindow();
    EXPECT_NE(focused, control->getHandle());
    EXPECT_TRUE(focused.isDescendantOf(control->getHandle()));
    list->cancelEdit();
    EXPECT_EQ(WindowHandle::getFocusedWindow(), control->getHandle());
    ASSERT_EQ(ends.size(), 1u);
    EXPECT_FALSE(ends[0].accepted);
}

TEST_F(HeadlessListControlTest, NewRowsEndAnEdit)
{
    answerEditsWith(ListControl::EditBox);
    ASSERT_TRUE(list->beginEdit(0, 2));
    control->setItemAndColumnCounts(texts.size(), 3);
    EXPECT_FALSE(list->getEdit());
    EXPECT_FALSE(list->commitText("F90"));
    ASSERT_EQ(ends.size(), 1u);
    EXPECT_FALSE(ends[0].accepted);
}

TEST_F(HeadlessListControlTest, TheOwnerMayBeginAnEditBelowTheLastRow)
{
    answerEditsWith(ListControl::EditBox);
    control->startLabelEdit(3);
    ASSERT_TRUE(list->getEdit());
    EXPECT_EQ(list->getEdit()->text, "");
    EXPECT_TRUE(list->commitText("W11"));
    EXPECT_EQ(ends[0].getEditedItem(), (ListControl::ItemInfo{3, 0}));
    control->startLabelEdit(4);
    EXPECT_FALSE(list->getEdit());
}

TEST_F(HeadlessListControlTest, TheContextMenuIsFilledShownAndAnswered)
{
    bool wasShown = false;
    std::vector<int> commands;
    control->onContextMenu.iHandlerAdd([](auto&, ListControl::ItemInfo const& item, PopupMenu& menu) {
        if (*item.item == 0)
            menu.iMenuElemAdd(std::make_unique<MenuEntry>("Delete"));
    });
    control->onContextMenuCommand.iHandlerAdd(
        [&](auto&, ListControl::ItemInfo const&, int command) { commands.push_back(command); });
    backend->setMenuAnswer([&](PopupMenu const&) {
        wasShown = PopupMenu::isBeingShown();
        return std::optional<std::size_t>(0);
    });
    EXPECT_FALSE(list->openContextMenu(1, 0));
    EXPECT_TRUE(list->openContextMenu(0, 0));
    EXPECT_TRUE(wasShown);
    EXPECT_FALSE(PopupMenu::isBeingShown());
    EXPECT_THAT(commands, ElementsAre(0));
}

TEST_F(HeadlessListControlTest, LocalValuesAreResetForTheSelectedRows)
{
    std::vector<std::size_t> resetRows;
    control->onDoesItemContainLocalValue.iHandlerAdd(
        [](auto&, ListControl::ItemInfo const& item) { return *item.item == 1; });
    control->onResetItemsToGlobalValues.iHandlerAdd(
        [&](auto&, std::vector<std::size_t> const& rows, std::size_t) { resetRows = rows; });
    EXPECT_TRUE(list->containsLocalValue(1, 2));
    EXPECT_FALSE(list->containsLocalValue(0, 2));
    EXPECT_FALSE(list->resetToGlobalValues(2));
    list->select({1, 2});
    EXPECT_TRUE(list->resetToGlobalValues(2));
    EXPECT_THAT(resetRows, ElementsAre(1u, 2u));
}

TEST_F(HeadlessListControlTest, ADisabledListCanStillBeLookedThroughAndCopied)
{
    std::vector<std::string> events;
    control->onItemActivated.iHandlerAdd(
        [&](auto&, ListControl::ItemInfo const&) { events.emplace_back("activated"); });
    control->onItemSecondaryEvent.iHandlerAdd(
        [&](auto&, ListControl::ItemInfo const&) { events.emplace_back("asked"); });
    control->onContextMenu.iHandlerAdd([](auto&, ListControl::ItemInfo const&, PopupMenu& menu) {
        menu.iMenuElemAdd(std::make_unique<MenuEntry>("Zoom"));
    });
    control->onContextMenuCommand.iHandlerAdd(
        [&](auto&, ListControl::ItemInfo const&, int) { events.emplace_back("zoomed"); });
    backend->setMenuAnswer([](PopupMenu const&) { return std::optional<std::size_t>(0); });

    control->enable(false);

    EXPECT_FALSE(control->isEnabled());
    EXPECT_TRUE(list->select({0, 1}));
    EXPECT_THAT(control->getSelectedItems(), ElementsAre(0u, 1u));
    EXPECT_THAT(list->copy({0, 2}, false), ElementsAre(ElementsAre("W1", "F30"), ElementsAre("W2", "F60")));
    EXPECT_TRUE(list->activate(0, 0));
    EXPECT_TRUE(list->triggerSecondaryEvent(0, 0));
    EXPECT_TRUE(list->openContextMenu(0, 0));
    EXPECT_THAT(events, ElementsAre("activated", "asked", "zoomed"));
    EXPECT_TRUE(list->hideColumn(0, true));
    control->setFocus();
    EXPECT_TRUE(list->hasFocus());
}

TEST_F(HeadlessListControlTest, ADisabledListRefusesWhatWouldChangeIt)
{
    answerEditsWith(ListControl::EditBox);
    bool wasChanged = false;
    control->onCheckBoxClicked.iHandlerAdd(
        [&](auto&, ListControl::ItemInfo const&, CheckState) { wasChanged = true; });
    control->onResetItemsToGlobalValues.iHandlerAdd(
        [&](auto&, std::vector<std::size_t> const&, std::size_t) { wasChanged = true; });
    list->select({0, 1});

    control->enable(false);

    EXPECT_FALSE(list->clickCheckBox(0, 1));
    EXPECT_FALSE(list->clickCheckBoxes(1));
    EXPECT_FALSE(list->beginEdit(0, 2));
    EXPECT_FALSE(list->type(0, 2, "F90"));
    control->startLabelEdit(0, 2);
    EXPECT_FALSE(list->getEdit());
    EXPECT_EQ(list->paste(0, 2, {{"F90"}}).takenCells, 0u);
    EXPECT_EQ(list->fillDown(2).takenCells, 0u);
    EXPECT_EQ(list->clear(2).takenCells, 0u);
    EXPECT_FALSE(list->resetToGlobalValues(2));
    EXPECT_THAT(ends, testing::IsEmpty());
    EXPECT_FALSE(wasChanged);

    control->enable(true);
    EXPECT_TRUE(list->type(0, 2, "F90"));
    EXPECT_TRUE(list->clickCheckBox(0, 1));
    EXPECT_TRUE(list->resetToGlobalValues(2));
}

TEST_F(HeadlessListControlTest, WhatIsBeingTypedIsNotTakenByAListThatIsDisabled)
{
    answerEditsWith(ListControl::DropDown, {"F30"});
    ASSERT_TRUE(list->beginEdit(0, 2));
    control->enable(false);
    EXPECT_FALSE(list->commitText("F90"));
    EXPECT_FALSE(list->commitChoice(0));
    EXPECT_THAT(ends, testing::IsEmpty());
    EXPECT_TRUE(list->cancelEdit());
    ASSERT_EQ(ends.size(), 1u);
    EXPECT_FALSE(ends[0].accepted);
}

TEST_F(HeadlessListControlTest, AListThatIsDisabledWithItsDialogCannotBeDriven)
{
    answerEditsWith(ListControl::EditBox);
    dialog->enable(false);
    EXPECT_FALSE(list->select({0}));
    EXPECT_FALSE(list->activate(0, 0));
    EXPECT_FALSE(list->openContextMenu(0, 0));
    EXPECT_FALSE(list->hideColumn(0, true));
    EXPECT_FALSE(list->clickCheckBox(0, 1));
    EXPECT_FALSE(list->beginEdit(0, 2));
    EXPECT_THAT(ends, testing::IsEmpty());
}

TEST_F(HeadlessListControlTest, AColumnStaysWhereTheOwnerDoesNotLetItGo)
{
    control->onQueryColumn.iHandlerAdd([](auto&, std::size_t column) { return column != 0; });
    EXPECT_FALSE(list->hideColumn(0, true));
    EXPECT_TRUE(list->hideColumn(2, true));
}

TEST_F(HeadlessListControlTest, StylesAndColoursComeFromTheOwner)
{
    control->onGetItemStyle.iHandlerAdd([](auto&, ListControl::ItemInfo const&) {
        return ListControl::ItemStyle{attr::Colour{255, 9, 9, 9}, ListControl::ItemStyle::Emphasis};
    });
    EXPECT_EQ(list->getBackgroundColour(0, 0), std::nullopt);
    control->onGetItemBackgroundColour.iHandlerAdd([](auto&, ListControl::ItemInfo const&) {
        return attr::Colour{255, 1, 1, 1};
    });
    EXPECT_EQ(list->getBackgroundColour(0, 0), (attr::Colour{255, 1, 1, 1}));
    EXPECT_EQ(list->getStyle(0, 0).flags, 1u);
}

TEST_F(HeadlessListControlTest, WhatTheUserDidToAColumnCountsForLaterColumnsOfItsTitle)
{
    control->getHeader().setDefaultHiddenColumns({2});
    list->hideColumn(0, true);
    control->setItemAndColumnCounts(0, 0);
    control->setItemAndColumnCounts(texts.size(), 3);
    EXPECT_TRUE(list->isColumnHidden(0)) << "The user has hidden it.";
    EXPECT_FALSE(list->isColumnHidden(2)) << "The owner said nothing of the new columns.";
    EXPECT_EQ(list->getCheckBoxMode(1), std::nullopt);

    control->onGetColumnHeaderText.iHandlerAdd(
        [](auto&, std::size_t column) { return "Column " + std::to_string(column + 1); });
    control->setItemAndColumnCounts(texts.size(), 2);
    EXPECT_FALSE(list->isColumnHidden(0));
    EXPECT_EQ(list->getHeaderText(0), "Column 1");
    EXPECT_EQ(list->getHeaderText(2), "");
}

TEST_F(HeadlessListControlTest, ColumnsStandAsTheUserHasArrangedThem)
{
    answerEditsWith(ListControl::EditBox);
    control->loadSettings({{}, {1}, {2, 1, 0}, {{2, true}}});
    EXPECT_EQ(list->dump(), R"(  Column 2 | Column 0
  F30 | W1
  F60 | W2
   | W10
)");
    EXPECT_EQ(list->paste(1, 2, {{"A", "B"}}).takenCells, 2u);
    EXPECT_EQ(ends.back().items.front(), (ListControl::ItemInfo{1, 0}));
    EXPECT_THAT(control->getSettings().sorting, ElementsAre(ListSortColumn{2, true}));
}

TEST_F(HeadlessListControlTest, SettingsAreKeptAndLoaded)
{
    ListControlSettings const settings{{100, 50}, {2}};
    control->loadSettings(settings);
    EXPECT_EQ(control->getSettings(), settings);
    EXPECT_TRUE(list->isColumnHidden(2));
}

TEST_F(HeadlessListControlTest, APopupIsHiddenUntilItIsShown)
{
    auto const popup = createList(ListControl::PopupStyle | ListControl::PopupReportStyle);
    EXPECT_FALSE(popup->isVisible());
    EXPECT_TRUE(popup->isUsingReportStyle());
    popup->show();
    EXPECT_TRUE(popup->isVisible());
    dialog->moveDelta({100, 100});
    EXPECT_EQ(popup->getPositionOnScreen(), (Position{10, 10}));
}

} // namespace
