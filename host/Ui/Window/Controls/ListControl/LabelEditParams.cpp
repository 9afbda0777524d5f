#include "Ui/Window/Controls/ListControl/ListControl.h"

#include "Core/Assert/Assert.h"

namespace qev::ui {

namespace {

void reportFrom(std::string_view operation, std::string_view text)
{
    assert::report(text, "qev::ui::ListControl::" + std::string(operation),
                   "Ui/Window/Controls/ListControl/LabelEditParams");
}

ListControl::ItemInfo firstItem(std::vector<ListControl::ItemInfo> const& items)
{
    return items.empty() ? ListControl::ItemInfo() : items.front();
}

} // namespace

ListControl::ItemInfo ListControl::LabelEditBeginParams::getItemToEdit() const
{
    if (items.size() > 1)
        reportFrom("LabelEditBeginParams::getItemToEdit", "Should only be called when editing ONE item.");
    return firstItem(items);
}

std::size_t ListControl::LabelEditEndParams::getColumnIndex() const
{
    if (items.empty()) {
        reportFrom("LabelEditEndParams::getColumnIndex", "No items are being edited.");
        return 0;
    }
    return items.front().column.value_or(0);
}

std::string const& ListControl::LabelEditEndParams::getEditBoxText() const
{
    if (editType == DropList)
        reportFrom("LabelEditEndParams::getEditBoxText",
                   "This is a drop list label edit control: Call iDropIndSelected() instead.");
    return text;
}

std::size_t ListControl::LabelEditEndParams::getSelectedDropListIndex() const
{
    if (editType != DropList && editType != DropDown)
        reportFrom("LabelEditEndParams::getSelectedDropListIndex", "Not a drop down or drop list control.");
    if (editType == DropDown && !hasSelection)
        reportFrom("LabelEditEndParams::getSelectedDropListIndex",
                   "Nothing was selected in the drop down, i.e. a new text was written.");
    return selectedIndex;
}

ListControl::ItemInfo ListControl::LabelEditEndParams::getEditedItem() const
{
    if (items.size() > 1)
        reportFrom("LabelEditEndParams::getEditedItem",
                   "Should only be called for column for which editing several items is not allowed.");
    return firstItem(items);
}

void ListControl::LabelEditEndParams::refuse(ItemInfo const& item) const
{
    if (refusedItems)
        refusedItems->push_back(item);
}

} // namespace qev::ui
