#pragma once

#include "ExitCode.h"
#include "Format/Ifc/Model/IfcFile.h"

#include <filesystem>
#include <memory>

namespace qev::application {

/// Opens a file; null, and the reason on the error stream, when it cannot be used.
std::unique_ptr<ifc::IfcFile> openFile(std::filesystem::path const& path);
/// The same for commands that show or change properties: the schemas that these need are read meanwhile by
/// another thread, which has come to its end when this returns.
std::unique_ptr<ifc::IfcFile> openFileAndSchemas(std::filesystem::path const& path);

/// Saves a file; tells on the error stream why not, and what the file's version has no place for.
ExitCode saveFile(ifc::IfcFile& file, std::filesystem::path const& output);

} // namespace qev::application
