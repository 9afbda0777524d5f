#include "Ui/Qt/ListControl/QtListTable.h"

#include "Core/Utilities/ScopeGuard.h"
#include "Ui/Qt/ListControl/QtListCellPainter.h"
#include "Ui/Qt/QtCellDrawing.h"

#include <algorithm>
#include <limits>
#include <QApplication>
#include <QPaintEvent>
#include <QScrollBar>

namespace qev::ui {

namespace {

/// Beyond this, measures of the contents would not fit the numbers that views work with.
int toPixels(qint64 pixels)
{
    constexpr qint64 most = std::numeric_limits<int>::max() / 2;
    return static_cast<int>(std::clamp(pixels, -most, most));
}

} // namespace

QtListTable::QtListTable(QtListItemModel& cells, QWidget* parent)
    : QAbstractItemView(parent)
    , m_cells(cells)
    , m_header(new QtListHeader(cells, this))
{
    setModel(&cells);
    setSelectionMode(ExtendedSelection);
    setSelectionBehavior(SelectItems);
    setVerticalScrollMode(ScrollPerItem);
    setHorizontalScrollMode(ScrollPerPixel);
    setTabKeyNavigation(true);
    viewport()->setBackgroundRole(QPalette::Base);
    connect(m_header, &QHeaderView::sectionMoved, viewport(), [this] { viewport()->update(); });
    connect(m_header, &QHeaderView::sectionResized, this, [this] {
        updateGeometries();
        updateEditorGeometries();
        viewport()->update();
    });
    connect(m_header, &QHeaderView::sectionHandleDoubleClicked, this, &QtListTable::fitColumn);
    applyFontMeasures();
}

QtListTable::~QtListTable() = default;

int QtListTable::getFirstPosition() const { return verticalScrollBar()->value(); }

int QtListTable::countVisiblePositions() const
{
    auto const fitting = (viewport()->height() + m_rowHeight - 1) / m_rowHeight;
    return std::max(0, std::min(fitting, m_cells.rowCount() - getFirstPosition()));
}

QRect QtListTable::getCheckBoxArea(QModelIndex const& index) const
{
    auto const mode = index.isValid()
                          ? m_cells.getColumns().getCheckBoxMode(static_cast<std::size_t>(index.column()))
                          : std::nullopt;
    auto const item = m_cells.getItem(index);
    if (!mode || !m_cells.getCheckState(item))
        return {};
    return QtListCellPainter::getCheckBox(getCellOption(index), visualRect(index),
                                          *mode == ListControl::BoxAlone);
}

void QtListTable::arrangeColumns()
{
    m_header->arrange();
    updateGeometries();
    viewport()->update();
}

void QtListTable::fitColumn(int column)
{
    auto const option = getCellOption({});
    auto const margins = 2 * QtCellDrawing::getTextMargin(option) + 2;
    auto const control = m_cells.getControl();
    auto width = m_header->fontMetrics().horizontalAdvance(
                     m_cells.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString()) +
                 3 * m_header->fontMetrics().averageCharWidth();
    for (int i = 0; control && i < countVisiblePositions(); ++i) {
        auto const cell = m_cells.getCell(
            *control, m_cells.getItem(getFirstPosition() + i, static_cast<std::size_t>(column)));
        auto font = option.font;
        font.setBold(cell.isEmphasised);
        auto needed = QFontMetrics(font).horizontalAdvance(QtCellDrawing::getOneLine(cell.text));
        if (cell.checkState)
            needed += QtListCellPainter::getCheckBox(option, {}, false).width() + margins;
        width = std::max(width, needed);
    }
    m_header->resizeSection(column, std::min(width + margins, std::max(viewport()->width(), margins)));
}

void QtListTable::updateRow(std::size_t row)
{
    for (int i = 0; i < countVisiblePositions(); ++i)
        if (m_cells.getItem(getFirstPosition() + i, 0).item == row)
            viewport()->update(0, i * m_rowHeight, viewport()->width(), m_rowHeight);
}

std::vector<std::size_t> QtListTable::getSelectedRows() const
{
    std::vector<std::size_t> rows;
    // A row that is still being entered below the last is none yet.
    auto const shownCount = static_cast<int>(m_cells.getOrder().getShownCount());
    for (auto const& range : selectionModel()->selection())
        for (int position = range.top(); position < std::min(range.bottom() + 1, shownCount); ++position)
            rows.push_back(m_cells.getOrder().getRow(static_cast<std::size_t>(position)));
    std::sort(rows.begin(), rows.end());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    return rows;
}

std::size_t QtListTable::countSelectedRows() const
{
    std::vector<std::pair<int, int>> spans;
    for (auto const& range : selectionModel()->selection())
        spans.emplace_back(range.top(), range.bottom() + 1);
    std::sort(spans.begin(), spans.end());
    std::size_t count = 0;
    int end = 0;
    for (auto const& [first, last] : spans) {
        count += static_cast<std::size_t>(std::max(0, last - std::max(first, end)));
        end = std::max(end, last);
    }
    return count;
}

void QtListTable::selectRows(std::vector<std::size_t> const& rows, int left, int right,
                             ListControl::ItemInfo const& current)
{
    auto const positions = m_cells.getOrder().getPositions(rows);
    QItemSelection selection;
    for (std::size_t i = 0; right < m_cells.columnCount() && i < positions.size();) {
        auto end = i + 1;
        while (end < positions.size() && positions[end] == positions[end - 1] + 1)
            ++end;
        selection.append(QItemSelectionRange(m_cells.index(static_cast<int>(positions[i]), left),
                                             m_cells.index(static_cast<int>(positions[end - 1]), right)));
        i = end;
    }
    auto const places =
        m_cells.getOrder().getPositions({current.item.value_or(m_cells.getOrder().getRowCount())});
    if (!places.empty() && *current.column < m_cells.getColumns().getCount())
        selectionModel()->setCurrentIndex(
            m_cells.index(static_cast<int>(places.front()), static_cast<int>(*current.column)),
            QItemSelectionModel::NoUpdate);
    selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
}

void QtListTable::updateView()
{
    updateGeometries();
    viewport()->update();
}

QRect QtListTable::visualRect(QModelIndex const& index) const
{
    if (!index.isValid() || isIndexHidden(index))
        return {};
    auto const top = toPixels(qint64{m_rowHeight} * (index.row() - getFirstPosition()));
    return {m_header->sectionViewportPosition(index.column()), top, m_header->sectionSize(index.column()),
            m_rowHeight};
}

void QtListTable::scrollTo(QModelIndex const& index, ScrollHint hint)
{
    if (!index.isValid() || isIndexHidden(index))
        return;
    auto const wholeRows = std::max(1, viewport()->height() / m_rowHeight);
    auto* const vertical = verticalScrollBar();
    if (hint == PositionAtCenter)
        vertical->setValue(index.row() - wholeRows / 2);
    else if (index.row() < vertical->value() || hint == PositionAtTop)
        vertical->setValue(index.row());
    else if (index.row() >= vertical->value() + wholeRows || hint == PositionAtBottom)
        vertical->setValue(index.row() - wholeRows + 1);

    auto* const horizontal = horizontalScrollBar();
    auto const left = m_header->sectionPosition(index.column());
    auto const right = left + m_header->sectionSize(index.column());
    if (left < horizontal->value() || right - left > viewport()->width())
        horizontal->setValue(left);
    else if (right > horizontal->value() + viewport()->width())
        horizontal->setValue(right - viewport()->width());
}

QModelIndex QtListTable::indexAt(QPoint const& point) const
{
    auto const column = m_header->logicalIndexAt(point.x());
    auto const position = positionAt(point.y());
    return column < 0 || position < 0 ? QModelIndex() : m_cells.index(position, column);
}

void QtListTable::keyboardSearch(QString const& /*search*/)
{
    // What is typed is meant for the cell; searching would ask for every row.
}

void QtListTable::selectAll()
{
    if (m_cells.rowCount() == 0 || m_cells.columnCount() == 0)
        return;
    QItemSelection const all(m_cells.index(0, 0),
                             m_cells.index(m_cells.rowCount() - 1, m_cells.columnCount() - 1));
    selectionModel()->select(all, QItemSelectionModel::ClearAndSelect);
}

QModelIndex QtListTable::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers)
{
    auto const columns = m_header->getShownColumns();
    auto const lastRow = m_cells.rowCount() - 1;
    if (columns.empty() || lastRow < 0)
        return {};
    auto const current = currentIndex();
    if (!current.isValid())
        return m_cells.index(0, columns.front());
    bool const toTheEnd = modifiers.testFlag(Qt::ControlModifier);
    auto const page = std::max(1, viewport()->height() / m_rowHeight - 1);
    auto const found = std::find(columns.begin(), columns.end(), current.column());
    auto const place = found == columns.end() ? 0 : found - columns.begin();
    auto const lastPlace = static_cast<std::ptrdiff_t>(columns.size()) - 1;
    auto const at = [&](int row, std::ptrdiff_t column) {
        return m_cells.index(
            std::clamp(row, 0, lastRow),
            columns[static_cast<std::size_t>(std::clamp<std::ptrdiff_t>(column, 0, lastPlace))]);
    };
    switch (action) {
    case MoveUp:
        return at(toTheEnd ? 0 : current.row() - 1, place);
    case MoveDown:
        return at(toTheEnd ? lastRow : current.row() + 1, place);
    case MoveLeft:
        return at(current.row(), toTheEnd ? 0 : place - 1);
    case MoveRight:
        return at(current.row(), toTheEnd ? lastPlace : place + 1);
    case MoveHome:
        return at(toTheEnd ? 0 : current.row(), 0);
    case MoveEnd:
        return at(toTheEnd ? lastRow : current.row(), lastPlace);
    case MovePageUp:
        return at(current.row() - page, place);
    case MovePageDown:
        return at(current.row() + page, place);
    case MoveNext:
        return place < lastPlace || current.row() == lastRow ? at(current.row(), place + 1)
                                                             : at(current.row() + 1, 0);
    case MovePrevious:
        return place > 0 || current.row() == 0 ? at(current.row(), place - 1)
                                               : at(current.row() - 1, lastPlace);
    }
    return {};
}

