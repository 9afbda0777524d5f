#include "FoundationClasses/Resource/GeometricConstraint/FcLocalPlacement.h"

#include "Core/Math/Matrix.h"

namespace qev::fc::resource::geometricconstraint {

math::Matrix FcLocalPlacement::relativeMatrix() const { return RelativePlacement->transformationGet(); }

} // namespace qev::fc::resource::geometricconstraint
