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
    /// The transformation from the object's coordinate system to that of `PlacementRelTo`. For a kind of
    /// placement that is not told by coordinates the identity.
    [[nodiscard]] virtual math::Matrix relativeMatrix() const;
};

} // namespace qev::fc::resource::geometricconstraint
