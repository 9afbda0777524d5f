#include "ChildProcess.h"

#include "StopWatch.h"

#include <cstdlib>
#include <fstream>
#include <iomanip>
#include <utility>

namespace qev::benchmarks {

namespace {

std::string commandLine(std::vector<std::string> const& command)
{
    std::string line;
    for (std::string const& word : command)
        line += (line.empty() ? "\"" : " \"") + word + "\"";
    return line;
}

} // namespace

ChildProcess::ChildProcess(std::filesystem::path program, std::filesystem::path folder)
    : m_program(std::move(program))
    , m_folder(std::move(folder))
{
}

std::optional<Measurement> ChildProcess::run(Work work, std::filesystem::path const& file) const
{
    auto const scratchFile = m_folder / "scratch.ifc";
    auto const result = m_folder / "measurement.txt";
    std::filesystem::remove(result);
    int const exitCode = std::system(commandLine({m_program.string(), "--work", std::string(nameOf(work)),
                                                  file.string(), scratchFile.string(), result.string()})
                                         .c_str());
    std::filesystem::remove(scratchFile);
    Measurement measurement;
    std::ifstream answer(result);
    if (exitCode != 0 ||
        !(answer >> measurement.seconds >> measurement.processorSeconds >> measurement.bytes))
        return std::nullopt;
    return measurement;
}

std::optional<Measurement> ChildProcess::time(std::vector<std::string> const& command) const
{
    auto const output = m_folder / "output.txt";
    std::string const line = commandLine(command) + " > " + commandLine({output.string()}) + " 2>&1";
    StopWatch const watch;
    if (std::system(line.c_str()) != 0)
        return std::nullopt;
    return watch.read();
}

bool ChildProcess::answer(Work work, std::filesystem::path const& file,
                          std::filesystem::path const& scratchFile, std::filesystem::path const& result)
{
    auto const measurement = doWork(work, file, scratchFile);
    if (!measurement)
        return false;
    std::ofstream answer(result);
    answer << std::setprecision(9) << measurement->seconds << ' ' << measurement->processorSeconds << ' '
           << measurement->bytes << '\n';
    return answer.good();
}

} // namespace qev::benchmarks
