#pragma once

namespace qev::unit {

/// Ids of units, as `UnitFacts.h` lists them, that have styles of their own.
inline constexpr int degreeId = 18;
inline constexpr int footId = 110;

} // namespace qev::unit
