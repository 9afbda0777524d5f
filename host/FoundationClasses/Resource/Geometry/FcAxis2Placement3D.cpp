#include "FoundationClasses/Resource/Geometry/FcAxis2Placement3D.h"

#include "Core/Math/Matrix.h"
#include "FoundationClasses/Resource/Geometry/CoordinateReading.h"
#include "FoundationClasses/Resource/Geometry/FcDirection.h"
#include "FoundationClasses/Resource/Geometry/FcPoint.h"

namespace qev::fc::resource::geometry {

math::Matrix FcAxis2Placement3D::placementGet() const
{
    auto const zAxis = directionOf(Axis->get()).value_or(math::Vector{0.0, 0.0, 1.0});
    auto const wanted = directionOf(RefDirection->get()).value_or(math::Vector{1.0, 0.0, 0.0});
    auto const xAxis = perpendicularPart(wanted, zAxis);
    return {xAxis, zAxis.cross(xAxis), zAxis, pointOf(Location->get())};
}

} // namespace qev::fc::resource::geometry
