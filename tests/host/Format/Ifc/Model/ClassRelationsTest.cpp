#include "Format/Ifc/Model/ClassRelations.h"

#include "Format/Ifc/Schema/SchemaLoader.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace qev::ifc;
using testing::ElementsAre;
using testing::IsEmpty;

std::string ancestorOf(char const* first, char const* second)
{
    auto const* const ancestor = getLowestCommonAncestor(first, second);
    return ancestor ? ancestor->name() : "none";
}

TEST(CompatibleClasses, AreTheClassAndItsSuperclasses)
{
    EXPECT_THAT(getCompatibleClasses("IfcDoor"),
                ElementsAre("IfcDoor", "IfcBuiltElement", "IfcElement", "IfcProduct", "IfcObject",
                            "IfcObjectDefinition", "IfcRoot"));
    EXPECT_THAT(getCompatibleClasses("IfcDoorType"),
                ElementsAre("IfcDoorType", "IfcBuiltElementType", "IfcElementType", "IfcTypeProduct",
                            "IfcTypeObject", "IfcObjectDefinition", "IfcRoot"));
}

TEST(CompatibleClasses, OfAnUnknownClassAreNone)
{
    EXPECT_THAT(getCompatibleClasses("IfcCastle"), IsEmpty());
    EXPECT_THAT(getCompatibleClasses(""), IsEmpty());
}

TEST(LowestCommonAncestor, OfAClassAndItselfIsTheClass)
{
    EXPECT_EQ(ancestorOf("IfcDoor", "IfcDoor"), "IfcDoor");
}

TEST(LowestCommonAncestor, OfAClassAndItsSuperclassIsTheSuperclass)
{
    EXPECT_EQ(ancestorOf("IfcDoor", "IfcElement"), "IfcElement");
    EXPECT_EQ(ancestorOf("IfcElement", "IfcDoor"), "IfcElement");
}

TEST(LowestCommonAncestor, IsTheNearestOfTheSharedClasses)
{
    EXPECT_EQ(ancestorOf("IfcDoor", "IfcWall"), "IfcBuiltElement");
    EXPECT_EQ(ancestorOf("IfcDoor", "IfcSpace"), "IfcProduct");
    EXPECT_EQ(ancestorOf("IfcDoor", "IfcDoorType"), "IfcObjectDefinition");
}

TEST(LowestCommonAncestor, IsMissingWithoutASharedOrKnownClass)
{
    EXPECT_EQ(ancestorOf("IfcDoor", "IfcPerson"), "none");
    EXPECT_EQ(ancestorOf("IfcCastle", "IfcDoor"), "none");
    EXPECT_EQ(ancestorOf("IfcDoor", "IfcCastle"), "none");
}

} // namespace
