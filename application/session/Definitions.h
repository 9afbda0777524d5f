#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace qev::application {

/// What came of reading definitions.
struct DefinitionsResult
{
    /// What could not be read and was left out, a line each.
    std::vector<std::string> messages;
    /// False when there was no definition at all.
    bool isAnyFound = false;
};

/// Adds property-set definitions in the standard's XML form, of a file or a folder, to those compiled in.
/// They stay until the program ends. Not while the control of an open file shows sets.
DefinitionsResult addDefinitions(std::filesystem::path const& fileOrFolder);

} // namespace qev::application
