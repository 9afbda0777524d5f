#include "ExpectedReports.h"
#include "Format/Ifc/Model/IfcFile.h"
#include "GridSession.h"
#include "kit/TemporaryFolder.h"
#include "reference-reader/ReferenceReader.h"
#include "SampleFiles.h"
#include "UI/FoundationClasses/Property/Types/FcPropertyBooleanType.h"
#include "UI/FoundationClasses/Property/Types/FcPropertySingleValue.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <map>
#include <optional>
#include <set>

namespace {

using namespace qev::test::samples;
using qev::test::readFile;
using namespace qev::test::reference;
using qev::application::GridGroup;
using qev::application::GridSession;
using qev::ifc::IfcFile;
using Kind = ReferenceProperty::Kind;
using Row = GridGroup::Row;

/// One value of a file that a user can change in the grid.
struct Target
{
    std::uint64_t object = 0;
    std::string setName;
    std::string propertyName;
    std::string newText;
};

std::optional<Row> findRow(GridSession const& session, std::string const& setName, std::string const& name)
{
    for (GridGroup const& group : session.groups()) {
        if (group.kind != "property set" || group.name != setName)
            continue;
        for (Row const& row : group.rows) {
            if (row.name == name)
                return row;
        }
    }
    return std::nullopt;
}

bool isTypedInto(Row const& row)
{
    auto* const property = static_cast<qev::fc::ui::PropertyInterface*>(row.row->getUserData());
    return dynamic_cast<qev::fc::ui::FcPropertySingleValue*>(property) &&
           !dynamic_cast<qev::fc::ui::FcPropertyBooleanType*>(property) &&
           (row.record.editor == "text" || row.record.editor == "number");
}

/// Where two texts differ: the part of each between what they begin and end with in common.
struct Difference
{
    std::string_view before;
    std::string_view after;
    std::size_t position = 0;
};

Difference differenceOf(std::string_view before, std::string_view after)
{
    std::size_t const shorter = std::min(before.size(), after.size());
    std::size_t begin = 0;
    while (begin < shorter && before[begin] == after[begin])
        ++begin;
    std::size_t end = 0;
    while (end < shorter - begin && before[before.size() - 1 - end] == after[after.size() - 1 - end])
        ++end;
    return {before.substr(begin, before.size() - begin - end),
            after.substr(begin, after.size() - begin - end), begin};
}

/// Tells whether all that differs stands in the record with this number: behind its "#12=" and before the
/// next.
bool isWithin(Difference const& difference, std::string const& before, std::uint64_t id)
{
    std::string const number = "#" + std::to_string(id);
    std::size_t begin = 0;
    do {
        begin = before.find(number, begin + 1);
        if (begin == std::string::npos)
            return false;
    } while (before[before.find_first_not_of(" \t\r\n", begin + number.size())] != '=');
    std::size_t const end = std::min(before.find("\n#", begin), before.find("ENDSEC", begin));
    return difference.position > begin && difference.position + difference.before.size() < end;
}

/// Texts that are equal, or two spellings of one number with one unit.
bool isSameShown(std::string const& a, std::string const& b)
{
    char* restOfA = nullptr;
    char* restOfB = nullptr;
    double const numberA = std::strtod(a.c_str(), &restOfA);
    double const numberB = std::strtod(b.c_str(), &restOfB);
    bool const areNumbers = restOfA != a.c_str() && restOfB != b.c_str();
    return a == b || (areNumbers && numberA == numberB && std::string_view(restOfA) == restOfB);
}

class Edit : public testing::TestWithParam<SampleFile>
{
protected:
    Edit()
        : opened(IfcFile::open(GetParam().path))
        , reader(ReferenceReader::fromFile(GetParam().path.string(), SCHEMA_DIRECTORY))
        , before(readFile(GetParam().path))
    {
    }

    /// A value for each class of objects, where a class has one that can be changed.
    std::vector<Target> findTargets(GridSession& session);
    std::optional<Target> findTarget(GridSession& session, std::uint64_t id);

