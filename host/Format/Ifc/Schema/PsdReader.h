#pragma once

#include "Format/Ifc/Schema/SchemaPropertySetDefinitions.h"

#include <filesystem>

namespace qev::ifc::def {

/// What is wrong in a file of definitions.
struct PsdError
{
    std::filesystem::path file;
    /// Counted from 1; 0 when it is about the file as a whole.
    std::size_t line = 0;
    /// What was expected, in words for the one who has to correct the file.
    std::string message;
};

/// The sets read from published definitions.
struct PsdResult
{
    /// In the order of the files' paths.
    SchemaPropertySetDefinitions definitions;
    std::vector<PsdError> errors;
    std::size_t fileCount = 0;
};

/// Reads property and quantity sets in the XML form in which the standard publishes them and in which
/// companies write their own. The three generations of the form (IFC2X3, IFC4 and its drafts, IFC4X3) are
/// told apart by their contents alone.
///
/// \p fileOrFolder is one file, or a folder that is searched with all folders below it for files that end in
/// ".xml". What cannot be read is left out and told: a file, a set or an entry does not keep the others from
/// being read.
[[nodiscard]] HOSTIFCSCHEMA_EXPORT PsdResult readPsd(std::filesystem::path const& fileOrFolder);

/// Reads the text of one file and adds what it holds to \p result; \p file is only used to tell errors.
HOSTIFCSCHEMA_EXPORT void readPsdText(std::string_view text, std::filesystem::path const& file,
                                      PsdResult& result);

} // namespace qev::ifc::def
