#pragma once

#include "HostCoreExport.h"

#include <string>

namespace qev::math {

/// A direction and length, or a place, in space.
struct HOSTCORE_EXPORT Vector
{
    double x = 0;
    double y = 0;
    double z = 0;

    [[nodiscard]] double length() const;
    [[nodiscard]] double dot(Vector const& other) const;
    [[nodiscard]] Vector cross(Vector const& other) const;

    /// The same direction with length 1. A vector whose length is not finite, or is zero within
    /// `Epsilon::current()`, is given back as it stands.
    [[nodiscard]] Vector normalised() const;

    /// "(x, y, z)", each number with six decimals.
    [[nodiscard]] std::string toString() const;

    friend Vector operator+(Vector const& a, Vector const& b) { return {a.x + b.x, a.y + b.y, a.z + b.z}; }
    friend Vector operator-(Vector const& a, Vector const& b) { return {a.x - b.x, a.y - b.y, a.z - b.z}; }
    friend Vector operator*(double factor, Vector const& a)
    {
        return {factor * a.x, factor * a.y, factor * a.z};
    }
    friend bool operator==(Vector const&, Vector const&) = default;
};

using Point = Vector;

} // namespace qev::math
