#pragma once

#include "HostCoreExport.h"

#include <cstdint>

namespace qev::platform {

/// Bytes of physical memory that this process occupies now; 0 where the platform does not tell.
HOSTCORE_EXPORT std::uint64_t residentBytes();

} // namespace qev::platform
