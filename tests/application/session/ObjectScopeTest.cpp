#include "ObjectScope.h"

#include "Format/Ifc/Model/IfcFile.h"
#include "SmallBuilding.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace qev::test {
namespace {

using application::ClassCount;
using application::ObjectScope;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

class ObjectScopeTest : public testing::Test
{
protected:
    [[nodiscard]] fc::EntityIndex find(char const* globalId) const
    {
        return file->entityFromGlobalId(globalId)->getIndex();
    }
    [[nodiscard]] std::vector<std::string> names(std::vector<fc::EntityIndex> const& objects) const
    {
        std::vector<std::string> result;
        for (auto const object : objects)
            result.push_back(file->data()->entity(object)->getAttributeAsString("Name").value_or(""));
        return result;
    }

    std::unique_ptr<ifc::IfcFile> file = ifc::IfcFile::fromText(smallBuilding).file;
    ObjectScope scope{*file->data()};
};

TEST_F(ObjectScopeTest, ContentsAreAllThatStandsInAnObjectHoweverFarDown)
{
    EXPECT_THAT(names(scope.getContents(find("0000000000000000000012"))),
                UnorderedElementsAre("Storey 2", "East wall", "West wall", "Entrance", "Hall"));
    EXPECT_EQ(scope.getContents(find("0000000000000000000001")).size(), 8u);
    EXPECT_THAT(names(scope.getContents(find(eastWall))), ElementsAre("East wall"));
}

TEST_F(ObjectScopeTest, ClassesAreCountedByName)
{
    EXPECT_THAT(scope.countClasses(scope.getContents(find("0000000000000000000012"))),
                ElementsAre(ClassCount{"IfcBuildingStorey", 1}, ClassCount{"IfcDoor", 1},
                            ClassCount{"IfcSpace", 1}, ClassCount{"IfcWall", 2}));
    EXPECT_THAT(scope.countClasses({}), IsEmpty());
}

TEST_F(ObjectScopeTest, ObjectsOfOneClassKeepTheirOrder)
{
    std::vector const objects{find(westWall), find(entrance), find(eastWall)};
    EXPECT_THAT(names(scope.filterByClass(objects, "IfcWall")), ElementsAre("West wall", "East wall"));
    EXPECT_EQ(scope.filterByClass(objects, ""), objects);
    EXPECT_THAT(scope.filterByClass(objects, "IfcSlab"), IsEmpty());
    EXPECT_EQ(scope.getAll().size(), 8u);
}

} // namespace
} // namespace qev::test
