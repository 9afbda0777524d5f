#pragma once

#include <string>

namespace qev::ui {

/// A picture that a back end can draw, known by the name it has among the program's icons.
struct Image
{
    std::string name;

    friend bool operator==(Image const&, Image const&) = default;
};

} // namespace qev::ui
