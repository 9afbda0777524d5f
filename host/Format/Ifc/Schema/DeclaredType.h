#pragma once

#include <cstdint>
#include <optional>
#include <vector>

namespace qev::ifc::def::schema {

class ObjectBase;

/// One level of a declared type.
///
/// A type is a list of levels, outermost first: `list[1:?] of IfcLabel` has the levels list and simple,
/// `IfcLabel` the level simple alone. Only the last level has a data type.
struct DeclaredType
{
    enum class Kind : std::uint8_t
    {
        /// A value: a defined type (also one that names an aggregate), an enumeration or a base type.
        Simple = 1,
        /// A reference to an instance.
        Entity = 2,
        /// One of several types, told apart where the value stands.
        Select = 3,
        List = 4,
        Set = 5,
        Bag = 6,
        Array = 7
    };

    Kind kind = Kind::Simple;
    /// What the innermost level refers to; null for aggregate levels. Owned by the schema.
    ObjectBase const* dataType = nullptr;
    /// Bounds of an aggregate level: element counts, for arrays the index bounds.
    std::int64_t lower = 0;
    /// Absent where an aggregate has no upper bound.
    std::optional<std::int64_t> upper;
    /// True for an aggregate whose elements have to differ.
    bool unique = false;

    [[nodiscard]] bool isAggregate() const { return kind >= Kind::List; }
};

using DeclaredTypes = std::vector<DeclaredType>;

} // namespace qev::ifc::def::schema
