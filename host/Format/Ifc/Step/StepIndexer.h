#pragma once

#include "Format/Ifc/Step/ChunkedArray.h"
#include "Format/Ifc/Step/CompactColumn.h"
#include "Format/Ifc/Step/StepFile.h"
#include "Format/Ifc/Step/StepScanner.h"

#include <cstddef>
#include <functional>
#include <optional>
#include <string>

namespace qev::step {

/// What is known of every record, one column for each thing.
struct RecordColumns
{
    CompactColumn positions;
    CompactColumn ids;
    ChunkedArray<StepKeywordTable::ClassNumber> classes;
    /// Each id is higher than the one before.
    bool ascending = true;
    /// See `StepFile::insertPosition`.
    std::size_t insertPosition = 0;
};

/// Finds the records of all DATA sections.
class StepIndexer
{
public:
    using Severity = StepMessage::Severity;
    /// Told the severity, the place, the record and the text of each message.
    using Report = std::function<void(Severity, std::size_t, std::optional<InstanceId>, std::string)>;

    StepIndexer(StepScanner& scanner, StepKeywordTable const& table, RecordColumns& columns, Report report)
        : m_scanner(scanner)
        , m_table(table)
        , m_columns(columns)
        , m_report(std::move(report))
    {
    }

    /// \returns false when \p progress asked to stop.
    bool run(std::size_t position, StepFile::Progress const& progress);

private:
    enum class Section : std::uint8_t
    {
        None,
        Data,
        Other
    };

    /// These take the position of a record or statement and give the one behind it.
    std::size_t indexRecord(std::size_t position);
    std::size_t indexUnusualRecord(std::size_t position);
    std::size_t readStatement(std::size_t position);

    std::size_t finishRecord(std::size_t position, InstanceId id, StepKeywordTable::ClassNumber number,
                             std::size_t body);
    void checkEnding(StepScanner::RecordEnd const& end, std::size_t body, InstanceId id);
    void reportHead(StepScanner::RecordHead const& head);
    void closeSection(std::size_t position);
    std::size_t skipBlanks(std::size_t position);

    StepScanner& m_scanner;
    StepKeywordTable const& m_table;
    RecordColumns& m_columns;
    Report m_report;
    Section m_section = Section::None;
    bool m_atEnd = false;
    InstanceId m_lastId = 0;
};

} // namespace qev::step
