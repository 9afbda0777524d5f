#pragma once

#include "Format/Ifc/Step/StructuralScanner.h"

#include <bit>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace qev::step {

/// Where \p wanted, which is not empty, first stands in \p bytes; `npos` without one.
///
/// As `find` of \p bytes, but that stops at each byte like the first one, and numbers have many of the same
/// digits: here 16 places are ruled out at once by the first byte and the last. Reads up to 15 bytes behind
/// \p bytes, which `FileBytes::padding` allows for.
inline std::size_t findBytes(std::string_view bytes, std::string_view wanted);

#if defined(QEV_STEP_SSE2)

inline std::size_t findBytes(std::string_view bytes, std::string_view wanted)
{
    std::size_t const last = wanted.size() - 1;
    __m128i const allFirst = _mm_set1_epi8(wanted.front());
    __m128i const allLast = _mm_set1_epi8(wanted.back());
    for (std::size_t block = 0; block + last < bytes.size(); block += 16) {
        auto const* const begin = reinterpret_cast<__m128i const*>(bytes.data() + block);
        auto const* const end = reinterpret_cast<__m128i const*>(bytes.data() + block + last);
        __m128i const both = _mm_and_si128(_mm_cmpeq_epi8(_mm_loadu_si128(begin), allFirst),
                                           _mm_cmpeq_epi8(_mm_loadu_si128(end), allLast));
        auto places = static_cast<std::uint32_t>(_mm_movemask_epi8(both));
        for (; places != 0; places &= places - 1) {
            std::size_t const place = block + static_cast<std::size_t>(std::countr_zero(places));
            if (place + last < bytes.size() && bytes.substr(place, wanted.size()) == wanted)
                return place;
        }
    }
    return std::string_view::npos;
}

#else

inline std::size_t findBytes(std::string_view bytes, std::string_view wanted) { return bytes.find(wanted); }

#endif

} // namespace qev::step
