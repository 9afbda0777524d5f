#pragma once

#include "HostIfcModelExport.h"

#include <string>
#include <string_view>
#include <vector>

namespace qev::ifc::def::schema {
class Entity;
}

namespace qev::ifc {

/// The classes whose sets also apply to objects of \p className ("IfcWall"): the class itself first, then its
/// superclasses up to the root. Empty for a class that the model does not have.
[[nodiscard]] HOSTIFCMODEL_EXPORT std::vector<std::string> getCompatibleClasses(std::string_view className);

/// The nearest class that both are or descend from, which may be one of the two. Null when they share none,
/// and for a class that the model does not have. Owned by the schema.
[[nodiscard]] HOSTIFCMODEL_EXPORT def::schema::Entity const* getLowestCommonAncestor(std::string_view first,
                                                                                     std::string_view second);

} // namespace qev::ifc
