#pragma once

#include "reference-reader/StepRecord.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace qev::test::reference {

/// All records of a STEP file, read whole and kept.
///
/// A record that cannot be read is left out, with a message; reading goes on at the next line that begins
/// with `#`. Of two records with one number the first counts.
class StepDocument
{
public:
    struct Message
    {
        std::size_t line = 0;
        std::string text;
    };

    [[nodiscard]] static StepDocument fromText(std::string_view text);

    /// Throws std::runtime_error when the file cannot be read.
    [[nodiscard]] static StepDocument fromFile(std::string const& path);

    [[nodiscard]] std::string const& schemaName() const { return m_schemaName; }
    [[nodiscard]] std::string const& originatingSystem() const { return m_originatingSystem; }

    /// In the order of the file.
    [[nodiscard]] std::vector<StepRecord> const& records() const { return m_records; }

    /// Null when there is no such record.
    [[nodiscard]] StepRecord const* find(std::uint64_t id) const;

    [[nodiscard]] std::vector<Message> const& messages() const { return m_messages; }

private:
    friend class StepParser;

    std::string m_schemaName;
    std::string m_originatingSystem;
    std::vector<StepRecord> m_records;
    std::map<std::uint64_t, std::size_t> m_positions;
    std::vector<Message> m_messages;
};

} // namespace qev::test::reference
