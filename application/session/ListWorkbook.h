#pragma once

#include <cstddef>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace qev::application {

/// What a cell of a workbook holds.
struct WorkbookCell
{
    enum class Kind
    {
        Empty,
        Text,
        Number,
        TruthValue,
    };

    Kind kind = Kind::Empty;
    std::string text;
    double number = 0;
    bool isTrue = false;

    friend bool operator==(WorkbookCell const&, WorkbookCell const&) = default;

    [[nodiscard]] static WorkbookCell ofText(std::string text);
    [[nodiscard]] static WorkbookCell ofNumber(double number);
    [[nodiscard]] static WorkbookCell ofTruthValue(bool isTrue);
};

/// A table as a workbook of Office Open XML. Rows go to the disk as they come, so that long tables do not
/// fill the memory.
class ListWorkbook
{
public:
    /// How many rows such a workbook can have below the headers.
    static constexpr std::size_t mostRows = 1'048'575;

    /// The workbook is written to \p path, in place of a file that is there.
    ListWorkbook(std::filesystem::path const& path, std::string const& sheetName,
                 std::vector<std::string> const& headers);
    ~ListWorkbook();
    ListWorkbook(ListWorkbook const&) = delete;
    ListWorkbook& operator=(ListWorkbook const&) = delete;

    /// A row beyond the last that there can be is left out, and `finish` tells of it.
    void addRow(std::vector<WorkbookCell> const& cells);
    /// Ends the file. \returns what went wrong; nothing when all is written.
    [[nodiscard]] std::optional<std::string> finish();

private:
    struct State;
    std::unique_ptr<State> m_state;
};

} // namespace qev::application
