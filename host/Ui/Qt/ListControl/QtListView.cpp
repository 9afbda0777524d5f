#include "Ui/Qt/ListControl/QtListView.h"

#include "Core/Localization/Localize.h"
#include "Ui/Qt/ListControl/QtListCellPainter.h"
#include "Ui/Qt/ListControl/QtListDelegate.h"
#include "Ui/Qt/QtCellDrawing.h"
#include "Ui/Qt/QtClipboard.h"
#include "Ui/Qt/QtLocalize.h"
#include "Ui/Qt/QtText.h"
#include "Ui/Window/PopupMenu.h"

#include <algorithm>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QLocale>
#include <QMouseEvent>
#include <QToolTip>
#include <set>
#include <utility>

namespace qev::ui {

namespace {

using Delegate = QAbstractItemDelegate;

/// An entry of the context menu that the list itself carries out.
class OwnMenuEntry final : public MenuEntry
{
public:
    OwnMenuEntry(std::string text, bool enabled, bool beginsGroup, std::function<void()> action)
        : MenuEntry(std::move(text), enabled, beginsGroup)
        , m_action(std::move(action))
    {
    }
    void run() const { m_action(); }

private:
    std::function<void()> m_action;
};

std::string getMenuText(std::string_view key, char const* keys) { return localize(key, "Ui") + '\t' + keys; }

} // namespace

QtListView::QtListView(QtListItemModel& cells, QWidget* parent)
    : QtListTable(cells, parent)
{
    setItemDelegate(new QtListDelegate(
        [this] { return m_edit ? &*m_edit : nullptr; },
        [this](QString const& text, std::optional<std::size_t> entry) { commit(text, entry); }, this));
    setEditTriggers(EditKeyPressed | AnyKeyPressed);
}

QtListView::~QtListView() = default;

void QtListView::setBehaviour(Behaviour behaviour)
{
    m_behaviour = behaviour;
    setSelectionBehavior(behaviour.isMenuOfRows ? SelectRows : SelectItems);
}

bool QtListView::beginEdit(QModelIndex const& index, QEvent* event)
{
    auto const editing = getWritableEditing();
    if (!editing || !index.isValid() || m_edit)
        return false;
    // The owner may end the list instead of answering.
    QPointer<QtListView> const self(this);
    auto edit = editing->begin(getItemsToEdit(index));
    if (!edit || !self)
        return false;
    m_edit = std::move(edit);
    if (!QAbstractItemView::edit(index, event ? AnyKeyPressed : AllEditTriggers, event)) {
        editing->cancel(*std::exchange(m_edit, std::nullopt));
        return false;
    }
    m_editor = indexWidget(index);
    if (auto* const combo = qobject_cast<QComboBox*>(m_editor.data()); combo && !combo->isEditable())
        combo->showPopup();
    return true;
}

void QtListView::startLabelEdit(std::size_t row, std::size_t column)
{
    auto& cells = getCells();
    if (column >= cells.getColumns().getCount() || row > cells.getOrder().getRowCount())
        return;
    cells.setNewRowShown(row == cells.getOrder().getRowCount());
    auto const positions = cells.getOrder().getPositions({row});
    auto const position = cells.isNewRowShown() ? cells.rowCount() - 1
                          : positions.empty()   ? -1
                                                : static_cast<int>(positions.front());
    auto const index = cells.index(position, static_cast<int>(column));
    if (index.isValid())
        makeCurrent(index);
    if (!beginEdit(index))
        cells.setNewRowShown(false);
}

void QtListView::copySelection(bool withHeaders)
{
    auto const editing = getEditing();
    if (!editing || !mayTouchSelection())
        return;
    auto const [rows, columns] = getSelectedBlock();
    if (rows.empty() || columns.empty())
        return;
    QtClipboard::copy(editing->copy(rows, columns, withHeaders), withHeaders);
}

void QtListView::paste()
{
    auto const editing = getWritableEditing();
    auto const block = blockFromTabSeparatedText(fromQString(QApplication::clipboard()->text()));
    auto const index = currentIndex();
    if (!editing || block.empty() || !index.isValid() || !mayTouchSelection())
        return;
    if (block.size() == 1 && block.front().size() == 1) {
        tell(editing->setText(getSelectedItems(), block.front().front()));
        return;
    }
    auto const selected = getSelectedBlock();
    auto const& order = getCells().getOrder();
    auto anchor = index.row();
    auto anchorColumn = index.column();
    if (!selected.rows.empty() && !selected.columns.empty()) {
        anchor = static_cast<int>(order.getPositions({selected.rows.front()}).front());
        anchorColumn = static_cast<int>(selected.columns.front());
    }
    std::vector<std::size_t> rows;
    for (auto position = static_cast<std::size_t>(anchor);
         position < order.getShownCount() && rows.size() < block.size(); ++position)
        rows.push_back(order.getRow(position));
    std::vector<std::size_t> columns;
    auto const shown = getHeader().getShownColumns();
    for (auto column = std::find(shown.begin(), shown.end(), anchorColumn); column != shown.end(); ++column)
        columns.push_back(static_cast<std::size_t>(*column));
    auto const widest = std::max_element(block.begin(), block.end(), [](auto const& left, auto const& right) {
                            return left.size() < right.size();
                        })->size();
    tell(editing->paste(rows, columns, block));
    if (rows.size() < block.size() || columns.size() < widest)
        fireEvents(onMessage, getUiText("List_NoPlace"));
}

void QtListView::clearCells()
{
    auto const editing = getWritableEditing();
    if (editing && mayTouchSelection())
        tell(editing->clear(getSelectedItems()));
}

void QtListView::fillDown()
{
    auto const editing = getWritableEditing();
    if (!editing || !mayTouchSelection())
        return;
    auto block = getSelectedBlock();
    if (block.rows.size() == 1) {
        auto const positions = getCells().getOrder().getPositions(block.rows);
        if (positions.empty() || positions.front() == 0)
            return;
        block.rows.insert(block.rows.begin(), getCells().getOrder().getRow(positions.front() - 1));
    }
    tell(editing->fillDown(block.rows, block.columns));
}

void QtListView::toggleCheckBoxes()
{
    auto const editing = getWritableEditing();
    if (editing && currentIndex().isValid())
        tell(editing->clickCheckBoxes(getItemsToEdit(currentIndex())));
}

void QtListView::resetToGlobalValues(QModelIndex const& index)
{
    auto const control = getCells().getControl();
    if (!control || !index.isValid() || m_behaviour.isReadOnly)
        return;
    std::vector<std::size_t> rows;
    for (auto const& item : getItemsToEdit(index))
        rows.push_back(*item.item);
    fireEvent(control->onResetItemsToGlobalValues, rows, static_cast<std::size_t>(index.column()));
    viewport()->update();
}

void QtListView::reset()
{
    // The view lets go of its editor here; what was begun in it is not meant for other rows.
    auto const edit = std::exchange(m_edit, std::nullopt);
    m_editor.clear();
    QtListTable::reset();
    if (auto const editing = getEditing(); edit && editing)
        editing->cancel(*edit);
}

bool QtListView::edit(QModelIndex const& index, EditTrigger trigger, QEvent* event)
{
    switch (trigger) {
    case EditKeyPressed:
        return beginEdit(index);
    case AnyKeyPressed:
        return beginEdit(index, event);
    default:
        return false;
    }
}

void QtListView::commitData(QWidget* editor)
{
    // A new row that nothing was typed for does not come into being.
    auto const* const line = qobject_cast<QLineEdit*>(editor);
    if (getCells().isNewRowShown() && line && !line->isModified())
        return;
    // An editor that went with its rows loses the focus later on, and what is in it is meant for nobody.
    if (editor == m_editor)
        QtListTable::commitData(editor);
}

void QtListView::closeEditor(QWidget* editor, Delegate::EndEditHint hint)
{
    auto const index = currentIndex();
    auto const wasOneCell = !m_edit || m_edit->items.size() == 1;
    bool const isNewRowGivenUp = getCells().isNewRowShown();
    if (auto const edit = std::exchange(m_edit, std::nullopt))
        if (auto const editing = getEditing())
            editing->cancel(*edit);
    // The rows may have been made anew by the commit; the view has let go of the editor then.
    if (editor == m_editor)
        QtListTable::closeEditor(editor, Delegate::NoHint);
    else if (editor->hasFocus())
        setFocus();
    m_editor.clear();
    getCells().setNewRowShown(false);
    if (hint != Delegate::NoHint && hint != Delegate::RevertModelCache && !isNewRowGivenUp)
        goOnFromEditor(index, hint, wasOneCell);
}

void QtListView::selectionChanged(QItemSelection const& selected, QItemSelection const& deselected)
{
    QtListTable::selectionChanged(selected, deselected);
    fireEvents(onSelectionChanged);
}

void QtListView::keyPressEvent(QKeyEvent* event)
{
    // An editor passes on what it has no use for, and Return while it is about to end by it.
    if (isEditing()) {
        QtListTable::keyPressEvent(event);
    } else if (auto const shortcut = findShortcut(*event)) {
        event->accept();
        shortcut();
    } else if (handleKey(*event)) {
        event->accept();
    } else {
        QtListTable::keyPressEvent(event);
    }
}

void QtListView::mousePressEvent(QMouseEvent* event)
{
    auto const index = indexAt(event->pos());
    m_pressedBox = QModelIndex();
    m_pressedRow = m_behaviour.isMenuOfRows && event->button() == Qt::LeftButton ? index : QModelIndex();
    if (event->button() == Qt::LeftButton && event->modifiers() == Qt::NoModifier &&
        getCheckBoxArea(index).contains(event->pos())) {
        m_pressedBox = index;
        // A box is clicked for itself: what is selected stays.
        selectionModel()->setCurrentIndex(index, QItemSelectionModel::NoUpdate);
        return;
    }
    QtListTable::mousePressEvent(event);
}

void QtListView::mouseReleaseEvent(QMouseEvent* event)
{
    auto const index = indexAt(event->pos());
    QPersistentModelIndex const pressed = std::exchange(m_pressedBox, {});
    if (pressed.isValid()) {
        auto const editing = getWritableEditing();
        if (editing && index == pressed && getCheckBoxArea(index).contains(event->pos()))
            tell(editing->clickCheckBoxes({getCells().getItem(index)}));
        return;
    }
    QtListTable::mouseReleaseEvent(event);
    bool const isClick = std::exchange(m_pressedRow, {}) == index;
    auto const control = getCells().getControl();
    if (event->button() == Qt::MiddleButton && control && index.isValid())
        fireEvent(control->onItemSecondaryEvent, getCells().getItem(index));
    else if (event->button() == Qt::LeftButton && isClick && m_behaviour.isMenuOfRows)
        activate(index);
}

void QtListView::mouseDoubleClickEvent(QMouseEvent* event)
{
    auto const index = indexAt(event->pos());
    // The first click has opened the row of a menu; the second one may land on the menu that came of it.
    if (event->button() != Qt::LeftButton || m_behaviour.isMenuOfRows)
        return;
    // On a check box a double click is two clicks.
    if (!index.isValid())
        goBelowLastRow(getCells().index(getCells().rowCount() - 1, 0),
                       std::max(0, getHeader().logicalIndexAt(event->pos().x())));
    else if (getCheckBoxArea(index).contains(event->pos()))
        m_pressedBox = index;
    else if (!beginEdit(index))
        activate(index);
}

void QtListView::contextMenuEvent(QContextMenuEvent* event)
{
    auto const control = getCells().getControl();
    if (!control)
        return;
    auto const index = event->reason() == QContextMenuEvent::Mouse ? indexAt(event->pos()) : currentIndex();
    if (index.isValid() && !selectionModel()->isSelected(index))
        makeCurrent(index);
    auto const item = index.isValid() ? getCells().getItem(index)
                                      : ListControl::ItemInfo{getCells().getOrder().getRowCount(), 0};
    PopupMenu menu;
    fireEvent(control->onContextMenu, item, menu);
    auto const ownersCount = menu.getEntries().size();
    auto const add = [&](std::string text, bool enabled, bool beginsGroup, std::function<void()> action) {
        menu.iMenuElemAdd(
            std::make_unique<OwnMenuEntry>(std::move(text), enabled, beginsGroup, std::move(action)));
    };
    if (index.isValid() && m_behaviour.hasOwnMenu) {
        bool const canWrite = !m_behaviour.isReadOnly;
        add(getMenuText("List_Copy", "Ctrl+C"), true, true, [this] { copySelection(false); });
        add(getMenuText("List_CopyWithHeaders", "Ctrl+Shift+C"), true, false,
            [this] { copySelection(true); });
        add(getMenuText("List_Paste", "Ctrl+V"), canWrite, false, [this] { paste(); });
        add(getMenuText("List_FillDown", "Ctrl+D"), canWrite, false, [this] { fillDown(); });
        add(getMenuText("List_Clear", "Del"), canWrite, false, [this] { clearCells(); });
        if (fireEvent(control->onDoesItemContainLocalValue, item))
            add(localize("List_Reset", "Ui"), canWrite, true,
                [this, place = QPersistentModelIndex(index)] { resetToGlobalValues(place); });
    }
    QPointer<QtListView> const self(this);
    auto const position = event->globalPos();
    auto const chosen = menu.show({position.x(), position.y()});
    if (!chosen || !self)
        return;
    if (*chosen >= ownersCount) {
        static_cast<OwnMenuEntry const&>(*menu.getEntries()[*chosen]).run();
        return;
    }
    control->onContextMenuItemSelected(static_cast<int>(*chosen));
    fireEvent(control->onContextMenuCommand, item, static_cast<int>(*chosen));
}

bool QtListView::event(QEvent* event)
{
    // In the list its keys mean what they mean in a spreadsheet, whatever they mean in the window around it.
    if (event->type() == QEvent::ShortcutOverride && findShortcut(*static_cast<QKeyEvent*>(event))) {
        event->accept();
        return true;
    }
    return QtListTable::event(event);
}

bool QtListView::viewportEvent(QEvent* event)
{
    if (event->type() != QEvent::ToolTip)
        return QtListTable::viewportEvent(event);
    auto const* const help = static_cast<QHelpEvent*>(event);
    showFullText(help->pos(), help->globalPos());
    return true;
}

std::optional<ListEditing> QtListView::getEditing() const
{
    auto control = getCells().getControl();
    return control ? std::optional<ListEditing>(std::move(control)) : std::nullopt;
}

std::optional<ListEditing> QtListView::getWritableEditing() const
{
    return m_behaviour.isReadOnly ? std::nullopt : getEditing();
}

QtListView::Items QtListView::getItemsToEdit(QModelIndex const& index) const
{
    Items items;
    bool isSelected = false;
    std::set<int> positions;
    for (auto const& range : selectionModel()->selection()) {
        if (index.column() < range.left() || index.column() > range.right())
            continue;
        isSelected = isSelected || (range.top() <= index.row() && index.row() <= range.bottom());
        for (int position = range.top(); position <= range.bottom(); ++position)
            positions.insert(positions.end(), position);
    }
    if (!isSelected)
        return {getCells().getItem(index)};
    for (auto const position : positions)
        items.push_back(getCells().getItem(position, static_cast<std::size_t>(index.column())));
    return items;
}

QtListView::Items QtListView::getSelectedItems() const
{
    Items items;
    std::set<std::pair<int, int>> cells;
    for (auto const& range : selectionModel()->selection())
        for (int position = range.top(); position <= range.bottom(); ++position)
            for (int column = range.left(); column <= range.right(); ++column)
                if (!isIndexHidden(getCells().index(position, column)))
                    cells.insert(cells.end(), {position, column});
    for (auto const& [position, column] : cells)
        items.push_back(getCells().getItem(position, static_cast<std::size_t>(column)));
    return items;
}

QtListView::Block QtListView::getSelectedBlock() const
{
    std::set<int> positions;
    std::set<int> columns;
    for (auto const& range : selectionModel()->selection()) {
        for (int position = range.top(); position <= range.bottom(); ++position)
            positions.insert(positions.end(), position);
        for (int column = range.left(); column <= range.right(); ++column)
            columns.insert(column);
    }
    Block block;
    for (auto const position : positions)
        block.rows.push_back(*getCells().getItem(position, 0).item);
    for (auto const column : getHeader().getShownColumns())
        if (columns.contains(column))
            block.columns.push_back(static_cast<std::size_t>(column));
    return block;
}

std::size_t QtListView::countSelectedCells() const
{
    std::size_t count = 0;
    for (auto const& range : selectionModel()->selection())
        count += static_cast<std::size_t>(range.height()) * static_cast<std::size_t>(range.width());
    return count;
}

bool QtListView::mayTouchSelection()
{
    auto const count = countSelectedCells();
    if (count <= mostCells)
        return true;
    fireEvents(onMessage,
               getUiText("List_TooManyCells").arg(QLocale().toString(count), QLocale().toString(mostCells)));
    return false;
}

std::function<void()> QtListView::findShortcut(QKeyEvent const& event)
{
    if (event.matches(QKeySequence::Copy))
        return [this] { copySelection(false); };
    if (event.key() == Qt::Key_C && event.modifiers() == (Qt::ControlModifier | Qt::ShiftModifier))
        return [this] { copySelection(true); };
    if (event.matches(QKeySequence::Paste))
        return [this] { paste(); };
    if (event.matches(QKeySequence::Find))
        return [this] { fireEvents(onFind); };
    if (event.matches(QKeySequence::FindPrevious))
        return [this] { fireEvents(onFindNext, false); };
    if (event.matches(QKeySequence::FindNext))
        return [this] { fireEvents(onFindNext, true); };
    if (event.matches(QKeySequence::SelectAll))
        return [this] { selectAll(); };
    if (event.key() == Qt::Key_D && event.modifiers() == Qt::ControlModifier)
        return [this] { fillDown(); };
    return {};
}

bool QtListView::handleKey(QKeyEvent const& event)
{
    auto const modifiers = event.modifiers() & ~Qt::KeypadModifier;
    auto const isReturn = event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
    if (isReturn && (modifiers == Qt::ControlModifier || m_behaviour.isMenuOfRows)) {
        activate(currentIndex());
        return true;
    }
    bool const isText = !event.text().trimmed().isEmpty() && event.text().front().isPrint();
    if (m_behaviour.isMenuOfRows && isText &&
        (modifiers == Qt::NoModifier || modifiers == Qt::ShiftModifier)) {
        fireEvents(onTextTyped, event.text());
        return true;
    }
    if (event.key() == Qt::Key_Down && modifiers == Qt::NoModifier)
        return goBelowLastRow(currentIndex(), currentIndex().column());
    if (isReturn && (modifiers == Qt::NoModifier || modifiers == Qt::ShiftModifier)) {
        moveDown(modifiers == Qt::ShiftModifier);
        return true;
    }
    if (event.key() == Qt::Key_Down && modifiers == Qt::AltModifier)
        return beginEdit(currentIndex());
    if (event.key() == Qt::Key_F2 && modifiers == Qt::NoModifier) {
        if (!beginEdit(currentIndex()) && !(getCells().rowCount() == 0 && goBelowLastRow({}, 0)) &&
            currentIndex().isValid())
            fireEvents(onMessage, getUiText("List_CannotBeChanged"));
        return true;
    }
    if (event.key() == Qt::Key_Delete && modifiers == Qt::NoModifier) {
        clearCells();
        return true;
    }
    if (event.key() == Qt::Key_Space && modifiers == Qt::NoModifier && currentIndex().isValid() &&
        getCells().getColumns().getCheckBoxMode(static_cast<std::size_t>(currentIndex().column()))) {
        toggleCheckBoxes();
        return true;
    }
    return false;
}

void QtListView::commit(QString const& text, std::optional<std::size_t> entry)
{
    auto const edit = std::exchange(m_edit, std::nullopt);
    auto const editing = getEditing();
    if (!edit || !editing)
        return;
    // The list may have become read-only under the open editor.
    if (m_behaviour.isReadOnly) {
        editing->cancel(*edit);
        return;
    }
    auto const typed = fromQString(text);
    tell(entry && typed != edit->text ? editing->commitChoice(*edit, *entry)
                                      : editing->commitText(*edit, typed));
}

void QtListView::tell(ListEditResult const& result)
{
    viewport()->update();
    fireEvents(onInputDone, result);
}

void QtListView::activate(QModelIndex const& index)
{
    auto const control = getCells().getControl();
    if (control && index.isValid())
        fireEvent(control->onItemActivated, getCells().getItem(index));
}

void QtListView::makeCurrent(QModelIndex const& index)
{
    auto const rows = m_behaviour.isMenuOfRows ? QItemSelectionModel::Rows : QItemSelectionModel::NoUpdate;
    selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect | rows);
}

