#include "ListWorkbook.h"

#include "TemporaryFolder.h"
#include "ZipText.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <limits>

namespace qev::test {
namespace {

using application::ListWorkbook;
using application::WorkbookCell;
using testing::HasSubstr;
using testing::Not;

class ListWorkbookTest : public testing::Test
{
protected:
    [[nodiscard]] std::string sheet() const { return readZipMember(path, "xl/worksheets/sheet1.xml"); }

    TemporaryFolder folder;
    std::filesystem::path path = folder.path() / "list.xlsx";
};

TEST_F(ListWorkbookTest, CellsAreWhatTheyAre)
{
    ListWorkbook workbook(path, "IfcWall", {"Name", "Length [m]", "IsExternal", "Empty"});
    workbook.addRow({WorkbookCell::ofText("007 <&>"), WorkbookCell::ofNumber(2.25),
                     WorkbookCell::ofTruthValue(true), WorkbookCell::ofText("")});
    EXPECT_EQ(workbook.finish(), std::nullopt);
    EXPECT_THAT(sheet(), HasSubstr("<t>Length [m]</t>"));
    EXPECT_THAT(sheet(), HasSubstr("<t>007 &lt;&amp;&gt;</t>"));
    EXPECT_THAT(sheet(), HasSubstr("<c r=\"B2\"><v>2.25</v></c>"));
    EXPECT_THAT(sheet(), HasSubstr("<c r=\"C2\" t=\"b\"><v>1</v></c>"));
    EXPECT_THAT(sheet(), Not(HasSubstr("r=\"D2\"")));
    EXPECT_THAT(sheet(), HasSubstr("<autoFilter ref=\"A1:D2\"/>"));
    EXPECT_THAT(readZipMember(path, "xl/workbook.xml"), HasSubstr("name=\"IfcWall\""));
}

TEST_F(ListWorkbookTest, NamesThatNoSheetCanHaveAreMended)
{
    ListWorkbook workbook(path, "A/B: a name that is far too long for a sheet", {"Name"});
    EXPECT_EQ(workbook.finish(), std::nullopt);
    EXPECT_THAT(readZipMember(path, "xl/workbook.xml"),
                HasSubstr("name=\"A B  a name that is far too lon\""));
}

TEST_F(ListWorkbookTest, TextsAreCutToWhatACellCanHold)
{
    std::string text;
    for (int i = 0; i < 20000; ++i)
        text += "ä";
    ListWorkbook workbook(path, "", {"Name"});
    workbook.addRow({WorkbookCell::ofText(text)});
    EXPECT_EQ(workbook.finish(), std::nullopt);
    EXPECT_THAT(sheet(), HasSubstr("ä</t>"));
}

TEST_F(ListWorkbookTest, NumbersThatAreNoneAreEmpty)
{
    EXPECT_EQ(WorkbookCell::ofNumber(std::numeric_limits<double>::quiet_NaN()), WorkbookCell());
    EXPECT_EQ(WorkbookCell::ofNumber(std::numeric_limits<double>::infinity()), WorkbookCell());
}

TEST_F(ListWorkbookTest, AFileThatCannotBeWrittenIsTold)
{
    path = folder.path() / "missing" / "list.xlsx";
    ListWorkbook workbook(path, "IfcWall", {"Name"});
    workbook.addRow({WorkbookCell::ofText("x")});
    EXPECT_NE(workbook.finish(), std::nullopt);
}

} // namespace
} // namespace qev::test
