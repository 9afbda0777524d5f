#pragma once

#include "Core/Math/Vector2d.h"

#include <optional>

namespace qev::fc::resource::representation {
class FcGeometricRepresentationContext;
}

namespace qev::fc::ui::propertyinterface {

/// The direction that counts as north where nothing else is said.
inline constexpr math::_2d::Vector northAxis{0.0, 1.0};

/// Where true north lies in the plane of the model; nothing where the context does not say.
[[nodiscard]] std::optional<math::_2d::Vector>
northDirection(resource::representation::FcGeometricRepresentationContext const& context);

} // namespace qev::fc::ui::propertyinterface
