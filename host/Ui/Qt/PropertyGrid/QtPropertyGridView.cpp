#include "Ui/Qt/PropertyGrid/QtPropertyGridView.h"

#include "Ui/PropertyGrid/PropertyGridEditing.h"
#include "Ui/PropertyGrid/PropertyGridRowRecord.h"
#include "Ui/PropertyGrid/PropertyGridText.h"
#include "Ui/Qt/PropertyGrid/QtPropertyGridDelegate.h"
#include "Ui/Qt/PropertyGrid/QtPropertyGridLayout.h"
#include "Ui/Qt/QtCellDrawing.h"
#include "Ui/Qt/QtClipboard.h"
#include "Ui/Qt/QtText.h"

#include <algorithm>
#include <QComboBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QToolTip>
#include <utility>

namespace qev::ui {

namespace {

using Kind = PropertyGridRowState::Kind;
constexpr auto nameColumn = QtPropertyGridItemModel::nameColumn;
constexpr auto valueColumn = QtPropertyGridItemModel::valueColumn;
constexpr double leastSplit = 0.1;
constexpr int messageMilliseconds = 6000;

bool isEditable(QModelIndex const& index)
{
    auto const* const row = QtPropertyGridItemModel::getRow(index);
    return row && PropertyGridEditing::getEditor(*row) != PropertyGridEditor::None;
}

bool hasValueEditor(QModelIndex const& index)
{
    auto const* const row = QtPropertyGridItemModel::getRow(index);
    return row && PropertyGridEditing::getValueEditor(*row) != PropertyGridEditor::None;
}

} // namespace

QtPropertyGridView::QtPropertyGridView(QtPropertyGridItemModel& rows, QWidget* parent)
    : QTreeView(parent)
    , m_rows(rows)
    , m_message(new QLabel(this))
{
    setItemDelegate(new QtPropertyGridDelegate(this));
    setModel(&rows);
    setEditTriggers(EditKeyPressed | AnyKeyPressed);
    setSelectionMode(ExtendedSelection);
    setAllColumnsShowFocus(true);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setTextElideMode(Qt::ElideRight);
    setMouseTracking(true);
    header()->setSectionsMovable(false);
    header()->setStretchLastSection(true);
    header()->setHighlightSections(false);
    applyFontMeasures();

    m_message->setObjectName(QStringLiteral("message"));
    m_message->setWordWrap(true);
    m_message->setAutoFillBackground(true);
    m_message->setFrameShape(QFrame::Box);
    m_message->hide();
    m_messageTimer.setSingleShot(true);
    connect(&m_messageTimer, &QTimer::timeout, this, &QtPropertyGridView::hideMessage);
    m_restoreTimer.setSingleShot(true);
    m_restoreTimer.setInterval(0);
    connect(&m_restoreTimer, &QTimer::timeout, this, &QtPropertyGridView::restorePlace);

    rows.onInputRefused.iHandlerAdd([this](QString const& message) { showMessage(message); });
    connect(&rows, &QAbstractItemModel::modelAboutToBeReset, this, &QtPropertyGridView::keepPlace);
    connect(this, &QTreeView::collapsed, this, [this](QModelIndex const& index) { noteFolded(index, true); });
    connect(this, &QTreeView::expanded, this, [this](QModelIndex const& index) { noteFolded(index, false); });
    connect(header(), &QHeaderView::sectionResized, this, [this](int section) {
        // The value column takes what is left; its size says nothing of what the user wants.
        if (section == nameColumn)
            takeSplitFromHeader();
    });
}

QtPropertyGridView::~QtPropertyGridView() = default;

void QtPropertyGridView::setModel(QAbstractItemModel* model)
{
    QTreeView::setModel(model);
    for (int position = 0; model && position < model->rowCount(); ++position)
        dressRow(model->index(position, nameColumn));
}

void QtPropertyGridView::setSplit(double split)
{
    m_split = std::clamp(split, leastSplit, 1 - leastSplit);
    applySplit();
}

void QtPropertyGridView::restorePlace()
{
    m_restoreTimer.stop();
    auto const scene = std::exchange(m_scene, std::nullopt);
    if (!scene)
        return;
    if (auto const index = findIndex(scene->current); index.isValid())
        makeCurrent(index);
    executeDelayedItemsLayout();
    updateGeometries();
    verticalScrollBar()->setValue(scene->scroll);
}

void QtPropertyGridView::setFolded(std::set<Path> folded)
{
    m_folded = std::move(folded);
    for (int position = 0; position < m_rows.rowCount(); ++position)
        dressRow(m_rows.index(position, nameColumn));
}

void QtPropertyGridView::setAllFolded(bool folded) { setAllFolded(QModelIndex(), folded); }

void QtPropertyGridView::setAllFolded(QModelIndex const& parent, bool folded)
{
    for (int position = 0; position < m_rows.rowCount(parent); ++position) {
        auto const index = m_rows.index(position, nameColumn, parent);
        if (m_rows.rowCount(index) == 0)
            continue;
        // From below, so that nothing is laid out that an outer group then hides or shows as a whole.
        setAllFolded(index, folded);
        setExpanded(index, !folded);
    }
}

QModelIndexList QtPropertyGridView::getSelectedRows() const
{
    auto indexes = selectionModel()->selectedRows();
    std::sort(indexes.begin(), indexes.end(), [this](QModelIndex const& left, QModelIndex const& right) {
        return visualRect(left).top() < visualRect(right).top();
    });
    return indexes;
}

void QtPropertyGridView::copySelection()
{
    auto const rows = getSelectedRows();
    if (rows.isEmpty())
        return;
    if (rows.size() == 1) {
        auto const* const row = QtPropertyGridItemModel::getRow(rows.front());
        QtClipboard::copy(toQString(PropertyGridText::getCopiedText(*row)));
        return;
    }
    ListBlock block;
    for (auto const& index : rows) {
        auto const* const row = QtPropertyGridItemModel::getRow(index);
        block.push_back({row->getName(), PropertyGridText::getValueText(*row)});
    }
    QtClipboard::copy(block);
}

bool QtPropertyGridView::openEditor(QModelIndex const& index, bool withChoices)
{
    auto const value = index.siblingAtColumn(valueColumn);
    if (!edit(value, AllEditTriggers, nullptr))
        return false;
    if (auto* const combo = qobject_cast<QComboBox*>(indexWidget(value)); combo && withChoices)
        combo->showPopup();
    return true;
}

QString QtPropertyGridView::getMessage() const
{
    return m_message->isHidden() ? QString() : m_message->text();
}

bool QtPropertyGridView::edit(QModelIndex const& index, EditTrigger trigger, QEvent* event)
{
    // Rows are edited, whichever of their cells is current.
    auto const value = index.siblingAtColumn(valueColumn);
    if (!QTreeView::edit(value, trigger, event))
        return false;
    if (state() == EditingState) {
        hideMessage();
        m_edited = getPlace(value);
        m_editor = indexWidget(value);
    }
    return true;
}

void QtPropertyGridView::closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint)
{
    using Delegate = QAbstractItemDelegate;
    auto const isMove = hint == Delegate::EditNextItem || hint == Delegate::EditPreviousItem;
    // The rows may have been made anew by the commit; the view has let go of the editor then.
    if (editor == m_editor)
        QTreeView::closeEditor(editor, isMove ? Delegate::NoHint : hint);
    else if (editor->hasFocus())
        setFocus();
    if (!isMove)
        return;
    restorePlace();
    setFocus();
    moveToEditableRow(findIndex(m_edited), hint == Delegate::EditNextItem, true);
}

