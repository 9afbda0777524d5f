#pragma once

#include "FoundationClasses/Resource/Geometry/FcAxis2Placement3DAttributes.h"

namespace qev::math {
class Matrix;
}

namespace qev::fc::resource::geometry {

/// IfcAxis2Placement3D: a coordinate system in space.
class HOSTFOUNDATIONCLASSES_EXPORT FcAxis2Placement3D : public FcAxis2Placement3DAttributes
{
public:
    /// The transformation from the coordinate system to the one that it is placed in. Axes that are not set,
    /// not a direction, or parallel to each other are replaced by the standard's defaults; a location that is
    /// no cartesian point counts as the origin.
    [[nodiscard]] math::Matrix placementGet() const;
};

} // namespace qev::fc::resource::geometry
