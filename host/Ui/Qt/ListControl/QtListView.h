#pragma once

#include "HostUiQtExport.h"
#include "Ui/List/ListEditing.h"
#include "Ui/Qt/ListControl/QtListTable.h"

#include <functional>
#include <optional>
#include <QPointer>
#include <vector>

namespace qev::ui {

/// The cells of a list: turns keys and clicks into inputs, as a spreadsheet does.
class HOSTUIQT_EXPORT QtListView final : public QtListTable
{
public:
    /// How the list is used.
    struct Behaviour
    {
        /// Whole rows are selected, a click or Return opens one, and what is typed looks for one.
        bool isMenuOfRows = false;
        /// One goes on below the last row to a new one.
        bool appendsRows = false;
        /// The context menu has entries of the list itself.
        bool hasOwnMenu = true;
        /// Tab in an editor goes on to the next cell that can be edited, and edits it.
        bool editsNextByTab = false;
        bool isReadOnly = false;
    };

    /// Inputs to more cells than this at once are refused.
    static constexpr std::size_t mostCells = 5'000'000;

    explicit QtListView(QtListItemModel& cells, QWidget* parent = nullptr);
    ~QtListView() override;

    void setBehaviour(Behaviour behaviour);
    [[nodiscard]] Behaviour const& getBehaviour() const { return m_behaviour; }

    /// Opens the editor of a cell: of its column in all selected rows, if it is selected. False when the
    /// owner lets nobody edit one of them.
    bool beginEdit(QModelIndex const& index, QEvent* event = nullptr);
    /// The same for one cell, which may be in the row below the last.
    void startLabelEdit(std::size_t row, std::size_t column);
    [[nodiscard]] bool isEditing() const { return m_edit.has_value(); }
    /// Opens the current row.
    void activateCurrent() { activate(currentIndex()); }

    void copySelection(bool withHeaders);
    void paste();
    void clearCells();
    /// Puts the first of the selected cells of each column into the others; a single one takes the value
    /// of the cell above.
    void fillDown();
    void toggleCheckBoxes();
    void resetToGlobalValues(QModelIndex const& index);

    /// What an input to cells led to.
    EventHandlerContainer<void, void, ListEditResult const&> onInputDone;
    /// Something is to be told that is no refusal of a cell.
    EventHandlerContainer<void, void, QString const&> onMessage;
    EventHandlerContainer<void, void> onSelectionChanged;
    /// A letter was typed that is meant for no cell.
    EventHandlerContainer<void, void, QString const&> onTextTyped;
    /// The user wants to look for a text.
    EventHandlerContainer<void, void> onFind;
    /// The user wants the next hit, or the one before.
    EventHandlerContainer<void, void, bool> onFindNext;

    void reset() override;

protected:
    using QAbstractItemView::edit;
    bool edit(QModelIndex const& index, EditTrigger trigger, QEvent* event) override;
    void commitData(QWidget* editor) override;
    void closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) override;
    void selectionChanged(QItemSelection const& selected, QItemSelection const& deselected) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    bool event(QEvent* event) override;
    bool viewportEvent(QEvent* event) override;

private:
    using Items = ListEditing::Items;

    /// What is selected, as a spreadsheet sees it.
    struct Block
    {
        /// In the order on the screen.
        std::vector<std::size_t> rows;
        std::vector<std::size_t> columns;
    };

    [[nodiscard]] std::optional<ListEditing> getEditing() const;
    [[nodiscard]] std::optional<ListEditing> getWritableEditing() const;
    /// The selected cells of a column, or just \p index when it is not selected.
    [[nodiscard]] Items getItemsToEdit(QModelIndex const& index) const;
    [[nodiscard]] Items getSelectedItems() const;
    [[nodiscard]] Block getSelectedBlock() const;
    [[nodiscard]] std::size_t countSelectedCells() const;
    /// False, with a message, when so many cells are selected that it would take too long.
    bool mayTouchSelection();
    bool handleKey(QKeyEvent const& event);
    /// What a combination of keys does; nothing for one that the list has no use for.
    [[nodiscard]] std::function<void()> findShortcut(QKeyEvent const& event);
    void commit(QString const& text, std::optional<std::size_t> entry);
    void tell(ListEditResult const& result);
    void activate(QModelIndex const& index);
    void makeCurrent(QModelIndex const& index);
    /// Edits the row below the last where the list grows by that, from \p current on. False elsewhere.
    bool goBelowLastRow(QModelIndex const& current, int column);
    void moveDown(bool up);
    void goOnFromEditor(QModelIndex const& from, QAbstractItemDelegate::EndEditHint hint, bool wasOneCell);
    /// Edits the next cell that can be edited.
    void editNext(QModelIndex const& from, bool forwards);
    void showFullText(QPoint const& position, QPoint const& globalPosition);

    Behaviour m_behaviour;
    std::optional<ListEdit> m_edit;
    QPointer<QWidget> m_editor;
    QPersistentModelIndex m_pressedBox;
    QPersistentModelIndex m_pressedRow;
};

} // namespace qev::ui
