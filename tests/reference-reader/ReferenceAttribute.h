#pragma once

#include "reference-reader/ReferenceValue.h"

#include <optional>
#include <string>

namespace qev::test::reference {

/// An attribute of an object.
struct ReferenceAttribute
{
    std::string name;

    /// As the schema declares it.
    std::string declaredType;

    StepArgument written;

    /// The value, when the attribute is set and holds no list.
    std::optional<ReferenceValue> value;

    /// Lists of numbers: from the unit of the file to the SI unit.
    UnitScale itemScale;
};

} // namespace qev::test::reference
