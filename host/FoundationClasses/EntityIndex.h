#pragma once

#include <cstdint>

namespace qev::fc {

/// The place of an entity in its `Data`, stable for the life of the model.
using EntityIndex = std::uint32_t;

/// The index of no entity.
inline constexpr EntityIndex noEntity = 0xFFFFFFFFu;

} // namespace qev::fc
