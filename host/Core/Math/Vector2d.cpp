#include "Core/Math/Vector2d.h"

#include <cmath>
#include <numbers>

namespace qev::math::_2d {

double Vector::length() const { return std::hypot(x, y); }

double Vector::dot(Vector const& other) const { return x * other.x + y * other.y; }

double Vector::counterClockwiseAngle(Vector const& other) const
{
    constexpr double fullTurn = 2 * std::numbers::pi;
    double const angle = std::atan2(x * other.y - y * other.x, dot(other));
    double const positive = angle < 0 ? angle + fullTurn : angle;
    return positive < fullTurn ? positive : 0.0;
}

double Vector::innerAngle(Vector const& other) const
{
    return std::abs(std::atan2(x * other.y - y * other.x, dot(other)));
}

Vector Vector::rotate(double angle) const
{
    double const sine = std::sin(angle);
    double const cosine = std::cos(angle);
    return {x * cosine - y * sine, x * sine + y * cosine};
}

std::string Vector::toString() const { return "(" + std::to_string(x) + ", " + std::to_string(y) + ")"; }

} // namespace qev::math::_2d
