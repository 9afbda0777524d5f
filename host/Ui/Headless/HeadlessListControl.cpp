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
        m_list->getColumns().setCheckBoxes(column, enable ? std::optional(mode) : std::nullopt);
    }
    [[nodiscard]] std::optional<int> getCheckBoxMode(std::size_t column) const override
    {
        return m_list->getCheckBoxMode(column);
    }
    void activateComboBoxEditingForColumn(std::size_t column) override
    {
        m_list->getColumns().activateComboBox(column);
    }
    [[nodiscard]] bool isComboBoxColumn(std::size_t column) const override
    {
        return m_list->isComboBoxColumn(column);
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
        m_list->getColumns().setDefaultHidden(columns);
    }

    std::shared_ptr<HeadlessListControl> m_list;
};

ListControl::ItemInfo cell(std::size_t row, std::size_t column) { return {row, column}; }

} // namespace

HeadlessListControl::HeadlessListControl(int controlId, WindowPlacement const& placement, unsigned int style)
    : HeadlessWindow(WindowClass::ListControl, controlId, placement)
    , m_style(style)
{
    setPlacedOnScreen(isPopup());
    if (isPopup())
        HeadlessWindow::setVisible(false);
}

std::unique_ptr<WindowInterface> HeadlessListControl::createInterface()
{
    return std::make_unique<HeadlessListControlInterface>(
        std::static_pointer_cast<HeadlessListControl>(shared_from_this()));
}

void HeadlessListControl::setVisible(bool visible)
{
    if (!visible)
        cancelEdit();
    HeadlessWindow::setVisible(visible);
    if (!visible || !isPopup())
        return;
    if (m_editBox)
        m_editBox->setFocus();
    else
        setFocus();
}

bool HeadlessListControl::isReachable() const
{
    return !isDestroyed() && isVisible() && (!getOwner() || getOwner()->isEnabled());
}

