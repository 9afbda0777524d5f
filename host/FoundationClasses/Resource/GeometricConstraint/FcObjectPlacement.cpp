#include "FoundationClasses/Resource/GeometricConstraint/FcObjectPlacement.h"

#include "Core/Math/Matrix.h"
#include "FoundationClasses/Resource/GeometricConstraint/FcGridPlacement.h"
#include "FoundationClasses/Resource/GeometricConstraint/FcLinearPlacement.h"
#include "FoundationClasses/Resource/GeometricConstraint/GridPosition.h"
#include "FoundationClasses/Resource/Geometry/FcAxis2Placement3D.h"

#include <set>

namespace qev::fc::resource::geometricconstraint {

namespace {

/// What \p placement is told relative to; null at the model itself.
std::shared_ptr<FcObjectPlacement> outerOf(FcObjectPlacement const& placement)
{
    auto outer = placement.PlacementRelTo->get();
    if (!outer && isOfClass<FcGridPlacement>(placement))
        return placementOfGrid(static_cast<FcGridPlacement const&>(placement));
    return outer;
}

math::Matrix matrixAlongCurve(FcLinearPlacement const& placement)
{
    auto const position = placement.CartesianPosition->get();
    return position ? position->placementGet() : math::Matrix();
}

} // namespace

math::Matrix FcObjectPlacement::absoluteMatrix() const
{
    std::set<FcBase const*> visited{this};
    math::Matrix matrix = relativeMatrix();
    auto outer = outerOf(*this);
    while (outer && visited.insert(outer.get()).second) {
        matrix = outer->relativeMatrix() * matrix;
        outer = outerOf(*outer);
    }
    return matrix;
}

math::Matrix FcObjectPlacement::relativeMatrix() const
{
    if (isOfClass<FcLinearPlacement>(*this))
        return matrixAlongCurve(static_cast<FcLinearPlacement const&>(*this));
    if (isOfClass<FcGridPlacement>(*this))
        return matrixInGrid(static_cast<FcGridPlacement const&>(*this));
    return {};
}

} // namespace qev::fc::resource::geometricconstraint
