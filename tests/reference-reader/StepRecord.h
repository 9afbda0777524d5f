#pragma once

#include "reference-reader/StepArgument.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace qev::test::reference {

/// One record of a data section.
struct StepRecord
{
    std::uint64_t id = 0;

    /// In capitals; empty when the record joins several partial ones, which are then typed arguments.
    std::string keyword;

    std::vector<StepArgument> arguments;

    /// The line on which the record begins, from 1.
    std::size_t line = 0;

    /// The argument at \p position; unset where the record is too short.
    [[nodiscard]] StepArgument const& argument(std::size_t position) const
    {
        static StepArgument const unset;
        return position < arguments.size() ? arguments[position] : unset;
    }
};

} // namespace qev::test::reference
