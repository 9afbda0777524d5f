#pragma once

#include "ChildProcess.h"
#include "FigureTable.h"

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace qev::benchmarks {

/// Measures everything for one file, several times in turn, and takes the medians.
class FileFigures
{
public:
    /// Without the program \p commandLine the start-to-end time of one object's grid is left out.
    FileFigures(ChildProcess const& process, std::filesystem::path file,
                std::optional<std::filesystem::path> commandLine);

    [[nodiscard]] FigureTable measure(unsigned int runs) const;
    /// The same for a file of very many objects: what selecting all of them costs.
    [[nodiscard]] FigureTable measureSelection(unsigned int runs) const;

private:
    /// The runs of one work; empty when it failed.
    using Runs = std::vector<Measurement>;

    void addRun(Work work, Runs& runs) const;
    void addGridRun(std::string const& globalId, Runs& runs) const;
    [[nodiscard]] std::string someGlobalId() const;

    ChildProcess const& m_process;
    std::filesystem::path m_file;
    std::optional<std::filesystem::path> m_commandLine;
};

} // namespace qev::benchmarks
