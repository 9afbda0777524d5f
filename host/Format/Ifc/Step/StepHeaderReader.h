#pragma once

#include "Format/Ifc/Step/StepFile.h"
#include "Format/Ifc/Step/StepHeader.h"
#include "Format/Ifc/Step/StepScanner.h"

#include <cstddef>
#include <functional>
#include <string>

namespace qev::step {

/// Reads a file from its first byte to its first DATA section.
class StepHeaderReader
{
public:
    /// Told the severity, the place and the text of each message.
    using Report = std::function<void(StepMessage::Severity, std::size_t, std::string)>;

    StepHeaderReader(StepScanner& scanner, StepHeader& header, Report report)
        : m_scanner(scanner)
        , m_header(header)
        , m_report(std::move(report))
    {
    }

    /// \returns false when the file is refused, for a reason that was reported.
    bool run();
    /// Where the first DATA section begins, or its first record where the word is missing.
    [[nodiscard]] std::size_t dataPosition() const { return m_position; }

private:
    bool checkEncoding();
    bool readStart();
    bool readSections();
    void readHeaderRecord(std::string const& keyword, std::size_t keywordEnd, std::size_t end);
    bool refuse(std::string text);

    StepScanner& m_scanner;
    StepHeader& m_header;
    Report m_report;
    std::size_t m_position = 0;
    bool m_hasHeader = false;
};

/// The word at \p position in upper case, with the hyphens that END-ISO-10303-21 has; else empty.
std::string wordAt(StepScanner const& scanner, std::size_t position);

/// What stands at \p position, for a message.
std::string foundAt(StepScanner const& scanner, std::size_t position);

} // namespace qev::step
