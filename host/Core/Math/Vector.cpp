#include "Core/Math/Vector.h"

#include "Core/Math/Epsilon.h"

#include <cmath>

namespace qev::math {

double Vector::length() const { return std::hypot(x, y, z); }

double Vector::dot(Vector const& other) const { return x * other.x + y * other.y + z * other.z; }

Vector Vector::cross(Vector const& other) const
{
    return {y * other.z - z * other.y, z * other.x - x * other.z, x * other.y - y * other.x};
}

Vector Vector::normalised() const
{
    double const size = length();
    if (!std::isfinite(size) || size <= Epsilon::current())
        return *this;
    return {x / size, y / size, z / size};
}

std::string Vector::toString() const
{
    return "(" + std::to_string(x) + ", " + std::to_string(y) + ", " + std::to_string(z) + ")";
}

} // namespace qev::math
