#pragma once

#include "Ui/Window/Image.h"

#include <memory>
#include <string>

namespace qev::ui {

/// One of the buttons at the end of a row.
struct PropertyGridRowButton
{
    /// What the owner of the row knows the button by; may be empty.
    std::string key;
    /// Null for the usual picture.
    std::shared_ptr<Image const> image;
    /// What the button does, for people.
    std::string text;

    friend bool operator==(PropertyGridRowButton const&, PropertyGridRowButton const&) = default;
};

} // namespace qev::ui
