#include "Classifications.h"
#include "ClickAnswers.h"
#include "ExpectedReports.h"
#include "Format/Ifc/Model/IfcFile.h"
#include "HeadlessEditor.h"
#include "kit/TemporaryFolder.h"
#include "RecordChanges.h"
#include "RecordReferences.h"
#include "reference-reader/ReferenceReader.h"
#include "SampleFiles.h"
#include "SchemaCheck.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <optional>
#include <set>

namespace {

using namespace qev::test::samples;
using namespace qev::test::reference;
using qev::application::ClickAnswers;
using qev::application::ExitCode;
using qev::application::HeadlessEditor;
using qev::application::HeadlessEditorRow;
using qev::ifc::IfcFile;
using qev::test::readFile;
using testing::IsEmpty;
using testing::IsSubsetOf;
using Choices = std::vector<std::string>;
using Ids = std::set<std::uint64_t>;
using PropertyKind = ReferenceProperty::Kind;

constexpr char systemName[] = "Sample classes";
constexpr char code[] = "331.1";

/// The objects of a file in the object editor, whose buttons are pressed.
class EditorEdits : public testing::TestWithParam<SampleFile>
{
protected:
    /// A property that can be edited in a popup.
    struct Target
    {
        std::uint64_t object = 0;
        std::uint64_t property = 0;
        std::string setPath;
        std::string path;
    };

    EditorEdits()
        : before(readFile(GetParam().path))
        // What the objects have and the trees of properties have no rows for.
        , reports({"Unknown property.", "Unknown quantity.", "Unknown property set definition type.",
                   "Unknown type", "IfcMaterialList is deprecated, and therefore not implemented.",
                   "Address type of PropertyReferenceValue not implemented",
                   "Person type of PropertyReferenceValue not implemented",
                   "Organization type of PropertyReferenceValue not implemented"})
    {
        qev::application::addClassifications(std::filesystem::path(OWN_SAMPLES_DIRECTORY) /
                                             "sample-classes.csv");
        open(before);
    }

    void open(std::string const& text)
    {
        file = IfcFile::fromText(text).file;
        document = StepDocument::fromText(text);
    }
    /// Shows an object anew, as after a selection.
    void show(std::uint64_t id)
    {
        session.show(file->data(), {file->entityFromId(id)});
        reports.take("showing #" + std::to_string(id));
    }
    /// Presses a button of the object that is shown, and answers what opens.
    ExitCode click(std::string const& path, std::string const& key, Choices choices = {},
                   std::vector<std::string> values = {})
    {
        ClickAnswers answers(std::move(choices), std::move(values));
        EXPECT_TRUE(session.press(path, key)) << path << " has no button " << key;
        ExitCode const outcome = answers.answer(session);
        EXPECT_THAT(answers.problems(), IsEmpty()) << path;
        reports.take("click on " + path);
        return outcome;
    }
    /// The row of the first set, of those that can be added, with a property that can be added first of all:
    /// references cannot.
    [[nodiscard]] std::string findAddableSet()
    {
        for (std::size_t row = 0;; ++row) {
            session.press("PropertySets", "");
            if (row >= session.popupList()->getRowCount() || !session.popupList()->activate(row, 0))
                return "no set";
            bool const isAddable = !session.popupList()->getStyle(0, 0).textColour;
            session.closePopup();
            if (isAddable)
                return std::to_string(row);
        }
    }
    /// The first value of an enumeration that is not ticked, alone; no value where there is none.
    [[nodiscard]] std::string findOtherValue(std::string const& path)
    {
        session.press(path, "edit");
        auto const list = session.popupList();
        std::string value;
        for (std::size_t row = 0; row < list->getRowCount() && value.empty(); ++row) {
            if (list->getCheckState(row, 0) == qev::ui::CheckState::Unchecked)
                value = list->getText(row, 0);
        }
        session.closePopup();
        return value;
    }
    [[nodiscard]] Choices childrenOf(std::string const& path) const
    {
        Choices paths;
        if (auto const row = session.findRow(path)) {
            for (HeadlessEditorRow const& child : row->children)
                paths.push_back(child.path);
        }
        return paths;
    }

