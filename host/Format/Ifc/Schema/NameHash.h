#pragma once

#include <cstdint>
#include <string_view>

namespace qev::ifc::def::schema {

/// The 32-bit FNV-1a hash of the bytes of \p name; the first key that a schema sorts its names by.
constexpr std::uint32_t nameHash(std::string_view name)
{
    std::uint32_t hash = 0x811C9DC5U;
    for (char const character : name) {
        hash ^= static_cast<unsigned char>(character);
        hash *= 16777619U;
    }
    return hash;
}

} // namespace qev::ifc::def::schema
