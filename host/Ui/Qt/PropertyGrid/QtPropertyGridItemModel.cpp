#include "Ui/Qt/PropertyGrid/QtPropertyGridItemModel.h"

#include "Ui/Qt/QtLocalize.h"
#include "Ui/Qt/QtText.h"

#include <algorithm>
#include <utility>

namespace qev::ui {

namespace {

using Kind = PropertyGridRowState::Kind;

std::vector<std::shared_ptr<PropertyGridRow>> const& getSiblings(PropertyGridModel const& rows,
                                                                 PropertyGridRow const* parent)
{
    return parent ? parent->getChildren() : rows.getRows();
}

QVariant getCheckStateOf(PropertyGridRow const& row)
{
    if (!PropertyGridEditing::hasCheckBox(row))
        return {};
    switch (row.getState().checkState) {
    case CheckState::Checked:
        return Qt::Checked;
    case CheckState::Unchecked:
        return Qt::Unchecked;
    case CheckState::Indeterminate:
        return Qt::PartiallyChecked;
    }
    return {};
}

} // namespace

QtPropertyGridItemModel::QtPropertyGridItemModel(std::shared_ptr<PropertyGridModel> rows, QObject* parent)
    : QAbstractItemModel(parent)
    , m_rows(std::move(rows))
{
    m_rows->addObserver(*this);
}

QtPropertyGridItemModel::~QtPropertyGridItemModel() { m_rows->removeObserver(*this); }

PropertyGridRow* QtPropertyGridItemModel::getRow(QModelIndex const& index)
{
    return static_cast<PropertyGridRow*>(index.internalPointer());
}

QModelIndex QtPropertyGridItemModel::getIndex(PropertyGridRow const& row, int column) const
{
    auto const& siblings = getSiblings(*m_rows, row.getParent());
    auto const found = std::find_if(siblings.begin(), siblings.end(),
                                    [&](auto const& sibling) { return sibling.get() == &row; });
    return found == siblings.end()
               ? QModelIndex()
               : createIndex(static_cast<int>(found - siblings.begin()), column, found->get());
}

bool QtPropertyGridItemModel::clear(QModelIndex const& index)
{
    return drive(index, [](PropertyGridRow& row) { return PropertyGridEditing::clear(row); });
}

bool QtPropertyGridItemModel::clickCheckBox(QModelIndex const& index)
{
    return drive(index, [](PropertyGridRow& row) { return PropertyGridEditing::clickCheckBox(row); });
}

bool QtPropertyGridItemModel::pressButton(QModelIndex const& index)
{
    return drive(index, [](PropertyGridRow& row) { return PropertyGridEditing::pressButton(row); });
}

bool QtPropertyGridItemModel::pressButton(QModelIndex const& index, std::size_t button)
{
    return drive(index,
                 [button](PropertyGridRow& row) { return PropertyGridEditing::pressButton(row, button); });
}

bool QtPropertyGridItemModel::followLink(QModelIndex const& index)
{
    return drive(index, [](PropertyGridRow& row) { return PropertyGridEditing::followLink(row); });
}

QModelIndex QtPropertyGridItemModel::index(int row, int column, QModelIndex const& parent) const
{
    if (!hasIndex(row, column, parent))
        return {};
    auto const& siblings = getSiblings(*m_rows, getRow(parent));
    return createIndex(row, column, siblings[static_cast<std::size_t>(row)].get());
}

QModelIndex QtPropertyGridItemModel::parent(QModelIndex const& index) const
{
    auto const* const row = getRow(index);
    return row ? getParentIndex(row->getParent()) : QModelIndex();
}

int QtPropertyGridItemModel::rowCount(QModelIndex const& parent) const
{
    if (parent.column() > nameColumn)
        return 0;
    return static_cast<int>(getSiblings(*m_rows, getRow(parent)).size());
}

int QtPropertyGridItemModel::columnCount(QModelIndex const& /*parent*/) const { return 2; }

QVariant QtPropertyGridItemModel::data(QModelIndex const& index, int role) const
{
    auto const* const row = getRow(index);
    if (!row)
        return {};
    auto const isName = index.column() == nameColumn;
    switch (role) {
    case Qt::DisplayRole:
        return toQString(isName ? row->getState().name : PropertyGridEditing::getDisplayedText(*row));
    case Qt::EditRole:
        return toQString(isName ? row->getState().name : PropertyGridEditing::getEditorText(*row));
    case Qt::CheckStateRole:
        return isName ? QVariant() : getCheckStateOf(*row);
    default:
        return {};
    }
}

bool QtPropertyGridItemModel::setData(QModelIndex const& index, QVariant const& value, int role)
{
    if (index.column() != valueColumn)
        return false;
    if (role == Qt::CheckStateRole)
        return data(index, role) == value || clickCheckBox(index);
    if (role != Qt::EditRole)
        return false;
    auto const text = fromQString(value.toString());
    return drive(index, [&](PropertyGridRow& row) { return PropertyGridEditing::commitText(row, text); });
}

Qt::ItemFlags QtPropertyGridItemModel::flags(QModelIndex const& index) const
{
    auto const* const row = getRow(index);
    if (!row || row->getState().kind == Kind::EmptyLine)
        return Qt::NoItemFlags;
    // Disabled rows look so, and can be selected all the same: their values are there to be read and copied.
    Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    if (index.column() == nameColumn)
        return flags;
    if (PropertyGridEditing::getValueEditor(*row) != PropertyGridEditor::None)
        flags |= Qt::ItemIsEditable;
    if (PropertyGridEditing::canClickCheckBox(*row))
        flags |= Qt::ItemIsUserCheckable;
    return flags;
}

QVariant QtPropertyGridItemModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    return getUiText(section == nameColumn ? "Grid_Name" : "Grid_Value");
}

bool QtPropertyGridItemModel::drive(QModelIndex const& index, Input const& input)
{
    auto* const row = getRow(index);
    if (!row)
        return false;
    // The handlers of the input may empty the grid.
    auto const keepAlive = row->shared_from_this();
    auto const result = input(*row);
    if (!result.accepted)
        fireEvents(onInputRefused, toQString(result.message));
    return result.accepted;
}

QModelIndex QtPropertyGridItemModel::getParentIndex(PropertyGridRow* parent) const
{
    return parent ? getIndex(*parent) : QModelIndex();
}

void QtPropertyGridItemModel::onAboutToReset() { beginResetModel(); }

void QtPropertyGridItemModel::onReset() { endResetModel(); }

void QtPropertyGridItemModel::onRowAboutToBeInserted(PropertyGridRow* parent, std::size_t index)
{
    auto const position = static_cast<int>(index);
    beginInsertRows(getParentIndex(parent), position, position);
}

void QtPropertyGridItemModel::onRowInserted(PropertyGridRow* /*parent*/, std::size_t /*index*/)
{
    endInsertRows();
}

void QtPropertyGridItemModel::onRowChanged(PropertyGridRow& row)
{
    auto const first = getIndex(row);
    if (first.isValid())
        emit dataChanged(first, first.siblingAtColumn(valueColumn));
}

} // namespace qev::ui
