#pragma once

#include "Core/Unit/QuantityPresentation.h"
#include "Object/PropertyId.h"

#include <memory>
#include <optional>
#include <string>

/// The rows of coordinates and rotations, which points and placements share.
namespace qev::fc::ui::propertyinterface {

inline constexpr char const* coordinateIds[] = {"XCoordinate", "YCoordinate", "ZCoordinate"};
inline constexpr char const* rotationIds[] = {"XAxisRotation", "YAxisRotation", "ZAxisRotation"};

/// 0, 1 or 2 for the axis of the row; nothing for every other id.
[[nodiscard]] std::optional<int> coordinateAxis(object::PropertyId const& id);
[[nodiscard]] std::optional<int> rotationAxis(object::PropertyId const& id);

[[nodiscard]] std::string coordinateName(int axis);
[[nodiscard]] std::string coordinateDescription(int axis);
[[nodiscard]] std::string rotationName(int axis);
[[nodiscard]] std::string rotationDescription(int axis);

/// New presentations of value 0, in metres and in radians.
[[nodiscard]] std::unique_ptr<unit::QuantityPresentationBase> makeLengthPresentation();
[[nodiscard]] std::unique_ptr<unit::QuantityPresentationBase> makePlaneAnglePresentation(double value = 0);

} // namespace qev::fc::ui::propertyinterface
