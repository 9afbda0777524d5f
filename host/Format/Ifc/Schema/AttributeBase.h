#pragma once

#include "Format/Ifc/Schema/Attribute.h"

namespace qev::ifc {

/// What the value of an attribute is, in one number.
enum class AttributeType : std::uint8_t
{
    Real = 0,
    Boolean = 1,
    Integer = 2,
    Number = 3,
    String = 4,
    Binary = 5,
    Logical = 6,
    Entity = 7,
    Enumeration = 8,
    Select = 9,
    /// A list, set, bag or array, also one that is the meaning of a defined type.
    Aggregate = 10
};

/// What code that knows no C++ type of an attribute can ask about it.
class HOSTIFCSCHEMA_EXPORT AttributeBase
{
public:
    /// An aggregate is told by its outermost level, everything else by what its values are in the end.
    static AttributeType TypeFromSchemaAttribute(def::schema::Attribute const& attribute);
};

} // namespace qev::ifc
