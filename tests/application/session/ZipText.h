#pragma once

#include <filesystem>
#include <string>

namespace qev::test {

/// The bytes of one member of a zip archive; empty when there is none of that name.
std::string readZipMember(std::filesystem::path const& archive, std::string const& name);

} // namespace qev::test
