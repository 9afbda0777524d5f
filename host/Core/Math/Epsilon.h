#pragma once

namespace qev::math {

/// The tolerance of geometric comparisons.
class Epsilon
{
public:
    /// Lengths and ratios below this count as zero.
    [[nodiscard]] static constexpr double current() { return 1e-9; }
};

} // namespace qev::math
