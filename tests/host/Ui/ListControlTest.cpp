#include "Ui/Window/Controls/ListControl/ListControl.h"

#include "UiTest.h"

#include <functional>
#include <utility>

namespace {

using namespace qev;
using namespace qev::ui;

constexpr auto listPath = "Ui/Window/Controls/ListControl/ListControl";
constexpr auto labelEditPath = "Ui/Window/Controls/ListControl/LabelEditParams";

void expectListReport(std::string const& text, std::string const& operation)
{
    test::expectReport(text, "qev::ui::ListControl::" + operation, listPath);
}

void expectLabelEditReport(std::string const& text, std::string const& operation)
{
    test::expectReport(text, "qev::ui::ListControl::" + operation, labelEditPath);
}

class ListControlTest : public test::UiTest
{
};

TEST_F(ListControlTest, EachOperationReportsAMissingPlatformSide)
{
    std::vector<std::pair<std::string, std::function<void(ListControl&)>>> const operations = {
        {"setItemAndColumnCounts", [](auto& list) { list.setItemAndColumnCounts(1, 1); }},
        {"getItemCount", [](auto& list) { EXPECT_EQ(list.getItemCount(), 0u); }},
        {"getColumnCount", [](auto& list) { EXPECT_EQ(list.getColumnCount(), 0u); }},
        {"redrawItem", [](auto& list) { list.redrawItem(0); }},
        {"getSelectedItems", [](auto& list) { EXPECT_TRUE(list.getSelectedItems().empty()); }},
        {"enableColumnCheckBoxes", [](auto& list) { list.enableColumnCheckBoxes(0, 0, nullptr, nullptr); }},
        {"getCheckBoxMode", [](auto& list) { EXPECT_EQ(list.getCheckBoxMode(0), std::nullopt); }},
        {"activateComboBoxEditingForColumn", [](auto& list) { list.activateComboBoxEditingForColumn(0); }},
        {"isComboBoxColumn", [](auto& list) { EXPECT_FALSE(list.isComboBoxColumn(0)); }},
        {"isUsingReportStyle", [](auto& list) { EXPECT_FALSE(list.isUsingReportStyle()); }},
        {"enableLabelEdit", [](auto& list) { list.enableLabelEdit(); }},
        {"startLabelEdit", [](auto& list) { list.startLabelEdit(0); }},
        {"addStyleFlags", [](auto& list) { list.addStyleFlags(1); }},
        {"getSettings", [](auto& list) { EXPECT_EQ(list.getSettings(), ListControlSettings()); }},
        {"loadSettings", [](auto& list) { list.loadSettings({}); }},
    };
    ListControl list;
    for (auto const& [name, operation] : operations) {
        operation(list);
        expectListReport("List control interface not set.", name);
    }
}

TEST_F(ListControlTest, TheHeaderReportsAMissingPlatformSide)
{
    ListControl list;
    list.getHeader().setDefaultHiddenColumns({1});
    test::expectReport("List control header interface not set.",
                       "qev::ui::ListControlHeader::setDefaultHiddenColumns",
                       "Ui/Window/Controls/ListControl/ListControlHeader");
}

TEST_F(ListControlTest, TheHeaderFollowsTheListToItsPlatformSide)
{
    auto const list = createList();
    list->getHeader().setDefaultHiddenColumns({1});
    EXPECT_TRUE(backend->getListControl(*list)->isColumnHidden(1));
    list->detach(true);
    list->getHeader().setDefaultHiddenColumns({1});
    EXPECT_THAT(test::takeReportTexts(), testing::ElementsAre("List control header interface not set."));
}

TEST_F(ListControlTest, ReportsComboBoxesAndLabelEditOutsideOfTheReportStyle)
{
    auto const list = createList(0);
    list->activateComboBoxEditingForColumn(0);
    expectListReport("Only applies to report style controls.", "activateComboBoxEditingForColumn");
    list->enableLabelEdit();
    expectListReport("Only applies to report style controls.", "enableLabelEdit");
    EXPECT_EQ(backend->getListControl(*list)->getStyleFlags(), 0u);
}

TEST_F(ListControlTest, LabelEditAddsItsFlags)
{
    auto const list = createList();
    list->enableLabelEdit();
    EXPECT_EQ(backend->getListControl(*list)->getStyleFlags(), 11u);
}

TEST_F(ListControlTest, TheBeginningOfAnEditKnowsItsOneItem)
{
    ListControl::LabelEditBeginParams params{{{2, 3}}};
    EXPECT_EQ(params.getItemToEdit(), (ListControl::ItemInfo{2, 3}));
    params.items.push_back({4, 3});
    EXPECT_EQ(params.getItemToEdit(), (ListControl::ItemInfo{2, 3}));
    expectLabelEditReport("Should only be called when editing ONE item.",
                          "LabelEditBeginParams::getItemToEdit");
}

TEST_F(ListControlTest, TheEndOfAnEditKnowsItsColumn)
{
    ListControl::LabelEditEndParams params;
    EXPECT_EQ(params.getColumnIndex(), 0u);
    expectLabelEditReport("No items are being edited.", "LabelEditEndParams::getColumnIndex");
    params.items = {{2, 3}};
    EXPECT_EQ(params.getColumnIndex(), 3u);
    params.items = {{2, std::nullopt}};
    EXPECT_EQ(params.getColumnIndex(), 0u);
}

TEST_F(ListControlTest, TheEndOfAnEditGivesItsTextExceptForADropList)
{
    ListControl::LabelEditEndParams params;
    params.text = "F60";
    params.editType = ListControl::EditBox;
    EXPECT_EQ(params.getEditBoxText(), "F60");
    params.editType = ListControl::DropDown;
    EXPECT_EQ(params.getEditBoxText(), "F60");
    params.editType = ListControl::DropList;
    EXPECT_EQ(params.getEditBoxText(), "F60");
    expectLabelEditReport("This is a drop list label edit control: Call iDropIndSelected() instead.",
                          "LabelEditEndParams::getEditBoxText");
}

TEST_F(ListControlTest, TheEndOfAnEditGivesTheChosenEntryOfAList)
{
    ListControl::LabelEditEndParams params;
    params.selectedIndex = 2;
    params.hasSelection = true;
    params.editType = ListControl::DropList;
    EXPECT_EQ(params.getSelectedDropListIndex(), 2u);
    params.editType = ListControl::DropDown;
    EXPECT_EQ(params.getSelectedDropListIndex(), 2u);
    params.hasSelection = false;
    EXPECT_EQ(params.getSelectedDropListIndex(), 2u);
    expectLabelEditReport("Nothing was selected in the drop down, i.e. a new text was written.",
                          "LabelEditEndParams::getSelectedDropListIndex");
    params.editType = ListControl::EditBox;
    EXPECT_EQ(params.getSelectedDropListIndex(), 2u);
    expectLabelEditReport("Not a drop down or drop list control.",
                          "LabelEditEndParams::getSelectedDropListIndex");
}

TEST_F(ListControlTest, TheEndOfAnEditKnowsItsOneItem)
{
    ListControl::LabelEditEndParams params;
    params.items = {{2, 3}};
    EXPECT_EQ(params.getEditedItem(), (ListControl::ItemInfo{2, 3}));
    params.items.push_back({4, 3});
    EXPECT_EQ(params.getEditedItem(), (ListControl::ItemInfo{2, 3}));
    expectLabelEditReport("Should only be called for column for which editing several items is not allowed.",
                          "LabelEditEndParams::getEditedItem");
}

TEST_F(ListControlTest, TheEndOfAnEditNotesTheItemsThatRefuse)
{
    ListControl::LabelEditEndParams params;
    params.refuse({2, 3});
    params.refusedItems = std::make_shared<std::vector<ListControl::ItemInfo>>();
    params.refuse({4, 3});
    EXPECT_THAT(*params.refusedItems, testing::ElementsAre(ListControl::ItemInfo{4, 3}));
}

TEST_F(ListControlTest, ColumnsKeepTheirCheckBoxesUntilThereAreNoColumns)
{
    auto const list = createList();
    list->enableColumnCheckBoxes(1, ListControl::BoxWithValue, nullptr, nullptr);
    list->activateComboBoxEditingForColumn(2);
    list->getHeader().setDefaultHiddenColumns({0});
    list->setItemAndColumnCounts(5, 3);
    EXPECT_EQ(list->getItemCount(), 5u);
    EXPECT_EQ(list->getColumnCount(), 3u);
    EXPECT_EQ(list->getCheckBoxMode(0), std::nullopt);
    EXPECT_EQ(list->getCheckBoxMode(1), ListControl::BoxWithValue);
    EXPECT_TRUE(list->isComboBoxColumn(2));

    list->setItemAndColumnCounts(0, 0);
    list->setItemAndColumnCounts(5, 3);
    EXPECT_EQ(list->getCheckBoxMode(1), std::nullopt);
    EXPECT_FALSE(list->isComboBoxColumn(2));
    EXPECT_EQ(list->getSettings(), ListControlSettings());
}

TEST_F(ListControlTest, AnItemStyleIsPlainUnlessToldOtherwise)
{
    ListControl::ItemStyle const style;
    EXPECT_EQ(style.textColour, std::nullopt);
    EXPECT_EQ(style.flags, 0u);
}

} // namespace
