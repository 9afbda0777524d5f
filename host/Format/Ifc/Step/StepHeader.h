#pragma once

#include "Format/Ifc/Step/StepValue.h"
#include "HostStepExport.h"

#include <string>
#include <string_view>
#include <vector>

namespace qev::step {

/// One record of the HEADER section.
struct StepHeaderRecord
{
    /// In upper case.
    std::string keyword;
    std::vector<StepValue> arguments;
};

/// What a file says of itself.
class HOSTSTEP_EXPORT StepHeader
{
public:
    void add(StepHeaderRecord record) { m_records.push_back(std::move(record)); }
    [[nodiscard]] std::vector<StepHeaderRecord> const& records() const { return m_records; }

    /// The first record of this keyword (upper case); null without one.
    [[nodiscard]] StepHeaderRecord const* find(std::string_view keyword) const;

    /// Names from FILE_SCHEMA as they stand, without an object identifier behind them.
    [[nodiscard]] std::vector<std::string> schemaNames() const;
    /// Texts of FILE_NAME; empty where the file gives none.
    [[nodiscard]] std::string fileName() const { return text("FILE_NAME", 0); }
    [[nodiscard]] std::string timeStamp() const { return text("FILE_NAME", 1); }
    [[nodiscard]] std::string preprocessor() const { return text("FILE_NAME", 4); }
    [[nodiscard]] std::string originatingSystem() const { return text("FILE_NAME", 5); }
    /// The items of FILE_DESCRIPTION's first argument: view definition, options.
    [[nodiscard]] std::vector<std::string> descriptions() const;

private:
    [[nodiscard]] std::string text(std::string_view keyword, std::size_t argument) const;
    [[nodiscard]] std::vector<std::string> texts(std::string_view keyword, std::size_t argument) const;

    std::vector<StepHeaderRecord> m_records;
};

} // namespace qev::step