bool QtListView::goBelowLastRow(QModelIndex const& current, int column)
{
    auto const& cells = getCells();
    if (!m_behaviour.appendsRows || isEditing() || current.row() != cells.rowCount() - 1)
        return false;
    startLabelEdit(cells.getOrder().getRowCount(), static_cast<std::size_t>(std::max(0, column)));
    return isEditing();
}

void QtListView::moveDown(bool up)
{
    if (!up && goBelowLastRow(currentIndex(), currentIndex().column()))
        return;
    if (auto const index = moveCursor(up ? MoveUp : MoveDown, Qt::NoModifier); index.isValid())
        makeCurrent(index);
}

void QtListView::goOnFromEditor(QModelIndex const& from, Delegate::EndEditHint hint, bool wasOneCell)
{
    setFocus();
    if (hint == Delegate::SubmitModelCache) {
        if (wasOneCell && countSelectedCells() <= 1)
            moveDown(false);
        return;
    }
    bool const forwards = hint == Delegate::EditNextItem;
    if (m_behaviour.editsNextByTab)
        editNext(from, forwards);
    else if (auto const next = moveCursor(forwards ? MoveNext : MovePrevious, Qt::NoModifier); next.isValid())
        makeCurrent(next);
}

void QtListView::editNext(QModelIndex const& from, bool forwards)
{
    // So far, and not through the whole of a list in which nothing can be edited.
    constexpr int mostSteps = 1000;
    auto index = from;
    for (int step = 0; step < mostSteps; ++step) {
        makeCurrent(index);
        index = moveCursor(forwards ? MoveNext : MovePrevious, Qt::NoModifier);
        if (!index.isValid() || index == currentIndex()) {
            auto const shown = getHeader().getShownColumns();
            if (forwards && !shown.empty())
                goBelowLastRow(currentIndex(), shown.front());
            return;
        }
        makeCurrent(index);
        if (beginEdit(index))
            return;
    }
}

void QtListView::showFullText(QPoint const& position, QPoint const& globalPosition)
{
    auto const index = indexAt(position);
    auto const control = getCells().getControl();
    QString text;
    if (index.isValid() && control) {
        auto const option = getCellOption(index);
        auto const cell = getCells().getCell(*control, getCells().getItem(index));
        auto room = option.rect.width() - 2 * QtCellDrawing::getTextMargin(option);
        if (cell.checkState)
            room -= QtListCellPainter::getCheckBox(option, option.rect, false).width() + 2;
        if (option.fontMetrics.horizontalAdvance(cell.text) > room || cell.text.contains(QLatin1Char('\n')))
            text = cell.text;
    }
    QToolTip::showText(globalPosition, QtCellDrawing::getToolTip(text), this);
}

} // namespace qev::ui
