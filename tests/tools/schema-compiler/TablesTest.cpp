#include "Model/GroupTable.h"
#include "Model/HandwrittenClasses.h"
#include "Model/InputError.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace qev::schemacompiler {

namespace {

/// The message of the error that \p action raises, empty for none.
template <class Action>
std::string errorOf(Action action)
{
    try {
        action();
    } catch (InputError const& error) {
        return error.what();
    }
    return {};
}

std::string groupError(std::string const& text)
{
    return errorOf([&] { GroupTable::parse(text, "x.groups"); });
}

std::string handwrittenError(std::string const& text)
{
    return errorOf([&] { HandwrittenClasses::parse(text, "x.txt"); });
}

} // namespace

TEST(GroupTable, NamesBelongToTheGroupAboveThem)
{
    auto const table =
        GroupTable::parse("# toys\nCore.Kernel\n  IfcA IfcB\n\tIfcC\n\nResource.Cost\r\n  IfcD\r\n", "x");
    EXPECT_THAT(table.groups, testing::ElementsAre("Core.Kernel", "Resource.Cost"));
    EXPECT_EQ(table.entries.at("IfcC").group, "Core.Kernel");
    EXPECT_EQ(table.entries.at("IfcD").group, "Resource.Cost");
    EXPECT_EQ(table.entries.at("IfcD").line, 7u);
}

TEST(GroupTable, AnErrorNamesFileAndLine)
{
    EXPECT_EQ(groupError("  IfcA\n"), "x.groups:1: expected a group before the first name");
    EXPECT_EQ(groupError("Core.Kernel\n  IfcA\n  IfcA\n"), "x.groups:3: IfcA stands twice");
    EXPECT_EQ(groupError("Core.Kernel\nCore.Kernel\n"), "x.groups:2: the group Core.Kernel stands twice");
    EXPECT_EQ(groupError("Kernel\n"),
              "x.groups:1: expected a group such as \"Core.Kernel\", found \"Kernel\"");
}

TEST(HandwrittenClasses, ReadsTheThreeKindsOfLines)
{
    auto const list =
        HandwrittenClasses::parse("# by hand\n\nclass FcA\nselect FcB\nmember FcA.Items C D.h\n", "x");
    EXPECT_TRUE(list.classes.contains("FcA"));
    EXPECT_TRUE(list.selects.contains("FcB"));
    EXPECT_EQ(list.members.at("FcA.Items").className, "C");
    EXPECT_EQ(list.members.at("FcA.Items").header, "D.h");
}

TEST(HandwrittenClasses, AnErrorNamesFileAndLine)
{
    EXPECT_EQ(handwrittenError("clas FcA"),
              "x.txt:1: expected \"class\", \"select\" or \"member\" and a name");
    EXPECT_EQ(handwrittenError("\nclass"),
              "x.txt:2: expected \"class\", \"select\" or \"member\" and a name");
    EXPECT_EQ(handwrittenError("member FcA.Items C"),
              "x.txt:1: expected a class and a header after FcA.Items");
}

} // namespace qev::schemacompiler
