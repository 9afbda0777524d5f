#pragma once

#include "FoundationClasses/Resource/GeometricConstraint/FcObjectPlacementAttributes.h"

namespace qev::math {
class Matrix;
}

namespace qev::fc::resource::geometricconstraint {

/// IfcObjectPlacement: where an object stands, mostly relative to another placement.
class HOSTFOUNDATIONCLASSES_EXPORT FcObjectPlacement : public FcObjectPlacementAttributes
{
public:
    /// The transformation from the object's coordinate system to that of the whole model. Placements that
    /// are relative to each other in a circle count once.
    [[nodiscard]] math::Matrix absoluteMatrix() const;
    /// The transformation from the object's coordinate system to the one that it is told in: that of
    /// `PlacementRelTo`, and for a placement in a grid without it that of the grid. The identity where the
    /// place is told along a curve and not by coordinates, and for a place in a grid that cannot be worked
    /// out.
    [[nodiscard]] virtual math::Matrix relativeMatrix() const;
};

} // namespace qev::fc::resource::geometricconstraint
