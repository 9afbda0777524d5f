#pragma once

#if defined(_MSC_VER) && (defined(_M_X64) || defined(_M_IX86))
#include <xmmintrin.h>
#endif

namespace qev::platform {

/// Asks the processor to fetch the memory at \p address, which may be any, into its cache: the next reader
/// need not wait for it. A hint only.
inline void prefetch(char const* address)
{
#if defined(__GNUC__)
    __builtin_prefetch(address);
#elif defined(_MSC_VER) && (defined(_M_X64) || defined(_M_IX86))
    _mm_prefetch(address, _MM_HINT_T0);
#else
    static_cast<void>(address);
#endif
}

} // namespace qev::platform
