#include "FoundationClasses/Resource/GeometricConstraint/FcObjectPlacement.h"

#include "Core/Math/Matrix.h"
#include "FoundationClasses/Resource/GeometricConstraint/FcLinearPlacement.h"
#include "FoundationClasses/Resource/Geometry/FcAxis2Placement3D.h"

#include <set>

namespace qev::fc::resource::geometricconstraint {

math::Matrix FcObjectPlacement::absoluteMatrix() const
{
    std::set<FcBase const*> visited{this};
    math::Matrix matrix = relativeMatrix();
    auto outer = PlacementRelTo->get();
    while (outer && visited.insert(outer.get()).second) {
        matrix = outer->relativeMatrix() * matrix;
        outer = outer->PlacementRelTo->get();
    }
    return matrix;
}

math::Matrix FcObjectPlacement::relativeMatrix() const
{
    if (!isOfClass<FcLinearPlacement>(*this))
        return {};
    auto const position = static_cast<FcLinearPlacement const&>(*this).CartesianPosition->get();
    return position ? position->placementGet() : math::Matrix();
}

} // namespace qev::fc::resource::geometricconstraint
