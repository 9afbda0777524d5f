#include "Classification/ClassificationReader.h"
#include "Core/Platform/FileBytes.h"
#include "TemporaryFolder.h"

#include <gtest/gtest.h>

namespace qev::test {
namespace {

using namespace classification;
using Lines = std::vector<std::string>;

ClassificationReadResult read(std::string_view text)
{
    return readClassificationTable(text, "folder/Cost groups.csv");
}

TEST(ClassificationTable, TakesItsColumnsFromTheFirstLine)
{
    auto const result = read("Title;CODE;Description;Parent\nWalls;330;;\nBrick;331.1;\"red; hard\";330\n");
    EXPECT_EQ(result.messages, Lines());
    ASSERT_EQ(result.systems.size(), 1u);
    EXPECT_EQ(
        result.systems[0]->getCodes(),
        (std::vector<ClassificationCode>{{"330", "Walls", "", ""}, {"331.1", "Brick", "red; hard", "330"}}));
}

TEST(ClassificationTable, WithoutNamesOfColumnsHasCodeTitleAndParent)
{
    auto const result = read("330,Walls\n331,Brick,330\n");
    ASSERT_EQ(result.systems.size(), 1u);
    EXPECT_EQ(result.systems[0]->getCodes(),
              (std::vector<ClassificationCode>{{"330", "Walls", "", ""}, {"331", "Brick", "", "330"}}));
}

TEST(ClassificationTable, MayBePartedByTabs)
{
    auto const result = read("code\ttitle\tparent\n330\tWalls, all\t\n");
    ASSERT_EQ(result.systems.size(), 1u);
    EXPECT_EQ(result.systems[0]->getTitle("330"), "Walls, all");
}

TEST(ClassificationTable, SaysWhatTheSystemIsBeforeItsCodes)
{
    auto const result =
        read("\xEF\xBB\xBF# Name: Classes\r\n# a remark\r\n#Description: Parts, of buildings\r\n"
             "# Source: Institute\r\n# EDITION: 2\r\n\r\ncode,title\r\n330,Walls\r\n");
    EXPECT_EQ(result.messages, Lines());
    ASSERT_EQ(result.systems.size(), 1u);
    auto const& system = *result.systems[0];
    EXPECT_EQ(system.getKey(), "Classes");
    EXPECT_EQ(system.getDescription(), "Parts, of buildings");
    EXPECT_EQ(system.getSource(), "Institute");
    EXPECT_EQ(system.getEdition(), "2");
    EXPECT_EQ(system.getCodes().size(), 1u);
}

TEST(ClassificationTable, WithoutANameIsCalledAsItsFile)
{
    auto const result = read("330,Walls\n");
    ASSERT_EQ(result.systems.size(), 1u);
    EXPECT_EQ(result.systems[0]->getKey(), "Cost groups");
}

TEST(ClassificationTable, TellsTheLinesThatItLeavesOut)
{
    auto const result = read("code,title,parent\n330,Walls,\n,Nothing,\n330,Again,\n331,Brick,329\n");
    EXPECT_EQ(result.messages,
              (Lines{"Cost groups.csv, line 3: the code is missing; the line was left out",
                     "Cost groups.csv, line 4: the code \"330\" is there already; the line was left out",
                     "Cost groups.csv, line 5: the parent \"329\" of \"331\" is no code of the table; "
                     "\"331\" stands at "
                     "the top"}));
    ASSERT_EQ(result.systems.size(), 1u);
    EXPECT_EQ(result.systems[0]->getChildren(""), (Lines{"330", "331"}));
}

TEST(ClassificationTable, WithoutCodesIsNoSystem)
{
    for (auto const* const text : {"", "\n\n", "# Name: Classes\n", "code,title,parent\n"}) {
        auto const result = read(text);
        EXPECT_TRUE(result.systems.empty());
        EXPECT_EQ(
            result.messages,
            (Lines{"Cost groups.csv: there is no code in it; expected lines of code, title and parent"}))
            << text;
    }
}

constexpr auto library = R"(ISO-10303-21;
HEADER;
FILE_DESCRIPTION((''),'2;1');
FILE_NAME('','',(''),(''),'','','');
FILE_SCHEMA(('IFC4'));
ENDSEC;
DATA;
#1=IFCCLASSIFICATION('Institute','2',$,'Classes','Parts of buildings',$,$);
#2=IFCCLASSIFICATIONREFERENCE($,'330','Walls',#1,$,$);
#3=IFCCLASSIFICATIONREFERENCE($,'331','Brick',#2,'red',$);
#4=IFCCLASSIFICATIONREFERENCE($,$,'Nameless',#1,$,$);
#5=IFCCLASSIFICATION($,$,$,'Uses',$,$,$);
#6=IFCCLASSIFICATIONREFERENCE($,'A','Office',#5,$,$);
#7=IFCCLASSIFICATIONREFERENCE($,'lost','Lost',$,$,$);
#8=IFCCLASSIFICATION($,$,$,'Empty',$,$,$);
ENDSEC;
END-ISO-10303-21;
)";

TEST(Classifications, OfAnIfcFileAreThoseWithCodes)
{
    TemporaryFolder const folder;
    auto const result = readClassifications(folder.write("library.ifc", library));
    EXPECT_EQ(result.messages, Lines());
    ASSERT_EQ(result.systems.size(), 2u);
    EXPECT_EQ(result.systems[0]->getKey(), "Classes");
    EXPECT_EQ(result.systems[0]->getSource(), "Institute");
    EXPECT_EQ(result.systems[0]->getEdition(), "2");
    EXPECT_EQ(result.systems[0]->getDescription(), "Parts of buildings");
    EXPECT_EQ(result.systems[0]->getCodes(),
              (std::vector<ClassificationCode>{{"330", "Walls", "", ""},
                                               {"331", "Brick", "red", "330"},
                                               {"Nameless", "Nameless", "", ""}}));
    EXPECT_EQ(result.systems[1]->getKey(), "Uses");
}

TEST(Classifications, OfFilesThatCannotBeReadAreTold)
{
    TemporaryFolder const folder;
    auto const missing = readClassifications(folder.path() / "missing.csv");
    EXPECT_TRUE(missing.systems.empty());
    EXPECT_EQ(missing.messages, (Lines{platform::FileBytes::read(folder.path() / "missing.csv").error}));

    auto const noIfc = readClassifications(folder.write("text.ifc", "no such thing"));
    EXPECT_TRUE(noIfc.systems.empty());
    ASSERT_FALSE(noIfc.messages.empty());
    EXPECT_EQ(noIfc.messages[0].find("text.ifc: "), 0u);

    auto const without = readClassifications(folder.write(
        "empty.ifc",
        "ISO-10303-21;\nHEADER;\nFILE_DESCRIPTION((''),'2;1');\nFILE_NAME('','',(''),(''),'','','');\n"
        "FILE_SCHEMA(('IFC4'));\nENDSEC;\nDATA;\nENDSEC;\nEND-ISO-10303-21;\n"));
    EXPECT_EQ(without.messages, (Lines{"empty.ifc: there is no classification with codes in it"}));
}

} // namespace
} // namespace qev::test
