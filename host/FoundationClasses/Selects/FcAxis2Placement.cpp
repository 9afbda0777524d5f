#include "FoundationClasses/Selects/FcAxis2Placement.h"

#include "Core/Math/Matrix.h"
#include "FoundationClasses/Resource/Geometry/CoordinateReading.h"
#include "FoundationClasses/Resource/Geometry/FcAxis2Placement2D.h"
#include "FoundationClasses/Resource/Geometry/FcAxis2Placement3D.h"
#include "FoundationClasses/Resource/Geometry/FcCartesianPoint.h"
#include "FoundationClasses/Resource/Geometry/FcDirection.h"
#include "FoundationClasses/Resource/Geometry/FcPoint.h"

namespace qev::fc::resource::geometry {

namespace {

std::shared_ptr<FcCartesianPoint> newPoint(std::vector<double> coordinates)
{
    auto point = std::make_shared<FcCartesianPoint>();
    point->Coordinates = std::move(coordinates);
    return point;
}

std::shared_ptr<FcDirection> newDirection(std::vector<double> ratios)
{
    auto direction = std::make_shared<FcDirection>();
    direction->DirectionRatios = std::move(ratios);
    return direction;
}

math::Matrix transformationOf(FcAxis2Placement2D const& placement)
{
    auto xAxis = directionOf(placement.RefDirection->get()).value_or(math::Vector{1.0, 0.0, 0.0});
    math::Vector const zAxis{0.0, 0.0, 1.0};
    xAxis = perpendicularPart(xAxis, zAxis);
    return {xAxis, zAxis.cross(xAxis), zAxis, pointOf(placement.Location->get())};
}

std::shared_ptr<FcAxis2Placement2D> placementInPlane(math::Matrix const& transformation)
{
    auto placement = std::make_shared<FcAxis2Placement2D>();
    auto const place = transformation.translation();
    auto const xAxis = transformation.xAxis();
    placement->Location = newPoint({place.x, place.y});
    placement->RefDirection = newDirection({xAxis.x, xAxis.y});
    return placement;
}

std::shared_ptr<FcAxis2Placement3D> placementInSpace(math::Matrix const& transformation)
{
    auto placement = std::make_shared<FcAxis2Placement3D>();
    auto const place = transformation.translation();
    auto const zAxis = transformation.zAxis();
    auto const xAxis = transformation.xAxis();
    placement->Location = newPoint({place.x, place.y, place.z});
    placement->Axis = newDirection({zAxis.x, zAxis.y, zAxis.z});
    placement->RefDirection = newDirection({xAxis.x, xAxis.y, xAxis.z});
    return placement;
}

} // namespace

math::Matrix FcAxis2Placement::transformationGet() const
{
    auto const placement = entity();
    if (auto const inSpace = entityCast<FcAxis2Placement3D>(placement))
        return inSpace->placementGet();
    if (auto const inPlane = entityCast<FcAxis2Placement2D>(placement))
        return transformationOf(*inPlane);
    return {};
}

void FcAxis2Placement::setTransformation(math::Matrix const& transformation)
{
    if (tag() == Axis2Placement2D)
        *this = FcAxis2Placement(placementInPlane(transformation));
    else
        *this = FcAxis2Placement(placementInSpace(transformation));
}

} // namespace qev::fc::resource::geometry
