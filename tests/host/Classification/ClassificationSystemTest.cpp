#include "Classification/ClassificationSystem.h"

#include <gtest/gtest.h>

namespace qev::test {
namespace {

using classification::ClassificationSystem;
using Codes = std::vector<std::string>;

ClassificationSystem makeSystem()
{
    return ClassificationSystem({"Classes", "Parts of buildings", "Institute", "2"},
                                {{"331", "Loadbearing walls", "", "330"},
                                 {"330", "Walls", "", ""},
                                 {"332", "Façades", "Nothing but themselves", "330"},
                                 {"400", "Services", "", "unknown"}});
}

TEST(ClassificationSystem, SaysWhatItIs)
{
    auto const system = makeSystem();
    EXPECT_EQ(system.getKey(), "Classes");
    EXPECT_EQ(system.getDescription(), "Parts of buildings");
    EXPECT_EQ(system.getSource(), "Institute");
    EXPECT_EQ(system.getEdition(), "2");
    EXPECT_EQ(system.getTitle("331"), "Loadbearing walls");
    EXPECT_EQ(system.getTitle("999"), "");
}

TEST(ClassificationSystem, IsAForestInTheOrderOfItsSource)
{
    auto const system = makeSystem();
    EXPECT_EQ(system.getChildren(""), (Codes{"330", "400"}));
    EXPECT_EQ(system.getChildren("330"), (Codes{"331", "332"}));
    EXPECT_EQ(system.getChildren("331"), Codes());
    EXPECT_EQ(system.getChildren("999"), Codes());
}

TEST(ClassificationSystem, KnowsTheWayToACode)
{
    auto const system = makeSystem();
    EXPECT_EQ(system.getPath("331"), (Codes{"330", "331"}));
    EXPECT_EQ(system.getPath("330"), (Codes{"330"}));
    EXPECT_EQ(system.getPath("999"), Codes());
}

TEST(ClassificationSystem, FindsCodesByAllWordsWhateverTheirCase)
{
    auto const system = makeSystem();
    EXPECT_EQ(system.search("WALLS"), (Codes{"331", "330"}));
    EXPECT_EQ(system.search("walls load"), (Codes{"331"}));
    EXPECT_EQ(system.search("themselves"), (Codes{"332"}));
    EXPECT_EQ(system.search("33"), (Codes{"331", "330", "332"}));
    EXPECT_EQ(system.search("nothing of this"), Codes());
    EXPECT_EQ(system.search("").size(), 4u);
}

TEST(ClassificationSystem, CutsCirclesOfParents)
{
    ClassificationSystem const system(
        {"Circle", "", "", ""},
        {{"a", "", "", "b"}, {"b", "", "", "c"}, {"c", "", "", "a"}, {"d", "", "", "d"}});
    EXPECT_EQ(system.getChildren(""), (Codes{"a", "d"}));
    EXPECT_EQ(system.getPath("b"), (Codes{"a", "c", "b"}));
}

TEST(ClassificationSystem, KeepsWhatStandsBelowACircleBelowIt)
{
    ClassificationSystem const system({"Circle", "", "", ""},
                                      {{"x", "", "", "a"}, {"a", "", "", "b"}, {"b", "", "", "a"}});
    EXPECT_EQ(system.getChildren(""), (Codes{"a"}));
    EXPECT_EQ(system.getPath("x"), (Codes{"a", "x"}));
}

} // namespace
} // namespace qev::test
