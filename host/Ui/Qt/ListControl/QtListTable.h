#pragma once

#include "HostUiQtExport.h"
#include "Ui/Qt/ListControl/QtListHeader.h"
#include "Ui/Qt/ListControl/QtListItemModel.h"

#include <QAbstractItemView>
#include <vector>

namespace qev::ui {

/// A table of as many rows as there may be: keeps nothing for a row, and asks for a cell only to draw it.
///
/// Rows are all of one height and scroll by whole rows, columns by pixels.
class HOSTUIQT_EXPORT QtListTable : public QAbstractItemView
{
public:
    explicit QtListTable(QtListItemModel& cells, QWidget* parent = nullptr);
    ~QtListTable() override;

    [[nodiscard]] QtListItemModel& getCells() const { return m_cells; }
    [[nodiscard]] QtListHeader& getHeader() const { return *m_header; }
    /// The positions that can be seen, the last of them perhaps in part: from the first on, this many.
    [[nodiscard]] int getFirstPosition() const;
    [[nodiscard]] int countVisiblePositions() const;
    /// Where the check box of a cell is; empty for a cell without one.
    [[nodiscard]] QRect getCheckBoxArea(QModelIndex const& index) const;

    /// The columns have changed, or what is known of them.
    void arrangeColumns();
    /// Makes a column as wide as its title and the cells that can be seen need.
    void fitColumn(int column);
    /// Draws a row again if it can be seen.
    void updateRow(std::size_t row);

    /// The rows with a selected cell, ascending.
    [[nodiscard]] std::vector<std::size_t> getSelectedRows() const;
    [[nodiscard]] std::size_t countSelectedRows() const;
    /// Selects these rows from column \p left to \p right, and makes \p current the current cell.
    void selectRows(std::vector<std::size_t> const& rows, int left, int right,
                    ListControl::ItemInfo const& current);
    /// The rows or columns have changed.
    void updateView();

    [[nodiscard]] QRect visualRect(QModelIndex const& index) const override;
    void scrollTo(QModelIndex const& index, ScrollHint hint = EnsureVisible) override;
    [[nodiscard]] QModelIndex indexAt(QPoint const& point) const override;
    void keyboardSearch(QString const& search) override;
    void selectAll() override;

protected:
    [[nodiscard]] QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    [[nodiscard]] int horizontalOffset() const override;
    [[nodiscard]] int verticalOffset() const override;
    [[nodiscard]] bool isIndexHidden(QModelIndex const& index) const override;
    void setSelection(QRect const& area, QItemSelectionModel::SelectionFlags command) override;
    [[nodiscard]] QRegion visualRegionForSelection(QItemSelection const& selection) const override;
    void updateGeometries() override;
    void scrollContentsBy(int dx, int dy) override;
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

    [[nodiscard]] QStyleOptionViewItem getCellOption(QModelIndex const& index) const;

private:
    void applyFontMeasures();
    /// The position at a height of the viewport, whether there is a row or not.
    [[nodiscard]] int positionAt(int y) const;
    [[nodiscard]] std::vector<QItemSelectionRange> getVisibleSelection() const;

    QtListItemModel& m_cells;
    QtListHeader* m_header;
    int m_rowHeight = 1;
    bool m_isUpdatingGeometries = false;
};

} // namespace qev::ui
