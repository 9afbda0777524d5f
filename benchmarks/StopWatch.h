#pragma once

#include "Measurement.h"

#include <chrono>
#include <ctime>

namespace qev::benchmarks {

/// Takes the time since it was made.
class StopWatch
{
public:
    [[nodiscard]] Measurement read() const
    {
        std::chrono::duration<double> const elapsed = std::chrono::steady_clock::now() - m_start;
        double const processor = static_cast<double>(std::clock() - m_processorStart) / CLOCKS_PER_SEC;
        return {elapsed.count(), processor, 0};
    }

private:
    std::chrono::steady_clock::time_point m_start = std::chrono::steady_clock::now();
    std::clock_t m_processorStart = std::clock();
};

} // namespace qev::benchmarks
