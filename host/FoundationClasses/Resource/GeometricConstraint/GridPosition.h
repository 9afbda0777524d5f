#pragma once

#include "Core/Math/Matrix.h"
#include "FoundationClasses/ForwardDeclarations.h"

#include <memory>

/// Where an object stands that is placed by the axes of a grid.
namespace qev::fc::resource::geometricconstraint {

/// The transformation from the object's coordinate system to that of the grid. Its origin is where the two
/// axes cross, each moved to its left by its offset. Its X axis is the direction that the placement gives,
/// or leads to the other crossing that it gives, or runs along the first axis. The identity where an axis
/// is missing or not straight, and where the axes do not cross.
[[nodiscard]] math::Matrix matrixInGrid(FcGridPlacement const& placement);

/// The placement of the grid that the axes belong to; null where there is none.
[[nodiscard]] std::shared_ptr<FcObjectPlacement> placementOfGrid(FcGridPlacement const& placement);

} // namespace qev::fc::resource::geometricconstraint
