#include "InspectorSession.h"

#include "BuildingStructure.h"
#include "FoundationClasses/Core/Kernel/FcPropertySet.h"
#include "FoundationClasses/Resource/Property/FcPropertySingleValue.h"
#include "ObjectSearch.h"
#include "SmallBuilding.h"
#include "TemporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace qev::test {
namespace {

using namespace application;
using step::StepSaveResult;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

class InspectorSessionTest : public testing::Test
{
protected:
    InspectorSessionTest()
        : path(folder.write("small.ifc", smallBuilding))
    {
        EXPECT_TRUE(session.open(path));
    }

    void setFireRating(char const* rating)
    {
        auto const property = fc::entityCast<fc::resource::property::FcPropertySingleValue>(
            session.getFile()->entityFromId(50));
        ASSERT_NE(property, nullptr);
        property->NominalValue.edit(
            [&](fc::resource::measure::FcValue& value) { return value.setValueOnTypeFromString(rating); });
    }
    [[nodiscard]] std::vector<std::string> names(std::vector<fc::EntityIndex> const& objects) const
    {
        std::vector<std::string> result;
        for (auto const object : objects)
            result.push_back(ObjectLabel::of(*session.getData(), object).name);
        return result;
    }
    [[nodiscard]] std::vector<std::string> found(std::string const& text) const
    {
        ObjectSearch search(session.getData(), text);
        std::vector<std::string> result;
        while (!search.isFinished())
            for (auto const& hit : search.advance(2))
                result.push_back(hit.label.name);
        return result;
    }
    [[nodiscard]] fc::EntityIndex place(char const* globalId) const
    {
        return session.findObject(globalId)->getIndex();
    }

