#include "ListImport.h"

#include "Core/Unit/QuantityPresentation.h"
#include "FoundationClasses/Core/Kernel/FcObjectDefinition.h"
#include "UI/FoundationClasses/Property/Types/FcPropertySingleValue.h"

#include <algorithm>
#include <numeric>
#include <set>

namespace qev::application {

namespace {

using fc::core::kernel::FcObjectDefinition;

/// The name of a column of a table without the unit in brackets behind it, and that unit.
struct Header
{
    std::string id;
    std::string unit;
};

Header headerOf(std::string const& text)
{
    auto const bracket = text.rfind(" [");
    if (bracket == std::string::npos || !text.ends_with(']'))
        return {text, {}};
    return {text.substr(0, bracket), text.substr(bracket + 2, text.size() - bracket - 3)};
}

/// The column of the list that a column of a table is about. A name that itself ends in brackets goes first.
ListColumn const* findColumn(std::vector<ListColumn> const& columns, std::string const& header)
{
    for (auto const& id : {header, headerOf(header).id}) {
        auto const found = std::find_if(columns.begin(), columns.end(),
                                        [&id](ListColumn const& column) { return column.id == id; });
        if (found != columns.end())
            return &*found;
    }
    return nullptr;
}

/// A cell of a table as a text for the list, which may show another unit by now.
std::string textForList(std::string const& cell, std::string const& header, ListColumn const& column)
{
    auto const unit = column.id == header ? std::string() : headerOf(header).unit;
    bool const isBareNumber =
        !cell.empty() && cell.find_first_not_of("+-0123456789.,eE ") == std::string::npos;
    return isBareNumber && !unit.empty() && unit != column.unit ? cell + " " + unit : cell;
}

/// The number that \p text stands for in a column with a unit, in SI units; nothing in other columns.
std::optional<double> numberOf(std::string const& text, HeadlessList const& list, ListColumn const& column)
{
    auto const* const property =
        column.isCustom ? nullptr : list.control().getColumns().getProperty(column.index);
    auto const* const single = dynamic_cast<fc::ui::FcPropertySingleValue const*>(property);
    auto const presentation = single ? single->quantityPresentation() : nullptr;
    return presentation ? presentation->parse(text) : std::nullopt;
}

/// Tells if a cell has the value \p text, as it may be written in another unit or with another decimal sign.
bool says(HeadlessList const& list, ui::ListControl::ItemInfo const& item, ListColumn const& column,
          std::string const& text)
{
    if (list.editing().says(item, text))
        return true;
    auto const number = numberOf(text, list, column);
    return number && number == fireEvent(list.control().getListControl()->onGetItemNumber, item);
}

ImportRefusal::Reason reasonOf(ui::ListRefusalReason reason)
{
    switch (reason) {
    case ui::ListRefusalReason::NotEditable:
        return ImportRefusal::Reason::NotEditable;
    case ui::ListRefusalReason::NotAnEntry:
        return ImportRefusal::Reason::NotAnEntry;
    case ui::ListRefusalReason::NotTaken:
        break;
    }
    return ImportRefusal::Reason::NotTaken;
}

void sortRefusals(ImportResult& result)
{
    std::stable_sort(
        result.refusals.begin(), result.refusals.end(),
        [](ImportRefusal const& left, ImportRefusal const& right) { return left.line < right.line; });
}

} // namespace

ListImport::ListImport(ifc::IfcFile& file, ListTable const& table)
    : m_file(file)
    , m_table(table)
{
}

ImportResult ListImport::preview() const
{
    ImportResult result;
    HeadlessList list(m_file.data(), columnIds());
    std::vector<std::size_t> allColumns(m_table.columns.size());
    std::iota(allColumns.begin(), allColumns.end(), std::size_t{0});
    for (Group const& group : makeGroups(result)) {
        list.show(group.objects);
        // Properties that not all objects of the class have are still those of some of them.
        auto const missing = findChanges(list, group, allColumns, result);
        findChangesOfSingleObjects(list, group, missing, result);
    }
    std::sort(result.changes.begin(), result.changes.end(),
              [](ImportChange const& left, ImportChange const& right) {
                  return std::pair(left.row, left.column) < std::pair(right.row, right.column);
              });
    sortRefusals(result);
    return result;
}

ImportResult ListImport::apply(ImportResult preview) const
{
    ImportResult result = std::move(preview);
    fc::ChangeLog::Step const step(m_file.data()->changes(), "Import");
    HeadlessList list(m_file.data(), columnIds());
    write(list, result);
    sortRefusals(result);
    return result;
}

std::vector<ListImport::Group> ListImport::makeGroups(ImportResult& result) const
{
    std::map<unsigned int, Group> groups;
    for (std::size_t row = 0; row < m_table.rows.size(); ++row) {
        ListTable::Row const& tableRow = m_table.rows[row];
        auto const object = m_file.entityFromGlobalId(tableRow.globalId);
        if (!fc::entityCast<FcObjectDefinition>(object)) {
            result.refusals.push_back(
                {tableRow.line, tableRow.globalId, {}, {}, ImportRefusal::Reason::NoSuchObject});
            continue;
        }
        Group& group = groups[object->getIdFirst()];
        group.rows.push_back(row);
        group.objects.push_back(object);
    }
    std::vector<Group> list;
    for (auto& [number, group] : groups)
        list.push_back(std::move(group));
    return list;
}

std::vector<std::size_t> ListImport::findChanges(HeadlessList& list, Group const& group,
                                                 std::vector<std::size_t> const& tableColumns,
                                                 ImportResult& result) const
{
    std::vector<std::size_t> missing;
    auto const columns = list.columns();
    for (std::size_t const tableColumn : tableColumns) {
        std::string const& header = m_table.columns[tableColumn];
        ListColumn const* const column = findColumn(columns, header);
        if (!column) {
            missing.push_back(tableColumn);
            continue;
        }
        auto const& setName = list.control().getColumns().getColumnNames(column->index).setName;
        for (std::size_t row = 0; row < group.rows.size(); ++row) {
            ui::ListControl::ItemInfo const item{row, column->index};
            auto text = textForList(m_table.rows[group.rows[row]].cells[tableColumn], header, *column);
            if (!says(list, item, *column, text))
                addChange(list, item, {group.rows[row], tableColumn, setName, {}, std::move(text)}, result);
        }
    }
    return missing;
}

void ListImport::addChange(HeadlessList const& list, ui::ListControl::ItemInfo const& item,
                           ImportChange change, ImportResult& result) const
{
    auto const editing = list.editing();
    if (auto const reason = editing.findRefusal(item, change.newText)) {
        result.refusals.push_back(refusalOf(change, *reason));
        return;
    }
    change.oldText = editing.getEditText(item);
    result.changes.push_back(std::move(change));
}

ImportRefusal ListImport::refusalOf(ImportChange const& change, ui::ListRefusalReason reason) const
{
    ListTable::Row const& row = m_table.rows[change.row];
    return {row.line, row.globalId, m_table.columns[change.column], row.cells[change.column],
            reasonOf(reason)};
}

void ListImport::findChangesOfSingleObjects(HeadlessList& list, Group const& group,
                                            std::vector<std::size_t> const& tableColumns,
                                            ImportResult& result) const
{
    for (std::size_t row = 0; row < group.rows.size(); ++row) {
        ListTable::Row const& tableRow = m_table.rows[group.rows[row]];
        std::vector<std::size_t> filled;
        std::copy_if(tableColumns.begin(), tableColumns.end(), std::back_inserter(filled),
                     [&tableRow](std::size_t column) { return !tableRow.cells[column].empty(); });
        if (filled.empty())
            continue;
        list.show({group.objects[row]});
        for (std::size_t const column :
             findChanges(list, {{group.rows[row]}, {group.objects[row]}}, filled, result))
            result.refusals.push_back({tableRow.line, tableRow.globalId, m_table.columns[column],
                                       tableRow.cells[column], ImportRefusal::Reason::NoSuchProperty});
    }
}

void ListImport::write(HeadlessList& list, ImportResult& result) const
{
    std::vector<ImportChange> taken;
    auto const editing = list.editing();
    for (auto change = result.changes.begin(); change != result.changes.end();) {
        ListTable::Row const& tableRow = m_table.rows[change->row];
        auto const endOfRow = std::find_if(change, result.changes.end(), [&](ImportChange const& other) {
            return other.row != change->row;
        });
        list.show({m_file.entityFromGlobalId(tableRow.globalId)});
        auto const columns = list.columns();
        for (; change != endOfRow; ++change) {
            std::string const& header = m_table.columns[change->column];
            ListColumn const* const column = findColumn(columns, header);
            auto const outcome = column ? editing.setText({{0, column->index}}, change->newText)
                                        : ui::ListEditResult{0, {ui::ListRefusal()}};
            if (outcome.refusals.empty()) {
                taken.push_back(*change);
                continue;
            }
            result.refusals.push_back(refusalOf(*change, outcome.refusals.front().reason));
        }
    }
    result.changes = std::move(taken);
}

std::vector<std::string> ListImport::columnIds() const
{
    std::set<std::string> ids;
    for (std::string const& column : m_table.columns) {
        ids.insert(column);
        ids.insert(headerOf(column).id);
    }
    return {ids.begin(), ids.end()};
}

} // namespace qev::application
