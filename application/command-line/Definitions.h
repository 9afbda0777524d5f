#pragma once

#include <filesystem>
#include <vector>

namespace qev::application {

/// Adds property-set definitions in the standard's XML form, of files or folders, to those compiled in.
/// What cannot be read is told on the error stream and left out. \returns false when nothing could be read.
bool addDefinitions(std::vector<std::filesystem::path> const& filesOrFolders);

} // namespace qev::application
