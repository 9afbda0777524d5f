#include "Ui/Qt/ListControl/QtListItemModel.h"

#include "Ui/List/ListEditing.h"
#include "Ui/Qt/QtCellDrawing.h"
#include "Ui/Qt/QtText.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace qev::ui {

namespace {

QColor toQColor(std::optional<attr::Colour> const& colour)
{
    return colour ? QtCellDrawing::toQColor(*colour) : QColor();
}

Qt::CheckState toQtState(CheckState state)
{
    switch (state) {
    case CheckState::Checked:
        return Qt::Checked;
    case CheckState::Unchecked:
        return Qt::Unchecked;
    case CheckState::Indeterminate:
        return Qt::PartiallyChecked;
    }
    return Qt::PartiallyChecked;
}

} // namespace

QtListItemModel::QtListItemModel(ControlSource source, QObject* parent)
    : QAbstractTableModel(parent)
    , m_source(std::move(source))
{
}

QtListItemModel::~QtListItemModel() = default;

void QtListItemModel::changeOrder(std::function<void(ListRowOrder&)> const& change)
{
    beginResetModel();
    change(m_order);
    endResetModel();
}

void QtListItemModel::advanceOrder(std::size_t rows)
{
    auto const control = getControl();
    if (!control)
        return;
    auto const getText = [this](std::size_t row, std::size_t column) { return getPlainText(row, column); };
    auto const getSortCell = [&](std::size_t row, std::size_t column) {
        auto text = getPlainText(row, column);
        return ListSortCell{std::move(text),
                            fireEvent(control->onGetItemNumber, ListControl::ItemInfo{row, column})};
    };
    auto const advance = [&](ListRowOrder& order) { order.advance(rows, {getText, getSortCell}); };
    // The positions are the old ones until the last part is done, which is when views have to look away.
    if (m_order.getRowCount() - m_order.getProgress() <= rows)
        changeOrder(advance);
    else
        advance(m_order);
}

void QtListItemModel::setCounts(std::size_t rows, std::vector<std::string> titles)
{
    beginResetModel();
    m_isNewRowShown = false;
    m_columns.setTitles(std::move(titles));
    m_order.setRowCount(rows);
    endResetModel();
}

void QtListItemModel::setNewRowShown(bool shown)
{
    if (shown == m_isNewRowShown)
        return;
    auto const position = static_cast<int>(m_order.getShownCount());
    if (shown)
        beginInsertRows({}, position, position);
    else
        beginRemoveRows({}, position, position);
    m_isNewRowShown = shown;
    if (shown)
        endInsertRows();
    else
        endRemoveRows();
}

ListControl::ItemInfo QtListItemModel::getItem(int position, std::size_t column) const
{
    auto const place = static_cast<std::size_t>(position);
    return {place < m_order.getShownCount() ? m_order.getRow(place) : m_order.getRowCount(), column};
}

ListControl::ItemInfo QtListItemModel::getItem(QModelIndex const& index) const
{
    if (!index.isValid())
        return {};
    return getItem(index.row(), static_cast<std::size_t>(index.column()));
}

QtListCell QtListItemModel::getCell(ListControl& control, ListControl::ItemInfo const& item) const
{
    QtListCell cell;
    if (!isRow(item))
        return cell;
    // The text is asked for first: owners take it as the sign that it is this row's turn.
    cell.text = toQString(fireEvent(control.onGetItemText, item));
    cell.backgroundColour = toQColor(fireEvent(control.onGetItemBackgroundColour, item));
    auto const style = fireEvent(control.onGetItemStyle, item);
    cell.textColour = toQColor(style.textColour);
    cell.isEmphasised = (style.flags & ListControl::ItemStyle::Emphasis) != 0;
    if (auto const mode = m_columns.getCheckBoxMode(item.column.value_or(0))) {
        cell.checkState = fireEvent(control.onGetCheckState, item);
        cell.isBoxAlone = *mode == ListControl::BoxAlone;
        cell.isBoxGrey = cell.checkState && fireEvent(control.onIsItemReadOnly, item);
    }
    cell.isLocal = fireEvent(control.onDoesItemContainLocalValue, item);
    return cell;
}

std::string QtListItemModel::getPlainText(std::size_t row, std::size_t column) const
{
    auto control = getControl();
    return control ? ListEditing(std::move(control)).getCopyText({row, column}) : std::string();
}

std::optional<CheckState> QtListItemModel::getCheckState(ListControl::ItemInfo const& item) const
{
    auto control = getControl();
    return control && isRow(item) ? ListEditing(std::move(control)).getCheckState(item) : std::nullopt;
}

int QtListItemModel::rowCount(QModelIndex const& parent) const
{
    constexpr auto most = static_cast<std::size_t>(std::numeric_limits<int>::max());
    return parent.isValid()
               ? 0
               : static_cast<int>(std::min(m_order.getShownCount() + (m_isNewRowShown ? 1 : 0), most));
}

int QtListItemModel::columnCount(QModelIndex const& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_columns.getCount());
}

QVariant QtListItemModel::data(QModelIndex const& index, int role) const
{
    if (!index.isValid())
        return {};
    auto const control = getControl();
    auto const item = getItem(index);
    if (!control || !isRow(item))
        return {};
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return toQString(fireEvent(control->onGetItemText, item));
    case Qt::CheckStateRole: {
        auto const state = getCheckState(item);
        return state ? QVariant(toQtState(*state)) : QVariant();
    }
    case Qt::AccessibleTextRole:
        return toQString(getPlainText(*item.item, *item.column));
    default:
        return {};
    }
}

QVariant QtListItemModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole || section < 0 || section >= columnCount())
        return {};
    return toQString(m_columns.getTitles()[static_cast<std::size_t>(section)]);
}

Qt::ItemFlags QtListItemModel::flags(QModelIndex const& index) const
{
    if (!index.isValid())
        return Qt::NoItemFlags;
    auto flags = Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemIsEditable | Qt::ItemNeverHasChildren;
    if (m_columns.getCheckBoxMode(static_cast<std::size_t>(index.column())))
        flags |= Qt::ItemIsUserCheckable;
    return flags;
}

bool QtListItemModel::isRow(ListControl::ItemInfo const& item) const
{
    return item.item && *item.item < m_order.getRowCount();
}

} // namespace qev::ui
