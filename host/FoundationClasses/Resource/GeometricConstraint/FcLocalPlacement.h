#pragma once

#include "FoundationClasses/Resource/GeometricConstraint/FcLocalPlacementAttributes.h"

namespace qev::fc::resource::geometricconstraint {

/// IfcLocalPlacement: a coordinate system relative to another placement, or to the model.
class HOSTFOUNDATIONCLASSES_EXPORT FcLocalPlacement : public FcLocalPlacementAttributes
{
public:
    [[nodiscard]] math::Matrix relativeMatrix() const override;
};

} // namespace qev::fc::resource::geometricconstraint
