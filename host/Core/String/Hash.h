#pragma once

#include <cstdint>
#include <string_view>

namespace qev::str {

/// The 32-bit FNV-1a hash of the bytes of \p text: the same on every machine and in every run.
[[nodiscard]] constexpr std::uint32_t fnv1a(std::string_view text)
{
    std::uint32_t hash = 0x811C9DC5U;
    for (char const character : text) {
        hash ^= static_cast<unsigned char>(character);
        hash *= 16777619U;
    }
    return hash;
}

} // namespace qev::str
