#pragma once

#include "HostCoreExport.h"

#include <string>

namespace qev::math::_2d {

/// A direction and length, or a place, in a plane.
struct HOSTCORE_EXPORT Vector
{
    double x = 0;
    double y = 0;

    [[nodiscard]] double length() const;
    [[nodiscard]] double dot(Vector const& other) const;

    /// By how many radians this vector has to be turned against the clock to point where \p other
    /// points: 0 and above, below a full turn. 0 where one of them has no length.
    [[nodiscard]] double counterClockwiseAngle(Vector const& other) const;

    /// The angle between the two in radians, whichever way round: from 0 to half a turn.
    [[nodiscard]] double innerAngle(Vector const& other) const;

    /// This vector turned against the clock by \p angle radians.
    [[nodiscard]] Vector rotate(double angle) const;

    /// "(x, y)", each number with six decimals.
    [[nodiscard]] std::string toString() const;

    friend bool operator==(Vector const&, Vector const&) = default;
};

using Point = Vector;

} // namespace qev::math::_2d
