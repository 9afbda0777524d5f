#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace qev::test {

/// A folder of its own for one test, removed with all that is in it.
class TemporaryFolder
{
public:
    TemporaryFolder();
    ~TemporaryFolder();
    TemporaryFolder(TemporaryFolder const&) = delete;
    TemporaryFolder& operator=(TemporaryFolder const&) = delete;

    [[nodiscard]] std::filesystem::path const& path() const { return m_path; }
    /// Writes a file into the folder and gives its path.
    std::filesystem::path write(std::string const& name, std::string_view content) const;
    /// How many entries the folder has.
    [[nodiscard]] std::size_t entryCount() const;

private:
    std::filesystem::path m_path;
};

/// The whole content of a file; empty when there is none.
std::string readFile(std::filesystem::path const& path);

} // namespace qev::test