    /// The first object of each class that can have sets, of at most so many classes.
    [[nodiscard]] std::vector<std::uint64_t> firstObjects(std::size_t most)
    {
        std::vector<std::uint64_t> objects;
        std::set<std::string> classes;
        for (std::uint64_t const id : reader.objects()) {
            if (objects.size() == most)
                break;
            if (classes.contains(reader.keyword(id)) || reader.sets(id).empty())
                continue;
            show(id);
            if (!session.findRow("PropertySets") || !session.findRow("Classifications"))
                continue;
            classes.insert(reader.keyword(id));
            objects.push_back(id);
        }
        return objects;
    }
    /// The first property of a kind whose row is shown.
    [[nodiscard]] std::optional<Target> findProperty(PropertyKind kind)
    {
        for (std::uint64_t const id : reader.objects()) {
            for (ReferenceSet const& set : reader.sets(id)) {
                for (ReferenceProperty const& property : set.properties) {
                    // A bounded value without any bound tells nothing of its type.
                    bool const isKnown = kind != PropertyKind::Bounded || property.lower || property.upper;
                    if (property.kind != kind || !isKnown)
                        continue;
                    std::string const setPath = "PropertySets." + set.name.value_or("");
                    Target target{id, property.id, setPath, setPath + '.' + property.name};
                    show(id);
                    if (session.findRow(target.path))
                        return target;
                }
            }
        }
        return std::nullopt;
    }

    void expectValid(Ids const& records) const
    {
        SchemaCheck const check(document);
        for (std::uint64_t const id : records) {
            auto const* const record = document.find(id);
            ASSERT_NE(record, nullptr) << '#' << id;
            EXPECT_THAT(check.check(*record), IsEmpty());
        }
    }
    void expectNoReferenceTo(Ids const& gone) const
    {
        for (StepRecord const& record : document.records()) {
            for (std::uint64_t const id : referencesOf(record))
                EXPECT_FALSE(gone.contains(id)) << '#' << record.id << " refers to #" << id;
        }
    }