void QtPropertyGridView::currentChanged(QModelIndex const& current, QModelIndex const& previous)
{
    QTreeView::currentChanged(current, previous);
    fireEvents(onCurrentRowChanged, current);
}

void QtPropertyGridView::rowsInserted(QModelIndex const& parent, int start, int end)
{
    QTreeView::rowsInserted(parent, start, end);
    if (parent.isValid())
        dressRow(parent);
    for (int position = start; position <= end; ++position)
        dressRow(m_rows.index(position, nameColumn, parent));
    if (m_scene)
        m_restoreTimer.start();
}

void QtPropertyGridView::drawRow(QPainter* painter, QStyleOptionViewItem const& option,
                                 QModelIndex const& index) const
{
    auto const* const row = QtPropertyGridItemModel::getRow(index);
    if (!row)
        return;
    auto const& rowState = row->getState();
    auto const base = palette().color(QPalette::Base);
    auto const text = palette().color(QPalette::Text);
    if (auto const colour = rowState.backgroundColour)
        painter->fillRect(option.rect, QtCellDrawing::toQColor(*colour));
    else if (rowState.kind == Kind::Group)
        painter->fillRect(option.rect, QtCellDrawing::getMuted(text, base, 0.07F));
    QTreeView::drawRow(painter, option, index);
    if (rowState.kind == Kind::EmptyLine)
        return;

    painter->save();
    painter->setPen(QtCellDrawing::getMuted(text, base, 0.14F));
    painter->drawLine(option.rect.bottomLeft(), option.rect.bottomRight());
    if (rowState.kind != Kind::Group) {
        auto const x = columnViewportPosition(valueColumn) - 1;
        painter->drawLine(x, option.rect.top(), x, option.rect.bottom());
    }
    if (rowState.horizontalLine) {
        painter->setPen(QPen(QtCellDrawing::getMuted(text, base, 0.6F), 1));
        if (*rowState.horizontalLine != PropertyGridHorizontalLine::Below)
            painter->drawLine(option.rect.topLeft(), option.rect.topRight());
        if (*rowState.horizontalLine != PropertyGridHorizontalLine::Above)
            painter->drawLine(option.rect.bottomLeft(), option.rect.bottomRight());
    }
    painter->restore();
}

