#pragma once

#include "Measurement.h"

#include <cstddef>
#include <memory>
#include <optional>

namespace qev::fc {
class Data;
}

namespace qev::benchmarks {

/// The tree of properties of one element in the middle of the model, with the value of each leaf, as an
/// editor asks for it when the element is selected for the first time.
/// \returns nothing for a model without elements
[[nodiscard]] std::optional<Measurement> readTreeOfElement(std::shared_ptr<fc::Data> const& data);

/// The same when it was done before, as after an edit: the tree is built again from entities in memory.
[[nodiscard]] std::optional<Measurement> readTreeOfElementAgain(std::shared_ptr<fc::Data> const& data);

/// Builds the tree of every entity, reads each leaf, and lets go of both.
void readAllTrees(std::shared_ptr<fc::Data> const& data);

} // namespace qev::benchmarks
