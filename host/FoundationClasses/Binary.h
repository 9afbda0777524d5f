#pragma once

#include <string>

namespace qev::fc {

/// The BINARY of EXPRESS: hexadecimal digits as a file has them, the first of which tells
/// how many bits of the second are unused.
struct Binary
{
    std::string digits;

    friend bool operator==(Binary const&, Binary const&) = default;
    friend auto operator<=>(Binary const&, Binary const&) = default;
};

} // namespace qev::fc
