#include "Ui/Qt/ListControl/QtListHeader.h"

#include <algorithm>
#include <QAbstractTableModel>
#include <QPainter>
#include <QSignalBlocker>
#include <QStyleOptionHeader>

namespace qev::ui {

namespace {

constexpr int leastDefaultCharacters = 12;
constexpr int mostDefaultCharacters = 30;

QString getPlaceText(std::size_t place)
{
    static QString const digits = QStringLiteral("⁰¹²³⁴⁵⁶⁷⁸⁹");
    return place < 10 ? QString(digits[static_cast<qsizetype>(place)]) : QString();
}

} // namespace

/// The columns alone, so that the header does not care for what becomes of the rows.
class QtListHeader::Titles final : public QAbstractTableModel
{
public:
    Titles(QtListItemModel const& cells, QObject* parent)
        : QAbstractTableModel(parent)
        , m_cells(cells)
    {
    }

    void setCount(int count)
    {
        beginResetModel();
        m_count = count;
        endResetModel();
    }
    [[nodiscard]] int rowCount(QModelIndex const& = {}) const override { return 0; }
    [[nodiscard]] int columnCount(QModelIndex const& parent = {}) const override
    {
        return parent.isValid() ? 0 : m_count;
    }
    [[nodiscard]] QVariant data(QModelIndex const&, int) const override { return {}; }
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override
    {
        if (role == Qt::TextAlignmentRole)
            return QVariant(Qt::AlignLeft | Qt::AlignVCenter);
        // A title that is cut off can be read in the tool tip.
        auto const asked = role == Qt::ToolTipRole ? static_cast<int>(Qt::DisplayRole) : role;
        return m_cells.headerData(section, orientation, asked);
    }

private:
    QtListItemModel const& m_cells;
    int m_count = 0;
};

QtListHeader::QtListHeader(QtListItemModel& cells, QWidget* parent)
    : QHeaderView(Qt::Horizontal, parent)
    , m_cells(cells)
    , m_titles(new Titles(cells, this))
{
    setModel(m_titles);
    setSectionsMovable(true);
    setSectionsClickable(true);
    setHighlightSections(false);
    setTextElideMode(Qt::ElideRight);
    setContextMenuPolicy(Qt::CustomContextMenu);
    connect(this, &QHeaderView::sectionMoved, this, [this] { keepOrder(); });
    connect(this, &QHeaderView::sectionResized, this, [this](int column, int, int width) {
        if (width > 0)
            m_cells.getColumns().setWidth(static_cast<std::size_t>(column), static_cast<unsigned int>(width));
    });
}

QtListHeader::~QtListHeader() = default;

void QtListHeader::arrange()
{
    // What follows is not the user's doing, and whoever asked for it lays the list out once when all is done.
    QSignalBlocker const quiet(this);
    auto const& columns = m_cells.getColumns();
    setMinimumSectionSize(2 * fontMetrics().averageCharWidth());
    m_titles->setCount(static_cast<int>(columns.getCount()));
    int place = 0;
    for (auto const column : columns.getOrder())
        moveSection(visualIndex(static_cast<int>(column)), place++);
    for (int column = 0; column < count(); ++column) {
        auto const index = static_cast<std::size_t>(column);
        auto const width = columns.getWidth(index);
        setSectionHidden(column, false);
        resizeSection(column, width ? static_cast<int>(*width) : getDefaultWidth(column));
        setSectionHidden(column, columns.isHidden(index));
    }
}

std::vector<int> QtListHeader::getShownColumns() const
{
    std::vector<int> shown;
    for (int place = 0; place < count(); ++place)
        if (auto const column = logicalIndex(place); !isSectionHidden(column))
            shown.push_back(column);
    return shown;
}

int QtListHeader::getDefaultWidth(int column) const
{
    auto const character = fontMetrics().averageCharWidth();
    auto const title = fontMetrics().horizontalAdvance(
        m_cells.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString());
    // Room for the marks of sorting and filter.
    return std::clamp(title + 5 * character, leastDefaultCharacters * character,
                      mostDefaultCharacters * character);
}

void QtListHeader::paintSection(QPainter* painter, QRect const& area, int column) const
{
    painter->save();
    QHeaderView::paintSection(painter, area, column);
    painter->restore();
    if (!m_cells.getOrder().getFilter().columnTexts.contains(static_cast<std::size_t>(column)))
        return;
    auto const size = fontMetrics().xHeight();
    auto const& sorting = m_cells.getOrder().getSorting();
    bool const isSorted = std::any_of(sorting.begin(), sorting.end(), [column](ListSortColumn const& sorted) {
        return sorted.column == static_cast<std::size_t>(column);
    });
    // The mark of the sorting stands at the very end.
    auto const distance = (isSorted ? 3.5 : 1.5) * size;
    QPointF const corner(area.right() - distance, area.center().y() - 0.5 * size);
    QPointF const points[] = {corner,
                              corner + QPointF(size, 0),
                              corner + QPointF(0.6 * size, 0.5 * size),
                              corner + QPointF(0.6 * size, 1.1 * size),
                              corner + QPointF(0.4 * size, 1.1 * size),
                              corner + QPointF(0.4 * size, 0.5 * size)};
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    painter->setBrush(palette().color(QPalette::Highlight));
    painter->drawPolygon(points, 6);
    painter->restore();
}

void QtListHeader::initStyleOptionForIndex(QStyleOptionHeader* option, int column) const
{
    QHeaderView::initStyleOptionForIndex(option, column);
    auto const& sorting = m_cells.getOrder().getSorting();
    for (std::size_t place = 0; place < sorting.size(); ++place) {
        if (sorting[place].column != static_cast<std::size_t>(column))
            continue;
        option->sortIndicator =
            sorting[place].isDescending ? QStyleOptionHeader::SortUp : QStyleOptionHeader::SortDown;
        if (sorting.size() > 1)
            option->text += QLatin1Char(' ') + getPlaceText(place + 1);
    }
}

QSize QtListHeader::sectionSizeFromContents(int column) const
{
    auto const size = QHeaderView::sectionSizeFromContents(column);
    return {size.width(), std::max(size.height(), fontMetrics().height() + fontMetrics().height() / 2)};
}

void QtListHeader::keepOrder()
{
    std::vector<std::size_t> order;
    for (int place = 0; place < count(); ++place)
        order.push_back(static_cast<std::size_t>(logicalIndex(place)));
    m_cells.getColumns().setOrder(order);
}

} // namespace qev::ui
