#pragma once

#include <cstdint>
#include <string>

namespace qev::benchmarks {

/// A global id that is made from \p number, so that generated models are the same everywhere.
[[nodiscard]] std::string globalIdOf(std::uint64_t number);

} // namespace qev::benchmarks
