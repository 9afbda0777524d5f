#pragma once

#include <utility>

namespace qev::ui {

/// Width and height in pixels.
using Size = std::pair<unsigned int, unsigned int>;

/// A point or a distance in pixels; y grows downwards.
struct Position
{
    int x = 0;
    int y = 0;

    friend bool operator==(Position const&, Position const&) = default;
};

} // namespace qev::ui
