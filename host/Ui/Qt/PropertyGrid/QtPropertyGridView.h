#pragma once

#include "HostUiQtExport.h"
#include "Ui/Qt/PropertyGrid/QtPropertyGridButtons.h"
#include "Ui/Qt/PropertyGrid/QtPropertyGridItemModel.h"

#include <optional>
#include <QLabel>
#include <QPersistentModelIndex>
#include <QPointer>
#include <QTimer>
#include <QTreeView>
#include <set>
#include <string>
#include <vector>

class QMenu;

namespace qev::ui {

/// The tree of rows: draws them, and turns keys and clicks into inputs.
///
/// When the rows are made anew, what the user has folded stays folded, the current row stays current and
/// nothing scrolls; rows are known by their keys, those without one by their names from the top level down.
class HOSTUIQT_EXPORT QtPropertyGridView final : public QTreeView
{
public:
    explicit QtPropertyGridView(QtPropertyGridItemModel& rows, QWidget* parent = nullptr);
    ~QtPropertyGridView() override;

    /// How much of the width the name column has, from 0 to 1.
    [[nodiscard]] double getSplit() const { return m_split; }
    void setSplit(double split);

    /// Puts back what was current and where the view was scrolled to before the rows were made anew.
    void restorePlace();
    /// The key, or the names down to it, of each row that the user has folded, whether the row is there at
    /// present or not.
    [[nodiscard]] std::set<std::vector<std::string>> const& getFolded() const { return m_folded; }
    void setFolded(std::set<std::vector<std::string>> folded);
    /// Folds or unfolds all groups there are, and those within them.
    void setAllFolded(bool folded);
    /// Copies the selected rows to the clipboard.
    void copySelection();
    /// Opens the editor of a row, with its drop list open if it has one and \p withChoices.
    bool openEditor(QModelIndex const& index, bool withChoices);
    /// How the button at the end of a row looks, from what the mouse does.
    [[nodiscard]] QtPropertyGridButtons::Look getButtonLook(QModelIndex const& index,
                                                            std::size_t button) const;
    /// Fills \p menu with what can be done with a row.
    void fillMenu(QMenu& menu, QModelIndex const& index);
    /// What the message beside a refused input says; empty when none is shown.
    [[nodiscard]] QString getMessage() const;

    void setModel(QAbstractItemModel* model) override;

    /// Fired with the index that has become current; an invalid one when none is.
    EventHandlerContainer<void, void, QModelIndex const&> onCurrentRowChanged;

protected:
    using QTreeView::edit;
    bool edit(QModelIndex const& index, EditTrigger trigger, QEvent* event) override;
    void closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) override;
    void currentChanged(QModelIndex const& current, QModelIndex const& previous) override;
    void rowsInserted(QModelIndex const& parent, int start, int end) override;
    void drawRow(QPainter* painter, QStyleOptionViewItem const& option,
                 QModelIndex const& index) const override;
    void keyPressEvent(QKeyEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    using Path = std::vector<std::string>;
    /// A row among its siblings: its name, and how many of the name stand before it. A row with a key is
    /// known by it alone, wherever it stands.
    struct Step
    {
        std::string name;
        int namesakes = 0;
        bool isKey = false;
    };
    /// One of the buttons at the end of a row.
    struct Button
    {
        QPersistentModelIndex index;
        std::size_t button = 0;
    };
    /// The steps from the top level down to one row.
    using Place = std::vector<Step>;

    void setAllFolded(QModelIndex const& parent, bool folded);
    [[nodiscard]] static Path getPath(QModelIndex const& index);
    [[nodiscard]] Place getPlace(QModelIndex const& index) const;
    [[nodiscard]] QModelIndex findIndex(Place const& place) const;
    [[nodiscard]] QModelIndex findKey(std::string const& key, QModelIndex const& parent) const;
    [[nodiscard]] QModelIndex getCurrentValueIndex() const;
    [[nodiscard]] std::optional<Button> findButton(QPoint const& position) const;
    void updateHover(QPoint const& position);
    void redrawButton(std::optional<Button> const& button);
    void openMenu(QModelIndex const& index, QPoint const& position);
    void keepPlace();
    /// Makes a row current, and it alone selected.
    void makeCurrent(QModelIndex const& index);
    void dressRow(QModelIndex const& index);
    void noteFolded(QModelIndex const& index, bool folded);
    void applyFontMeasures();
    void applySplit();
    void takeSplitFromHeader();
    [[nodiscard]] bool isOnSplit(QPoint const& position) const;
    [[nodiscard]] QStyleOptionViewItem getCellOption(QModelIndex const& index) const;
    void clickValue(QModelIndex const& index, QPoint const& position);
    void followLinkAt(QModelIndex const& index, QPoint const& position);
    bool handleKey(QKeyEvent const& event);
    /// Toggles the current check box, and gives those of the other selected rows the same state.
    bool toggleSelection();
    bool clearSelectedValues();
    /// The selected rows from top to bottom.
    [[nodiscard]] QModelIndexList getSelectedRows() const;
    /// The places of the selected rows from top to bottom, the current one first.
    [[nodiscard]] std::vector<Place> getSelectedPlaces() const;
    /// Opens the choices of the current row, or presses its button.
    bool openChoices();
    bool activateCurrentRow();
    /// Makes the next row that can be changed current, and opens its editor if \p withEditor.
    bool moveToEditableRow(QModelIndex const& from, bool forwards, bool withEditor);
    void showMessage(QString const& message);
    void hideMessage();

    QtPropertyGridItemModel& m_rows;
    double m_split = 0.45;
    bool m_isApplyingSplit = false;
    bool m_isDraggingSplit = false;
    QPersistentModelIndex m_pressed;
    std::optional<Button> m_hoveredButton;
    std::optional<Button> m_pressedButton;
    /// The names down to each row that the user has folded.
    std::set<Path> m_folded;
    bool m_isDressing = false;
    /// What was seen before the rows were made anew.
    struct Scene
    {
        Place current;
        int scroll = 0;
    };
    std::optional<Scene> m_scene;
    /// The row of the open editor.
    Place m_edited;
    /// The open editor; null once the view has let go of it.
    QPointer<QWidget> m_editor;
    QTimer m_restoreTimer;
    QLabel* m_message;
    QTimer m_messageTimer;
};

} // namespace qev::ui