void QtPropertyGridView::keyPressEvent(QKeyEvent* event)
{
    hideMessage();
    if (handleKey(*event))
        event->accept();
    else
        QTreeView::keyPressEvent(event);
}

bool QtPropertyGridView::focusNextPrevChild(bool next)
{
    return moveToEditableRow(currentIndex(), next, false) || QTreeView::focusNextPrevChild(next);
}

void QtPropertyGridView::mousePressEvent(QMouseEvent* event)
{
    hideMessage();
    if (event->button() == Qt::LeftButton && isOnSplit(event->pos())) {
        m_isDraggingSplit = true;
        return;
    }
    QTreeView::mousePressEvent(event);
    m_pressed = event->button() == Qt::LeftButton ? indexAt(event->pos()) : QModelIndex();
    m_pressedButton = event->button() == Qt::LeftButton ? findButton(event->pos()) : std::nullopt;
    redrawButton(m_pressedButton);
}

void QtPropertyGridView::mouseMoveEvent(QMouseEvent* event)
{
    if (m_isDraggingSplit) {
        header()->resizeSection(nameColumn, event->pos().x() - columnViewportPosition(nameColumn));
        return;
    }
    if (isOnSplit(event->pos()))
        viewport()->setCursor(Qt::SplitHCursor);
    else
        viewport()->unsetCursor();
    updateHover(event->pos());
    QTreeView::mouseMoveEvent(event);
}

void QtPropertyGridView::mouseReleaseEvent(QMouseEvent* event)
{
    if (std::exchange(m_isDraggingSplit, false))
        return;
    QTreeView::mouseReleaseEvent(event);
    QPersistentModelIndex const pressed = std::exchange(m_pressed, {});
    auto const pressedButton = std::exchange(m_pressedButton, std::nullopt);
    redrawButton(pressedButton);
    if (pressedButton) {
        auto const released = findButton(event->pos());
        if (released && released->index == pressedButton->index && released->button == pressedButton->button)
            m_rows.pressButton(released->index, released->button);
        return;
    }
    auto const index = indexAt(event->pos());
    if (!index.isValid() || index != pressed || index.column() != valueColumn)
        return;
    if (event->modifiers() == Qt::NoModifier)
        clickValue(index, event->pos());
    else if (event->modifiers() == Qt::ControlModifier)
        followLinkAt(index, event->pos());
}

