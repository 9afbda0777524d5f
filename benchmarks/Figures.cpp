#include "Figures.h"

#include <algorithm>
#include <array>
#include <cstdio>

namespace qev::benchmarks {

double median(std::vector<double> values)
{
    auto const middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

std::string formatted(char const* pattern, double first, double second)
{
    std::array<char, 100> text = {};
    std::snprintf(text.data(), text.size(), pattern, first, second);
    return text.data();
}

std::string milliseconds(double seconds) { return formatted("%8.2f ms", seconds * 1e3); }

std::string megabytes(double bytes) { return formatted("%8.2f MB", bytes / 1e6); }

} // namespace qev::benchmarks
