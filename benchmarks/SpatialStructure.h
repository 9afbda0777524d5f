#pragma once

#include <cstddef>

namespace qev::fc {
class Data;
}

namespace qev::benchmarks {

/// Walks from the projects down to all spaces, and counts what stands in each.
/// \returns the number of elements
std::size_t walkSpatialStructure(fc::Data& data);

} // namespace qev::benchmarks
