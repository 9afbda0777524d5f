#include "ListWorkbook.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <utility>
#include <xlsxwriter.h>

namespace qev::application {

namespace {

/// The most that one cell can hold.
constexpr std::size_t mostCharacters = 32767;
constexpr std::size_t mostSheetNameCharacters = 31;

/// Sheets have short names without characters that stand for something in formulas.
std::string sheetNameOf(std::string name)
{
    for (auto& character : name)
        if (std::string_view("[]:*?/\\'").find(character) != std::string_view::npos)
            character = ' ';
    bool const isAscii =
        std::all_of(name.begin(), name.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
    if (name.empty() || !isAscii)
        return "Objects";
    return name.substr(0, mostSheetNameCharacters);
}

/// Not longer than a cell can hold, and not cut within a character.
std::string cutToCell(std::string const& text)
{
    if (text.size() <= mostCharacters)
        return text;
    auto end = mostCharacters;
    while (end > 0 && (static_cast<unsigned char>(text[end]) & 0xC0) == 0x80)
        --end;
    return text.substr(0, end);
}

} // namespace

WorkbookCell WorkbookCell::ofText(std::string text)
{
    if (text.empty())
        return {};
    return {Kind::Text, std::move(text), 0, false};
}

WorkbookCell WorkbookCell::ofNumber(double number)
{
    if (!std::isfinite(number))
        return {};
    return {Kind::Number, {}, number, false};
}

WorkbookCell WorkbookCell::ofTruthValue(bool isTrue) { return {Kind::TruthValue, {}, 0, isTrue}; }

struct ListWorkbook::State
{
    lxw_workbook* workbook = nullptr;
    lxw_worksheet* sheet = nullptr;
    lxw_row_t rowCount = 0;
    std::size_t columnCount = 0;
    std::size_t leftOut = 0;
};

ListWorkbook::ListWorkbook(std::filesystem::path const& path, std::string const& sheetName,
                           std::vector<std::string> const& headers)
    : m_state(std::make_unique<State>())
{
    lxw_workbook_options options = {};
    options.constant_memory = LXW_TRUE;
    m_state->workbook = workbook_new_opt(path.string().c_str(), &options);
    if (!m_state->workbook)
        return;
    m_state->sheet = workbook_add_worksheet(m_state->workbook, sheetNameOf(sheetName).c_str());
    m_state->columnCount = headers.size();
    auto* const bold = workbook_add_format(m_state->workbook);
    format_set_bold(bold);
    worksheet_freeze_panes(m_state->sheet, 1, 0);
    for (std::size_t column = 0; column < headers.size(); ++column) {
        auto const place = static_cast<lxw_col_t>(column);
        constexpr double leastWidth = 10;
        constexpr double mostWidth = 40;
        auto const width = std::clamp(static_cast<double>(headers[column].size()) + 2, leastWidth, mostWidth);
        worksheet_set_column(m_state->sheet, place, place, width, nullptr);
        worksheet_write_string(m_state->sheet, 0, place, cutToCell(headers[column]).c_str(), bold);
    }
}

ListWorkbook::~ListWorkbook()
{
    if (m_state->workbook)
        workbook_close(m_state->workbook);
}

void ListWorkbook::addRow(std::vector<WorkbookCell> const& cells)
{
    if (!m_state->sheet)
        return;
    if (m_state->rowCount >= mostRows) {
        ++m_state->leftOut;
        return;
    }
    auto const row = ++m_state->rowCount;
    for (std::size_t column = 0; column < cells.size(); ++column) {
        auto const place = static_cast<lxw_col_t>(column);
        auto const& cell = cells[column];
        switch (cell.kind) {
        case WorkbookCell::Kind::Empty:
            break;
        case WorkbookCell::Kind::Text:
            worksheet_write_string(m_state->sheet, row, place, cutToCell(cell.text).c_str(), nullptr);
            break;
        case WorkbookCell::Kind::Number:
            worksheet_write_number(m_state->sheet, row, place, cell.number, nullptr);
            break;
        case WorkbookCell::Kind::TruthValue:
            worksheet_write_boolean(m_state->sheet, row, place, cell.isTrue ? 1 : 0, nullptr);
            break;
        }
    }
}

std::optional<std::string> ListWorkbook::finish()
{
    if (!m_state->workbook)
        return lxw_strerror(LXW_ERROR_MEMORY_MALLOC_FAILED);
    if (m_state->columnCount > 0)
        worksheet_autofilter(m_state->sheet, 0, 0, m_state->rowCount,
                             static_cast<lxw_col_t>(m_state->columnCount - 1));
    auto const error = workbook_close(std::exchange(m_state->workbook, nullptr));
    m_state->sheet = nullptr;
    if (error != LXW_NO_ERROR)
        return lxw_strerror(error);
    if (m_state->leftOut > 0)
        return std::to_string(m_state->leftOut) + " rows have no place in such a file.";
    return std::nullopt;
}

} // namespace qev::application
