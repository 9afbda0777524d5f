#pragma once

#include "Format/Ifc/Step/StepValue.h"
#include "HostStepExport.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace qev::step {

/// One thing that is wrong with a file, and where.
struct HOSTSTEP_EXPORT StepMessage
{
    enum class Severity : std::uint8_t
    {
        Warning, ///< Everything was understood, though it is not as it should be.
        Error,   ///< Something could not be read; the rest was.
        Refused, ///< The file cannot be used.
    };

    Severity severity = Severity::Error;
    /// Counted from 1; 0 when the message is about the file as a whole.
    std::uint64_t line = 0;
    /// The record in question, where there is one.
    std::optional<InstanceId> record;
    /// What was expected, and what was found instead.
    std::string text;

    /// "error in line 12, record #5: ...".
    [[nodiscard]] std::string toString() const;
};

/// Messages in the order in which they came up. A file that is wrong in a million places
/// does not fill the memory: past `limit` they are only counted.
class HOSTSTEP_EXPORT StepMessages
{
public:
    static constexpr std::size_t limit = 1000;

    void add(StepMessage message);
    [[nodiscard]] std::vector<StepMessage> const& all() const { return m_messages; }
    /// How many messages were dropped.
    [[nodiscard]] std::uint64_t dropped() const { return m_dropped; }
    [[nodiscard]] bool empty() const { return m_messages.empty(); }
    /// Whether the next message would only be counted; saves working out its place.
    [[nodiscard]] bool full() const { return m_messages.size() >= limit; }

private:
    std::vector<StepMessage> m_messages;
    std::uint64_t m_dropped = 0;
};

} // namespace qev::step
