#include "ListExport.h"

#include "DisplaySettings.h"
#include "Format/Ifc/Model/IfcFile.h"
#include "TemporaryFolder.h"
#include "ZipText.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string_view>
#include <system_error>

namespace qev::test {
namespace {

using namespace application;
using testing::AllOf;
using testing::HasSubstr;

/// A wall that is called like a number, with values of several kinds.
constexpr std::string_view model = R"(ISO-10303-21;
HEADER;
FILE_DESCRIPTION((''),'2;1');
FILE_NAME('list.ifc','2024-01-01T00:00:00',(''),(''),'','','');
FILE_SCHEMA(('IFC4X3_ADD2'));
ENDSEC;
DATA;
#1=IFCPROJECT('0000000000000000000001',$,'Project',$,$,$,$,$,#2);
#2=IFCUNITASSIGNMENT((#3));
#3=IFCSIUNIT(*,.LENGTHUNIT.,$,.METRE.);
#30=IFCWALL('0000000000000000000030',$,'007',$,$,$,$,$,$);
#50=IFCPROPERTYSINGLEVALUE('Offset',$,IFCLENGTHMEASURE(2.125),$);
#51=IFCPROPERTYSINGLEVALUE('Factor',$,IFCREAL(1.234),$);
#52=IFCPROPERTYSINGLEVALUE('Mark',$,IFCLABEL('012'),$);
#53=IFCPROPERTYSET('0000000000000000000053',$,'Own',$,(#50,#51,#52));
#54=IFCRELDEFINESBYPROPERTIES('0000000000000000000054',$,$,$,(#30),#53);
ENDSEC;
END-ISO-10303-21;
)";

class ListExportTest : public testing::Test
{
protected:
    ListExportTest() { session.show({file->entityFromGlobalId("0000000000000000000030")}); }
    ~ListExportTest() override { DisplaySettings().apply({}); }

    [[nodiscard]] ListExport makeExport() const
    {
        return {*session.control().getListControl(), session.columns(), {0}};
    }
    [[nodiscard]] std::string sheet() const { return readZipMember(path, "xl/worksheets/sheet1.xml"); }

    TemporaryFolder folder;
    std::filesystem::path path = folder.path() / "list.xlsx";
    std::unique_ptr<ifc::IfcFile> file = ifc::IfcFile::fromText(model).file;
    HeadlessList session{file->data(), {"Own.Offset", "Own.Factor", "Own.Mark"}};
};

TEST_F(ListExportTest, NumbersOfAWorkbookAreNumbersAndNamesStayNames)
{
    EXPECT_EQ(makeExport().writeWorkbook(path, "IfcWall"), std::nullopt);
    EXPECT_THAT(sheet(), HasSubstr("<v>2.125</v>"));
    EXPECT_THAT(sheet(), HasSubstr("<v>1.234</v>"));
    EXPECT_THAT(sheet(), HasSubstr("<t>007</t>"));
    EXPECT_THAT(sheet(), HasSubstr("<t>012</t>"));
}

TEST_F(ListExportTest, NumbersAreNumbersInEveryLanguage)
{
    DisplaySettings().apply(locale::Locale{"de", "DE"});
    EXPECT_EQ(makeExport().writeWorkbook(path, "IfcWall"), std::nullopt);
    EXPECT_THAT(sheet(), HasSubstr("<v>2.125</v>"));
    EXPECT_THAT(sheet(), HasSubstr("<v>1.234</v>"));
}

TEST_F(ListExportTest, AnExportThatIsStoppedLeavesTheOldFile)
{
    folder.write("list.xlsx", "old");
    folder.write("list.csv", "old");
    auto const stop = [](std::size_t, std::size_t) { return false; };
    EXPECT_EQ(makeExport().writeWorkbook(path, "IfcWall", stop), std::nullopt);
    EXPECT_EQ(makeExport().writeCsv(folder.path() / "list.csv", stop), std::nullopt);
    EXPECT_EQ(std::filesystem::file_size(path), 3u);
    EXPECT_EQ(std::filesystem::file_size(folder.path() / "list.csv"), 3u);
    EXPECT_EQ(folder.entryCount(), 2u);
}

TEST_F(ListExportTest, AFileThatCannotBeWrittenIsTold)
{
    auto const reason = std::make_error_code(std::errc::no_such_file_or_directory).message();
    auto const csv = makeExport().writeCsv(folder.path() / "missing" / "list.csv");
    auto const workbook = makeExport().writeWorkbook(folder.path() / "missing" / "list.xlsx", "IfcWall");
    EXPECT_THAT(csv.value_or(""), AllOf(HasSubstr("list.csv"), HasSubstr(reason)));
    EXPECT_THAT(workbook.value_or(""), AllOf(HasSubstr("list.xlsx"), HasSubstr(reason)));
}

TEST_F(ListExportTest, FilesOfTheUserBesideAWorkbookStay)
{
    folder.write("list.xlsx", "old");
    folder.write("list.xlsx.part", "the user's");
    EXPECT_EQ(makeExport().writeWorkbook(path, "IfcWall"), std::nullopt);
    EXPECT_THAT(sheet(), HasSubstr("<t>007</t>"));
    EXPECT_EQ(readFile(folder.path() / "list.xlsx.part"), "the user's");
    EXPECT_EQ(folder.entryCount(), 2u);
}

} // namespace
} // namespace qev::test