void QtPropertyGridView::mouseDoubleClickEvent(QMouseEvent* event)
{
    auto const index = indexAt(event->pos());
    // In the value cell a double click is two clicks, as on any check box or button.
    if (index.isValid() && index.column() == valueColumn) {
        m_pressed = index;
        m_pressedButton = findButton(event->pos());
    } else
        QTreeView::mouseDoubleClickEvent(event);
}

void QtPropertyGridView::resizeEvent(QResizeEvent* event)
{
    QTreeView::resizeEvent(event);
    applySplit();
}

void QtPropertyGridView::changeEvent(QEvent* event)
{
    QTreeView::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        applyFontMeasures();
}

QtPropertyGridView::Path QtPropertyGridView::getPath(QModelIndex const& index)
{
    auto const* const row = QtPropertyGridItemModel::getRow(index);
    return row ? PropertyGridRowRecord::getPlace(*row) : Path();
}

QtPropertyGridView::Place QtPropertyGridView::getPlace(QModelIndex const& index) const
{
    Place place;
    if (auto const* const row = QtPropertyGridItemModel::getRow(index); row && !row->getState().key.empty())
        return {{row->getState().key, 0, true}};
    for (auto step = index.siblingAtColumn(nameColumn); step.isValid(); step = step.parent()) {
        auto const name = QtPropertyGridItemModel::getRow(step)->getName();
        int namesakes = 0;
        for (int position = 0; position < step.row(); ++position)
            if (QtPropertyGridItemModel::getRow(step.siblingAtRow(position))->getName() == name)
                ++namesakes;
        place.push_back({name, namesakes, false});
    }
    std::reverse(place.begin(), place.end());
    return place;
}

QModelIndex QtPropertyGridView::findIndex(Place const& place) const
{
    QModelIndex found;
    for (auto const& [name, namesakes, isKey] : place) {
        if (isKey)
            return findKey(name, {});
        QModelIndex next;
        int passed = 0;
        for (int position = 0; !next.isValid() && position < m_rows.rowCount(found); ++position) {
            auto const candidate = m_rows.index(position, nameColumn, found);
            if (QtPropertyGridItemModel::getRow(candidate)->getName() == name && passed++ == namesakes)
                next = candidate;
        }
        if (!next.isValid())
            return {};
        found = next;
    }
    return found;
}

QModelIndex QtPropertyGridView::findKey(std::string const& key, QModelIndex const& parent) const
{
    for (int position = 0; position < m_rows.rowCount(parent); ++position) {
        auto const candidate = m_rows.index(position, nameColumn, parent);
        if (QtPropertyGridItemModel::getRow(candidate)->getState().key == key)
            return candidate;
        if (auto const below = findKey(key, candidate); below.isValid())
            return below;
    }
    return {};
}

QModelIndex QtPropertyGridView::getCurrentValueIndex() const
{
    return currentIndex().siblingAtColumn(valueColumn);
}

void QtPropertyGridView::keepPlace()
{
    hideMessage();
    m_pressed = QModelIndex();
    m_editor.clear();
    // Emptied twice in a row, the grid still means the place of the rows that were there.
    if (m_rows.rowCount() != 0)
        m_scene = Scene{getPlace(currentIndex()), verticalScrollBar()->value()};
}

