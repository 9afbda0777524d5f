#pragma once

#include "reference-reader/StepRecord.h"

#include <cstdint>
#include <set>

namespace qev::test::samples {

/// The numbers of all records that a record refers to, however deep in its arguments.
[[nodiscard]] std::set<std::uint64_t> referencesOf(reference::StepRecord const& record);

} // namespace qev::test::samples
