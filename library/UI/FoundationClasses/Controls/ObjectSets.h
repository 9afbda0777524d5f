#pragma once

#include <functional>
#include <string>

namespace qev::fc::core::kernel {
class FcObjectDefinition;
}
namespace qev::ifc::def::xml {
class SetDef;
}

namespace qev::fc::ui {

/// The name in capitals of the class by which the schema knows the sets of \p object. A type goes by the
/// name of its occurrence: sets of a door apply to a door type.
[[nodiscard]] std::string setClassName(core::kernel::FcObjectDefinition const& object);

/// Tells if \p set is tied to other predefined types than \p predefinedType for the class of that name in
/// capitals.
[[nodiscard]] bool isForOtherPredefinedType(ifc::def::xml::SetDef const& set, std::string const& className,
                                            std::string const& predefinedType);

/// Calls \p visit with the type number and the name of each set that \p object itself has: an occurrence by
/// its relations, a type by its list. Others have none. A set without a name does not count.
void forEachOwnSet(core::kernel::FcObjectDefinition const& object,
                   std::function<void(unsigned int classNumber, std::string const& name)> const& visit);

} // namespace qev::fc::ui