void QtPropertyGridView::makeCurrent(QModelIndex const& index)
{
    selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

void QtPropertyGridView::dressRow(QModelIndex const& index)
{
    auto const* const row = QtPropertyGridItemModel::getRow(index);
    if (row->getChildren().empty())
        return;
    m_isDressing = true;
    setExpanded(index, !m_folded.contains(getPath(index)));
    m_isDressing = false;
    for (int position = 0; position < m_rows.rowCount(index); ++position)
        dressRow(m_rows.index(position, nameColumn, index));
}

void QtPropertyGridView::noteFolded(QModelIndex const& index, bool folded)
{
    if (m_isDressing)
        return;
    if (folded)
        m_folded.insert(getPath(index));
    else
        m_folded.erase(getPath(index));
}

void QtPropertyGridView::applyFontMeasures()
{
    setIndentation(fontMetrics().height());
    header()->setMinimumSectionSize(4 * fontMetrics().averageCharWidth());
}

void QtPropertyGridView::applySplit()
{
    if (m_isDraggingSplit)
        return;
    m_isApplyingSplit = true;
    header()->resizeSection(nameColumn, static_cast<int>(m_split * viewport()->width() + 0.5));
    m_isApplyingSplit = false;
}

void QtPropertyGridView::takeSplitFromHeader()
{
    if (m_isApplyingSplit || viewport()->width() <= 0)
        return;
    auto const split = static_cast<double>(header()->sectionSize(nameColumn)) / viewport()->width();
    auto const limited = std::clamp(split, leastSplit, 1 - leastSplit);
    if (limited == m_split)
        return;
    m_split = limited;
    if (split != limited)
        applySplit();
    viewport()->update();
}

bool QtPropertyGridView::isOnSplit(QPoint const& position) const
{
    auto const reach = std::max(3, fontMetrics().averageCharWidth() / 2);
    auto const* const row = QtPropertyGridItemModel::getRow(indexAt(position));
    return row && row->getState().kind != Kind::Group &&
           std::abs(position.x() - columnViewportPosition(valueColumn)) <= reach;
}

QStyleOptionViewItem QtPropertyGridView::getCellOption(QModelIndex const& index) const
{
    QStyleOptionViewItem option;
    initViewItemOption(&option);
    option.rect = visualRect(index);
    return option;
}

void QtPropertyGridView::clickValue(QModelIndex const& index, QPoint const& position)
{
    auto const* const row = QtPropertyGridItemModel::getRow(index);
    auto const layout = QtPropertyGridLayout::of(*row, getCellOption(index));
    if (layout.checkBox.contains(position))
        m_rows.clickCheckBox(index);
    else if (layout.button.contains(position))
        m_rows.pressButton(index);
    else if (!hasValueEditor(index))
        followLinkAt(index, position);
    else
        openEditor(index, layout.arrow.contains(position) || !PropertyGridEditing::canTypeFreely(*row));
}

void QtPropertyGridView::followLinkAt(QModelIndex const& index, QPoint const& position)
{
    auto const* const row = QtPropertyGridItemModel::getRow(index);
    auto const text = QtPropertyGridLayout::of(*row, getCellOption(index)).value;
    if (PropertyGridEditing::canFollowLink(*row) && text.contains(position))
        m_rows.followLink(index);
}

bool QtPropertyGridView::handleKey(QKeyEvent const& event)
{
    auto const index = getCurrentValueIndex();
    auto const* const row = QtPropertyGridItemModel::getRow(index);
    if (event.matches(QKeySequence::Copy)) {
        copySelection();
        return true;
    }
    if (!row)
        return false;
    if (event.key() == Qt::Key_Down && event.modifiers().testFlag(Qt::AltModifier))
        return openChoices();
    if (event.modifiers() & ~Qt::KeypadModifier)
        return false;
    switch (event.key()) {
    case Qt::Key_Space:
        return PropertyGridEditing::hasCheckBox(*row) && toggleSelection();
    case Qt::Key_Delete:
        return clearSelectedValues();
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return activateCurrentRow();
    default:
        return false;
    }
}

std::vector<QtPropertyGridView::Place> QtPropertyGridView::getSelectedPlaces() const
{
    std::vector<Place> places = {getPlace(currentIndex())};
    for (auto const& index : getSelectedRows())
        if (index != currentIndex().siblingAtColumn(nameColumn))
            places.push_back(getPlace(index));
    return places;
}

bool QtPropertyGridView::toggleSelection()
{
    auto const places = getSelectedPlaces();
    if (!m_rows.clickCheckBox(findIndex(places.front())))
        return true;
    // Each click may make the rows anew.
    auto const* const first = QtPropertyGridItemModel::getRow(findIndex(places.front()));
    if (!first)
        return true;
    auto const state = first->getCheckState();
    for (auto const& place : places) {
        auto const index = findIndex(place);
        auto const* const row = QtPropertyGridItemModel::getRow(index);
        if (row && PropertyGridEditing::canClickCheckBox(*row) && row->getCheckState() != state)
            m_rows.clickCheckBox(index);
    }
    return true;
}

bool QtPropertyGridView::clearSelectedValues()
{
    auto isAnyRow = false;
    for (auto const& place : getSelectedPlaces()) {
        auto const index = findIndex(place);
        auto const* const row = QtPropertyGridItemModel::getRow(index);
        if (!row || row->getState().kind == Kind::Group)
            continue;
        m_rows.clear(index);
        isAnyRow = true;
    }
    return isAnyRow;
}

bool QtPropertyGridView::openChoices()
{
    auto const index = getCurrentValueIndex();
    auto const* const row = QtPropertyGridItemModel::getRow(index);
    auto const hasChoices = PropertyGridEditing::getValueEditor(*row) == PropertyGridEditor::Choice;
    if (!hasChoices && PropertyGridEditing::canPressButton(*row))
        return m_rows.pressButton(index);
    auto const& buttons = row->getState().buttons;
    if (!hasChoices && buttons.size() == 1)
        return m_rows.pressButton(index, 0);
    if (!hasChoices && !buttons.empty()) {
        openMenu(index, viewport()->mapToGlobal(visualRect(index).bottomLeft()));
        return true;
    }
    return openEditor(index, true);
}

bool QtPropertyGridView::activateCurrentRow()
{
    auto const index = getCurrentValueIndex();
    if (hasValueEditor(index))
        return openEditor(index, false);
    if (auto const* const row = QtPropertyGridItemModel::getRow(index);
        PropertyGridEditing::canFollowLink(*row))
        return m_rows.followLink(index);
    auto const first = index.siblingAtColumn(nameColumn);
    if (m_rows.rowCount(first) == 0)
        return false;
    setExpanded(first, !isExpanded(first));
    return true;
}

bool QtPropertyGridView::moveToEditableRow(QModelIndex const& from, bool forwards, bool withEditor)
{
    auto index = from.siblingAtColumn(nameColumn);
    if (!index.isValid())
        return false;
    do
        index = forwards ? indexBelow(index) : indexAbove(index);
    while (index.isValid() && !isEditable(index));
    if (!index.isValid())
        return false;
    makeCurrent(index);
    if (withEditor)
        openEditor(index, false);
    return true;
}

void QtPropertyGridView::showMessage(QString const& message)
{
    auto const row = visualRect(currentIndex());
    m_message->setPalette(QToolTip::palette());
    m_message->setText(message);
    m_message->setMargin(fontMetrics().averageCharWidth() / 2);
    auto const width = std::min(viewport()->width(), fontMetrics().horizontalAdvance(message) +
                                                         4 * fontMetrics().averageCharWidth());
    m_message->resize(width, m_message->heightForWidth(width));
    auto const below = viewport()->mapToParent(QPoint(0, row.bottom() + 1)).y();
    auto const above = viewport()->mapToParent(QPoint(0, row.top())).y() - m_message->height();
    auto const hasRoomBelow = below + m_message->height() <= height();
    m_message->move(viewport()->x() + viewport()->width() - width, hasRoomBelow ? below : std::max(0, above));
    m_message->show();
    m_message->raise();
    m_messageTimer.start(messageMilliseconds);
}

void QtPropertyGridView::hideMessage()
{
    m_messageTimer.stop();
    m_message->hide();
}

} // namespace qev::ui
