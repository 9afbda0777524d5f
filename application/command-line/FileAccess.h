#pragma once

#include "ExitCode.h"
#include "Format/Ifc/Model/IfcFile.h"

#include <filesystem>
#include <memory>

namespace qev::application {

/// Opens a file; null, and the reason on the error stream, when it cannot be used.
std::unique_ptr<ifc::IfcFile> openFile(std::filesystem::path const& path);

/// Saves a file; tells on the error stream why not, and what the file's version has no place for.
ExitCode saveFile(ifc::IfcFile& file, std::filesystem::path const& output);

} // namespace qev::application
