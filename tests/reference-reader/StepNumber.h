#pragma once

#include "reference-reader/StepArgument.h"

#include <optional>

namespace qev::test::reference {

/// The number that \p argument holds, also inside a typed value; none when it is no number.
[[nodiscard]] std::optional<double> numberOf(StepArgument const& argument);

} // namespace qev::test::reference
