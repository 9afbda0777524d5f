#pragma once

#include <cstdint>

namespace qev::benchmarks {

/// What one run of a work took.
struct Measurement
{
    /// By the clock on the wall.
    double seconds = 0.0;
    /// Of the processor; less when the process had to wait.
    double processorSeconds = 0.0;
    /// Of physical memory: what the process has at the end, or grew by, as the work says.
    std::uint64_t bytes = 0;
};

} // namespace qev::benchmarks
