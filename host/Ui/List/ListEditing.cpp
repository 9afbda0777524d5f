#include "Ui/List/ListEditing.h"

#include "Core/String/Ascii.h"

#include <algorithm>
#include <map>
#include <utility>

namespace qev::ui {

namespace {

using ItemInfo = ListControl::ItemInfo;
using Items = ListEditing::Items;

constexpr char checkedText[] = "TRUE";
constexpr char uncheckedText[] = "FALSE";

std::size_t columnOf(ItemInfo const& item) { return item.column.value_or(0); }

std::map<std::size_t, Items> byColumn(Items const& items)
{
    std::map<std::size_t, Items> columns;
    for (auto const& item : items)
        columns[columnOf(item)].push_back(item);
    return columns;
}

std::optional<std::size_t> indexOf(std::vector<std::string> const& entries, std::string_view text)
{
    auto const found = std::find(entries.begin(), entries.end(), text);
    if (found == entries.end())
        return std::nullopt;
    return static_cast<std::size_t>(found - entries.begin());
}

std::optional<CheckState> checkStateOf(std::string_view text)
{
    auto const upper = str::toUpper(text);
    if (upper == checkedText || upper == "1")
        return CheckState::Checked;
    if (upper == uncheckedText || upper == "0")
        return CheckState::Unchecked;
    return std::nullopt;
}

/// Looks up \p text in the entries of \p editor. Of a drop list the empty text stands for no selection.
std::optional<std::size_t> findEntry(ListControl::LabelEditBeginResultParams const& editor,
                                     std::string_view text)
{
    auto const index = indexOf(editor.items, text);
    bool const takesAway = !index && text.empty() && editor.editType == ListControl::DropList;
    return takesAway ? ListControl::noSelection : index;
}

ListControl::LabelEditEndParams makeEnd(ListEdit const& edit, std::string_view text,
                                        std::optional<std::size_t> selectedIndex)
{
    ListControl::LabelEditEndParams params;
    params.accepted = true;
    params.items = edit.items;
    params.editType = edit.editor.editType;
    params.text = text;
    params.selectedIndex = selectedIndex.value_or(0);
    params.hasSelection = selectedIndex && *selectedIndex != ListControl::noSelection;
    return params;
}

void refuseAll(Items const& items, ListRefusalReason reason, std::string_view text, ListEditResult& result)
{
    for (auto const& item : items)
        result.refusals.push_back({item, reason, std::string(text)});
}

void sortRefusals(ListEditResult& result)
{
    std::stable_sort(result.refusals.begin(), result.refusals.end(),
                     [](ListRefusal const& left, ListRefusal const& right) {
                         return std::pair(left.item.item, left.item.column) <
                                std::pair(right.item.item, right.item.column);
                     });
}

} // namespace

std::optional<ListEdit> ListEditing::begin(Items items) const
{
    auto editor = askEditor(items);
    if (editor.editType == ListControl::NoEdit)
        return std::nullopt;
    auto text = getCommonEditText(items);
    return ListEdit{std::move(items), std::move(editor), std::move(text)};
}

ListEditResult ListEditing::commitText(ListEdit const& edit, std::string_view text) const
{
    ListEditResult result;
    auto const& [items, editor, openedWith] = edit;
    bool const isNewRow = items.front().item.value_or(0) >= m_list->getItemCount();
    auto const selectedIndex = findEntry(editor, text);
    if (text == openedWith && !isNewRow) {
        cancel(edit);
    } else if (selectedIndex || editor.editType != ListControl::DropList) {
        end(edit, text, selectedIndex, result);
    } else {
        cancel(edit);
        refuseAll(items, ListRefusalReason::NotAnEntry, text, result);
    }
    return result;
}

ListEditResult ListEditing::commitChoice(ListEdit const& edit, std::size_t index) const
{
    ListEditResult result;
    if (index < edit.editor.items.size()) {
        end(edit, edit.editor.items[index], index, result);
    } else {
        cancel(edit);
        refuseAll(edit.items, ListRefusalReason::NotAnEntry, {}, result);
    }
    return result;
}

void ListEditing::cancel(ListEdit const& edit) const
{
    ListControl::LabelEditEndParams params;
    params.items = edit.items;
    params.editType = edit.editor.editType;
    params.text = edit.text;
    fireEvent(m_list->onLabelEditEnd, params);
}

std::string ListEditing::getCopyText(ItemInfo const& item) const
{
    if (!isCheckBoxAlone(columnOf(item)))
        return fireEvent(m_list->onGetItemText, item);
    if (m_list->onGetItemEditText.handlerCount() > 0)
        return getEditText(item);
    auto const state = getCheckState(item);
    if (!state || *state == CheckState::Indeterminate)
        return {};
    return *state == CheckState::Checked ? checkedText : uncheckedText;
}

ListBlock ListEditing::copy(std::vector<std::size_t> const& rows, std::vector<std::size_t> const& columns,
                            bool withHeaders) const
{
    ListBlock block;
    block.reserve(rows.size() + 1);
    if (withHeaders) {
        auto& headers = block.emplace_back();
        for (auto const column : columns)
            headers.push_back(fireEvent(m_list->onGetColumnHeaderText, column));
    }
    for (auto const row : rows) {
        auto& texts = block.emplace_back();
        for (auto const column : columns)
            texts.push_back(getCopyText({row, column}));
    }
    return block;
}

ListEditResult ListEditing::setText(Items const& items, std::string const& text) const
{
    ListEditResult result;
    auto const edits = fireEvent(m_list->onEditsBegin);
    for (auto const& [column, itemsOfColumn] : byColumn(items))
        setTextInColumn(itemsOfColumn, text, result);
    sortRefusals(result);
    return result;
}

ListEditResult ListEditing::fillDown(std::vector<std::size_t> const& rows,
                                     std::vector<std::size_t> const& columns) const
{
    ListEditResult result;
    if (rows.size() < 2)
        return result;
    auto const edits = fireEvent(m_list->onEditsBegin);
    for (auto const column : columns) {
        ItemInfo const source{rows.front(), column};
        Items targets;
        for (std::size_t index = 1; index < rows.size(); ++index)
            targets.push_back({rows[index], column});
        setTextInColumn(targets, isCheckBoxAlone(column) ? getCopyText(source) : getEditText(source), result);
    }
    sortRefusals(result);
    return result;
}

ListEditResult ListEditing::paste(std::vector<std::size_t> const& rows,
                                  std::vector<std::size_t> const& columns, ListBlock const& block) const
{
    if (block.size() == 1 && block.front().size() == 1) {
        Items items;
        for (auto const row : rows) {
            for (auto const column : columns)
                items.push_back({row, column});
        }
        return setText(items, block.front().front());
    }
    ListEditResult result;
    auto const edits = fireEvent(m_list->onEditsBegin);
    for (std::size_t columnIndex = 0; columnIndex < columns.size(); ++columnIndex) {
        // Cells that get the same text are one edit, so that the owner hears of few changes.
        std::map<std::string, Items> itemsByText;
        for (std::size_t rowIndex = 0; rowIndex < std::min(rows.size(), block.size()); ++rowIndex) {
            if (columnIndex < block[rowIndex].size())
                itemsByText[block[rowIndex][columnIndex]].push_back({rows[rowIndex], columns[columnIndex]});
        }
        for (auto const& [text, items] : itemsByText)
            setTextInColumn(items, text, result);
    }
    sortRefusals(result);
    return result;
}

ListEditResult ListEditing::clickCheckBoxes(Items const& items) const
{
    ListEditResult result;
    if (items.empty())
        return result;
    auto const edits = fireEvent(m_list->onEditsBegin);
    bool const isChecked = getCheckState(items.front()) == CheckState::Checked;
    setCheckStates(items, isChecked ? CheckState::Unchecked : CheckState::Checked, result);
    sortRefusals(result);
    return result;
}

std::optional<CheckState> ListEditing::getCheckState(ItemInfo const& item) const
{
    if (!m_list->getCheckBoxMode(columnOf(item)))
        return std::nullopt;
    fireEvent(m_list->onGetItemText, item);
    return fireEvent(m_list->onGetCheckState, item);
}

ListControl::LabelEditBeginResultParams ListEditing::askEditor(Items const& items) const
{
    auto editor = fireEvent(m_list->onLabelEditBegin, ListControl::LabelEditBeginParams{items});
    bool const isComboBox = !items.empty() && m_list->isComboBoxColumn(columnOf(items.front()));
    if (isComboBox && editor.editType == ListControl::EditBox)
        editor.editType = ListControl::DropDown;
    return editor;
}

void ListEditing::setTextInColumn(Items const& items, std::string const& text, ListEditResult& result) const
{
    auto const column = columnOf(items.front());
    if (isCheckBoxAlone(column)) {
        if (auto const state = checkStateOf(text))
            setCheckStates(items, *state, result);
        else
            refuseAll(items, text.empty() ? ListRefusalReason::NotEditable : ListRefusalReason::NotAnEntry,
                      text, result);
        return;
    }
    ListEdit edit;
    for (auto const& item : items) {
        if (says(item, text))
            continue;
        auto editor = askEditor({item});
        if (editor.editType == ListControl::NoEdit) {
            refuseAll({item}, ListRefusalReason::NotEditable, text, result);
            continue;
        }
        edit.items.push_back(item);
        edit.editor = std::move(editor);
    }
    if (edit.items.empty())
        return;
    auto const selectedIndex = findEntry(edit.editor, text);
    if (!selectedIndex && edit.editor.editType == ListControl::DropList)
        refuseAll(edit.items, ListRefusalReason::NotAnEntry, text, result);
    else
        end(edit, text, selectedIndex, result);
}

void ListEditing::setCheckStates(Items const& items, CheckState state, ListEditResult& result) const
{
    auto const text = state == CheckState::Checked ? checkedText : uncheckedText;
    for (auto const& item : items) {
        auto const present = getCheckState(item);
        if (present == state && !isUnsetBox(item))
            continue;
        if (!present || fireEvent(m_list->onIsItemReadOnly, item)) {
            refuseAll({item}, ListRefusalReason::NotEditable, text, result);
            continue;
        }
        fireEvent(m_list->onCheckBoxClicked, item, state);
        if (getCheckState(item) == state)
            ++result.takenCells;
        else
            refuseAll({item}, ListRefusalReason::NotTaken, text, result);
    }
}

std::optional<ListRefusalReason> ListEditing::findRefusal(ItemInfo const& item, std::string const& text) const
{
    if (says(item, text))
        return std::nullopt;
    if (isCheckBoxAlone(columnOf(item)))
        return findBoxRefusal(item, text);
    ListEdit const edit{{item}, askEditor({item}), {}};
    if (edit.editor.editType == ListControl::NoEdit)
        return ListRefusalReason::NotEditable;
    auto const selectedIndex = findEntry(edit.editor, text);
    if (!selectedIndex && edit.editor.editType == ListControl::DropList)
        return ListRefusalReason::NotAnEntry;
    return wouldTake(edit, text, selectedIndex) ? std::nullopt : std::optional(ListRefusalReason::NotTaken);
}

std::optional<ListRefusalReason> ListEditing::findBoxRefusal(ItemInfo const& item,
                                                             std::string const& text) const
{
    auto const state = checkStateOf(text);
    if (!state)
        return text.empty() ? ListRefusalReason::NotEditable : ListRefusalReason::NotAnEntry;
    if (!getCheckState(item) || fireEvent(m_list->onIsItemReadOnly, item))
        return ListRefusalReason::NotEditable;
    auto const value = *state == CheckState::Checked ? checkedText : uncheckedText;
    return wouldTake({{item}, {}, {}}, value, std::nullopt) ? std::nullopt
                                                            : std::optional(ListRefusalReason::NotTaken);
}

bool ListEditing::wouldTake(ListEdit const& edit, std::string_view text,
                            std::optional<std::size_t> selectedIndex) const
{
    return m_list->onWouldTakeLabelEdit.handlerCount() == 0 ||
           fireEvent(m_list->onWouldTakeLabelEdit, makeEnd(edit, text, selectedIndex));
}

bool ListEditing::says(ItemInfo const& item, std::string const& text) const
{
    auto const editText = getEditText(item);
    if (isCheckBoxAlone(columnOf(item)) && !editText.empty() && checkStateOf(text) == checkStateOf(editText))
        return true;
    // A cell without a value may show one all the same, such as a zero, and then does not say it.
    bool const hasValue = !editText.empty();
    return editText == text || (hasValue && fireEvent(m_list->onGetItemText, item) == text);
}

bool ListEditing::isUnsetBox(ItemInfo const& item) const
{
    return isCheckBoxAlone(columnOf(item)) && getCopyText(item).empty();
}

bool ListEditing::isCheckBoxAlone(std::size_t column) const
{
    return m_list->getCheckBoxMode(column) == ListControl::BoxAlone;
}

std::string ListEditing::getEditText(ItemInfo const& item) const
{
    if (item.item.value_or(0) >= m_list->getItemCount())
        return {};
    return m_list->onGetItemEditText.handlerCount() > 0 ? fireEvent(m_list->onGetItemEditText, item)
                                                        : fireEvent(m_list->onGetItemText, item);
}

std::string ListEditing::getCommonEditText(Items const& items) const
{
    auto const text = getEditText(items.front());
    bool const isCommon = std::all_of(items.begin() + 1, items.end(),
                                      [&](ItemInfo const& item) { return getEditText(item) == text; });
    return isCommon ? text : std::string();
}

void ListEditing::end(ListEdit const& edit, std::string_view text, std::optional<std::size_t> selectedIndex,
                      ListEditResult& result) const
{
    auto params = makeEnd(edit, text, selectedIndex);
    params.refusedItems = std::make_shared<Items>();
    fireEvent(m_list->onLabelEditEnd, params);
    auto const& refused = *params.refusedItems;
    refuseAll(refused, ListRefusalReason::NotTaken, text, result);
    result.takenCells += edit.items.size() - std::min(refused.size(), edit.items.size());
}

} // namespace qev::ui
