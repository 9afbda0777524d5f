#pragma once

#include "Classification/ClassificationSystem.h"
#include "HostClassificationExport.h"

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace qev::classification {

/// What reading systems of classification gives.
struct ClassificationReadResult
{
    std::vector<std::shared_ptr<ClassificationSystem>> systems;
    /// What could not be read and was left out, a line each, with its place.
    std::vector<std::string> messages;
};

/// Reads a table of codes: the cells of a line are parted by commas, semicolons or tabs.
///
/// The first line may name the columns "code", "title", "parent" and "description", in any order and case;
/// without such a line the first three stand in this order. Lines before it that begin with "#" say what the
/// system is: "# Name: ...", "# Description: ...", "# Source: ...", "# Edition: ..."; other such lines are
/// comments.
///
/// \param fileName stands in messages, and is the name of a system that says none.
HOSTCLASSIFICATION_EXPORT ClassificationReadResult
readClassificationTable(std::string_view text, std::filesystem::path const& fileName);

/// Reads the systems of a file: those of an IFC file (".ifc"), or the one of a table, whatever its ending.
HOSTCLASSIFICATION_EXPORT ClassificationReadResult readClassifications(std::filesystem::path const& file);

} // namespace qev::classification
