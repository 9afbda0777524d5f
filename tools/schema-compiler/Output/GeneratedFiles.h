#pragma once

#include <filesystem>
#include <map>
#include <string>

namespace qev::schemacompiler {

/// The files that one run makes, by their path below the output folder.
class GeneratedFiles
{
public:
    void add(std::string const& path, std::string text);

    [[nodiscard]] std::map<std::string, std::string> const& texts() const { return m_texts; }

    /// Writes every file whose text differs from what is there already, so that nothing is compiled
    /// again without need, and removes files of an earlier run that are not made any more.
    /// \returns the number of files written. Raises `std::runtime_error` when a file cannot be written.
    std::size_t writeTo(std::filesystem::path const& folder) const;

private:
    std::map<std::string, std::string> m_texts;
};

} // namespace qev::schemacompiler
