#pragma once

#include "HostUiQtExport.h"
#include "Ui/List/ListColumns.h"
#include "Ui/List/ListRowOrder.h"
#include "Ui/Qt/ListControl/QtListCell.h"
#include "Ui/Window/Controls/ListControl/ListControl.h"

#include <cstddef>
#include <functional>
#include <memory>
#include <QAbstractTableModel>
#include <string>

namespace qev::ui {

/// The cells of a `ListControl` as an item model. It keeps none of them: each is asked for when it is wanted.
///
/// Its rows are positions of the `ListRowOrder`, its columns those of the control.
class HOSTUIQT_EXPORT QtListItemModel final : public QAbstractTableModel
{
public:
    /// Gives the control; null while there is none.
    using ControlSource = std::function<std::shared_ptr<ListControl>()>;

    explicit QtListItemModel(ControlSource source, QObject* parent = nullptr);
    ~QtListItemModel() override;

    [[nodiscard]] std::shared_ptr<ListControl> getControl() const { return m_source(); }
    [[nodiscard]] ListRowOrder const& getOrder() const { return m_order; }
    [[nodiscard]] ListColumns const& getColumns() const { return m_columns; }
    [[nodiscard]] ListColumns& getColumns() { return m_columns; }

    /// Changes the order, or its counts, with everything told to the views.
    void changeOrder(std::function<void(ListRowOrder&)> const& change);
    /// Does the next part of a pending filter or sorting; tells the views once it is done.
    void advanceOrder(std::size_t rows);
    /// The rows are new ones, and the columns those of \p titles.
    void setCounts(std::size_t rows, std::vector<std::string> titles);
    /// Shows an empty row below the last, for an entry that is about to be added.
    void setNewRowShown(bool shown);
    [[nodiscard]] bool isNewRowShown() const { return m_isNewRowShown; }

    [[nodiscard]] ListControl::ItemInfo getItem(int position, std::size_t column) const;
    [[nodiscard]] ListControl::ItemInfo getItem(QModelIndex const& index) const;
    /// All there is to know of a cell, for drawing it.
    [[nodiscard]] QtListCell getCell(ListControl& control, ListControl::ItemInfo const& item) const;
    /// What a cell holds, in words: the text, and of a box alone its state. Rows are filtered by it.
    [[nodiscard]] std::string getPlainText(std::size_t row, std::size_t column) const;
    [[nodiscard]] std::optional<CheckState> getCheckState(ListControl::ItemInfo const& item) const;

    [[nodiscard]] int rowCount(QModelIndex const& parent = {}) const override;
    [[nodiscard]] int columnCount(QModelIndex const& parent = {}) const override;
    [[nodiscard]] QVariant data(QModelIndex const& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    [[nodiscard]] Qt::ItemFlags flags(QModelIndex const& index) const override;

private:
    [[nodiscard]] bool isRow(ListControl::ItemInfo const& item) const;

    ControlSource m_source;
    ListRowOrder m_order;
    ListColumns m_columns;
    bool m_isNewRowShown = false;
};

} // namespace qev::ui