int QtListTable::horizontalOffset() const { return m_header->offset(); }

int QtListTable::verticalOffset() const { return toPixels(qint64{m_rowHeight} * getFirstPosition()); }

bool QtListTable::isIndexHidden(QModelIndex const& index) const
{
    return m_header->isSectionHidden(index.column());
}

void QtListTable::setSelection(QRect const& area, QItemSelectionModel::SelectionFlags command)
{
    auto const rows = m_cells.rowCount();
    auto const sections = m_header->count();
    if (rows == 0 || sections == 0)
        return;
    auto const normal = area.normalized();
    auto const positionFrom = [&](int y) {
        auto const step = y >= 0 ? y / m_rowHeight : (y - m_rowHeight + 1) / m_rowHeight;
        return std::clamp(getFirstPosition() + step, 0, rows - 1);
    };
    auto const placeFrom = [&](int x) {
        auto const place = m_header->visualIndexAt(x);
        return place >= 0 ? place : x < 0 ? 0 : sections - 1;
    };
    auto const top = positionFrom(normal.top());
    auto const bottom = positionFrom(normal.bottom());
    QItemSelection selection;
    for (int place = placeFrom(normal.left()), last = placeFrom(normal.right()); place <= last; ++place)
        if (auto const column = m_header->logicalIndex(place); !m_header->isSectionHidden(column))
            selection.append(QItemSelectionRange(m_cells.index(top, column), m_cells.index(bottom, column)));
    selectionModel()->select(selection, command);
}

