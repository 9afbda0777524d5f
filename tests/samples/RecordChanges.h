#pragma once

#include <cstdint>
#include <set>
#include <string>

namespace qev::test::samples {

/// What became of the records of a STEP file from one text of it to another.
struct RecordChanges
{
    std::set<std::uint64_t> added;
    std::set<std::uint64_t> removed;
    std::set<std::uint64_t> changed;
    /// All other bytes are the same, but for line breaks behind records that came or went.
    bool isRestSame = false;

    [[nodiscard]] static RecordChanges between(std::string const& before, std::string const& after);
};

} // namespace qev::test::samples
