#pragma once

#include "HostStepExport.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace qev::step {

/// The keywords a reader knows, each with a number of the caller's choice.
///
/// Made for one look-up per record of a large file. Number 0 means "unknown".
class HOSTSTEP_EXPORT StepKeywordTable
{
public:
    using ClassNumber = std::uint16_t;
    static constexpr ClassNumber unknown = 0;

    StepKeywordTable();

    /// \p keyword in any case. A keyword that is there already takes the new number.
    void add(std::string_view keyword, ClassNumber number);

    /// The number of \p keyword, in any case, or `unknown`.
    [[nodiscard]] ClassNumber find(std::string_view keyword) const;

    /// The same for upper-case bytes that at least 64 readable bytes begin at.
    [[nodiscard]] ClassNumber findInBuffer(char const* keyword, std::size_t length) const;

    /// One more than the highest number that was added.
    [[nodiscard]] std::size_t classCount() const { return m_classCount; }

private:
    static constexpr std::size_t inlineLength = 63;

    struct Entry
    {
        std::array<char, inlineLength + 1> bytes = {};
        std::uint32_t length = 0;
        ClassNumber number = unknown;
    };

    /// A part of the hash, so that only a match is compared byte by byte.
    struct Slot
    {
        std::uint16_t tag = 0;
        /// Index into `m_entries` plus 1; 0 is free.
        std::uint16_t entry = 0;
    };

    [[nodiscard]] std::size_t slotOf(char const* keyword, std::size_t length) const;
    void grow();

    /// A power of two, at most a quarter full.
    std::vector<Slot> m_slots;
    std::vector<Entry> m_entries;
    std::size_t m_classCount = 1;
};

} // namespace qev::step
