#pragma once

#include "Object/Property.h"

#include <memory>
#include <string>
#include <vector>

namespace qev::fc {
class FcBase;
}
namespace qev::fc::core::kernel {
class FcObjectDefinition;
}

namespace qev::fc::ui::propertyinterface {

/// The id of the heading above the sets of an occurrence or a type.
inline constexpr char propertySetsId[] = "PropertySets";

/// That heading with the rows of \p sets below it, in the order in which sets are listed.
[[nodiscard]] std::shared_ptr<Property> makePropertySetsRow(core::kernel::FcObjectDefinition const& object,
                                                            std::vector<std::shared_ptr<FcBase>> const& sets);

[[nodiscard]] std::string propertySetsName();
[[nodiscard]] std::string propertySetsDescription();

} // namespace qev::fc::ui::propertyinterface
