#pragma once

#include "Object/Property.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace qev::test {

using PropertyNodes = std::vector<std::shared_ptr<fc::Property>>;

/// A tree of nodes as text, one line a node, indented by depth: the id, " = " and the mapped id where there
/// is one, then what is not the default: "[group]", "[list]", "[part]" for a node that does not stand alone.
std::string treeText(PropertyNodes const& nodes);

/// The ids of a node's children, in order.
std::vector<std::string> childIds(fc::Property const& node);

/// The node at a path of ids joined by "/", from the top level on; the first of several with one id. Null
/// when there is none.
std::shared_ptr<fc::Property> nodeAt(PropertyNodes const& nodes, std::string_view path);

} // namespace qev::test
