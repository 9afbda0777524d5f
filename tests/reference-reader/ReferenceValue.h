#pragma once

#include "reference-reader/StepArgument.h"
#include "reference-reader/UnitScale.h"

#include <cstdint>
#include <optional>
#include <string>

namespace qev::test::reference {

/// A single value as the file has it.
struct ReferenceValue
{
    /// How it was written, without its type.
    StepArgument::Kind kind = StepArgument::Kind::Unset;

    /// The measure in capitals, `IFCLABEL`: the type in front of the value, or the declared type of its slot.
    std::string type;

    /// Text decoded, item without its points (`T`, `F`, `U` for booleans), number as it was spelled.
    std::string text;

    /// The number in the unit of the file.
    std::optional<double> number;

    /// From the unit of the file, or the property's own, to the SI unit. Neither for values without a number.
    UnitScale scale;

    /// References: the number of the record.
    std::uint64_t reference = 0;

    [[nodiscard]] std::optional<double> si() const
    {
        return number ? std::optional(*number * scale.factor + scale.offset) : std::nullopt;
    }
};

} // namespace qev::test::reference
