#pragma once

#include <cstdint>

namespace qev::fc {

/// The LOGICAL of EXPRESS.
enum class Logical : std::uint8_t
{
    False,
    True,
    Unknown
};

} // namespace qev::fc
