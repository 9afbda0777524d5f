#include "Ui/List/ListEditing.h"

#include "UiTest.h"

#include <algorithm>
#include <map>

namespace {

using namespace qev;
using namespace qev::ui;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::size_t nameColumn = 0;
constexpr std::size_t statusColumn = 1;
constexpr std::size_t externalColumn = 2;
constexpr std::size_t lockedColumn = 3;

/// A table of texts: names, a list of states, check boxes, and a column that nobody may edit.
class ListEditingTest : public test::UiTest
{
protected:
    ListEditingTest()
        : control(createList())
        , editing(control)
    {
        control->setItemAndColumnCounts(texts.size(), 4);
        control->enableColumnCheckBoxes(externalColumn, ListControl::BoxAlone, nullptr, nullptr);
        control->onGetColumnHeaderText.iHandlerAdd(
            [](auto&, std::size_t column) { return "Column " + std::to_string(column); });
        control->onGetItemText.iHandlerAdd([this](auto&, ListControl::ItemInfo const& item) {
            return item.column == externalColumn ? std::string() : textOf(item);
        });
        control->onGetCheckState.iHandlerAdd(
            [this](auto&, ListControl::ItemInfo const& item) -> std::optional<CheckState> {
                return textOf(item) == "x" ? CheckState::Checked : CheckState::Unchecked;
            });
        control->onCheckBoxClicked.iHandlerAdd(
            [this](auto&, ListControl::ItemInfo const& item, CheckState state) {
                textOf(item) = state == CheckState::Checked ? "x" : "";
            });
        control->onLabelEditBegin.iHandlerAdd(
            [this](auto&, ListControl::LabelEditBeginParams const& params) { return answer(params); });
        control->onLabelEditEnd.iHandlerAdd(
            [this](auto&, ListControl::LabelEditEndParams const& params) { finish(params); });
        control->onEditsBegin.iHandlerAdd([this](auto&) {
            ++groups;
            return std::shared_ptr<void>();
        });
    }

    std::string& textOf(ListControl::ItemInfo const& item) { return texts[*item.item][*item.column]; }

    ListControl::LabelEditBeginResultParams answer(ListControl::LabelEditBeginParams const& params) const
    {
        bool const isLocked = std::any_of(params.items.begin(), params.items.end(), [&](auto const& item) {
            return *item.item == lockedRow || *item.column == lockedColumn;
        });
        if (isLocked || *params.items.front().column == externalColumn)
            return {};
        if (*params.items.front().column == statusColumn)
            return {ListControl::DropList, {"NEW", "OLD"}};
        return {ListControl::EditBox, {}};
    }

    /// Takes every text but "bad".
    void finish(ListControl::LabelEditEndParams const& params)
    {
        ends.push_back(params);
        if (!params.accepted)
            return;
        for (auto const& item : params.items) {
            if (params.text == "bad")
                params.refuse(item);
            else
                textOf(item) = params.selectedIndex == ListControl::noSelection ? "" : params.text;
        }
    }

