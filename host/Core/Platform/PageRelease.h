#pragma once

#include "HostCoreExport.h"

#include <cstddef>

namespace qev::platform {

/// Gives the pages inside \p size bytes at \p data back to the system, whose content is lost with that. The
/// caller frees the memory next.
///
/// Freeing a large block alone does the same on one processor; here two share it, which halves the time that
/// closing a file of hundreds of megabytes takes. Does nothing where the block is small or the system has no
/// such call.
HOSTCORE_EXPORT void releasePages(char const* data, std::size_t size);

} // namespace qev::platform
