#include "Core/String/DelimitedText.h"
#include "Core/String/NumberText.h"
#include "ExpectedReports.h"
#include "Format/Ifc/Model/IfcFile.h"
#include "FoundationClasses/Core/Kernel/FcObjectDefinition.h"
#include "HeadlessGrid.h"
#include "HeadlessList.h"
#include "ListImport.h"
#include "ListTable.h"
#include "ObjectLabel.h"
#include "RecordChanges.h"
#include "SampleFiles.h"
#include "UI/FoundationClasses/Property/PropertyInterface.h"
#include "UI/FoundationClasses/Set/PropertySetDefinition.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <iostream>
#include <map>
#include <optional>
#include <typeinfo>

namespace {

using namespace qev::application;
using namespace qev::test::samples;
using qev::fc::FcBase;
using qev::fc::core::kernel::FcObjectDefinition;
using qev::fc::ui::PropertyInterface;
using qev::ifc::IfcFile;
using qev::ui::CheckState;
using qev::ui::ListControl;
using Objects = std::vector<std::shared_ptr<FcBase>>;

/// In the further files so many objects of a class are looked at, spread over all of them, in view of the
/// time.
constexpr std::size_t mostOfAClass = 40;

using Table = std::vector<std::vector<std::string>>;

/// A column of a list whose values are changed by way of a table.
struct ColumnEdit
{
    std::string column;
    std::string newText;
    /// The objects that have a value there which can be changed.
    std::vector<std::string> globalIds;
};

class List : public testing::TestWithParam<SampleFile>
{
protected:
    List()
        : opened(IfcFile::open(GetParam().path))
        // What the objects have and no list has a column for.
        , reports({"IfcPropertyReferenceValue not implemented.", "IfcPropertyTableValue not implemented.",
                   "IfcComplexProperty not implemented.", "Unknown property.", "Unknown quantity.",
                   "Unknown property set definition type.", "Unknown type",
                   "Should create grid property object", "Must be a simple value to hold a boolean.",
                   "FcSimpleValue doesn't hold a boolean."})
    {
    }

    /// All objects by their class.
    std::map<std::string, Objects> objectsByClass() const
    {
        auto const& data = opened.file->data();
        std::map<std::string, Objects> classes;
        for (auto const place :
             data->indicesFromId(FcObjectDefinition::idFirst, FcObjectDefinition::idLast)) {
            if (auto object = data->entity(place))
                classes[object->getEntityName()].push_back(std::move(object));
        }
        return classes;
    }

    std::size_t stepThrough(std::size_t count) const
    {
        bool const isOwn = GetParam().path.string().starts_with(OWN_SAMPLES_DIRECTORY);
        return isOwn ? 1 : std::max<std::size_t>(1, count / mostOfAClass);
    }

    /// The first objects of a class, without those that have the GlobalId of another one.
    Objects knownByGlobalId(Objects const& objects) const
    {
        Objects known;
        for (auto const& object : objects) {
            bool const isKnown = opened.file->entityFromGlobalId(ObjectLabel::of(*object).globalId) == object;
            if (isKnown && known.size() < 100)
                known.push_back(object);
        }
        return known;
    }

    void compareRow(HeadlessList const& list, std::size_t row, HeadlessGrid& grid);
    void compareCell(HeadlessList const& list, ListControl::ItemInfo const& cell,
                     PropertyInterface const& shown, GridGroup::Row const* gridRow);

    /// Expects that a table says what the model says.
    void expectNoChange(std::string const& csv);
    void importEdit(HeadlessList const& list, ColumnEdit const& edit);

