#include "FoundationClasses/Resource/Geometry/CoordinateReading.h"

#include "FoundationClasses/Resource/Geometry/FcCartesianPoint.h"
#include "FoundationClasses/Resource/Geometry/FcDirection.h"

#include <cmath>
#include <vector>

namespace qev::fc::resource::geometry {

namespace {

/// Directions whose sine to each other is smaller count as parallel.
constexpr double parallel = 1.0e-9;

double component(std::vector<double> const& components, std::size_t place)
{
    return place < components.size() && std::isfinite(components[place]) ? components[place] : 0.0;
}

math::Vector vectorOf(std::vector<double> const& components)
{
    return {component(components, 0), component(components, 1), component(components, 2)};
}

} // namespace

math::Point pointOf(std::shared_ptr<FcPoint> const& point)
{
    auto const cartesian = entityCast<FcCartesianPoint>(point);
    return cartesian ? vectorOf(cartesian->Coordinates) : math::Point();
}

std::optional<math::Vector> directionOf(std::shared_ptr<FcDirection> const& direction)
{
    if (!direction)
        return std::nullopt;
    auto const vector = vectorOf(direction->DirectionRatios);
    double const length = vector.length();
    if (length == 0.0 || !std::isfinite(length))
        return std::nullopt;
    return (1.0 / length) * vector;
}

math::Vector perpendicularPart(math::Vector const& wanted, math::Vector const& axis)
{
    auto across = wanted - wanted.dot(axis) * axis;
    if (across.length() < parallel) {
        bool const isAlongX = std::abs(axis.x) > 0.9;
        auto const other = isAlongX ? math::Vector{0.0, 1.0, 0.0} : math::Vector{1.0, 0.0, 0.0};
        across = other - other.dot(axis) * axis;
    }
    return (1.0 / across.length()) * across;
}

} // namespace qev::fc::resource::geometry
