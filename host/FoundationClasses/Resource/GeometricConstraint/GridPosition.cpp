#include "FoundationClasses/Resource/GeometricConstraint/GridPosition.h"

#include "Core/Math/Epsilon.h"
#include "FoundationClasses/Core/ProductExtension/FcGrid.h"
#include "FoundationClasses/Resource/GeometricConstraint/FcGridAxis.h"
#include "FoundationClasses/Resource/GeometricConstraint/FcGridPlacement.h"
#include "FoundationClasses/Resource/GeometricConstraint/FcVirtualGridIntersection.h"
#include "FoundationClasses/Resource/Geometry/CoordinateReading.h"
#include "FoundationClasses/Resource/Geometry/FcCartesianPoint.h"
#include "FoundationClasses/Resource/Geometry/FcDirection.h"
#include "FoundationClasses/Resource/Geometry/FcLine.h"
#include "FoundationClasses/Resource/Geometry/FcPolyline.h"
#include "FoundationClasses/Resource/Geometry/FcTrimmedCurve.h"
#include "FoundationClasses/Resource/Geometry/FcVector.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace qev::fc::resource::geometricconstraint {

using core::productextension::FcGrid;
using geometry::FcCurve;
using geometry::FcDirection;
using geometry::FcLine;
using geometry::FcPolyline;
using geometry::FcTrimmedCurve;
using math::Epsilon;
using math::Matrix;
using math::Point;
using math::Vector;

namespace {

/// Points of a polyline this close to a line, in metres, lie on it.
constexpr double bend = 1.0e-6;

/// A line of the plane without ends; its direction has length 1.
struct StraightLine
{
    Point point;
    Vector direction;
};

struct Crossing
{
    Point place;
    /// That of the first axis.
    Vector direction;
};

// --- Straight axes ----------------------------------------------------------------------------------

Vector inPlane(Vector const& vector) { return {vector.x, vector.y, 0.0}; }

std::optional<StraightLine> lineAlong(Point const& point, Vector const& direction)
{
    Vector const flat = inPlane(direction);
    double const length = flat.length();
    if (length <= Epsilon::current())
        return std::nullopt;
    return StraightLine{inPlane(point), (1.0 / length) * flat};
}

std::optional<StraightLine> reversedUnless(bool isInSense, std::optional<StraightLine> line)
{
    if (line && !isInSense)
        line->direction = -1.0 * line->direction;
    return line;
}

bool isOn(StraightLine const& line, Point const& point)
{
    return inPlane(point - line.point).cross(line.direction).length() <= bend;
}

std::optional<StraightLine> lineOf(FcPolyline const& polyline)
{
    auto const& points = polyline.Points->get();
    if (points.size() < 2)
        return std::nullopt;
    Point const begin = geometry::pointOf(points.front());
    auto const line = lineAlong(begin, geometry::pointOf(points.back()) - begin);
    bool const isStraight = line && std::all_of(points.begin(), points.end(), [&line](auto const& point) {
                                return isOn(*line, geometry::pointOf(point));
                            });
    return isStraight ? line : std::nullopt;
}

std::optional<StraightLine> lineOf(FcLine const& line)
{
    auto const vector = line.Dir->get();
    auto const direction = vector ? geometry::directionOf(vector->Orientation->get()) : std::nullopt;
    return direction ? lineAlong(geometry::pointOf(line.Pnt->get()), *direction) : std::nullopt;
}

std::optional<StraightLine> lineOf(std::shared_ptr<FcCurve> const& curve)
{
    if (auto const polyline = entityCast<FcPolyline>(curve))
        return lineOf(*polyline);
    if (auto const line = entityCast<FcLine>(curve))
        return lineOf(*line);
    auto const trimmed = entityCast<FcTrimmedCurve>(curve);
    auto const basis = trimmed ? entityCast<FcLine>(trimmed->BasisCurve->get()) : nullptr;
    return basis ? reversedUnless(trimmed->SenseAgreement.get(), lineOf(*basis)) : std::nullopt;
}

// --- Crossings --------------------------------------------------------------------------------------

double offset(FcVirtualGridIntersection const& intersection, std::size_t position)
{
    auto const& distances = intersection.OffsetDistances.get();
    return position < distances.size() && std::isfinite(distances[position]) ? distances[position] : 0.0;
}

/// The line of the axis at \p position, moved to its left.
std::optional<StraightLine> movedAxis(FcVirtualGridIntersection const& intersection, std::size_t position)
{
    auto const& axis = *intersection.IntersectingAxes->get()[position];
    auto line = reversedUnless(axis.SameSense.get(), lineOf(axis.AxisCurve->get()));
    if (line) {
        Vector const left{-line->direction.y, line->direction.x, 0.0};
        line->point = line->point + offset(intersection, position) * left;
    }
    return line;
}

std::optional<Crossing> crossingOf(std::shared_ptr<FcVirtualGridIntersection> const& intersection)
{
    if (!intersection || intersection->IntersectingAxes->get().size() != 2)
        return std::nullopt;
    auto const first = movedAxis(*intersection, 0);
    auto const second = movedAxis(*intersection, 1);
    double const sine = first && second ? first->direction.cross(second->direction).z : 0.0;
    if (std::abs(sine) <= Epsilon::current())
        return std::nullopt;
    double const way = (second->point - first->point).cross(second->direction).z / sine;
    Vector const up{0.0, 0.0, offset(*intersection, 2)};
    return Crossing{first->point + way * first->direction + up, first->direction};
}

/// The direction of the X axis, which need not be of length 1.
Vector xDirection(FcGridPlacement const& placement, Crossing const& crossing)
{
    auto const given = placement.PlacementRefDirection->entity();
    if (auto const direction = entityCast<FcDirection>(given))
        return geometry::directionOf(direction).value_or(crossing.direction);
    auto const other = crossingOf(entityCast<FcVirtualGridIntersection>(given));
    auto const line = other ? lineAlong(crossing.place, other->place - crossing.place) : std::nullopt;
    return line ? line->direction : crossing.direction;
}

template <class Grids>
std::shared_ptr<FcGrid> firstLive(Grids const& grids)
{
    for (auto const& grid : grids) {
        if (auto live = grid.lock())
            return live;
    }
    return nullptr;
}

std::shared_ptr<FcGrid> gridOf(FcGridAxis const& axis)
{
    if (auto grid = firstLive(axis.PartOfU()))
        return grid;
    if (auto grid = firstLive(axis.PartOfV()))
        return grid;
    return firstLive(axis.PartOfW());
}

} // namespace

Matrix matrixInGrid(FcGridPlacement const& placement)
{
    auto const crossing = crossingOf(placement.PlacementLocation->get());
    if (!crossing)
        return {};
    Vector const zAxis{0.0, 0.0, 1.0};
    Vector const xAxis = geometry::perpendicularPart(xDirection(placement, *crossing), zAxis);
    return {xAxis, zAxis.cross(xAxis), zAxis, crossing->place};
}

std::shared_ptr<FcObjectPlacement> placementOfGrid(FcGridPlacement const& placement)
{
    auto const intersection = placement.PlacementLocation->get();
    if (!intersection)
        return nullptr;
    for (auto const& axis : intersection->IntersectingAxes->get()) {
        if (auto const grid = gridOf(*axis))
            return grid->ObjectPlacement->get();
    }
    return nullptr;
}

} // namespace qev::fc::resource::geometricconstraint
