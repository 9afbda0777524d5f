#pragma once

#include <compare>
#include <cstdint>

namespace qev::attr {

/// A colour of four bytes; alpha 255 is opaque.
struct Colour
{
    std::uint8_t alpha = 255;
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;

    friend constexpr bool operator==(Colour const&, Colour const&) = default;
    friend constexpr auto operator<=>(Colour const&, Colour const&) = default;
};

} // namespace qev::attr
