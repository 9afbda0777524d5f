#include "Object/PropertyId.h"

#include <gmock/gmock.h>

#include <set>
#include <unordered_set>

namespace {

using qev::object::PropertyId;

TEST(PropertyId, GivesItsTextBack)
{
    EXPECT_EQ(PropertyId("PropertySets.Pset_WallCommon").text(), "PropertySets.Pset_WallCommon");
    EXPECT_TRUE(PropertyId().empty());
    EXPECT_FALSE(PropertyId("a").empty());
}

TEST(PropertyId, IsEqualExactlyWhenItsTextIs)
{
    EXPECT_EQ(PropertyId("a.b"), PropertyId(std::string("a.b")));
    EXPECT_NE(PropertyId("a.b"), PropertyId("a.b."));
    EXPECT_NE(PropertyId("a"), PropertyId("A"));
}

TEST(PropertyId, IsOrderedByteByByte)
{
    std::set<PropertyId> const ids{PropertyId("a.b"), PropertyId("a"), PropertyId("ä"), PropertyId("B"),
                                   PropertyId("")};
    EXPECT_THAT(ids, testing::ElementsAre(PropertyId(""), PropertyId("B"), PropertyId("a"), PropertyId("a.b"),
                                          PropertyId("ä")));
}

TEST(PropertyId, CanBeAKeyOfAHashTable)
{
    std::unordered_set<PropertyId> const ids{PropertyId("a"), PropertyId("a"), PropertyId("b")};
    EXPECT_EQ(ids.size(), 2u);
}

} // namespace
