#pragma once

#include <cstddef>
#include <filesystem>

namespace qev::benchmarks {

/// Writes a model of \p count walls without geometry. Each has a set of the standard and one of a project's
/// own, which no schema knows, so that only the walls themselves tell that they have it in common.
/// The same bytes for the same count on every machine.
/// \returns false when the file could not be written
bool writeManyObjects(std::filesystem::path const& path, std::size_t count);

} // namespace qev::benchmarks