    TemporaryFolder folder;
    std::filesystem::path path;
    InspectorSession session;
};

TEST_F(InspectorSessionTest, StructureStartsAtTheProjectAndSortsStoreysNaturally)
{
    BuildingStructure const structure(*session.getData());
    auto const roots = structure.getRoots();
    EXPECT_THAT(names(roots), ElementsAre("Project"));
    auto const buildings = structure.getChildren(roots.front());
    EXPECT_THAT(names(buildings), ElementsAre("House"));
    EXPECT_THAT(names(structure.getChildren(buildings.front())), ElementsAre("Storey 2", "Storey 10"));
}

TEST_F(InspectorSessionTest, StoreyHasItsSpacesBeforeItsElements)
{
    BuildingStructure const structure(*session.getData());
    auto const storey = place("0000000000000000000012");
    EXPECT_TRUE(structure.hasChildren(storey));
    EXPECT_THAT(names(structure.getChildren(storey)),
                ElementsAre("Hall", "Entrance", "East wall", "West wall"));
    EXPECT_FALSE(structure.hasChildren(place("0000000000000000000011")));
}

TEST_F(InspectorSessionTest, PathLeadsFromTheProjectToTheObject)
{
    BuildingStructure const structure(*session.getData());
    EXPECT_THAT(names(structure.getPath(place(eastWall))),
                ElementsAre("Project", "House", "Storey 2", "East wall"));
}

TEST_F(InspectorSessionTest, SearchLooksAtNamesClassesAndGlobalIds)
{
    EXPECT_THAT(found("WALL"), ElementsAre("East wall", "West wall"));
    EXPECT_THAT(found("ifcdoor"), ElementsAre("Entrance"));
    EXPECT_THAT(found(westWall), ElementsAre("West wall"));
    EXPECT_THAT(found("wall west"), ElementsAre("West wall"));
    EXPECT_THAT(found("nothing of that"), IsEmpty());
    EXPECT_THAT(found("  "), IsEmpty());
}

TEST_F(InspectorSessionTest, SharedSetIsCountedForTheOtherObjects)
{
    session.select(session.findObject(eastWall));
    EXPECT_EQ(session.countOthersWithSet("Pset_WallCommon"), 1u);
    EXPECT_EQ(session.countOthersWithSet("Pset_DoorCommon"), 0u);
    session.select(session.findObject(entrance));
    EXPECT_EQ(session.countOthersWithSet("Pset_DoorCommon"), 0u);
    session.select(nullptr);
    EXPECT_EQ(session.countOthersWithSet("Pset_WallCommon"), 0u);
}

TEST_F(InspectorSessionTest, UndoTakesTheEditBackAndTheFileIsUnmodifiedAgain)
{
    int told = 0;
    session.onModelChanged.iHandlerAdd([&](auto const&) { ++told; });
    EXPECT_FALSE(session.isModified());
    setFireRating("F90");
    EXPECT_TRUE(session.isModified());
    EXPECT_TRUE(session.canUndo());
    session.undo();
    EXPECT_FALSE(session.isModified());
    session.redo();
    EXPECT_TRUE(session.isModified());
    EXPECT_EQ(told, 3);
}

TEST_F(InspectorSessionTest, SaveWritesTheEditAndNothingElse)
{
    setFireRating("F90");
    EXPECT_TRUE(session.save().saved());
    EXPECT_FALSE(session.isModified());
    std::string expected(smallBuilding);
    expected.replace(expected.find("F30"), 3, "F90");
    EXPECT_EQ(readFile(path), expected);
}

TEST_F(InspectorSessionTest, FileThatAnotherProgramChangedIsOnlyOverwrittenOnDemand)
{
    setFireRating("F90");
    folder.write("small.ifc", "somebody else's");
    EXPECT_EQ(session.save().status, StepSaveResult::Status::ChangedMeanwhile);
    EXPECT_EQ(readFile(path), "somebody else's");
    EXPECT_TRUE(session.isModified());
    EXPECT_TRUE(session.save(step::StepPatch::IfChanged::Overwrite).saved());
    EXPECT_THAT(readFile(path), HasSubstr("F90"));
    EXPECT_TRUE(session.save().saved());
}

TEST_F(InspectorSessionTest, SaveThatIsCancelledLeavesFileAndModelAsTheyWere)
{
    auto const text = "/*" + std::string(std::size_t{17} << 20, ' ') + "*/\n";
    std::string building(smallBuilding);
    building.insert(building.find("#1="), text);
    ASSERT_TRUE(session.open(folder.write("small.ifc", building)));
    setFireRating("F90");
    auto const stop = [](std::uint64_t, std::uint64_t) { return false; };
    EXPECT_EQ(session.save(step::StepPatch::IfChanged::Refuse, stop).status,
              StepSaveResult::Status::Cancelled);
    EXPECT_EQ(session.saveAs(folder.path() / "other.ifc", stop).status, StepSaveResult::Status::Cancelled);
    EXPECT_TRUE(readFile(path) == building);
    EXPECT_EQ(folder.entryCount(), 1u);
    EXPECT_EQ(session.getPath(), path);
    EXPECT_TRUE(session.isModified());

    EXPECT_TRUE(session.save().saved());
    session.undo();
    EXPECT_TRUE(session.save().saved());
    EXPECT_TRUE(readFile(path) == building);
}

TEST_F(InspectorSessionTest, SaveAsMovesOnToTheNewFile)
{
    auto const other = folder.path() / "other.ifc";
    setFireRating("F90");
    EXPECT_TRUE(session.saveAs(other).saved());
    EXPECT_EQ(session.getPath(), other);
    EXPECT_EQ(readFile(path), smallBuilding);
    setFireRating("F120");
    EXPECT_TRUE(session.save().saved());
    EXPECT_THAT(readFile(other), HasSubstr("F120"));
    EXPECT_THAT(readFile(other), Not(HasSubstr("F90")));
    EXPECT_EQ(readFile(path), smallBuilding);
}

TEST_F(InspectorSessionTest, FileThatCannotBeUsedLeavesThePresentOneOpen)
{
    EXPECT_FALSE(session.open(folder.write("other.ifc", "no file of that kind")));
    EXPECT_TRUE(session.isOpen());
    EXPECT_EQ(session.getPath(), path);
    EXPECT_THAT(session.getMessages(), Not(IsEmpty()));
}

TEST_F(InspectorSessionTest, ClosedSessionIsEmpty)
{
    session.select(session.findObject(eastWall));
    session.close();
    EXPECT_FALSE(session.isOpen());
    EXPECT_FALSE(session.isModified());
    EXPECT_EQ(session.getSelection(), nullptr);
    EXPECT_EQ(session.findObject(eastWall), nullptr);
    EXPECT_EQ(session.getObjectCount(), 0u);
    EXPECT_FALSE(session.save().saved());
}

TEST_F(InspectorSessionTest, ObjectsThatContainEachOtherDoNotSendAnybodyRound)
{
    std::string text(smallBuilding);
    text.insert(text.find("ENDSEC;\nEND-ISO"),
                "#60=IFCRELAGGREGATES('0000000000000000000060',$,$,$,#12,(#1));\n");
    ASSERT_TRUE(session.open(folder.write("round.ifc", text)));
    BuildingStructure const structure(*session.getData());
    EXPECT_EQ(structure.getPath(place(eastWall)).size(), 4u);
}

} // namespace
} // namespace qev::test
