#pragma once

#include "FigureTable.h"

#include <functional>
#include <string_view>

namespace qev::benchmarks {

/// What the programs that measure something on the screen have in common.
struct ScreenMain
{
    std::string_view program;
    std::string_view description;
    unsigned int defaultRuns = 1;
    /// Called with a `QApplication` in place, and how often to measure.
    std::function<FigureTable(unsigned int runs)> measure;

    /// Takes the option, measures and prints. \returns the exit code.
    int run(int argc, char** argv) const;
};

} // namespace qev::benchmarks