    qev::ifc::OpenResult opened;
    ExpectedReports reports;
    std::size_t cellsCompared = 0;
    std::size_t cellsOfOtherKinds = 0;
};

PropertyInterface const* findProperty(HeadlessGrid const& grid, std::string const& setName,
                                      std::string const& name)
{
    for (auto const& definition : grid.definitions()) {
        if (!definition || definition->getName() != setName)
            continue;
        for (auto const& property : definition->getProperties()) {
            if (property->getName() == name)
                return property.get();
        }
    }
    return nullptr;
}

GridGroup::Row const* findRow(std::vector<GridGroup> const& groups, PropertyInterface const& property)
{
    for (auto const& group : groups) {
        for (auto const& row : group.rows) {
            if (row.row->getUserData() == &property)
                return &row;
        }
    }
    return nullptr;
}

void List::compareRow(HeadlessList const& list, std::size_t row, HeadlessGrid& grid)
{
    auto const& object = list.control().getObjects()[row];
    SCOPED_TRACE(ObjectLabel::of(*object).globalId + " " + object->getEntityName());
    grid.show({object});
    auto const groups = grid.groups();
    auto const& columns = list.control().getColumns();
    for (std::size_t column = 0; column < columns.getColumnCount(); ++column) {
        if (columns.isCustomColumn(column))
            continue;
        auto const& names = columns.getColumnNames(column);
        SCOPED_TRACE(names.setName + "." + names.propertyName);
        auto const* const shown = findProperty(grid, names.setName, names.propertyName);
        // A set that no schema knows has the properties of the first object, in the kinds they have there.
        if (!shown || typeid(*shown) != typeid(*columns.getProperty(column))) {
            ++cellsOfOtherKinds;
            continue;
        }
        compareCell(list, {row, column}, *shown, findRow(groups, *shown));
    }
}

void List::compareCell(HeadlessList const& list, ListControl::ItemInfo const& cell,
                       PropertyInterface const& shown, GridGroup::Row const* gridRow)
{
    ++cellsCompared;
    auto const text = list.list().getText(*cell.item, *cell.column);
    auto const state = list.list().getCheckState(*cell.item, *cell.column);
    if (!gridRow) {
        EXPECT_EQ(text, shown.getValue());
    } else if (state) {
        EXPECT_EQ(text, "");
        ASSERT_TRUE(gridRow->record.checked);
        EXPECT_EQ(*state == CheckState::Checked, *gridRow->record.checked == CheckState::Checked);
    } else {
        EXPECT_EQ(text, gridRow->record.value);
    }
}

INSTANTIATE_TEST_SUITE_P(Samples, List, testing::ValuesIn(wellFormedFiles()),
                         [](auto const& file) { return file.param.name; });

TEST_P(List, OfEachClassShowsWhatTheGridShowsForEachObjectAlone)
{
    ASSERT_TRUE(opened.file);
    HeadlessList list(opened.file->data());
    HeadlessGrid grid(opened.file->data(), true);
    for (auto const& [name, objects] : objectsByClass()) {
        list.show(objects);
        reports.take(name);
        for (std::size_t row = 0; row < objects.size(); row += stepThrough(objects.size())) {
            compareRow(list, row, grid);
            reports.take(name);
            if (HasFailure())
                return;
        }
        grid.show({});
    }
    std::cout << "    " << cellsCompared << " cells compared, " << cellsOfOtherKinds
              << " of properties that are of another kind in the first object\n";
}

/// The rows of a column with a text or a number that can be changed.
std::vector<std::size_t> editableRows(HeadlessList const& list, ListColumn const& column)
{
    std::vector<std::size_t> rows;
    auto const editing = list.editing();
    for (std::size_t row = 0; row < list.list().getRowCount(); ++row) {
        ListControl::ItemInfo const item{row, column.index};
        if (editing.getEditText(item).empty())
            continue;
        auto const edit = editing.begin({item});
        if (edit && edit->editor.editType == ListControl::EditBox)
            rows.push_back(row);
        else if (rows.empty())
            return {};
    }
    return rows;
}

/// The first column of a list that has texts or numbers to change. All of them become the same, made from
/// \p number: rows may share a set.
std::optional<ColumnEdit> findEdit(HeadlessList const& list, std::size_t number)
{
    for (auto const& column : list.columns()) {
        auto const rows = column.isCustom ? std::vector<std::size_t>() : editableRows(list, column);
        if (rows.empty())
            continue;
        auto const text = list.editing().getEditText({rows.front(), column.index});
        bool const isNumber = !column.unit.empty() || qev::str::parseDouble(text);
        ColumnEdit edit{tableHeader(column),
                        isNumber ? std::to_string(7000 + number)
                                 : "Changed, \"by\" table " + std::to_string(number),
                        {}};
        for (auto const row : rows)
            edit.globalIds.push_back(ObjectLabel::of(*list.control().getObjects()[row]).globalId);
        return edit;
    }
    return std::nullopt;
}

/// The same text, or numbers that differ by what a file in feet cannot hold.
bool isSameValue(std::string const& left, std::string const& right)
{
    auto const a = qev::str::parseDouble(left);
    auto const b = qev::str::parseDouble(right);
    return left == right || (a && b && std::abs(*a - *b) <= 1e-14 * std::abs(*a));
}

/// The values of the edited objects.
std::vector<std::string> exported(IfcFile const& file, ColumnEdit const& edit)
{
    Objects objects;
    for (auto const& globalId : edit.globalIds)
        objects.push_back(file.entityFromGlobalId(globalId));
    HeadlessList list(file.data());
    list.show(objects);
    auto const columns = list.columns();
    auto const column = std::find_if(columns.begin(), columns.end(), [&edit](ListColumn const& candidate) {
        return tableHeader(candidate) == edit.column;
    });
    std::vector<std::string> values;
    if (column == columns.end())
        ADD_FAILURE() << "no column " << edit.column;
    for (std::size_t row = 0; column != columns.end() && row < objects.size(); ++row)
        values.push_back(tableRow(*list.control().getListControl(), row, {*column}).front());
    return values;
}

/// The table of all rows and columns of a list.
Table exportedTable(HeadlessList const& list)
{
    auto const columns = list.columns();
    Table rows(1);
    for (auto const& column : columns)
        rows.front().push_back(tableHeader(column));
    for (std::size_t row = 0; row < list.list().getRowCount(); ++row)
        rows.push_back(tableRow(*list.control().getListControl(), row, columns));
    return rows;
}

void List::expectNoChange(std::string const& csv)
{
    auto const table = ListTable::fromCsv(csv);
    ASSERT_TRUE(table);
    for (auto const& change : ListImport(*opened.file, *table).preview().changes)
        ADD_FAILURE() << table->rows[change.row].globalId << " " << table->columns[change.column] << ": "
                      << change.oldText << " is not " << change.newText;
}

void List::importEdit(HeadlessList const& list, ColumnEdit const& edit)
{
    auto rows = exportedTable(list);
    auto const& headers = rows.front();
    auto const column =
        static_cast<std::size_t>(std::find(headers.begin(), headers.end(), edit.column) - headers.begin());
    for (auto& row : rows) {
        if (std::find(edit.globalIds.begin(), edit.globalIds.end(), row.front()) != edit.globalIds.end())
            row[column] = edit.newText;
    }
    auto const table = ListTable::fromCsv(qev::str::writeDelimited(rows, ';'));
    ASSERT_TRUE(table);
    ListImport const listImport(*opened.file, *table);
    auto const preview = listImport.preview();
    EXPECT_EQ(preview.changes.size(), edit.globalIds.size()) << edit.column;
    auto const result = listImport.apply(preview);
    EXPECT_EQ(result.refusals.size(), preview.refusals.size()) << edit.column;
    for (auto const& refusal : result.refusals)
        ADD_FAILURE() << refusal.globalId << " " << refusal.column << ": " << refusal.text << ", reason "
                      << static_cast<int>(refusal.reason);
}

TEST_P(List, GoesOutAsATableAndComesBackChanged)
{
    ASSERT_TRUE(opened.file);
    auto const before = opened.file->toText();
    std::vector<ColumnEdit> edits;
    std::size_t edited = 0;
    for (auto const& [name, objects] : objectsByClass()) {
        HeadlessList list(opened.file->data());
        list.show(knownByGlobalId(objects));
        expectNoChange(qev::str::writeDelimited(exportedTable(list), ','));
        if (auto const edit = findEdit(list, edits.size())) {
            importEdit(list, *edit);
            edits.push_back(*edit);
            edited += edit->globalIds.size();
        }
        reports.take(name);
    }
    auto const after = opened.file->toText();
    auto const changes = RecordChanges::between(before, after);
    EXPECT_LE(changes.changed.size(), edited);
    EXPECT_TRUE(changes.added.empty());
    EXPECT_TRUE(changes.removed.empty());
    EXPECT_TRUE(changes.isRestSame);

    auto const again = IfcFile::fromText(after);
    ASSERT_TRUE(again.file);
    std::size_t asTyped = 0;
    for (auto const& edit : edits) {
        auto const values = exported(*again.file, edit);
        auto const expected = exported(*opened.file, edit);
        ASSERT_EQ(values.size(), expected.size());
        for (std::size_t i = 0; i < values.size(); ++i) {
            EXPECT_TRUE(isSameValue(values[i], expected[i])) << edit.globalIds[i] << " " << edit.column;
            asTyped += isSameValue(values[i], edit.newText) ? 1 : 0;
        }
        reports.take(edit.column);
    }
    // Of several edits of a set that several classes share, the last one stands.
    EXPECT_TRUE(edits.empty() || asTyped > 0);
    std::cout << "    " << edited << " values in " << edits.size() << " columns changed by tables, "
              << asTyped << " of them to stay\n";
}

} // namespace
