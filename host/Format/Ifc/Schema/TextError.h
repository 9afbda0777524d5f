#pragma once

#include <cstddef>
#include <string>

namespace qev::ifc::def {

/// What is wrong with a line of a text, in words for the one who has to correct it.
struct TextError
{
    /// Counted from 1.
    std::size_t line = 0;
    std::string message;
};

} // namespace qev::ifc::def