QRegion QtListTable::visualRegionForSelection(QItemSelection const& selection) const
{
    // One area around all of it that can be seen: drawing a cell too many is cheaper than many small areas.
    QRect region;
    auto const first = getFirstPosition();
    auto const last = first + countVisiblePositions() - 1;
    for (auto const& range : selection) {
        auto const top = std::max(range.top(), first);
        auto const bottom = std::min(range.bottom(), last);
        if (top > bottom)
            continue;
        for (int column = range.left(); column <= range.right(); ++column)
            region |= visualRect(m_cells.index(top, column)) | visualRect(m_cells.index(bottom, column));
    }
    return region;
}

void QtListTable::updateGeometries()
{
    if (m_isUpdatingGeometries)
        return;
    m_isUpdatingGeometries = true;
    ScopeGuard const done([this] { m_isUpdatingGeometries = false; });
    auto const headerHeight = m_header->isHidden() ? 0 : m_header->sizeHint().height();
    setViewportMargins(0, headerHeight, 0, 0);
    auto const area = viewport()->geometry();
    m_header->setGeometry(area.left(), area.top() - headerHeight, area.width(), headerHeight);

    auto const wholeRows = std::max(1, viewport()->height() / m_rowHeight);
    verticalScrollBar()->setPageStep(wholeRows);
    verticalScrollBar()->setSingleStep(1);
    verticalScrollBar()->setRange(0, std::max(0, m_cells.rowCount() - wholeRows));
    horizontalScrollBar()->setPageStep(viewport()->width());
    horizontalScrollBar()->setSingleStep(4 * fontMetrics().averageCharWidth());
    horizontalScrollBar()->setRange(0, std::max(0, m_header->length() - viewport()->width()));
    m_header->setOffset(horizontalScrollBar()->value());
    QAbstractItemView::updateGeometries();
}

