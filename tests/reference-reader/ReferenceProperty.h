#pragma once

#include "reference-reader/ReferenceValue.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace qev::test::reference {

/// A property or a quantity of a set.
struct ReferenceProperty
{
    enum class Kind
    {
        Single,
        Enumerated,
        Bounded,
        List,
        Table,
        Reference,
        Complex,
        Length,
        Area,
        Volume,
        Count,
        Weight,
        Time,
        Number,
        ComplexQuantity,
        Other
    };

    std::uint64_t id = 0;
    Kind kind = Kind::Other;

    std::string name;
    std::optional<std::string> description;

    /// Single: none or one. Enumerated and list: all. Table: the defining values. Quantities: one.
    std::vector<ReferenceValue> values;

    /// Table: the defined values.
    std::vector<ReferenceValue> definedValues;

    /// Bounded.
    std::optional<ReferenceValue> lower;
    std::optional<ReferenceValue> upper;
    std::optional<ReferenceValue> setPoint;

    /// Reference: the record; 0 when it is not set.
    std::uint64_t reference = 0;

    /// Complex properties and quantities.
    std::vector<ReferenceProperty> parts;
};

} // namespace qev::test::reference
