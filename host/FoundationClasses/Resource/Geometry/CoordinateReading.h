#pragma once

#include "Core/Math/Vector.h"
#include "FoundationClasses/ForwardDeclarations.h"

#include <memory>
#include <optional>

namespace qev::fc::resource::geometry {

/// The place of a point; the origin for a missing one and for a point that is not given by coordinates.
/// Coordinates that are missing or not finite are 0.
[[nodiscard]] math::Point pointOf(std::shared_ptr<FcPoint> const& point);

/// The direction with length 1; no value for a missing one, and for one without a direction.
[[nodiscard]] std::optional<math::Vector> directionOf(std::shared_ptr<FcDirection> const& direction);

/// The part of \p wanted across \p axis, with length 1. Where \p wanted runs along \p axis, some other
/// direction across it. \p axis has length 1.
[[nodiscard]] math::Vector perpendicularPart(math::Vector const& wanted, math::Vector const& axis);

} // namespace qev::fc::resource::geometry