void QtListTable::scrollContentsBy(int dx, int dy)
{
    m_header->setOffset(horizontalScrollBar()->value());
    viewport()->scroll(dx, toPixels(qint64{m_rowHeight} * dy));
}

void QtListTable::paintEvent(QPaintEvent* event)
{
    auto const control = m_cells.getControl();
    auto const dirty = event->region().boundingRect();
    auto const first = std::max(0, positionAt(dirty.top()));
    auto const end = getFirstPosition() + std::min(countVisiblePositions(), dirty.bottom() / m_rowHeight + 1);
    if (!control || positionAt(dirty.top()) < 0)
        return;
    std::vector<std::pair<int, QRect>> columns;
    for (auto const column : m_header->getShownColumns()) {
        QRect const area(m_header->sectionViewportPosition(column), 0, m_header->sectionSize(column),
                         m_rowHeight);
        if (area.right() >= dirty.left() && area.left() <= dirty.right())
            columns.emplace_back(column, area);
    }
    auto const selected = getVisibleSelection();
    auto const current = currentIndex();
    bool const showsCurrent =
        selectionBehavior() != SelectRows && (hasFocus() || isAncestorOf(QApplication::focusWidget()));
    QPainter painter(viewport());
    auto const option = getCellOption({});
    QtListCellPainter cellPainter(painter, option);
    for (int position = first; position < end; ++position) {
        for (auto const& [column, area] : columns) {
            auto const item = m_cells.getItem(position, static_cast<std::size_t>(column));
            auto const cell = m_cells.getCell(*control, item);
            auto const isSelected =
                std::any_of(selected.begin(), selected.end(), [&, shown = column](auto const& range) {
                    return range.top() <= position && position <= range.bottom() && range.left() <= shown &&
                           shown <= range.right();
                });
            auto const isCurrent = showsCurrent && current.row() == position && current.column() == column;
            cellPainter.paint(cell, {area.translated(0, (position - getFirstPosition()) * m_rowHeight),
                                     isSelected, isCurrent});
        }
    }
}

void QtListTable::changeEvent(QEvent* event)
{
    QAbstractItemView::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        applyFontMeasures();
}

QStyleOptionViewItem QtListTable::getCellOption(QModelIndex const& index) const
{
    QStyleOptionViewItem option;
    initViewItemOption(&option);
    option.rect = visualRect(index);
    return option;
}

void QtListTable::applyFontMeasures()
{
    auto const option = getCellOption({});
    auto const boxHeight = style()->pixelMetric(QStyle::PM_IndicatorHeight, &option, this);
    m_rowHeight = std::max(fontMetrics().height() + fontMetrics().height() / 3, boxHeight + 4);
    updateGeometries();
    viewport()->update();
}

int QtListTable::positionAt(int y) const
{
    auto const position = getFirstPosition() + y / m_rowHeight;
    return y >= 0 && position < m_cells.rowCount() ? position : -1;
}

std::vector<QItemSelectionRange> QtListTable::getVisibleSelection() const
{
    auto const first = getFirstPosition();
    auto const last = first + countVisiblePositions() - 1;
    std::vector<QItemSelectionRange> visible;
    for (auto const& range : selectionModel()->selection())
        if (range.top() <= last && range.bottom() >= first)
            visible.push_back(range);
    return visible;
}

} // namespace qev::ui
