#pragma once

#include "Model/ClassModel.h"

#include <filesystem>
#include <string>

namespace qev::schemacompiler::test {

/// The folder of this test, with the toy schema and the golden files.
std::filesystem::path testFolder();
/// The facts the real classes are made of: `data/schemas` and the list of hand-written classes.
std::filesystem::path schemaFolder();
std::filesystem::path handwrittenClassesFile();

std::string readText(std::filesystem::path const& path);

/// The model of a schema, its groups and its hand-written classes, all read from files.
ClassModel modelOf(std::filesystem::path const& schema, std::filesystem::path const& groups,
                   std::filesystem::path const& handwritten);

ClassModel toyModel();
ClassModel realModel();

} // namespace qev::schemacompiler::test
