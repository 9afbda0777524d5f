#pragma once

#include "FoundationClasses/EntityClass.h"

#include <optional>

namespace qev::ifc {

/// The slot of the unit that the number at \p slot of an entity of this class may have of its own:
/// the `Unit` of a property or quantity, the two units of a table, the unit of a measure with unit.
std::optional<unsigned int> ownUnitSlot(fc::EntityClass const& entityClass, unsigned int slot);

} // namespace qev::ifc