    HeadlessEditor session;
    ReferenceReader reader = ReferenceReader::fromFile(GetParam().path.string(), SCHEMA_DIRECTORY);
    std::string before;
    ExpectedReports reports;
    std::unique_ptr<IfcFile> file;
    StepDocument document;
};

INSTANTIATE_TEST_SUITE_P(Samples, EditorEdits, testing::ValuesIn(wellFormedFiles()),
                         [](auto const& file) { return file.param.name; });

TEST_P(EditorEdits, AddSetsPropertiesClassificationsAndDocumentsAndDeleteThem)
{
    struct Added
    {
        Choices sets;
        Choices classifications;
        Choices documents;
    };
    std::map<std::uint64_t, Added> objects;
    for (std::uint64_t const id : firstObjects(2)) {
        SCOPED_TRACE('#' + std::to_string(id));
        auto const added = [this](std::string const& path, std::string const& key, Choices const& choices) {
            auto const rows = childrenOf(path);
            EXPECT_EQ(click(path, key, choices), ExitCode::Success);
            auto more = childrenOf(path);
            std::erase_if(more, [&rows](auto const& row) {
                return std::find(rows.begin(), rows.end(), row) != rows.end();
            });
            return more;
        };
        show(id);
        Added& all = objects[id];
        auto const whole = added("PropertySets", "", {findAddableSet(), "Add all properties"});
        ASSERT_EQ(whole.size(), 1u);
        EXPECT_FALSE(childrenOf(whole.front()).empty());
        auto const single = added("PropertySets", "", {findAddableSet(), "0"});
        ASSERT_EQ(single.size(), 1u);
        EXPECT_EQ(childrenOf(single.front()).size(), 1u);
        auto const row = session.findRow(single.front());
        if (row->record.buttonKeys.size() == 2) {
            EXPECT_FALSE(added(single.front(), "add", {"Add all properties"}).empty());
        }
        all.sets = {whole.front(), single.front()};
        all.documents = added("Documents", "", {});
        EXPECT_EQ(all.documents.size(), 1u);
        all.classifications = added("Classifications", "", {systemName, code});
        EXPECT_FALSE(all.classifications.empty());
    }
    std::string const after = file->toText();
    RecordChanges const changes = RecordChanges::between(before, after);
    EXPECT_THAT(changes.removed, IsEmpty());
    EXPECT_TRUE(changes.isRestSame);

    open(after);
    expectValid(changes.added);
    expectValid(changes.changed);
    for (auto const& [id, all] : objects) {
        SCOPED_TRACE('#' + std::to_string(id));
        show(id);
        for (Choices const* const paths : {&all.sets, &all.documents, &all.classifications}) {
            for (std::string const& path : *paths)
                EXPECT_TRUE(session.findRow(path)) << path;
        }
        for (std::string const& path : all.sets)
            EXPECT_EQ(click(path, "delete"), ExitCode::Success);
        for (std::string const& path : all.classifications) {
            if (session.findRow(path)) {
                EXPECT_EQ(click(path, "delete"), ExitCode::Success);
            }
        }
        for (Choices const* const paths : {&all.sets, &all.classifications}) {
            for (std::string const& path : *paths)
                EXPECT_FALSE(session.findRow(path)) << path;
        }
    }
    std::string const deleted = file->toText();
    RecordChanges const deletions = RecordChanges::between(after, deleted);
    EXPECT_TRUE(deletions.isRestSame);
    EXPECT_THAT(deletions.added, IsEmpty());
    EXPECT_THAT(deletions.removed, IsSubsetOf(changes.added));
    open(deleted);
    expectNoReferenceTo(deletions.removed);
}

TEST_P(EditorEdits, OfEnumerationsBoundsAndTablesChangeOneRecordEachAndDeletingTakesItAway)
{
    struct Edit
    {
        PropertyKind kind;
        std::vector<std::string> values;
    };
    using Values = std::vector<std::string>;
    Edit const edits[] = {{PropertyKind::Enumerated, {}},
                          {PropertyKind::Bounded, Values{"1", "2", ""}},
                          {PropertyKind::Table, Values{"1", "2", "3", "4", "5", "6"}}};
    std::vector<Target> targets;
    Ids properties;
    for (Edit const& edit : edits) {
        auto const target = findProperty(edit.kind);
        if (!target)
            continue;
        SCOPED_TRACE(target->path);
        Choices choices;
        if (edit.kind == PropertyKind::Enumerated)
            choices = {findOtherValue(target->path)};
        EXPECT_EQ(click(target->path, "edit", choices, edit.values), ExitCode::Success);
        targets.push_back(*target);
        properties.insert(target->property);
    }
    std::string const after = file->toText();
    RecordChanges const changes = RecordChanges::between(before, after);
    EXPECT_EQ(changes.changed, properties);
    EXPECT_THAT(changes.added, IsEmpty());
    EXPECT_THAT(changes.removed, IsEmpty());
    EXPECT_TRUE(changes.isRestSame);

    std::map<std::string, std::string> shown;
    for (Target const& target : targets) {
        show(target.object);
        shown[target.path] = session.findRow(target.path)->record.value;
    }
    open(after);
    expectValid(changes.changed);
    Ids gone;
    for (Target const& target : targets) {
        SCOPED_TRACE(target.path);
        show(target.object);
        auto const row = session.findRow(target.path);
        ASSERT_TRUE(row);
        EXPECT_EQ(row->record.value, shown[target.path]);
        if (document.find(target.property)->keyword == "IFCPROPERTYTABLEVALUE") {
            EXPECT_EQ(row->children.size(), 3u);
        }
        EXPECT_EQ(click(target.path, "delete"), ExitCode::Success);
        EXPECT_FALSE(session.findRow(target.path));
        gone.insert(target.property);
    }
    std::string const deleted = file->toText();
    RecordChanges const deletions = RecordChanges::between(after, deleted);
    EXPECT_THAT(gone, IsSubsetOf(deletions.removed));
    EXPECT_TRUE(deletions.isRestSame);
    open(deleted);
    expectNoReferenceTo(deletions.removed);
}

} // namespace
