#include "Ui/Headless/HeadlessListControl.h"

#include "Ui/Headless/HeadlessBackend.h"
#include "Ui/Headless/HeadlessInterface.h"
#include "Ui/Window/PopupMenu.h"

#include <algorithm>
#include <utility>

namespace qev::ui {

namespace {

class HeadlessListControlInterface final : public HeadlessInterface<ListControlInterface>,
                                           private ListControlHeaderInterface
{
public:
    explicit HeadlessListControlInterface(std::shared_ptr<HeadlessListControl> const& list)
        : HeadlessInterface(list)
        , m_list(list)
    {
    }

    void setItemAndColumnCounts(std::size_t rows, std::size_t columns) override
    {
        m_list->setItemAndColumnCounts(rows, columns);
    }
    [[nodiscard]] std::size_t getItemCount() const override { return m_list->getRowCount(); }
    [[nodiscard]] std::size_t getColumnCount() const override { return m_list->getColumnCount(); }
    void redrawItem(std::size_t row) override { m_list->redrawItem(row); }
    [[nodiscard]] std::vector<std::size_t> getSelectedItems() const override
    {
        return {m_list->getSelection().begin(), m_list->getSelection().end()};
    }
    void enableColumnCheckBoxes(std::size_t column, bool enable, int mode,
                                std::shared_ptr<Image const> /*checkedImage*/,
                                std::shared_ptr<Image const> /*uncheckedImage*/) override
    {
        m_list->setColumnCheckBoxes(column, enable, mode);
    }
    [[nodiscard]] std::optional<int> getCheckBoxMode(std::size_t column) const override
    {
        return m_list->getCheckBoxMode(column);
    }
    void activateComboBoxEditingForColumn(std::size_t column) override
    {
        m_list->activateComboBoxEditingForColumn(column);
    }
    [[nodiscard]] bool isUsingReportStyle() const override { return m_list->isUsingReportStyle(); }
    void startLabelEdit(std::size_t row, std::size_t column) override { m_list->startLabelEdit(row, column); }
    void addStyleFlags(unsigned int flags) override { m_list->addStyleFlags(flags); }
    [[nodiscard]] ListControlSettings getSettings() const override { return m_list->getSettings(); }
    void loadSettings(ListControlSettings const& settings) override { m_list->loadSettings(settings); }
    [[nodiscard]] ListControlHeaderInterface& getHeaderInterface() override { return *this; }

private:
    void setDefaultHiddenColumns(std::set<std::size_t> const& columns) override
    {
        m_list->setDefaultHiddenColumns(columns);
    }

    std::shared_ptr<HeadlessListControl> m_list;
};

ListControl::ItemInfo cell(std::size_t row, std::size_t column) { return {row, column}; }

} // namespace

HeadlessListControl::HeadlessListControl(int controlId, WindowPlacement const& placement, unsigned int style)
    : HeadlessWindow(WindowClass::ListControl, controlId, placement)
    , m_style(style)
{
    bool const isPopup = (style & ListControl::PopupStyle) != 0;
    setPlacedOnScreen(isPopup);
    setVisible(!isPopup);
}

std::unique_ptr<WindowInterface> HeadlessListControl::createInterface()
{
    return std::make_unique<HeadlessListControlInterface>(
        std::static_pointer_cast<HeadlessListControl>(shared_from_this()));
}

std::string HeadlessListControl::getHeaderText(std::size_t column) const
{
    auto const control = getListControl();
    return control ? fireEvent(control->onGetColumnHeaderText, column) : std::string();
}

std::string HeadlessListControl::getText(std::size_t row, std::size_t column) const
{
    auto const control = getListControl();
    return control ? fireEvent(control->onGetItemText, cell(row, column)) : std::string();
}

ListControl::ItemStyle HeadlessListControl::getStyle(std::size_t row, std::size_t column) const
{
    auto const control = getListControl();
    return control ? fireEvent(control->onGetItemStyle, cell(row, column)) : ListControl::ItemStyle();
}

std::optional<attr::Colour> HeadlessListControl::getBackgroundColour(std::size_t row,
                                                                     std::size_t column) const
{
    auto const control = getListControl();
    return control ? fireEvent(control->onGetItemBackgroundColour, cell(row, column)) : std::nullopt;
}

std::optional<CheckState> HeadlessListControl::getCheckState(std::size_t row, std::size_t column) const
{
    auto const control = getListControl();
    if (!control || !m_checkBoxColumns.contains(column))
        return std::nullopt;
    fireEvent(control->onGetItemText, cell(row, column));
    return fireEvent(control->onGetCheckState, cell(row, column));
}

bool HeadlessListControl::containsLocalValue(std::size_t row, std::size_t column) const
{
    auto const control = getListControl();
    return control && fireEvent(control->onDoesItemContainLocalValue, cell(row, column));
}

bool HeadlessListControl::isColumnHidden(std::size_t column) const
{
    return m_settings.hiddenColumns.contains(column);
}

bool HeadlessListControl::select(std::set<std::size_t> rows)
{
    if (!isReachable() || (!rows.empty() && *rows.rbegin() >= m_rowCount))
        return false;
    m_selection = std::move(rows);
    return true;
}

bool HeadlessListControl::activate(std::size_t row, std::size_t column)
{
    auto const control = getListControl();
    if (!control || !isReachableCell(row, column))
        return false;
    fireEvent(control->onItemActivated, cell(row, column));
    return true;
}

bool HeadlessListControl::triggerSecondaryEvent(std::size_t row, std::size_t column)
{
    auto const control = getListControl();
    if (!control || !isReachableCell(row, column))
        return false;
    fireEvent(control->onItemSecondaryEvent, cell(row, column));
    return true;
}

bool HeadlessListControl::clickCheckBox(std::size_t row, std::size_t column)
{
    auto const control = getListControl();
    if (!control || !isReachableCell(row, column))
        return false;
    auto const state = getCheckState(row, column);
    if (!state)
        return false;
    auto const wanted = *state == CheckState::Checked ? CheckState::Unchecked : CheckState::Checked;
    fireEvent(control->onCheckBoxClicked, cell(row, column), wanted);
    return true;
}

bool HeadlessListControl::hideColumn(std::size_t column, bool hidden)
{
    auto const control = getListControl();
    if (!control || !isReachable() || column >= m_columnCount || !fireEvent(control->onQueryColumn, column))
        return false;
    if (hidden)
        m_settings.hiddenColumns.insert(column);
    else
        m_settings.hiddenColumns.erase(column);
    return true;
}

bool HeadlessListControl::beginEdit(std::size_t row, std::size_t column)
{
    if (!isReachableCell(row, column))
        return false;
    std::vector<ListControl::ItemInfo> items;
    if (m_selection.contains(row)) {
        for (auto const selected : m_selection)
            items.push_back(cell(selected, column));
    } else {
        items.push_back(cell(row, column));
    }
    return openEditor(std::move(items));
}

bool HeadlessListControl::commitText(std::string_view text)
{
    if (!m_edit || !isReachable() || m_edit->editor.editType == ListControl::DropList)
        return false;
    auto const& entries = m_edit->editor.items;
    auto const found = std::find(entries.begin(), entries.end(), text);
    auto const selected =
        found == entries.end()
            ? std::nullopt
            : std::optional(static_cast<std::size_t>(std::distance(entries.begin(), found)));
    return endEdit(true, text, selected);
}

bool HeadlessListControl::commitChoice(std::size_t index)
{
    if (!m_edit || !isReachable() || index >= m_edit->editor.items.size())
        return false;
    return endEdit(true, m_edit->editor.items[index], index);
}

bool HeadlessListControl::cancelEdit() { return m_edit && endEdit(false, m_edit->text, std::nullopt); }

bool HeadlessListControl::type(std::size_t row, std::size_t column, std::string_view text)
{
    if (!beginEdit(row, column))
        return false;
    if (m_edit->editor.editType != ListControl::DropList)
        return commitText(text);
    auto const& entries = m_edit->editor.items;
    auto const found = std::find(entries.begin(), entries.end(), text);
    if (found != entries.end())
        return commitChoice(static_cast<std::size_t>(std::distance(entries.begin(), found)));
    cancelEdit();
    return false;
}

bool HeadlessListControl::openContextMenu(std::size_t row, std::size_t column)
{
    auto const control = getListControl();
    if (!control || !isReachable())
        return false;
    auto const keepAlive = shared_from_this();
    PopupMenu menu;
    fireEvent(control->onContextMenu, cell(row, column), menu);
    if (menu.getEntries().empty())
        return false;
    if (auto const chosen = menu.show(getPositionOnScreen())) {
        control->onContextMenuItemSelected(static_cast<int>(*chosen));
        fireEvent(control->onContextMenuCommand, cell(row, column), static_cast<int>(*chosen));
    }
    return true;
}

bool HeadlessListControl::resetToGlobalValues(std::size_t column)
{
    auto const control = getListControl();
    if (!control || !isReachable() || m_selection.empty() || column >= m_columnCount)
        return false;
    std::vector<std::size_t> const rows(m_selection.begin(), m_selection.end());
    fireEvent(control->onResetItemsToGlobalValues, rows, column);
    return true;
}

std::string HeadlessListControl::dump() const
{
    std::string text = "  ";
    std::string separator;
    for (std::size_t column = 0; column < m_columnCount; ++column) {
        if (isColumnHidden(column))
            continue;
        text += separator + getHeaderText(column);
        separator = " | ";
    }
    text += '\n';
    for (std::size_t row = 0; row < m_rowCount; ++row) {
        text += m_selection.contains(row) ? "> " : "  ";
        separator.clear();
        for (std::size_t column = 0; column < m_columnCount; ++column) {
            if (isColumnHidden(column))
                continue;
            text += separator + getCellText(row, column);
            separator = " | ";
        }
        text += '\n';
    }
    return text;
}

void HeadlessListControl::setItemAndColumnCounts(std::size_t rows, std::size_t columns)
{
    m_rowCount = rows;
    m_columnCount = columns;
    m_selection.erase(m_selection.lower_bound(rows), m_selection.end());
    if (columns > 0)
        return;
    m_checkBoxColumns.clear();
    m_comboBoxColumns.clear();
    m_settings = {};
}

void HeadlessListControl::setColumnCheckBoxes(std::size_t column, bool enabled, int mode)
{
    if (enabled)
        m_checkBoxColumns[column] = mode;
    else
        m_checkBoxColumns.erase(column);
}

std::optional<int> HeadlessListControl::getCheckBoxMode(std::size_t column) const
{
    auto const found = m_checkBoxColumns.find(column);
    return found == m_checkBoxColumns.end() ? std::nullopt : std::optional(found->second);
}

bool HeadlessListControl::isUsingReportStyle() const
{
    return (m_style & (ListControl::ReportStyle | ListControl::PopupReportStyle)) != 0;
}

void HeadlessListControl::startLabelEdit(std::size_t row, std::size_t column)
{
    if (isDestroyed() || row > m_rowCount || column >= m_columnCount)
        return;
    openEditor({cell(row, column)});
}

void HeadlessListControl::setDefaultHiddenColumns(std::set<std::size_t> const& columns)
{
    m_settings.hiddenColumns = columns;
}

std::shared_ptr<ListControl> HeadlessListControl::getListControl() const
{
    return std::dynamic_pointer_cast<ListControl>(getWindow());
}

bool HeadlessListControl::isReachableCell(std::size_t row, std::size_t column) const
{
    return isReachable() && row < m_rowCount && column < m_columnCount && !isColumnHidden(column);
}

std::string HeadlessListControl::getCellText(std::size_t row, std::size_t column) const
{
    std::string text;
    if (auto const state = getCheckState(row, column))
        text = *state == CheckState::Checked ? "[x]" : *state == CheckState::Unchecked ? "[ ]" : "[-]";
    if (getCheckBoxMode(column) == ListControl::BoxAlone)
        return text;
    auto const value = getText(row, column);
    return text.empty() || value.empty() ? text + value : text + ' ' + value;
}

bool HeadlessListControl::openEditor(std::vector<ListControl::ItemInfo> items)
{
    auto const control = getListControl();
    if (!control)
        return false;
    if (m_edit)
        cancelEdit();
    // The owner may end the list instead of answering.
    auto const keepAlive = shared_from_this();
    auto editor = fireEvent(control->onLabelEditBegin, ListControl::LabelEditBeginParams{items});
    if (editor.editType == ListControl::NoEdit || isDestroyed())
        return false;
    auto const first = items.front();
    auto text = *first.item < m_rowCount ? getText(*first.item, *first.column) : std::string();
    m_edit = Edit{std::move(items), std::move(editor), std::move(text)};
    m_editBox = std::make_shared<HeadlessWindow>(WindowClass::Window, 0, WindowPlacement());
    if (auto const backend = getBackend())
        backend->insertWindow(m_editBox, this);
    m_editBox->setFocus();
    return true;
}

bool HeadlessListControl::endEdit(bool accepted, std::string_view text,
                                  std::optional<std::size_t> selectedIndex)
{
    auto const keepAlive = shared_from_this();
    auto const edit = std::exchange(m_edit, std::nullopt);
    bool const hadFocus = m_editBox->hasFocus();
    auto const editBox = std::exchange(m_editBox, nullptr);
    if (hadFocus)
        setFocus();
    editBox->destroy();
    auto const control = getListControl();
    if (!control)
        return false;
    fireEvent(control->onLabelEditEnd,
              ListControl::LabelEditEndParams{accepted, edit->items, edit->editor.editType, std::string(text),
                                              selectedIndex.value_or(0), selectedIndex.has_value(), nullptr});
    return true;
}

} // namespace qev::ui
