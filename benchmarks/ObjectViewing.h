#pragma once

#include <cstddef>
#include <memory>

namespace qev::fc {
class Data;
}

namespace qev::benchmarks {

/// Shows objects one after the other in the property grid, spread over the whole model, and lets go of each.
/// \returns the number of rows seen
std::size_t viewObjects(std::shared_ptr<fc::Data> const& data, std::size_t objectCount);

} // namespace qev::benchmarks
