#pragma once

#include "Measurement.h"
#include "Work.h"

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace qev::benchmarks {

/// Runs works in processes of their own, so that none has the memory of another one.
class ChildProcess
{
public:
    /// \p program is this program; files come and go in \p folder.
    ChildProcess(std::filesystem::path program, std::filesystem::path folder);

    /// Does a work once in a new process. No measurement when it failed.
    [[nodiscard]] std::optional<Measurement> run(Work work, std::filesystem::path const& file) const;
    /// The time of another program from its start to its end. What it prints goes nowhere.
    [[nodiscard]] std::optional<Measurement> time(std::vector<std::string> const& command) const;

    /// The other side: does the work and leaves the measurement in \p result.
    static bool answer(Work work, std::filesystem::path const& file, std::filesystem::path const& scratchFile,
                       std::filesystem::path const& result);

private:
    std::filesystem::path m_program;
    std::filesystem::path m_folder;
};

} // namespace qev::benchmarks
