#pragma once

#include "FoundationClasses/Resource/Measure/FcValue.h"
#include "Object/PropertyId.h"
#include "Object/PropertyValue.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace qev::fc {
class FcBase;
struct Property;
} // namespace qev::fc

/// The rows of a property that holds several values: each has the position of its value as id, from 0 on.
namespace qev::fc::ui::propertyinterface {

using Values = std::optional<std::vector<resource::measure::FcValue>>;

/// Adds \p count rows for which \p property answers.
void appendValueRows(std::size_t count, FcBase const& property, Property& row);

/// The value at the position that \p id is; null when \p id is no position, or one behind the end.
[[nodiscard]] resource::measure::FcValue const* valueAt(Values const& values, object::PropertyId const& id);

/// The value in the optional kind of what it holds; nothing for none.
[[nodiscard]] object::PropertyValue optionalValueOf(resource::measure::FcValue const* value);

} // namespace qev::fc::ui::propertyinterface
