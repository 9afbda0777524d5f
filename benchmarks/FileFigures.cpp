#include "FileFigures.h"

#include "Figures.h"

#include <fstream>
#include <map>
#include <utility>

namespace qev::benchmarks {

namespace {

constexpr double million = 1e6;
/// A megabyte has some ten thousand records; the tree of an object repeats what it shares with others.
constexpr double secondsPerMegabyteOfTrees = 0.15;

template <class Member>
double medianOf(std::vector<Measurement> const& runs, Member member)
{
    std::vector<double> values;
    for (Measurement const& run : runs)
        values.push_back(static_cast<double>(run.*member));
    return median(std::move(values));
}

Measurement median(std::vector<Measurement> const& runs)
{
    return {medianOf(runs, &Measurement::seconds), medianOf(runs, &Measurement::processorSeconds),
            static_cast<std::uint64_t>(medianOf(runs, &Measurement::bytes))};
}

std::string times(Measurement const& measurement)
{
    return milliseconds(measurement.seconds) +
           formatted(" (processor %8.2f ms)", measurement.processorSeconds * 1e3);
}

} // namespace

FileFigures::FileFigures(ChildProcess const& process, std::filesystem::path file,
                         std::optional<std::filesystem::path> commandLine)
    : m_process(process)
    , m_file(std::move(file))
    , m_commandLine(std::move(commandLine))
{
}

void FileFigures::addRun(Work work, Runs& runs) const
{
    if (auto const measurement = m_process.run(work, m_file))
        runs.push_back(*measurement);
}

void FileFigures::addGridRun(std::string const& globalId, Runs& runs) const
{
    if (auto const measurement =
            m_process.time({m_commandLine->string(), "grid", m_file.string(), "--object", globalId}))
        runs.push_back(*measurement);
}

std::string FileFigures::someGlobalId() const
{
    // Walls are in every building; one from the middle of the file is as good as any.
    constexpr std::size_t lengthOfGlobalId = 22;
    std::ifstream file(m_file, std::ios::binary);
    file.seekg(static_cast<std::streamoff>(std::filesystem::file_size(m_file) / 2));
    std::string line;
    while (std::getline(file, line)) {
        auto const place = line.find("IFCWALL");
        auto const quote = line.find('\'', place);
        if (place == std::string::npos || quote == std::string::npos ||
            line.find("TYPE(") != std::string::npos)
            continue;
        std::string id = line.substr(quote + 1, lengthOfGlobalId);
        // A shell would take what follows a dollar sign for a variable.
        if (id.find('$') == std::string::npos)
            return id;
    }
    return {};
}

FigureTable FileFigures::measure(unsigned int runs) const
{
    std::map<Work, Runs> all;
    Runs gridRuns;
    std::string const globalId = m_commandLine ? someGlobalId() : std::string();
    for (unsigned int run = 0; run < runs; ++run) {
        // In turn, so that a busy minute of the machine meets all of them. What is held against opening
        // stands right behind it.
        for (Work const work : {Work::Floor, Work::Open, Work::Read, Work::Copy, Work::Save, Work::Look,
                                Work::First, Work::Next, Work::Tree, Work::TreeAgain, Work::Trees}) {
            addRun(work, all[work]);
            if (work == Work::Open && !globalId.empty())
                addGridRun(globalId, gridRuns);
        }
    }

    auto const size = static_cast<double>(std::filesystem::file_size(m_file));
    FigureTable table(m_file.filename().string() + ", " + megabytes(size));
    if (all[Work::Floor].empty() || all[Work::Open].empty() || all[Work::Copy].empty()) {
        table.addFailure("floor, open and copy");
        return table;
    }
    Measurement const floor = median(all[Work::Floor]);
    Measurement const open = median(all[Work::Open]);
    Measurement const copy = median(all[Work::Copy]);
    auto const addInFloors = [&](std::string const& work, Measurement const& measured, double bar) {
        double const floors = measured.seconds / floor.seconds;
        table.add(work, times(measured) + formatted("  %5.2f x floor", floors),
                  formatted("%.1f x floor", bar), floors / bar);
    };
    auto const addMemory = [&](std::string const& work, Measurement const& measured, double bar) {
        auto const bytes = static_cast<double>(measured.bytes);
        table.add(work, megabytes(bytes), megabytes(bar), bytes / bar);
    };
    auto const addTime = [&](std::string const& work, Measurement const& measured, double bar) {
        table.add(work, times(measured), milliseconds(bar), measured.seconds / bar);
    };

    table.add("floor", times(floor));
    table.add("copy with flush", times(copy));
    addInFloors("open", open, 2.5);
    addMemory("memory after opening", open, 1.6 * size + 60 * million);
    if (all[Work::Read].empty())
        table.addFailure("open and read all properties");
    else
        addInFloors("open and read all properties", median(all[Work::Read]), 10.0);
    if (all[Work::Save].empty())
        table.addFailure("open, change 10,000 and save");
    else
        addTime("open, change 10,000 and save", median(all[Work::Save]), open.seconds + 3 * copy.seconds);
    if (all[Work::Look].empty())
        table.addFailure("more memory after 1,000 objects");
    else
        addMemory("more memory after 1,000 objects", median(all[Work::Look]), 50 * million);
    if (all[Work::First].empty() || all[Work::Next].empty()) {
        table.addFailure("selection");
    } else {
        table.add("first selection", times(median(all[Work::First])));
        constexpr double bar = 0.05;
        addTime("slowest of 200 changes of selection", median(all[Work::Next]), bar);
    }
    if (all[Work::Tree].empty() || all[Work::TreeAgain].empty() || all[Work::Trees].empty()) {
        table.addFailure("trees of properties");
    } else {
        addTime("tree of one element, first time", median(all[Work::Tree]), 0.005);
        addTime("tree of one element, second time", median(all[Work::TreeAgain]), 0.0005);
        Measurement const trees = median(all[Work::Trees]);
        addTime("trees of all entities", trees, size / million * secondsPerMegabyteOfTrees);
        addMemory("more memory after all trees", trees, 50 * million);
    }
    if (!globalId.empty() && gridRuns.empty())
        table.addFailure("qev-ifc grid, one object");
    else if (!globalId.empty()) {
        // The processor's time of another program is not known here.
        constexpr double bar = 0.05;
        double const seconds = median(gridRuns).seconds;
        table.add("qev-ifc grid, one object", milliseconds(seconds), milliseconds(open.seconds + bar),
                  seconds / (open.seconds + bar));
    }
    return table;
}

FigureTable FileFigures::measureSelection(unsigned int runs) const
{
    std::map<Work, Runs> all;
    for (unsigned int run = 0; run < runs; ++run) {
        for (Work const work : {Work::Common, Work::Change})
            addRun(work, all[work]);
    }
    FigureTable table(m_file.filename().string());
    auto const add = [&](Work work, std::string const& name, double bar) {
        if (all[work].empty())
            return table.addFailure(name);
        Measurement const measured = median(all[work]);
        table.add(name, times(measured), milliseconds(bar), measured.seconds / bar);
    };
    add(Work::Common, "sets in common of all selected objects", 0.3);
    add(Work::Change, "one edit into all selected objects", 1.5);
    return table;
}

} // namespace qev::benchmarks
