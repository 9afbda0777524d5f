#pragma once

#include "Object/Property.h"
#include "QevFoundationClassesUiExport.h"

#include <memory>
#include <string_view>

namespace qev::fc {
class FcBase;
}
namespace qev::fc::core::kernel {
class FcProduct;
}

namespace qev::fc::ui::propertyinterface {

inline constexpr char referencedInStructuresId[] = "ReferencedInStructures";

/// A heading of that id with the rows of the placement of \p product, which has one.
[[nodiscard]] std::shared_ptr<Property> makePlacementRow(std::string_view id,
                                                         core::kernel::FcProduct const& product);

/// Puts a heading of that id with the rows of \p address before the first heading in \p group. Without an
/// address or such a heading nothing happens.
QEVFOUNDATIONCLASSESUI_EXPORT void insertAddress(std::string_view id,
                                                 std::shared_ptr<FcBase const> const& address,
                                                 FcBase const& owner, Property& group);

} // namespace qev::fc::ui::propertyinterface
