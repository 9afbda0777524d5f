#pragma once

#include "HostUiExport.h"
#include "Ui/Headless/HeadlessWindow.h"
#include "Ui/List/ListColumns.h"
#include "Ui/List/ListEditing.h"
#include "Ui/Window/Controls/ListControl/ListControl.h"

#include <cstddef>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace qev::ui {

/// A list without a screen, driven as by a user. It asks its `ListControl` for each cell.
///
/// Each input gives false, and changes nothing, when a user cannot reach the list or the cell. A list that is
/// not enabled can still be looked through: only what would change values or check boxes is refused.
class HOSTUI_EXPORT HeadlessListControl final : public HeadlessWindow
{
public:
    using Edit = ListEdit;

    HeadlessListControl(int controlId, WindowPlacement const& placement, unsigned int style);

    [[nodiscard]] std::unique_ptr<WindowInterface> createInterface() override;
    /// A popup that is shown takes the focus.
    void setVisible(bool visible) override;
    /// True for a list that is not enabled too, as long as the windows above it are.
    [[nodiscard]] bool isReachable() const override;

    [[nodiscard]] std::size_t getRowCount() const { return m_rowCount; }
    [[nodiscard]] std::size_t getColumnCount() const { return m_columns.getCount(); }
    [[nodiscard]] std::string getHeaderText(std::size_t column) const;
    [[nodiscard]] std::string getText(std::size_t row, std::size_t column) const;
    [[nodiscard]] ListControl::ItemStyle getStyle(std::size_t row, std::size_t column) const;
    [[nodiscard]] std::optional<attr::Colour> getBackgroundColour(std::size_t row, std::size_t column) const;
    /// The state of the cell's check box; nothing for a cell without one.
    [[nodiscard]] std::optional<CheckState> getCheckState(std::size_t row, std::size_t column) const;
    /// A cell as `dump` has it: its check box, as "[x]" or "[ ]", and its text.
    [[nodiscard]] std::string getCellText(std::size_t row, std::size_t column) const;
    [[nodiscard]] bool containsLocalValue(std::size_t row, std::size_t column) const;
    [[nodiscard]] bool isColumnHidden(std::size_t column) const { return m_columns.isHidden(column); }
    [[nodiscard]] bool isComboBoxColumn(std::size_t column) const { return m_columns.isComboBox(column); }

    /// Selects these rows and no others. False when one does not exist.
    bool select(std::set<std::size_t> rows);
    [[nodiscard]] std::set<std::size_t> const& getSelection() const { return m_selection; }
    bool activate(std::size_t row, std::size_t column);
    bool triggerSecondaryEvent(std::size_t row, std::size_t column);
    /// Asks for the other state of a cell's check box; the owner decides what becomes of it. False for a cell
    /// without a box and for one that cannot be changed.
    bool clickCheckBox(std::size_t row, std::size_t column);
    /// The same for all selected rows, as the space bar does.
    bool clickCheckBoxes(std::size_t column);
    /// Hides or shows a column, as in the menu of the header. False when the owner does not let the user.
    bool hideColumn(std::size_t column, bool hidden);

    /// Opens the editor of a cell: of that cell in all selected rows when its row is selected.
    /// False when the owner allows no editing.
    bool beginEdit(std::size_t row, std::size_t column);
    /// The open editor; nothing while none is open.
    [[nodiscard]] std::optional<Edit> const& getEdit() const { return m_edit; }
    /// Types \p text into the open editor and confirms it. False for a list that takes no other texts.
    bool commitText(std::string_view text);
    /// Takes an entry of the open editor's list.
    bool commitChoice(std::size_t index);
    bool cancelEdit();
    /// `beginEdit` followed by typing, or by choosing the entry of that text.
    bool type(std::size_t row, std::size_t column, std::string_view text);

    /// The cells of the selected rows in \p columns, as they go to the clipboard.
    [[nodiscard]] ListBlock copy(std::vector<std::size_t> const& columns, bool withHeaders) const;
    /// Puts \p block into the cells from the given one on; a block of one cell into all selected rows.
    /// The result is empty where a user cannot get at the cell.
    ListEditResult paste(std::size_t row, std::size_t column, ListBlock const& block);
    /// Puts the value of the first selected row into the others.
    ListEditResult fillDown(std::size_t column);
    /// Takes the values of the selected rows away.
    ListEditResult clear(std::size_t column);
    /// What became of the last input that ended an edit.
    [[nodiscard]] ListEditResult const& getEditResult() const { return m_editResult; }

    /// Opens the context menu of a cell; the back end's menu answer chooses from it. A \p row past the end
    /// is the free space below. False when the menu is empty.
    bool openContextMenu(std::size_t row, std::size_t column);
    /// Takes the local values of the selected rows away.
    bool resetToGlobalValues(std::size_t column);

    /// The visible columns as a table, in the user's order: a line of headers, then one line per row, cells
    /// parted by " | ", selected rows marked with ">".
    [[nodiscard]] std::string dump() const;
    /// Rows in the order they were repainted one by one.
    [[nodiscard]] std::vector<std::size_t> const& getRedrawnRows() const { return m_redrawnRows; }

    void setItemAndColumnCounts(std::size_t rows, std::size_t columns);
    void redrawItem(std::size_t row) { m_redrawnRows.push_back(row); }
    /// What the owner says of the columns, and how they are arranged.
    [[nodiscard]] ListColumns const& getColumns() const { return m_columns; }
    [[nodiscard]] ListColumns& getColumns() { return m_columns; }
    /// The mode of a column's check boxes; nothing for a column without any.
    [[nodiscard]] std::optional<int> getCheckBoxMode(std::size_t column) const
    {
        return m_columns.getCheckBoxMode(column);
    }
    [[nodiscard]] bool isUsingReportStyle() const;
    void startLabelEdit(std::size_t row, std::size_t column);
    void addStyleFlags(unsigned int flags) { m_styleFlags |= flags; }
    [[nodiscard]] unsigned int getStyleFlags() const { return m_styleFlags; }
    [[nodiscard]] ListControlSettings getSettings() const;
    void loadSettings(ListControlSettings const& settings);

protected:
    [[nodiscard]] std::string dumpContent() const override { return dump(); }

private:
    [[nodiscard]] bool isPopup() const { return (m_style & ListControl::PopupStyle) != 0; }
    [[nodiscard]] std::shared_ptr<ListControl> getListControl() const;
    [[nodiscard]] bool isReachableCell(std::size_t row, std::size_t column) const;
    [[nodiscard]] bool isReachableColumn(std::size_t column) const;
    [[nodiscard]] std::vector<ListControl::ItemInfo> getSelectedCells(std::size_t column) const;
    /// From left to right.
    [[nodiscard]] std::vector<std::size_t> getVisibleColumns() const;
    bool click(std::vector<ListControl::ItemInfo> const& items);
    bool openEditor(std::vector<ListControl::ItemInfo> items);
    /// Closes the editor, and hands what was edited to \p operation.
    template <class Operation>
    void endEdit(Operation const& operation);

    unsigned int m_style;
    unsigned int m_styleFlags = 0;
    std::size_t m_rowCount = 0;
    std::set<std::size_t> m_selection;
    ListColumns m_columns;
    /// Kept for the settings alone: the rows stand in the owner's order.
    std::vector<ListSortColumn> m_sorting;
    std::vector<std::size_t> m_redrawnRows;
    std::optional<ListEdit> m_edit;
    ListEditResult m_editResult;
    std::shared_ptr<HeadlessWindow> m_editBox;
};

} // namespace qev::ui