    std::vector<std::vector<std::string>> texts = {
        {"W1", "NEW", "x", "1"}, {"W2", "NEW", "", "2"}, {"W10", "OLD", "", "3"}, {"W11", "", "x", "4"}};
    std::size_t lockedRow = 99;
    std::vector<ListControl::LabelEditEndParams> ends;
    int groups = 0;
    std::shared_ptr<ListControl> control;
    ListEditing editing;
};

TEST_F(ListEditingTest, AnEditorOpensWithTheTextOfItsCell)
{
    auto const edit = editing.begin({{0, nameColumn}});
    ASSERT_TRUE(edit);
    EXPECT_EQ(edit->text, "W1");
    EXPECT_EQ(edit->editor.editType, ListControl::EditBox);
    EXPECT_FALSE(editing.begin({{0, lockedColumn}}));
}

TEST_F(ListEditingTest, AnEditorOfCellsThatDifferOpensEmpty)
{
    EXPECT_EQ(editing.begin({{0, statusColumn}, {1, statusColumn}})->text, "NEW");
    EXPECT_EQ(editing.begin({{0, statusColumn}, {2, statusColumn}})->text, "");
}

TEST_F(ListEditingTest, AnEditorOpensWithAllDigitsWhereTheOwnerHasThem)
{
    control->onGetItemEditText.iHandlerAdd([](auto&, ListControl::ItemInfo const&) { return "2.3456789"; });
    EXPECT_EQ(editing.begin({{0, nameColumn}})->text, "2.3456789");
}

TEST_F(ListEditingTest, AnEditorThatNobodyTypedIntoWritesNothing)
{
    EXPECT_EQ(editing.commitText(*editing.begin({{0, nameColumn}}), "W1").takenCells, 0u);
    EXPECT_EQ(editing.commitText(*editing.begin({{0, nameColumn}, {1, nameColumn}}), "").takenCells, 0u);
    ASSERT_EQ(ends.size(), 2u);
    EXPECT_FALSE(ends[0].accepted);
    EXPECT_FALSE(ends[1].accepted);
    EXPECT_EQ(texts[1][nameColumn], "W2");
}

TEST_F(ListEditingTest, ATextGoesToAllCellsOfTheEdit)
{
    auto const result = editing.commitText(*editing.begin({{0, nameColumn}, {2, nameColumn}}), "Wall");
    EXPECT_EQ(result.takenCells, 2u);
    EXPECT_THAT(result.refusals, IsEmpty());
    EXPECT_EQ(texts[0][nameColumn], "Wall");
    EXPECT_EQ(texts[1][nameColumn], "W2");
    EXPECT_EQ(texts[2][nameColumn], "Wall");
}

TEST_F(ListEditingTest, ATextThatTheOwnerDoesNotTakeIsRefused)
{
    auto const result = editing.commitText(*editing.begin({{1, nameColumn}}), "bad");
    EXPECT_EQ(result.takenCells, 0u);
    EXPECT_THAT(result.refusals,
                ElementsAre(ListRefusal{{1, nameColumn}, ListRefusalReason::NotTaken, "bad"}));
}

TEST_F(ListEditingTest, ADropListTakesItsEntriesOnly)
{
    auto const refused = editing.commitText(*editing.begin({{0, statusColumn}}), "BROKEN");
    EXPECT_THAT(refused.refusals,
                ElementsAre(ListRefusal{{0, statusColumn}, ListRefusalReason::NotAnEntry, "BROKEN"}));
    EXPECT_FALSE(ends.back().accepted);

    EXPECT_EQ(editing.commitText(*editing.begin({{0, statusColumn}}), "OLD").takenCells, 1u);
    EXPECT_EQ(ends.back().getSelectedDropListIndex(), 1u);
    EXPECT_EQ(editing.commitChoice(*editing.begin({{0, statusColumn}}), 0).takenCells, 1u);
    EXPECT_EQ(texts[0][statusColumn], "NEW");
    EXPECT_EQ(editing.commitChoice(*editing.begin({{0, statusColumn}}), 2).refusals.size(), 1u);
    EXPECT_FALSE(ends.back().accepted);
}

TEST_F(ListEditingTest, AnEmptyTextTakesTheValueOfADropListAway)
{
    EXPECT_EQ(editing.commitText(*editing.begin({{0, statusColumn}}), "").takenCells, 1u);
    EXPECT_EQ(ends.back().selectedIndex, ListControl::noSelection);
    EXPECT_FALSE(ends.back().hasSelection);
    EXPECT_EQ(texts[0][statusColumn], "");
}

TEST_F(ListEditingTest, AnEditBoxInAColumnOfComboBoxesIsADropDown)
{
    auto const edit = editing.begin({{0, nameColumn}});
    ASSERT_TRUE(edit);
    EXPECT_EQ(edit->editor.editType, ListControl::EditBox);

    control->activateComboBoxEditingForColumn(nameColumn);
    control->activateComboBoxEditingForColumn(statusColumn);
    auto const combo = editing.begin({{0, nameColumn}});
    ASSERT_TRUE(combo);
    EXPECT_EQ(combo->editor.editType, ListControl::DropDown);
    EXPECT_EQ(editing.commitText(*combo, "W3").takenCells, 1u);
    EXPECT_EQ(texts[0][nameColumn], "W3");
    EXPECT_FALSE(ends.back().hasSelection);
    auto const dropList = editing.begin({{0, statusColumn}});
    ASSERT_TRUE(dropList);
    EXPECT_EQ(dropList->editor.editType, ListControl::DropList);
    EXPECT_FALSE(editing.begin({{lockedRow = 1, nameColumn}}));
}

TEST_F(ListEditingTest, WhatWouldBeRefusedIsToldWithoutWriting)
{
    using Reason = ListRefusalReason;
    auto const before = texts;
    EXPECT_EQ(editing.findRefusal({0, nameColumn}, "W3"), std::nullopt);
    EXPECT_EQ(editing.findRefusal({0, lockedColumn}, "9"), Reason::NotEditable);
    EXPECT_EQ(editing.findRefusal({0, lockedColumn}, "1"), std::nullopt) << "It says so already.";
    EXPECT_EQ(editing.findRefusal({0, statusColumn}, "OLD"), std::nullopt);
    EXPECT_EQ(editing.findRefusal({0, statusColumn}, ""), std::nullopt);
    EXPECT_EQ(editing.findRefusal({0, statusColumn}, "BROKEN"), Reason::NotAnEntry);
    EXPECT_EQ(editing.findRefusal({1, externalColumn}, "TRUE"), std::nullopt);
    EXPECT_EQ(editing.findRefusal({1, externalColumn}, "maybe"), Reason::NotAnEntry);

    control->onWouldTakeLabelEdit.iHandlerAdd(
        [](auto&, ListControl::LabelEditEndParams const& params) { return params.text.size() > 3; });
    EXPECT_EQ(editing.findRefusal({0, nameColumn}, "bad"), Reason::NotTaken);
    EXPECT_EQ(editing.findRefusal({0, nameColumn}, "good"), std::nullopt);
    EXPECT_EQ(editing.findRefusal({1, externalColumn}, "1"), std::nullopt) << "Asked as TRUE.";
    control->onIsItemReadOnly.iHandlerAdd([](auto&, ListControl::ItemInfo const&) { return true; });
    EXPECT_EQ(editing.findRefusal({1, externalColumn}, "TRUE"), Reason::NotEditable);
    EXPECT_EQ(texts, before);
    EXPECT_TRUE(ends.empty());
}

TEST_F(ListEditingTest, CancellingTellsTheOwner)
{
    editing.cancel(*editing.begin({{0, nameColumn}}));
    ASSERT_EQ(ends.size(), 1u);
    EXPECT_FALSE(ends[0].accepted);
    EXPECT_THAT(ends[0].items, ElementsAre(ListControl::ItemInfo{0, nameColumn}));
}

TEST_F(ListEditingTest, CellsAreCopiedAsTheyAreShown)
{
    EXPECT_EQ(editing.copy({2, 0}, {nameColumn, externalColumn, lockedColumn}, false),
              (ListBlock{{"W10", "FALSE", "3"}, {"W1", "TRUE", "1"}}));
    EXPECT_EQ(editing.copy({0}, {nameColumn}, true), (ListBlock{{"Column 0"}, {"W1"}}));
}

TEST_F(ListEditingTest, ABlockIsPastedFromItsFirstCellOn)
{
    auto const result = editing.paste({1, 2, 3}, {nameColumn, statusColumn}, {{"A", "OLD"}, {"B", "NEW"}});
    EXPECT_EQ(result.takenCells, 4u);
    EXPECT_THAT(result.refusals, IsEmpty());
    EXPECT_EQ(texts[1], (std::vector<std::string>{"A", "OLD", "", "2"}));
    EXPECT_EQ(texts[2], (std::vector<std::string>{"B", "NEW", "", "3"}));
    EXPECT_EQ(texts[3][nameColumn], "W11");
    EXPECT_EQ(groups, 1);
}

TEST_F(ListEditingTest, WhatDoesNotFitInIsLeftOut)
{
    EXPECT_EQ(editing.paste({3}, {nameColumn}, {{"A", "OLD"}, {"B", "NEW"}}).takenCells, 1u);
    EXPECT_EQ(editing.paste({0, 1}, {nameColumn, statusColumn}, {{"C"}, {}}).takenCells, 1u);
    EXPECT_EQ(texts[3], (std::vector<std::string>{"A", "", "x", "4"}));
    EXPECT_EQ(texts[1][nameColumn], "W2");
}

TEST_F(ListEditingTest, OneCellIsPastedIntoAll)
{
    auto const result = editing.paste({0, 2}, {nameColumn, lockedColumn}, {{"A"}});
    EXPECT_EQ(result.takenCells, 2u);
    EXPECT_EQ(texts[2][nameColumn], "A");
    EXPECT_EQ(texts[1][nameColumn], "W2");
    EXPECT_THAT(result.refusals,
                ElementsAre(ListRefusal{{0, lockedColumn}, ListRefusalReason::NotEditable, "A"},
                            ListRefusal{{2, lockedColumn}, ListRefusalReason::NotEditable, "A"}));
}

TEST_F(ListEditingTest, CellsThatRefuseAPasteAreToldInTheirOrder)
{
    lockedRow = 1;
    auto const result =
        editing.paste({0, 1, 2}, {nameColumn, statusColumn, externalColumn},
                      {{"bad", "NEW", "maybe"}, {"A", "OLD", "TRUE"}, {"B", "BROKEN", "true"}});
    EXPECT_THAT(result.refusals,
                ElementsAre(ListRefusal{{0, nameColumn}, ListRefusalReason::NotTaken, "bad"},
                            ListRefusal{{0, externalColumn}, ListRefusalReason::NotAnEntry, "maybe"},
                            ListRefusal{{1, nameColumn}, ListRefusalReason::NotEditable, "A"},
                            ListRefusal{{1, statusColumn}, ListRefusalReason::NotEditable, "OLD"},
                            ListRefusal{{2, statusColumn}, ListRefusalReason::NotAnEntry, "BROKEN"}));
    EXPECT_EQ(texts[2], (std::vector<std::string>{"B", "OLD", "x", "3"}));
}

TEST_F(ListEditingTest, CellsThatSayTheTextAlreadyAreLeftAlone)
{
    auto const result = editing.paste({0, 1}, {nameColumn, lockedColumn}, {{"W1", "1"}, {"W3", "2"}});
    EXPECT_EQ(result.takenCells, 1u);
    EXPECT_THAT(result.refusals, IsEmpty());
    ASSERT_EQ(ends.size(), 1u);
    EXPECT_EQ(ends[0].items.front(), (ListControl::ItemInfo{1, nameColumn}));
}

TEST_F(ListEditingTest, ANumberCopiedAsItIsShownIsNotRounded)
{
    control->onGetItemEditText.iHandlerAdd([](auto&, ListControl::ItemInfo const&) { return "2.3456789"; });
    texts[0][nameColumn] = "2.35 m";
    EXPECT_EQ(editing.setText({{0, nameColumn}}, "2.35 m").takenCells, 0u);
    EXPECT_EQ(editing.setText({{0, nameColumn}}, "2.35").takenCells, 1u);
}

TEST_F(ListEditingTest, AZeroThatStandsForNoValueCanBeTyped)
{
    control->onGetItemEditText.iHandlerAdd([](auto&, ListControl::ItemInfo const&) { return ""; });
    texts[0][nameColumn] = "0 m";
    EXPECT_EQ(editing.clear({{0, nameColumn}}).takenCells, 0u);
    EXPECT_EQ(editing.setText({{0, nameColumn}}, "0 m").takenCells, 1u);
}

TEST_F(ListEditingTest, TheFirstRowFillsTheOthers)
{
    auto const result = editing.fillDown({2, 0, 3}, {nameColumn, statusColumn, externalColumn});
    EXPECT_EQ(result.takenCells, 6u);
    EXPECT_EQ(texts[0], (std::vector<std::string>{"W10", "OLD", "", "1"}));
    EXPECT_EQ(texts[3], (std::vector<std::string>{"W10", "OLD", "", "4"}));
    EXPECT_EQ(texts[1][nameColumn], "W2");
    EXPECT_EQ(groups, 1);
    EXPECT_EQ(editing.fillDown({0}, {nameColumn}).takenCells, 0u);
}

TEST_F(ListEditingTest, ValuesAreTakenAwayWhereTheyCanBe)
{
    auto const result =
        editing.clear({{0, nameColumn}, {0, statusColumn}, {0, externalColumn}, {3, statusColumn}});
    EXPECT_EQ(result.takenCells, 2u);
    EXPECT_EQ(texts[0], (std::vector<std::string>{"", "", "x", "1"}));
    EXPECT_THAT(result.refusals,
                ElementsAre(ListRefusal{{0, externalColumn}, ListRefusalReason::NotEditable, ""}));
}

TEST_F(ListEditingTest, CheckBoxesFollowTheFirst)
{
    EXPECT_EQ(
        editing.clickCheckBoxes({{1, externalColumn}, {0, externalColumn}, {2, externalColumn}}).takenCells,
        2u);
    EXPECT_EQ(texts[1][externalColumn], "x");
    EXPECT_EQ(texts[0][externalColumn], "x");
    EXPECT_EQ(texts[2][externalColumn], "x");
    EXPECT_EQ(editing.clickCheckBoxes({{0, externalColumn}, {1, externalColumn}}).takenCells, 2u);
    EXPECT_EQ(texts[1][externalColumn], "");
    EXPECT_EQ(editing.clickCheckBoxes({}).takenCells, 0u);
}

TEST_F(ListEditingTest, CheckBoxesThatCannotBeChangedAreRefused)
{
    control->onIsItemReadOnly.iHandlerAdd(
        [](auto&, ListControl::ItemInfo const& item) { return item.item == 1; });
    auto const result = editing.clickCheckBoxes({{2, externalColumn}, {1, externalColumn}, {0, nameColumn}});
    EXPECT_EQ(result.takenCells, 1u);
    EXPECT_THAT(result.refusals,
                ElementsAre(ListRefusal{{0, nameColumn}, ListRefusalReason::NotEditable, "TRUE"},
                            ListRefusal{{1, externalColumn}, ListRefusalReason::NotEditable, "TRUE"}));
}

TEST_F(ListEditingTest, ACheckBoxWithoutAValueCanBecomeFalse)
{
    std::vector<CheckState> clicks;
    control->onGetItemEditText.iHandlerAdd([](auto&, ListControl::ItemInfo const&) { return ""; });
    control->onCheckBoxClicked.iHandlerAdd(
        [&](auto&, ListControl::ItemInfo const&, CheckState state) { clicks.push_back(state); });
    EXPECT_EQ(editing.setText({{1, externalColumn}}, "FALSE").takenCells, 1u);
    EXPECT_THAT(clicks, ElementsAre(CheckState::Unchecked));
}

TEST_F(ListEditingTest, BlocksGoThroughTheClipboard)
{
    ListBlock const block = {{"a\tb", "c"}, {"", "\"d\"\ne"}};
    EXPECT_EQ(blockFromTabSeparatedText(blockAsTabSeparatedText(block)), block);
    EXPECT_EQ(blockAsTabSeparatedText({{"W1", "F30"}}), "W1\tF30\n");
    EXPECT_EQ(blockAsHtml({{"Name"}, {"<a> & \"b\"\nc"}}, true),
              "<meta charset=\"utf-8\"><table><tr><th>Name</th></tr>"
              "<tr><td>&lt;a&gt; &amp; &quot;b&quot;<br>c</td></tr></table>");
    EXPECT_EQ(blockAsHtml({{"1"}}, false), "<meta charset=\"utf-8\"><table><tr><td>1</td></tr></table>");
}

} // namespace
