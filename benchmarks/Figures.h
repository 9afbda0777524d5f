#pragma once

#include <string>
#include <vector>

namespace qev::benchmarks {

/// The upper one of the two in the middle when their number is even. There has to be a value.
[[nodiscard]] double median(std::vector<double> values);

/// \p pattern is one of `printf` for one or two numbers of type double.
[[nodiscard]] std::string formatted(char const* pattern, double first, double second = 0.0);

[[nodiscard]] std::string milliseconds(double seconds);
[[nodiscard]] std::string megabytes(double bytes);

} // namespace qev::benchmarks
