#include "Edit/EditorNode.h"

#include <algorithm>
#include <map>
#include <string>
#include <utility>

namespace qev::ui::edit {

namespace {

using object::PropertyId;

/// Whether a row is a heading, by the ids of rows.
using Headings = std::map<PropertyId, bool>;

/// Dynamic rows begin their ids with the level they are made for; the objects answer without it.
PropertyId withoutLevel(PropertyId const& id, EditorLevel const& level)
{
    auto const beginning = level.name + '.';
    return id.text().starts_with(beginning) ? PropertyId(id.text().substr(beginning.size())) : id;
}

EditorNode makeNode(Property property, EditorLevel const& level)
{
    EditorNode node{std::move(property), true, {}};
    node.property.id = withoutLevel(node.property.id, level);
    for (auto& child : std::exchange(node.property.children, {}))
        node.children.push_back(makeNode(std::move(child), level));
    return node;
}

EditorNode* findNode(std::vector<EditorNode>& nodes, PropertyId const& id)
{
    for (auto& node : nodes) {
        if (node.property.id == id)
            return &node;
        if (auto* const below = findNode(node.children, id))
            return below;
    }
    return nullptr;
}

/// The row with the longest id that begins \p id; null when none does.
EditorNode* findNodeAbove(std::vector<EditorNode>& nodes, PropertyId const& id)
{
    EditorNode* longest = nullptr;
    auto const take = [&](EditorNode* candidate) {
        if (candidate &&
            (!longest || candidate->property.id.text().size() > longest->property.id.text().size()))
            longest = candidate;
    };
    for (auto& node : nodes) {
        if (id.text().starts_with(node.property.id.text() + '.'))
            take(&node);
        take(findNodeAbove(node.children, id));
    }
    return longest;
}

/// Puts a row where its id belongs, unless it is there; those below it each for itself.
void insert(std::vector<EditorNode>& nodes, EditorNode node, ObjectPropertyEditInterface const& editor)
{
    auto children = std::exchange(node.children, {});
    if (!findNode(nodes, node.property.id) && editor.isOkToAddProperty(node.property.id)) {
        auto* const above = findNodeAbove(nodes, node.property.id);
        (above ? above->children : nodes).push_back(std::move(node));
    }
    for (auto& child : children)
        insert(nodes, std::move(child), editor);
}

std::vector<EditorNode> makeTreeOf(ShownObject const& object, EditorLevel const& level)
{
    auto& editor = object.getEditor();
    if (!editor.doPropertiesApplyAtEditorLevel(level))
        return {};
    auto properties = editor.getPropertiesToBeEdited({level});
    editor.onPropertiesFetchedFromConfiguration(level, properties);
    std::vector<EditorNode> nodes;
    for (auto& property : properties)
        nodes.push_back(makeNode(std::move(property), level));
    for (auto& [name, dynamicProperties] : editor.getDynamicProperties())
        for (auto const& property : dynamicProperties)
            insert(nodes, makeNode(property, level), editor);
    return nodes;
}

void collect(std::vector<EditorNode> const& nodes, Headings& headings)
{
    for (auto const& node : nodes) {
        headings[node.property.id] = node.property.isGroup;
        collect(node.children, headings);
    }
}

/// Takes the rows off that \p others lack. A heading stays as long as a row below it does.
void keepShared(std::vector<EditorNode>& nodes, Headings const& others)
{
    std::erase_if(nodes, [&](EditorNode& node) {
        keepShared(node.children, others);
        auto const found = others.find(node.property.id);
        auto const isThere = found != others.end() && found->second == node.property.isGroup;
        node.isShared = node.isShared && isThere;
        return !isThere && (!node.property.isGroup || node.children.empty());
    });
}

} // namespace

std::vector<EditorNode> EditorNode::makeTree(ShownObjects const& objects, EditorLevel const& level)
{
    if (objects.empty())
        return {};
    auto nodes = makeTreeOf(*objects.front(), level);
    for (std::size_t other = 1; other < objects.size(); ++other) {
        Headings headings;
        collect(makeTreeOf(*objects[other], level), headings);
        keepShared(nodes, headings);
    }
    return nodes;
}

} // namespace qev::ui::edit
