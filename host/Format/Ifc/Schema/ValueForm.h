#pragma once

#include "Format/Ifc/Schema/Attribute.h"

namespace qev::ifc {

/// How the value of an attribute is written in a file, as far as it decides how to read it.
struct ValueForm
{
    enum class Kind : std::uint8_t
    {
        Real,
        Boolean,
        Integer,
        Number,
        String,
        Binary,
        Logical,
        Entity,
        Enumeration,
        /// A reference, or a value with its type around it: `IFCLABEL('x')`.
        Select
    };

    /// Of an aggregate the kind of its innermost elements.
    Kind kind = Kind::String;
    bool isAggregate = false;

    bool operator==(ValueForm const&) const = default;
};

/// The form by the declared type, through all defined types.
HOSTIFCSCHEMA_EXPORT ValueForm valueFormOf(def::schema::Attribute const& attribute);

} // namespace qev::ifc
