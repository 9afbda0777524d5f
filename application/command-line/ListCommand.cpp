#include "Commands.h"
#include "Core/String/DelimitedText.h"
#include "FileAccess.h"
#include "HeadlessList.h"
#include "IdentityColumns.h"
#include "ListTable.h"
#include "Output.h"

#include <algorithm>
#include <iostream>

namespace qev::application {

namespace {

std::vector<std::string> wantedColumns(std::string const& text)
{
    auto const rows = str::readDelimited(text, ',');
    return rows.empty() ? std::vector<std::string>() : rows.front().cells;
}

/// The columns of the list, those wanted in the order in which they are wanted. What the objects do not have
/// in common is told on the error stream.
std::vector<ListColumn> chooseColumns(std::vector<ListColumn> const& columns,
                                      std::vector<std::string> const& wanted)
{
    if (wanted.empty())
        return columns;
    std::vector<ListColumn> chosen;
    std::copy_if(columns.begin(), columns.end(), std::back_inserter(chosen),
                 [](ListColumn const& column) { return column.isCustom; });
    for (std::string const& id : wanted) {
        auto const found = std::find_if(columns.begin(), columns.end(),
                                        [&id](ListColumn const& column) { return column.id == id; });
        if (found == columns.end())
            std::cerr << "qev-ifc: the objects do not have the property " << id << " in common\n";
        else if (!found->isCustom)
            chosen.push_back(*found);
    }
    return chosen;
}

/// Prints a list, row by row, so that only what is printed is read.
class Printer
{
public:
    Printer(fc::Data& data, HeadlessList& list, std::vector<ListColumn> columns)
        : m_data(data)
        , m_list(list)
        , m_columns(std::move(columns))
    {
    }

    void print(Format format)
    {
        if (format == Format::Csv)
            printAsCsv();
        else if (format == Format::Json)
            printAsJson();
        else
            printAsText();
    }

private:
    [[nodiscard]] std::size_t rowCount() const { return m_list.list().getRowCount(); }

    void printAsCsv()
    {
        std::vector<std::string> headers;
        for (ListColumn const& column : m_columns)
            headers.push_back(tableHeader(column));
        std::cout << str::writeDelimited({headers}, ',');
        for (std::size_t row = 0; row < rowCount(); ++row) {
            std::cout << str::writeDelimited({tableRow(*m_list.control().getListControl(), row, m_columns)},
                                             ',');
            release();
        }
    }

    void printAsJson()
    {
        Json document = {{"columns", Json::array()}, {"objects", Json::array()}};
        for (ListColumn const& column : m_columns) {
            if (!column.isCustom)
                document["columns"].push_back(
                    {{"name", column.id}, {"label", column.title}, {"unit", column.unit}});
        }
        for (std::size_t row = 0; row < rowCount(); ++row) {
            document["objects"].push_back(rowAsJson(row));
            release();
        }
        printJson(document);
    }

    [[nodiscard]] Json rowAsJson(std::size_t row) const
    {
        Json object = {{"globalId", nullptr}, {"name", nullptr}, {"values", Json::object()}};
        for (ListColumn const& column : m_columns) {
            if (column.id == IdentityColumns::globalId)
                object["globalId"] = m_list.list().getText(row, column.index);
            else if (column.id == IdentityColumns::name)
                object["name"] = m_list.list().getText(row, column.index);
            else
                object["values"][column.id] = valueAsJson(row, column.index);
        }
        return object;
    }

    [[nodiscard]] Json valueAsJson(std::size_t row, std::size_t column) const
    {
        if (m_list.list().getCheckBoxMode(column) != ui::ListControl::BoxAlone)
            return m_list.list().getText(row, column);
        auto const text = m_list.editing().getCopyText({row, column});
        return text.empty() ? Json(nullptr) : Json(text == "TRUE");
    }

    void printAsText()
    {
        std::vector<std::vector<std::string>> table(1);
        for (ListColumn const& column : m_columns)
            table.front().push_back(column.title);
        for (std::size_t row = 0; row < rowCount(); ++row) {
            auto& texts = table.emplace_back();
            for (ListColumn const& column : m_columns)
                texts.push_back(m_list.list().getCellText(row, column.index));
            release();
        }
        printTable(table);
    }

    void release() { releaseIfMany(m_data, rowCount()); }

    fc::Data& m_data;
    HeadlessList& m_list;
    std::vector<ListColumn> m_columns;
};

} // namespace

ExitCode runList(ListOptions const& options)
{
    auto const file = openFileAndSchemas(options.file);
    if (!file)
        return ExitCode::UnreadableFile;
    std::vector<std::shared_ptr<fc::FcBase>> objects;
    for (fc::EntityIndex const place : findObjects(*file, options.objects)) {
        if (auto object = file->data()->entity(place))
            objects.push_back(std::move(object));
    }
    if (objects.empty())
        return ExitCode::NothingFound;
    auto const wanted = wantedColumns(options.columns);
    HeadlessList list(file->data(), wanted);
    list.show(objects);
    auto columns = chooseColumns(list.columns(), wanted);
    bool const isNoneFound =
        !wanted.empty() &&
        std::all_of(columns.begin(), columns.end(), [](ListColumn const& column) { return column.isCustom; });
    if (isNoneFound)
        return ExitCode::NothingFound;
    Printer(*file->data(), list, std::move(columns)).print(options.format);
    return ExitCode::Success;
}

} // namespace qev::application
