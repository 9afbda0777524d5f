#pragma once

#include "Measurement.h"

#include <cstddef>
#include <memory>
#include <optional>

namespace qev::fc {
class Data;
}

namespace qev::benchmarks {

/// Shows one object in a grid, and then \p count others, one after the other.
/// \returns the time of the slowest change of the selection, the first grid left out
[[nodiscard]] Measurement slowestChangeOfSelection(std::shared_ptr<fc::Data> const& data, std::size_t count);

/// Shows one object in a grid for the first time in the model.
[[nodiscard]] Measurement firstSelection(std::shared_ptr<fc::Data> const& data);

/// Selects all objects and works out the sets that they have in common. Whoever selected them has
/// them as entities already; their relations and sets are not.
[[nodiscard]] Measurement commonSetsOfAll(std::shared_ptr<fc::Data> const& data);

/// Changes Pset_WallCommon.Reference in all objects at once.
/// \returns nothing when an object refused
[[nodiscard]] std::optional<Measurement> changeAll(std::shared_ptr<fc::Data> const& data);

} // namespace qev::benchmarks
