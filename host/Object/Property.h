#pragma once

#include "Object/ObjectInterface.h"
#include "Object/PropertyId.h"

#include <memory>
#include <optional>
#include <vector>

namespace qev::fc {

/// One node of a tree of properties. Nodes are shared between the tree and whoever asked for it.
struct Property
{
    /// One segment of a path, or the whole path: that depends on who made the tree.
    object::PropertyId id;
    /// The id under which `object` answers, where it differs from `id`.
    std::optional<object::PropertyId> mappedId;
    /// A heading without a value of its own.
    bool isGroup = false;
    /// The children are the elements of a list: their segments are positions or prefixes.
    bool isList = false;
    /// What answers for this node.
    std::shared_ptr<generate::ObjectInterface> object;
    std::vector<std::shared_ptr<Property>> children;
    /// False for the rows below an element of a list.
    bool standalone = true;
};

} // namespace qev::fc