std::string HeadlessListControl::getHeaderText(std::size_t column) const
{
    return column < getColumnCount() ? m_columns.getTitles()[column] : std::string();
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
    return control ? ListEditing(control).getCheckState(cell(row, column)) : std::nullopt;
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

bool HeadlessListControl::containsLocalValue(std::size_t row, std::size_t column) const
{
    auto const control = getListControl();
    return control && fireEvent(control->onDoesItemContainLocalValue, cell(row, column));
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
    if (!control || !isEnabled() || !isReachableCell(row, column))
        return false;
    return click({cell(row, column)});
}

bool HeadlessListControl::clickCheckBoxes(std::size_t column)
{
    auto const control = getListControl();
    if (!control || !isEnabled() || !isReachableColumn(column))
        return false;
    return click(getSelectedCells(column));
}

bool HeadlessListControl::hideColumn(std::size_t column, bool hidden)
{
    auto const control = getListControl();
    if (!control || !isReachable() || column >= getColumnCount() ||
        !fireEvent(control->onQueryColumn, column))
        return false;
    m_columns.setHidden(column, hidden);
    return true;
}

bool HeadlessListControl::beginEdit(std::size_t row, std::size_t column)
{
    if (!isEnabled() || !isReachableCell(row, column))
        return false;
    return openEditor(m_selection.contains(row) ? getSelectedCells(column) : std::vector{cell(row, column)});
}

bool HeadlessListControl::commitText(std::string_view text)
{
    if (!m_edit || !isEnabled() || !isReachable() || m_edit->editor.editType == ListControl::DropList)
        return false;
    endEdit(
        [text](ListEditing const& editing, ListEdit const& edit) { return editing.commitText(edit, text); });
    return m_editResult.refusals.empty();
}

bool HeadlessListControl::commitChoice(std::size_t index)
{
    if (!m_edit || !isEnabled() || !isReachable() || index >= m_edit->editor.items.size())
        return false;
    endEdit([index](ListEditing const& editing, ListEdit const& edit) {
        return editing.commitChoice(edit, index);
    });
    return m_editResult.refusals.empty();
}

bool HeadlessListControl::cancelEdit()
{
    if (!m_edit)
        return false;
    endEdit([](ListEditing const& editing, ListEdit const& edit) {
        editing.cancel(edit);
        return ListEditResult();
    });
    return true;
}

bool HeadlessListControl::type(std::size_t row, std::size_t column, std::string_view text)
{
    if (!beginEdit(row, column))
        return false;
    endEdit(
        [text](ListEditing const& editing, ListEdit const& edit) { return editing.commitText(edit, text); });
    return m_editResult.refusals.empty();
}

ListBlock HeadlessListControl::copy(std::vector<std::size_t> const& columns, bool withHeaders) const
{
    auto const control = getListControl();
    if (!control)
        return {};
    return ListEditing(control).copy({m_selection.begin(), m_selection.end()}, columns, withHeaders);
}

ListEditResult HeadlessListControl::paste(std::size_t row, std::size_t column, ListBlock const& block)
{
    auto const control = getListControl();
    if (!control || !isEnabled() || !isReachableCell(row, column))
        return {};
    bool const isOneCell = block.size() == 1 && block.front().size() == 1;
    std::vector<std::size_t> rows;
    if (isOneCell && m_selection.contains(row))
        rows.assign(m_selection.begin(), m_selection.end());
    else
        for (auto index = row; index < (isOneCell ? row + 1 : m_rowCount); ++index)
            rows.push_back(index);
    std::vector<std::size_t> columns{column};
    if (!isOneCell) {
        columns = getVisibleColumns();
        columns.erase(columns.begin(), std::find(columns.begin(), columns.end(), column));
    }
    return ListEditing(control).paste(rows, columns, block);
}

ListEditResult HeadlessListControl::fillDown(std::size_t column)
{
    auto const control = getListControl();
    if (!control || !isEnabled() || !isReachableColumn(column))
        return {};
    return ListEditing(control).fillDown({m_selection.begin(), m_selection.end()}, {column});
}

ListEditResult HeadlessListControl::clear(std::size_t column)
{
    auto const control = getListControl();
    if (!control || !isEnabled() || !isReachableColumn(column))
        return {};
    return ListEditing(control).clear(getSelectedCells(column));
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
    if (!control || !isEnabled() || !isReachable() || m_selection.empty() || column >= getColumnCount())
        return false;
    std::vector<std::size_t> const rows(m_selection.begin(), m_selection.end());
    fireEvent(control->onResetItemsToGlobalValues, rows, column);
    return true;
}

std::string HeadlessListControl::dump() const
{
    auto const columns = getVisibleColumns();
    std::string text = "  ";
    std::string separator;
    for (auto const column : columns) {
        text += separator + getHeaderText(column);
        separator = " | ";
    }
    text += '\n';
    for (std::size_t row = 0; row < m_rowCount; ++row) {
        text += m_selection.contains(row) ? "> " : "  ";
        separator.clear();
        for (auto const column : columns) {
            text += separator + getCellText(row, column);
            separator = " | ";
        }
        text += '\n';
    }
    return text;
}

void HeadlessListControl::setItemAndColumnCounts(std::size_t rows, std::size_t columns)
{
    auto const control = getListControl();
    std::vector<std::string> titles;
    for (std::size_t column = 0; control && column < columns; ++column)
        titles.push_back(fireEvent(control->onGetColumnHeaderText, column));
    m_rowCount = rows;
    m_columns.setTitles(std::move(titles));
    m_selection.erase(m_selection.lower_bound(rows), m_selection.end());
    // What was begun in the editor is not meant for other rows.
    if (m_edit)
        cancelEdit();
}

bool HeadlessListControl::isUsingReportStyle() const
{
    return (m_style & (ListControl::ReportStyle | ListControl::PopupReportStyle)) != 0;
}

void HeadlessListControl::startLabelEdit(std::size_t row, std::size_t column)
{
    if (isDestroyed() || !isEnabled() || row > m_rowCount || column >= getColumnCount())
        return;
    openEditor({cell(row, column)});
}

ListControlSettings HeadlessListControl::getSettings() const
{
    auto settings = m_columns.getSettings();
    settings.sorting = m_sorting;
    return settings;
}

void HeadlessListControl::loadSettings(ListControlSettings const& settings)
{
    m_columns.loadSettings(settings);
    m_sorting = settings.sorting;
}

std::shared_ptr<ListControl> HeadlessListControl::getListControl() const
{
    return std::dynamic_pointer_cast<ListControl>(getWindow());
}

bool HeadlessListControl::isReachableCell(std::size_t row, std::size_t column) const
{
    return row < m_rowCount && isReachableColumn(column);
}

bool HeadlessListControl::isReachableColumn(std::size_t column) const
{
    return isReachable() && column < getColumnCount() && !isColumnHidden(column);
}

std::vector<ListControl::ItemInfo> HeadlessListControl::getSelectedCells(std::size_t column) const
{
    std::vector<ListControl::ItemInfo> cells;
    for (auto const row : m_selection)
        cells.push_back(cell(row, column));
    return cells;
}

std::vector<std::size_t> HeadlessListControl::getVisibleColumns() const
{
    auto columns = m_columns.getOrder();
    std::erase_if(columns, [this](std::size_t column) { return isColumnHidden(column); });
    return columns;
}

bool HeadlessListControl::click(std::vector<ListControl::ItemInfo> const& items)
{
    m_editResult = ListEditing(getListControl()).clickCheckBoxes(items);
    auto const& refusals = m_editResult.refusals;
    return !items.empty() && std::none_of(refusals.begin(), refusals.end(), [](ListRefusal const& refusal) {
        return refusal.reason == ListRefusalReason::NotEditable;
    });
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
    auto edit = ListEditing(control).begin(std::move(items));
    if (!edit || isDestroyed())
        return false;
    m_edit = std::move(edit);
    m_editBox = std::make_shared<HeadlessWindow>(WindowClass::Window, 0, WindowPlacement());
    if (auto const backend = getBackend())
        backend->insertWindow(m_editBox, this);
    m_editBox->setFocus();
    return true;
}

template <class Operation>
void HeadlessListControl::endEdit(Operation const& operation)
{
    auto const keepAlive = shared_from_this();
    auto const edit = std::exchange(m_edit, std::nullopt);
    bool const hadFocus = m_editBox->hasFocus();
    auto const editBox = std::exchange(m_editBox, nullptr);
    if (hadFocus)
        setFocus();
    editBox->destroy();
    m_editResult = {};
    if (auto const control = getListControl())
        m_editResult = operation(ListEditing(control), *edit);
}

} // namespace qev::ui
