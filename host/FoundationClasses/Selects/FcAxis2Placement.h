#pragma once

#include "FoundationClasses/Selects/FcAxis2PlacementMembers.h"

namespace qev::math {
class Matrix;
}

namespace qev::fc::resource::geometry {

/// IfcAxis2Placement: a coordinate system in the plane or in space, or nothing.
class HOSTFOUNDATIONCLASSES_EXPORT FcAxis2Placement : public FcAxis2PlacementMembers
{
public:
    using FcAxis2PlacementMembers::FcAxis2PlacementMembers;

    /// The transformation from the coordinate system to the one that it is placed in; the identity when
    /// unset.
    [[nodiscard]] math::Matrix transformationGet() const;
    /// Leads to a new placement with this transformation, in the plane if this one led to such a placement,
    /// otherwise in space. The former placement and its points and directions stay as they are, since
    /// others may use them.
    void setTransformation(math::Matrix const& transformation);
};

} // namespace qev::fc::resource::geometry
