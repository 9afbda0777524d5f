#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace qev::application {

/// Offers the systems of classification of a file or a folder beside those that are offered already, until
/// the program ends. A file that was read before is read again. \returns what could not be read, a line each.
std::vector<std::string> addClassifications(std::filesystem::path const& fileOrFolder);

} // namespace qev::application
