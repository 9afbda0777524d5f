#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>

#if defined(__SSE2__) || defined(_M_X64)
#define QEV_STEP_SSE2 1
#include <emmintrin.h>
#endif

namespace qev::step {

/// Finds the few bytes that decide where a record ends: `;`, `'`, `/` and the ends of lines.
///
/// Works on blocks of 64 bytes, so the buffer needs 64 readable bytes behind its end.
class StructuralScanner
{
public:
    StructuralScanner(char const* data, std::size_t size)
        : m_data(data)
        , m_size(size)
    {
    }

    /// The next search begins at \p position.
    void seek(std::size_t position)
    {
        std::size_t const block = position & ~std::size_t{63};
        if (block != m_block) {
            m_block = block;
            m_all = block < m_size ? structuralBytes(m_data + block) : 0;
        }
        m_left = m_all & (~std::uint64_t{0} << (position & 63));
    }

    /// The next such byte, and moves behind it; the size of the buffer when there is none.
    std::size_t next()
    {
        while (m_left == 0) {
            if (m_block >= m_size || m_size - m_block <= 64)
                return m_size;
            m_block += 64;
            m_all = m_left = structuralBytes(m_data + m_block);
        }
        std::size_t const position = m_block + static_cast<std::size_t>(std::countr_zero(m_left));
        m_left &= m_left - 1;
        return position < m_size ? position : m_size;
    }

    /// One bit for each of 64 bytes.
    static std::uint64_t structuralBytes(char const* block);
    /// The same without instructions of a particular processor.
    static std::uint64_t structuralBytesPortable(char const* block);

private:
    char const* m_data;
    std::size_t m_size;
    std::size_t m_block = ~std::size_t{0};
    std::uint64_t m_all = 0;
    std::uint64_t m_left = 0;
};

#if defined(QEV_STEP_SSE2)

inline std::uint64_t structuralBytesOf16(char const* bytes)
{
    __m128i const text = _mm_loadu_si128(reinterpret_cast<__m128i const*>(bytes));
    __m128i const ends =
        _mm_or_si128(_mm_cmpeq_epi8(text, _mm_set1_epi8(';')), _mm_cmpeq_epi8(text, _mm_set1_epi8('\'')));
    __m128i const lines =
        _mm_or_si128(_mm_cmpeq_epi8(text, _mm_set1_epi8('\n')), _mm_cmpeq_epi8(text, _mm_set1_epi8('\r')));
    __m128i const slashes = _mm_cmpeq_epi8(text, _mm_set1_epi8('/'));
    __m128i const all = _mm_or_si128(_mm_or_si128(ends, lines), slashes);
    return static_cast<std::uint32_t>(_mm_movemask_epi8(all));
}

inline std::uint64_t StructuralScanner::structuralBytes(char const* block)
{
    return structuralBytesOf16(block) | structuralBytesOf16(block + 16) << 16 |
           structuralBytesOf16(block + 32) << 32 | structuralBytesOf16(block + 48) << 48;
}

/// How many of the 64 bytes at \p bytes come before the first \p wanted; 64 without one.
inline std::size_t distanceTo(char const* bytes, char wanted)
{
    __m128i const all = _mm_set1_epi8(wanted);
    for (std::size_t at = 0; at < 64; at += 16) {
        __m128i const text = _mm_loadu_si128(reinterpret_cast<__m128i const*>(bytes + at));
        auto const found = static_cast<std::uint32_t>(_mm_movemask_epi8(_mm_cmpeq_epi8(text, all)));
        if (found != 0)
            return at + static_cast<std::size_t>(std::countr_zero(found));
    }
    return 64;
}

#else

inline std::uint64_t StructuralScanner::structuralBytes(char const* block)
{
    return structuralBytesPortable(block);
}

inline std::size_t distanceTo(char const* bytes, char wanted)
{
    std::size_t at = 0;
    while (at < 64 && bytes[at] != wanted)
        ++at;
    return at;
}

#endif

} // namespace qev::step
