#include "Classifications.h"
#include "ClickAnswers.h"
#include "Format/Ifc/Model/IfcFile.h"
#include "HeadlessEditor.h"
#include "kit/TemporaryFolder.h"
#include "RecordChanges.h"
#include "RecordReferences.h"
#include "reference-reader/ReferenceReader.h"
#include "SchemaCheck.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace {

using namespace qev::test::samples;
using namespace qev::test::reference;
using qev::application::ClickAnswers;
using qev::application::ExitCode;
using qev::application::HeadlessEditor;
using qev::application::HeadlessEditorRow;
using qev::ifc::IfcFile;
using qev::test::readFile;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using Choices = std::vector<std::string>;
using Ids = std::set<std::uint64_t>;

constexpr char systemName[] = "Sample classes";
constexpr char classification[] = "Classifications.Sample classes";
/// Desk 1 and Desk 2: sets of their own, one owner each, one height.
constexpr char firstDesk[] = "1Dkv9igX2g2DVpCWdpTpjt";
constexpr char secondDesk[] = "3D7MQxNpJ8NzXcnZ4gWEnE";
/// Wall G north and Wall U east, which have one set together.
constexpr char northWall[] = "03p3QWeEUZmGwyXcqAj8AZ";
constexpr char eastWall[] = "1HBx20zLx2QQDhzQrhsyVq";

/// Objects of the sample office in the object editor, selected together.
class SeveralObjects : public testing::TestWithParam<char const*>
{
protected:
    SeveralObjects()
        : path(folder() / (std::string("office-") + GetParam() + ".ifc"))
        , before(readFile(path))
        , file(IfcFile::open(path).file)
    {
        EXPECT_THAT(qev::application::addClassifications(folder() / "sample-classes.csv"), IsEmpty());
    }

    static std::filesystem::path folder() { return OWN_SAMPLES_DIRECTORY; }

    void show(std::vector<char const*> const& globalIds)
    {
        std::vector<std::shared_ptr<qev::fc::FcBase>> entities;
        for (char const* const globalId : globalIds)
            entities.push_back(file->entityFromGlobalId(globalId));
        session.show(file->data(), std::move(entities));
    }
    void click(std::string const& row, std::string const& key, Choices choices = {})
    {
        ClickAnswers answers(std::move(choices), {});
        ASSERT_TRUE(session.press(row, key)) << row << " has no button " << key;
        EXPECT_EQ(answers.answer(session), ExitCode::Success);
        EXPECT_THAT(answers.problems(), IsEmpty()) << row;
    }
    /// The text of a row; "no row" where there is none.
    [[nodiscard]] std::string value(std::string const& row) const
    {
        auto const found = session.findRow(row);
        return found ? found->record.value : "no row";
    }
    [[nodiscard]] Choices childrenOf(std::string const& row) const
    {
        Choices paths;
        if (auto const found = session.findRow(row)) {
            for (HeadlessEditorRow const& child : found->children)
                paths.push_back(child.path);
        }
        return paths;
    }

    /// Saves the file and goes on with what was saved.
    void saveAndReopen()
    {
        auto const saved = target.path() / "saved.ifc";
        ASSERT_TRUE(file->save(saved).saved());
        session.show(nullptr, {});
        file = IfcFile::open(saved).file;
        ASSERT_TRUE(file);
        after = readFile(saved);
        changes = RecordChanges::between(before, after);
        reader.reset(new ReferenceReader(ReferenceReader::fromFile(saved.string(), SCHEMA_DIRECTORY)));
        EXPECT_TRUE(changes.isRestSame);
        expectSoundRecords();
    }
    /// What was written is as the version wants it, and every reference leads to a record.
    void expectSoundRecords() const
    {
        StepDocument const& document = reader->document();
        SchemaCheck const check(document);
        for (Ids const* const ids : {&changes.added, &changes.changed}) {
            for (std::uint64_t const id : *ids)
                EXPECT_THAT(check.check(*document.find(id)), IsEmpty()) << '#' << id;
        }
        for (StepRecord const& record : document.records()) {
            for (std::uint64_t const id : referencesOf(record))
                EXPECT_NE(document.find(id), nullptr) << '#' << record.id << " refers to #" << id;
        }
    }
    /// A property of an object as an independent reader finds it in the saved file.
    [[nodiscard]] ReferenceProperty savedProperty(std::string_view globalId, std::string_view setName,
                                                  std::string_view name) const
    {
        for (ReferenceSet const& set : reader->sets(reader->find(globalId).value())) {
            for (ReferenceProperty const& property : set.properties) {
                if (set.name == setName && property.name == name)
                    return property;
            }
        }
        ADD_FAILURE() << globalId << " has no " << setName << '.' << name;
        ReferenceProperty none;
        none.values.emplace_back();
        return none;
    }
    /// The records of a class that were added.
    [[nodiscard]] Ids addedOf(std::string_view keyword) const
    {
        Ids ids;
        for (std::uint64_t const id : changes.added) {
            if (reader->document().find(id)->keyword == keyword)
                ids.insert(id);
        }
        return ids;
    }

