#include "ListExport.h"

#include "Core/Platform/AtomicFileWriter.h"
#include "Core/String/DelimitedText.h"
#include "Core/String/NumberText.h"
#include "Core/Unit/NumberFormat.h"
#include "ListTable.h"
#ifdef QEV_HAS_WORKBOOKS
#include "ListWorkbook.h"
#endif

#include <utility>

namespace qev::application {

ListExport::ListExport(ui::ListControl& list, std::vector<ListColumn> columns, std::vector<std::size_t> rows)
    : m_list(list)
    , m_columns(std::move(columns))
    , m_rows(std::move(rows))
{
}

std::vector<std::string> ListExport::getHeaders() const
{
    std::vector<std::string> headers;
    for (auto const& column : m_columns)
        headers.push_back(tableHeader(column));
    return headers;
}

std::optional<std::string> ListExport::writeCsv(std::filesystem::path const& path,
                                                Progress const& progress) const
{
    platform::AtomicFileWriter file(path);
    // The mark at the beginning tells spreadsheets that the text is UTF-8.
    file.write("\xEF\xBB\xBF");
    file.write(str::writeDelimited({getHeaders()}, ','));
    for (std::size_t i = 0; i < m_rows.size(); ++i) {
        file.write(str::writeDelimited({tableRow(m_list, m_rows[i], m_columns)}, ','));
        if (progress && !progress(i + 1, m_rows.size()))
            return std::nullopt;
    }
    return file.commit() ? std::nullopt : std::optional(file.error());
}

#ifdef QEV_HAS_WORKBOOKS

namespace {

/// Numbers with a unit are written as the user writes them, all others with a point.
std::optional<double> readNumber(std::string const& text)
{
    auto const number = unit::NumberFormat::current().read(text);
    return number ? number : str::parseDouble(text);
}

/// \p text as the table has it. It is a number or a truth value only where the list says that the cell is
/// one: a name that looks like a number stays a name.
WorkbookCell cellOf(ui::ListControl& list, std::size_t row, ListColumn const& column, std::string text)
{
    if (list.getCheckBoxMode(column.index) == ui::ListControl::BoxAlone &&
        (text == "TRUE" || text == "FALSE"))
        return WorkbookCell::ofTruthValue(text == "TRUE");
    if (!column.isCustom && fireEvent(list.onGetItemNumber, ui::ListControl::ItemInfo{row, column.index}))
        if (auto const number = readNumber(text))
            return WorkbookCell::ofNumber(*number);
    return WorkbookCell::ofText(std::move(text));
}

} // namespace

bool ListExport::canWriteWorkbooks() { return true; }

std::optional<std::string> ListExport::writeWorkbook(std::filesystem::path const& path,
                                                     std::string const& sheetName,
                                                     Progress const& progress) const
{
    platform::AtomicFileWriter file(path);
    if (file.failed())
        return file.error();
    ListWorkbook workbook(file.temporaryPath(), sheetName, getHeaders());
    bool isStopped = false;
    for (std::size_t i = 0; i < m_rows.size() && !isStopped; ++i) {
        auto texts = tableRow(m_list, m_rows[i], m_columns);
        std::vector<WorkbookCell> cells;
        for (std::size_t column = 0; column < texts.size(); ++column)
            cells.push_back(cellOf(m_list, m_rows[i], m_columns[column], std::move(texts[column])));
        workbook.addRow(cells);
        isStopped = progress && !progress(i + 1, m_rows.size());
    }
    auto const problem = workbook.finish();
    if (isStopped)
        return std::nullopt;
    if (problem)
        return problem;
    return file.commit() ? std::nullopt : std::optional(file.error());
}

#else

bool ListExport::canWriteWorkbooks() { return false; }

std::optional<std::string> ListExport::writeWorkbook(std::filesystem::path const&, std::string const&,
                                                     Progress const&) const
{
    return "This program was made without what writes workbooks.";
}

#endif

} // namespace qev::application