    void show(GridSession& session, IfcFile const& file, std::uint64_t id)
    {
        session.show({file.entityFromId(id)});
        reports.take('#' + std::to_string(id));
    }

    void type(GridSession& session, Target const& target, std::string const& text)
    {
        auto const row = findRow(session, target.setName, target.propertyName);
        ASSERT_TRUE(row);
        EXPECT_TRUE(session.type(*row, text)) << session.message();
        reports.take("typing");
    }

    void undoAll()
    {
        while (opened.file->data()->changes().canUndo())
            opened.file->data()->changes().undo();
        EXPECT_TRUE(opened.file->toText() == before) << "undo gives back the file as it was";
    }

    /// The record that holds the value.
    std::uint64_t recordOf(Target const& target) const
    {
        for (ReferenceSet const& set : reader.sets(target.object)) {
            for (ReferenceProperty const& property : set.properties) {
                if (set.name == target.setName && property.name == target.propertyName)
                    return property.id;
            }
        }
        return 0;
    }

    void expectShown(std::string const& text, Target const& target, std::string const& value);
    void expectGone(std::string const& text, Target const& target);
    /// Every record that is new has as many arguments as its class has attributes.
    void expectNewRecordsComplete(std::string const& text, std::size_t least);

    qev::ifc::OpenResult opened;
    ReferenceReader reader;
    std::string before;
    ExpectedReports reports;
};

std::optional<Target> Edit::findTarget(GridSession& session, std::uint64_t id)
{
    for (ReferenceSet const& set : reader.sets(id)) {
        for (ReferenceProperty const& property : set.properties) {
            if (!set.name || property.kind != Kind::Single || property.values.empty())
                continue;
            auto const row = findRow(session, *set.name, property.name);
            if (!row || !isTypedInto(*row))
                continue;
            ReferenceValue const& value = property.values.front();
            bool const isNumber = value.number.has_value();
            bool const isText =
                value.kind == StepArgument::Kind::Text && value.type == "IFCLABEL" && !value.text.empty();
            if (isNumber)
                return Target{id, *set.name, property.name, *value.si() == 7.0 ? "8" : "7"};
            if (isText)
                return Target{id, *set.name, property.name, "Changed; (in the 'grid'), \xC3\xA4\xC3\xB6"};
        }
    }
    return std::nullopt;
}

std::vector<Target> Edit::findTargets(GridSession& session)
{
    std::vector<Target> targets;
    // Classes without a value that can be changed are given up after a few objects, in view of the time.
    constexpr int mostTries = 5;
    std::set<std::string> done;
    std::map<std::string, int> tries;
    for (std::uint64_t const id : reader.objects()) {
        std::string const keyword = reader.keyword(id);
        if (done.contains(keyword) || reader.sets(id).empty() || ++tries[keyword] > mostTries)
            continue;
        show(session, *opened.file, id);
        if (auto target = findTarget(session, id)) {
            targets.push_back(*std::move(target));
            done.insert(keyword);
        }
    }
    return targets;
}

void Edit::expectShown(std::string const& text, Target const& target, std::string const& value)
{
    auto const again = IfcFile::fromText(text);
    ASSERT_TRUE(again.file);
    GridSession session(again.file->data(), false);
    show(session, *again.file, target.object);
    auto const row = findRow(session, target.setName, target.propertyName);
    ASSERT_TRUE(row);
    // What was typed stands there as typed until the row is built again, with all its decimals.
    EXPECT_TRUE(isSameShown(row->record.value, value)) << row->record.value << " is not " << value;
}

void Edit::expectGone(std::string const& text, Target const& target)
{
    auto const again = IfcFile::fromText(text);
    ASSERT_TRUE(again.file);
    GridSession session(again.file->data(), false);
    show(session, *again.file, target.object);
    EXPECT_FALSE(findRow(session, target.setName, target.propertyName));
}

void Edit::expectNewRecordsComplete(std::string const& text, std::size_t least)
{
    StepDocument const document = StepDocument::fromText(text);
    AttributeTable const table = AttributeTable::forSchema(document.schemaName(), SCHEMA_DIRECTORY);
    std::size_t count = 0;
    for (StepRecord const& record : document.records()) {
        if (reader.document().find(record.id))
            continue;
        ++count;
        EXPECT_EQ(record.arguments.size(), table.attributes(record.keyword).size()) << record.keyword;
    }
    EXPECT_GE(count, least);
}

INSTANTIATE_TEST_SUITE_P(Samples, Edit, testing::ValuesIn(wellFormedFiles()),
                         [](auto const& file) { return file.param.name; });

TEST_P(Edit, OfOneValueChangesOneRecordAndCanBeUndone)
{
    GridSession session(opened.file->data(), false);
    std::vector<Target> const targets = findTargets(session);
    for (Target const& target : targets) {
        SCOPED_TRACE('#' + std::to_string(target.object) + " " + target.setName + " " + target.propertyName);
        show(session, *opened.file, target.object);
        type(session, target, target.newText);
        auto const row = findRow(session, target.setName, target.propertyName);
        ASSERT_TRUE(row);

        std::string const after = opened.file->toText();
        Difference const difference = differenceOf(before, after);
        EXPECT_FALSE(difference.after.empty() && difference.before.empty());
        EXPECT_TRUE(isWithin(difference, before, recordOf(target))) << difference.before;
        expectShown(after, target, row->record.value);
        undoAll();
    }
    std::cout << "    " << targets.size() << " values changed\n";
}

TEST_P(Edit, ThatClearsAValueTakesThePropertyAwayAndTypingBringsItBack)
{
    GridSession session(opened.file->data(), false);
    std::vector<Target> const targets = findTargets(session);
    std::size_t const count = std::min<std::size_t>(targets.size(), 4);
    for (Target const& target : std::vector<Target>(targets.begin(), targets.begin() + count)) {
        SCOPED_TRACE('#' + std::to_string(target.object) + " " + target.setName + " " + target.propertyName);
        show(session, *opened.file, target.object);
        type(session, target, "");
        std::string const without = opened.file->toText();
        expectGone(without, target);
        expectNewRecordsComplete(without, 0);

        type(session, target, target.newText);
        auto const row = findRow(session, target.setName, target.propertyName);
        ASSERT_TRUE(row);
        std::string const with = opened.file->toText();
        expectShown(with, target, row->record.value);
        expectNewRecordsComplete(with, 1);
        undoAll();
    }
}

/// A text of a set that the standard offers and the object does not have.
std::optional<Target> findAbsent(GridSession const& session, ReferenceReader const& reader, std::uint64_t id)
{
    std::set<std::string> present;
    for (ReferenceSet const& set : reader.sets(id))
        present.insert(set.name.value_or(""));
    for (GridGroup const& group : session.groups()) {
        if (group.kind != "property set" || present.contains(group.name))
            continue;
        for (Row const& row : group.rows) {
            if (isTypedInto(row) && row.record.editor == "text")
                return Target{id, group.name, row.name, "7"};
        }
    }
    return std::nullopt;
}

TEST_P(Edit, OfASetThatTheObjectLacksCreatesSetAndRelation)
{
    GridSession session(opened.file->data(), true);
    std::set<std::string> done;
    for (std::uint64_t const id : reader.objects()) {
        if (done.size() >= 6 || !done.insert(reader.keyword(id)).second)
            continue;
        SCOPED_TRACE('#' + std::to_string(id) + " " + reader.keyword(id));
        show(session, *opened.file, id);
        auto const target = findAbsent(session, reader, id);
        if (!target)
            continue;
        type(session, *target, target->newText);
        auto const row = findRow(session, target->setName, target->propertyName);
        ASSERT_TRUE(row);
        std::string const after = opened.file->toText();
        expectShown(after, *target, row->record.value);
        expectNewRecordsComplete(after, 2);
        undoAll();
    }
}

} // namespace