    HeadlessEditor session;
    qev::test::TemporaryFolder target;
    std::filesystem::path path;
    std::string before;
    std::string after;
    std::unique_ptr<IfcFile> file;
    RecordChanges changes;
    std::unique_ptr<ReferenceReader> reader;
};

INSTANTIATE_TEST_SUITE_P(Versions, SeveralObjects, testing::Values("IFC2X3", "IFC4", "IFC4X3"),
                         [](auto const& version) { return std::string(version.param); });

TEST_P(SeveralObjects, AreClassifiedAndEditedTogetherAndSaved)
{
    show({firstDesk, secondDesk});
    ASSERT_TRUE(session.findRow("PropertySets.Sample_Furniture.Owner"));
    EXPECT_TRUE(session.findRow("PropertySets.Sample_Furniture.Owner")->record.isMixed);
    EXPECT_FALSE(session.findRow("PropertySets.Sample_Furniture.Height")->record.isMixed);
    click("Classifications", "", {systemName, "600"});
    click("Documents", "");
    EXPECT_TRUE(session.type("PropertySets.Sample_Furniture.Height", "0.8 m"));
    EXPECT_TRUE(session.type("PropertySets.Sample_Furniture.Owner", "Clara"));

    saveAndReopen();

    EXPECT_THAT(changes.removed, IsEmpty());
    EXPECT_THAT(addedOf("IFCRELASSOCIATESDOCUMENT"), SizeIs(1));
    Ids edited;
    for (char const* const desk : {firstDesk, secondDesk}) {
        SCOPED_TRACE(desk);
        auto const owner = savedProperty(desk, "Sample_Furniture", "Owner");
        auto const height = savedProperty(desk, "Sample_Furniture", "Height");
        EXPECT_EQ(owner.values.front().text, "Clara");
        EXPECT_NEAR(height.values.front().si().value_or(0), 0.8, 1e-9);
        edited.insert({owner.id, height.id});
        show({desk});
        EXPECT_EQ(value(classification), "Furniture");
        EXPECT_EQ(value(std::string(classification) + ".Identification"), "600");
        EXPECT_EQ(value("PropertySets.Sample_Furniture.Owner"), "Clara");
        EXPECT_THAT(childrenOf("Documents"), SizeIs(1));
    }
    EXPECT_EQ(changes.changed, edited);
    EXPECT_THAT(edited, SizeIs(4));
}

TEST_P(SeveralObjects, ChangeAValueThatTheyShareOnce)
{
    show({northWall, eastWall});
    EXPECT_TRUE(session.type("PropertySets.Pset_WallCommon.AcousticRating", "52 dB"));

    saveAndReopen();

    auto const rating = savedProperty(northWall, "Pset_WallCommon", "AcousticRating");
    EXPECT_EQ(rating.values.front().text, "52 dB");
    EXPECT_EQ(savedProperty(eastWall, "Pset_WallCommon", "AcousticRating").id, rating.id);
    EXPECT_THAT(changes.changed, ElementsAre(rating.id));
    EXPECT_THAT(changes.added, IsEmpty());
    EXPECT_THAT(changes.removed, IsEmpty());
}

TEST_P(SeveralObjects, HaveTheRowsOfTheirClassificationsForAsLongAsTheyAreClassified)
{
    std::string const identification = std::string(classification) + ".Identification";
    std::string const name = std::string(classification) + ".Name";
    show({northWall, eastWall});
    EXPECT_THAT(childrenOf("Classifications"), IsEmpty());

    click("Classifications", "", {systemName, "331.3"});
    EXPECT_THAT(childrenOf("Classifications"), ElementsAre(classification));
    EXPECT_THAT(childrenOf(classification), ElementsAre(identification, name));
    EXPECT_EQ(value(classification), "Timber frame walls");
    EXPECT_EQ(value(identification), "331.3");
    EXPECT_EQ(value(name), "Timber frame walls");

    click(classification, "edit", {"331.2"});
    EXPECT_THAT(childrenOf("Classifications"), ElementsAre(classification));
    EXPECT_EQ(value(classification), "Concrete walls");
    EXPECT_EQ(value(identification), "331.2");
    saveAndReopen();
    for (char const* const wall : {northWall, eastWall}) {
        show({wall});
        EXPECT_EQ(value(identification), "331.2");
        EXPECT_EQ(value(name), "Concrete walls");
    }

    show({northWall, eastWall});
    click(classification, "delete");
    EXPECT_THAT(childrenOf("Classifications"), IsEmpty());
    for (std::string const& row : {std::string(classification), identification, name})
        EXPECT_EQ(value(row), "no row");
    saveAndReopen();
    show({northWall});
    EXPECT_THAT(childrenOf("Classifications"), IsEmpty());
}

} // namespace
