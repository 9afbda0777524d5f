#include "StructureModel.h"

#include "Texts.h"
#include "UI/FoundationClasses/ObjectIcons.h"
#include "Ui/Qt/QtIcons.h"
#include "Ui/Qt/QtText.h"

#include <algorithm>

namespace qev::application {

using ui::toQString;

StructureModel::StructureModel(QObject* parent)
    : QAbstractItemModel(parent)
    , m_root(std::make_unique<Node>())
{
}

StructureModel::~StructureModel() = default;

void StructureModel::setData(std::shared_ptr<fc::Data> data)
{
    beginResetModel();
    m_data = std::move(data);
    m_root = std::make_unique<Node>();
    m_root->isFetched = true;
    if (m_data)
        fill(*m_root, BuildingStructure(*m_data).getRoots());
    endResetModel();
}

void StructureModel::refresh(std::vector<fc::EntityIndex> const& touched)
{
    if (!m_data)
        return;
    auto sorted = touched;
    std::sort(sorted.begin(), sorted.end());
    refreshLabels(*m_root, sorted);
}

fc::EntityIndex StructureModel::getObject(QModelIndex const& index)
{
    return index.isValid() ? static_cast<Node*>(index.internalPointer())->object : fc::noEntity;
}

QModelIndex StructureModel::findObject(fc::EntityIndex object)
{
    if (!m_data)
        return {};
    QModelIndex found;
    for (auto const step : BuildingStructure(*m_data).getPath(object)) {
        fetchMore(found);
        auto const& children = getNode(found)->children;
        auto const next = std::find_if(children.begin(), children.end(),
                                       [step](auto const& child) { return child->object == step; });
        if (next == children.end())
            return {};
        found = getIndex(**next);
    }
    return found;
}

QModelIndex StructureModel::index(int row, int column, QModelIndex const& parent) const
{
    if (!hasIndex(row, column, parent))
        return {};
    return createIndex(row, column, getNode(parent)->children[static_cast<std::size_t>(row)].get());
}

QModelIndex StructureModel::parent(QModelIndex const& index) const
{
    return index.isValid() ? getIndex(*getNode(index)->parent) : QModelIndex();
}

int StructureModel::rowCount(QModelIndex const& parent) const
{
    return parent.column() > nameColumn ? 0 : static_cast<int>(getNode(parent)->children.size());
}

int StructureModel::columnCount(QModelIndex const& /*parent*/) const { return 2; }

bool StructureModel::hasChildren(QModelIndex const& parent) const
{
    if (parent.column() > nameColumn)
        return false;
    auto const& node = *getNode(parent);
    if (node.isFetched)
        return !node.children.empty();
    return m_data && BuildingStructure(*m_data).hasChildren(node.object);
}

bool StructureModel::canFetchMore(QModelIndex const& parent) const
{
    return parent.column() <= nameColumn && m_data && !getNode(parent)->isFetched;
}

void StructureModel::fetchMore(QModelIndex const& parent)
{
    auto& node = *getNode(parent);
    if (node.isFetched || !m_data)
        return;
    node.isFetched = true;
    auto const objects = getObjectsBelow(node);
    if (objects.empty())
        return;
    beginInsertRows(parent, 0, static_cast<int>(objects.size()) - 1);
    fill(node, objects);
    endInsertRows();
}

QVariant StructureModel::data(QModelIndex const& index, int role) const
{
    if (!index.isValid())
        return {};
    auto const& label = getNode(index)->label;
    if (role == Qt::DisplayRole)
        return toQString(index.column() == nameColumn ? label.getTitle() : label.className);
    if (role == Qt::DecorationRole && index.column() == nameColumn)
        return ui::QtIcons::get(getNode(index)->icon);
    if (role == Qt::ToolTipRole)
        return toQString(label.getTitle() + "\n" + label.className + "\n" + label.globalId);
    return {};
}

QVariant StructureModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    return getText(section == nameColumn ? "Structure_Name" : "Structure_Class");
}

StructureModel::Node* StructureModel::getNode(QModelIndex const& index) const
{
    return index.isValid() ? static_cast<Node*>(index.internalPointer()) : m_root.get();
}

QModelIndex StructureModel::getIndex(Node const& node, int column) const
{
    return node.parent ? createIndex(node.position, column, &node) : QModelIndex();
}

std::vector<fc::EntityIndex> StructureModel::getObjectsBelow(Node const& node) const
{
    auto objects = BuildingStructure(*m_data).getChildren(node.object);
    for (auto const* above = &node; above; above = above->parent)
        std::erase(objects, above->object);
    return objects;
}

void StructureModel::describe(Node& node) const
{
    auto const entity = m_data->entity(node.object);
    node.label = entity ? ObjectLabel::of(*entity) : ObjectLabel();
    node.icon = entity ? fc::ui::getIconForObject(*entity, fc::ui::IconSize::Small) : Guid();
}

void StructureModel::fill(Node& node, std::vector<fc::EntityIndex> const& objects) const
{
    for (auto const object : objects) {
        auto child = std::make_unique<Node>();
        child->object = object;
        child->parent = &node;
        child->position = static_cast<int>(node.children.size());
        describe(*child);
        node.children.push_back(std::move(child));
    }
}

void StructureModel::refreshLabels(Node& node, std::vector<fc::EntityIndex> const& touched)
{
    if (node.parent && std::binary_search(touched.begin(), touched.end(), node.object)) {
        describe(node);
        emit dataChanged(getIndex(node), getIndex(node, classColumn));
    }
    for (auto const& child : node.children)
        refreshLabels(*child, touched);
}

} // namespace qev::application
