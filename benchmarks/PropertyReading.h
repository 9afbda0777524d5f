#pragma once

#include <cstddef>

namespace qev::fc {
class Data;
}

namespace qev::benchmarks {

/// Reads every property and quantity of every object as text, those of the object's type too. Lets go of the
/// objects now and then, as whoever looks at all of a large model does.
/// \returns the length of all texts
std::size_t readAllProperties(fc::Data& data);

/// Changes one single value in each of the first \p objectCount objects that have one.
/// \returns the number of objects changed
std::size_t changeProperties(fc::Data& data, std::size_t objectCount);

} // namespace qev::benchmarks
