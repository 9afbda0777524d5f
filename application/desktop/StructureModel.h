#pragma once

#include "BuildingStructure.h"
#include "Core/Id/Guid.h"
#include "InspectorSession.h"
#include "ObjectLabel.h"

#include <memory>
#include <QAbstractItemModel>
#include <vector>

namespace qev::application {

/// The tree of the building as an item model: a column with names and one with classes. What is below an
/// object is looked up when it is first unfolded.
class StructureModel final : public QAbstractItemModel
{
public:
    static constexpr int nameColumn = 0;
    static constexpr int classColumn = 1;

    explicit StructureModel(QObject* parent = nullptr);
    ~StructureModel() override;

    /// Shows the tree of \p data from its roots; nothing for null.
    void setData(std::shared_ptr<fc::Data> data);
    /// Reads the labels of the touched objects again.
    void refresh(std::vector<fc::EntityIndex> const& touched);

    /// The object of an index; `fc::noEntity` for an invalid one.
    [[nodiscard]] static fc::EntityIndex getObject(QModelIndex const& index);
    /// Where the object stands; an invalid index when it has no place in the tree.
    [[nodiscard]] QModelIndex findObject(fc::EntityIndex object);

    [[nodiscard]] QModelIndex index(int row, int column, QModelIndex const& parent = {}) const override;
    [[nodiscard]] QModelIndex parent(QModelIndex const& index) const override;
    [[nodiscard]] int rowCount(QModelIndex const& parent = {}) const override;
    [[nodiscard]] int columnCount(QModelIndex const& parent = {}) const override;
    [[nodiscard]] bool hasChildren(QModelIndex const& parent = {}) const override;
    [[nodiscard]] bool canFetchMore(QModelIndex const& parent) const override;
    void fetchMore(QModelIndex const& parent) override;
    [[nodiscard]] QVariant data(QModelIndex const& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    struct Node
    {
        fc::EntityIndex object = fc::noEntity;
        Node* parent = nullptr;
        int position = 0;
        bool isFetched = false;
        ObjectLabel label;
        Guid icon;
        std::vector<std::unique_ptr<Node>> children;
    };

    using QAbstractItemModel::setData;

    [[nodiscard]] Node* getNode(QModelIndex const& index) const;
    [[nodiscard]] QModelIndex getIndex(Node const& node, int column = nameColumn) const;
    /// What is to stand below a node: what the structure says, without the objects above.
    [[nodiscard]] std::vector<fc::EntityIndex> getObjectsBelow(Node const& node) const;
    void describe(Node& node) const;
    void fill(Node& node, std::vector<fc::EntityIndex> const& objects) const;
    /// \p touched is in ascending order.
    void refreshLabels(Node& node, std::vector<fc::EntityIndex> const& touched);

    std::shared_ptr<fc::Data> m_data;
    std::unique_ptr<Node> m_root;
};

} // namespace qev::application
