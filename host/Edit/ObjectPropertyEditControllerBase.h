#pragma once

#include "Object/PropertyValue.h"

#include <optional>
#include <string>

namespace qev::ui::edit {

/// The base of the controllers behind the generic property grid.
class ObjectPropertyEditControllerBase
{
public:
    /// One of the values that a property may have.
    struct EnumeratedValue
    {
        /// What the user sees.
        std::string text;
        /// What is written; the text itself where there is none.
        std::optional<object::PropertyValue> value;

        friend bool operator==(EnumeratedValue const&, EnumeratedValue const&) = default;
    };
};

} // namespace qev::ui::edit
