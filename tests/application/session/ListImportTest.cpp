#include "ListImport.h"

#include "Core/String/DelimitedText.h"
#include "IdentityColumns.h"
#include "ReportRecorder.h"
#include "Ui/Window/Details/WindowInterfaceFactory.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string_view>

namespace qev::test {
namespace {

using namespace application;
using testing::Each;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

/// Three walls and a door. The walls north and east share a set; west has one of its own and one that no
/// schema knows.
constexpr std::string_view model = R"(ISO-10303-21;
HEADER;
FILE_DESCRIPTION((''),'2;1');
FILE_NAME('list.ifc','2024-01-01T00:00:00',(''),(''),'','','');
FILE_SCHEMA(('IFC4X3_ADD2'));
ENDSEC;
DATA;
#1=IFCPROJECT('0000000000000000000001',$,'Project',$,$,$,$,$,#2);
#2=IFCUNITASSIGNMENT((#3));
#3=IFCSIUNIT(*,.LENGTHUNIT.,.MILLI.,.METRE.);
#30=IFCWALL('0000000000000000000030',$,'North',$,$,$,$,$,$);
#31=IFCWALL('0000000000000000000031',$,'East, long',$,$,$,$,$,$);
#32=IFCWALL('0000000000000000000032',$,'West',$,$,$,$,$,$);
#33=IFCDOOR('0000000000000000000033',$,'Entrance',$,$,$,$,$,2000.,1000.,$,$,$);
#50=IFCPROPERTYSINGLEVALUE('FireRating',$,IFCLABEL('F30'),$);
#51=IFCPROPERTYSINGLEVALUE('IsExternal',$,IFCBOOLEAN(.T.),$);
#52=IFCPROPERTYSET('0000000000000000000052',$,'Pset_WallCommon',$,(#50,#51));
#53=IFCRELDEFINESBYPROPERTIES('0000000000000000000053',$,$,$,(#30,#31),#52);
#54=IFCPROPERTYSINGLEVALUE('FireRating',$,IFCLABEL('F90'),$);
#55=IFCPROPERTYSET('0000000000000000000055',$,'Pset_WallCommon',$,(#54));
#56=IFCRELDEFINESBYPROPERTIES('0000000000000000000056',$,$,$,(#32),#55);
#57=IFCPROPERTYSINGLEVALUE('Offset',$,IFCLENGTHMEASURE(2345.6789),$);
#58=IFCPROPERTYSET('0000000000000000000058',$,'Own',$,(#57));
#59=IFCRELDEFINESBYPROPERTIES('0000000000000000000059',$,$,$,(#32),#58);
#60=IFCQUANTITYLENGTH('Length',$,$,4000.,$);
#61=IFCELEMENTQUANTITY('0000000000000000000061',$,'Qto_WallBaseQuantities',$,$,(#60));
#62=IFCRELDEFINESBYPROPERTIES('0000000000000000000062',$,$,$,(#32),#61);
#63=IFCPROPERTYSINGLEVALUE('IsExternal',$,IFCLABEL('yes'),$);
#64=IFCPROPERTYSET('0000000000000000000064',$,'Pset_DoorCommon',$,(#63));
#65=IFCRELDEFINESBYPROPERTIES('0000000000000000000065',$,$,$,(#33),#64);
ENDSEC;
END-ISO-10303-21;
)";

constexpr char north[] = "0000000000000000000030";
constexpr char east[] = "0000000000000000000031";
constexpr char west[] = "0000000000000000000032";
constexpr char door[] = "0000000000000000000033";

constexpr char tableWithRefusals[] =
    "Name,GlobalId,Own.Offset,Pset_WallCommon.Status,Pset_WallCommon.IsExternal\n"
    "Renamed,0000000000000000000032,wide,,\n"
    "North,0000000000000000000030,,BROKEN,maybe\n"
    "None,1111111111111111111111,,,\n"
    "Entrance,0000000000000000000033,,NEW,\n";

class ListImportTest : public testing::Test
{
protected:
    [[nodiscard]] std::vector<std::shared_ptr<fc::FcBase>> objects(std::vector<std::string> const& ids) const
    {
        std::vector<std::shared_ptr<fc::FcBase>> result;
        for (auto const& id : ids)
            result.push_back(file->entityFromGlobalId(id));
        return result;
    }

    /// The table that a list of these objects gives.
    [[nodiscard]] std::string csv(std::vector<std::string> const& ids,
                                  std::vector<std::string> const& columns) const
    {
        HeadlessList session(file->data(), columns);
        session.show(objects(ids));
        std::vector<std::vector<std::string>> rows(1);
        for (auto const& column : session.columns())
            rows.front().push_back(tableHeader(column));
        for (std::size_t row = 0; row < ids.size(); ++row)
            rows.push_back(tableRow(*session.control().getListControl(), row, session.columns()));
        return str::writeDelimited(rows, ',');
    }

    [[nodiscard]] ImportResult preview(std::string const& text) const
    {
        auto const table = ListTable::fromCsv(text);
        EXPECT_TRUE(table);
        return ListImport(*file, *table).preview();
    }
    [[nodiscard]] ImportResult import(std::string const& text) const
    {
        auto const table = ListTable::fromCsv(text);
        EXPECT_TRUE(table);
        ListImport const listImport(*file, *table);
        return listImport.apply(listImport.preview());
    }
    [[nodiscard]] static std::string nameOf(ImportRefusal::Reason reason)
    {
        constexpr char const* names[] = {"no such object", "no such property", "not editable", "not an entry",
                                         "not taken"};
        return names[static_cast<std::size_t>(reason)];
    }
    [[nodiscard]] static std::vector<std::string> refusalsOf(ImportResult const& result)
    {
        std::vector<std::string> told;
        for (auto const& refusal : result.refusals)
            told.push_back(std::to_string(refusal.line) + " " + refusal.column + " '" + refusal.text +
                           "': " + nameOf(refusal.reason));
        return told;
    }

    std::unique_ptr<ifc::IfcFile> file = ifc::IfcFile::fromText(model).file;
};

TEST_F(ListImportTest, AListBeginsWithGlobalIdAndName)
{
    EXPECT_EQ(csv({north, west}, {"Pset_WallCommon.FireRating"}), "GlobalId,Name,Pset_WallCommon.FireRating\n"
                                                                  "0000000000000000000030,North,F30\n"
                                                                  "0000000000000000000032,West,F90\n");
}

TEST_F(ListImportTest, AListWithoutPropertiesStillTellsItsObjects)
{
    EXPECT_EQ(csv({north, door}, {"Pset_WallCommon.FireRating"}),
              "GlobalId,Name\n0000000000000000000030,North\n0000000000000000000033,Entrance\n");
}

TEST_F(ListImportTest, ATableOfSeveralClassesChangesNothingWhenItComesBackAsItIs)
{
    auto const result = import(csv({north, door}, {"Pset_WallCommon.FireRating"}));
    EXPECT_THAT(result.changes, IsEmpty());
    EXPECT_THAT(result.refusals, IsEmpty());
}

TEST_F(ListImportTest, TablesHaveAllDigitsUnitsAndTruthValues)
{
    EXPECT_EQ(csv({west}, {"Own.Offset", "Pset_WallCommon.IsExternal"}),
              "GlobalId,Name,Own.Offset [m],Pset_WallCommon.IsExternal\n"
              "0000000000000000000032,West,2.3456789,\n");
    EXPECT_THAT(csv({east}, {"Pset_WallCommon.IsExternal"}), HasSubstr("\"East, long\",TRUE\n"));
}

TEST_F(ListImportTest, TheCurrentBackEndStaysTheCurrentOne)
{
    auto const backend = ui::HeadlessBackend::install();
    HeadlessList const session(file->data());
    EXPECT_EQ(ui::details::WindowInterfaceFactory::getBackend(), backend);
    ui::details::WindowInterfaceFactory::setBackend(nullptr);
}

TEST_F(ListImportTest, ATableThatSaysWhatTheModelSaysChangesNothing)
{
    auto const before = file->toText();
    auto const result =
        import(csv({north, east, west}, {"Pset_WallCommon.FireRating", "Pset_WallCommon.IsExternal",
                                         "Pset_WallCommon.Status", "Pset_WallCommon.ThermalTransmittance"}));
    EXPECT_THAT(result.changes, IsEmpty());
    EXPECT_THAT(result.refusals, IsEmpty());
    EXPECT_EQ(file->toText(), before);
    EXPECT_FALSE(file->data()->changes().canUndo());
}

TEST_F(ListImportTest, ChangedCellsAreWrittenAsOneStep)
{
    auto const before = file->toText();
    auto const result = import("GlobalId,Pset_WallCommon.FireRating,Own.Offset [m]\n"
                               "0000000000000000000032,F60,2.5\n");
    EXPECT_THAT(result.refusals, IsEmpty());
    ASSERT_THAT(result.changes, SizeIs(2));
    EXPECT_EQ(result.changes[0].oldText, "F90");
    EXPECT_EQ(result.changes[0].newText, "F60");
    EXPECT_THAT(file->toText(), HasSubstr("IFCLENGTHMEASURE(2500.)"));
    EXPECT_THAT(file->toText(), HasSubstr("#54=IFCPROPERTYSINGLEVALUE('FireRating',$,IFCLABEL('F60'),$);"));
    file->data()->changes().undo();
    EXPECT_EQ(file->toText(), before);
}

TEST_F(ListImportTest, APreviewWritesNothing)
{
    auto const table =
        ListTable::fromCsv("GlobalId,Pset_WallCommon.FireRating\n0000000000000000000032,F60\n");
    auto const preview = ListImport(*file, *table).preview();
    ASSERT_THAT(preview.changes, SizeIs(1));
    EXPECT_EQ(preview.changes[0].row, 0u);
    EXPECT_EQ(preview.changes[0].column, 0u);
    EXPECT_EQ(preview.changes[0].setName, "Pset_WallCommon");
    EXPECT_FALSE(file->data()->changes().canUndo());
}

TEST_F(ListImportTest, AnUnchangedRowDoesNotPutASharedValueBack)
{
    auto const result = import("GlobalId,Pset_WallCommon.FireRating\n"
                               "0000000000000000000030,F60\n"
                               "0000000000000000000031,F30\n");
    EXPECT_THAT(result.changes, SizeIs(1));
    EXPECT_THAT(file->toText(), HasSubstr("#50=IFCPROPERTYSINGLEVALUE('FireRating',$,IFCLABEL('F60'),$);"));
}

TEST_F(ListImportTest, ANumberInAnotherUnitIsConverted)
{
    EXPECT_THAT(import("GlobalId,Own.Offset [mm]\n0000000000000000000032,2345.6789\n").changes, IsEmpty());
    EXPECT_THAT(import("GlobalId,Own.Offset [mm]\n0000000000000000000032,1500\n").changes, SizeIs(1));
    EXPECT_THAT(file->toText(), HasSubstr("IFCLENGTHMEASURE(1500.)"));
}

TEST_F(ListImportTest, SpreadsheetsMayWriteSemicolonsDecimalCommasAndTheirOwnTruths)
{
    auto const before = file->toText();
    EXPECT_THAT(import("\xEF\xBB\xBFGlobalId;Own.Offset [m]\r\n0000000000000000000032;2,3456789\r\n").changes,
                IsEmpty());
    EXPECT_THAT(import("globalid;Pset_WallCommon.IsExternal\r\n0000000000000000000030;true\r\n;\r\n").changes,
                IsEmpty());
    EXPECT_EQ(file->toText(), before);
    EXPECT_THAT(import("GlobalId;Own.Offset [m]\n0000000000000000000032;2,5\n").changes, SizeIs(1));
    EXPECT_THAT(file->toText(), HasSubstr("IFCLENGTHMEASURE(2500.)"));
}

TEST_F(ListImportTest, AnEmptyCellTakesTheValueAway)
{
    EXPECT_THAT(import("GlobalId,Own.Offset\n0000000000000000000032,\n").changes, SizeIs(1));
    EXPECT_THAT(file->toText(), Not(HasSubstr("'Offset'")));
    EXPECT_THAT(import("GlobalId,Own.Offset\n0000000000000000000030,\n").changes, IsEmpty());
}

TEST_F(ListImportTest, ObjectsOfDifferentClassesMayStandInOneTable)
{
    auto const result = import("GlobalId,Pset_WallCommon.FireRating,Pset_DoorCommon.FireRating\n"
                               "0000000000000000000033,,T30\n"
                               "0000000000000000000032,F60,\n");
    EXPECT_THAT(result.refusals, IsEmpty());
    EXPECT_THAT(result.changes, SizeIs(2));
    EXPECT_THAT(file->toText(), HasSubstr("IFCLABEL('T30')"));
}

TEST_F(ListImportTest, WhatIsNotTakenIsToldWithItsLineAndColumn)
{
    // The preview tells the same as the import.
    for (auto const& result : {preview(tableWithRefusals), import(tableWithRefusals)}) {
        EXPECT_THAT(result.changes, IsEmpty());
        EXPECT_THAT(refusalsOf(result),
                    ElementsAre("2 Name 'Renamed': not editable", "2 Own.Offset 'wide': not taken",
                                "3 Pset_WallCommon.Status 'BROKEN': not an entry",
                                "3 Pset_WallCommon.IsExternal 'maybe': not an entry", "4  '': no such object",
                                "5 Pset_WallCommon.Status 'NEW': no such property"));
    }
    EXPECT_FALSE(file->data()->changes().canUndo());
}

TEST_F(ListImportTest, APreviewTellsOfQuantitiesThatCannotBeEdited)
{
    auto const table = "GlobalId,Pset_WallCommon.FireRating,Qto_WallBaseQuantities.Length\n"
                       "0000000000000000000032,F60,5\n";
    auto const seen = preview(table);
    ASSERT_THAT(seen.changes, SizeIs(1));
    EXPECT_EQ(seen.changes[0].newText, "F60");
    EXPECT_THAT(refusalsOf(seen), ElementsAre("2 Qto_WallBaseQuantities.Length '5': not editable"));
    auto const done = import(table);
    EXPECT_THAT(done.changes, SizeIs(1));
    EXPECT_EQ(refusalsOf(done), refusalsOf(seen));
    EXPECT_THAT(file->toText(), HasSubstr("#60=IFCQUANTITYLENGTH('Length',$,$,4000.,$);"));
}

TEST_F(ListImportTest, APreviewTellsOfATruthValueThatTheModelHoldsAsAText)
{
    auto const table = "GlobalId,Pset_DoorCommon.IsExternal\n0000000000000000000033,TRUE\n";
    auto const seen = preview(table);
    EXPECT_THAT(seen.changes, IsEmpty());
    EXPECT_THAT(refusalsOf(seen), ElementsAre("2 Pset_DoorCommon.IsExternal 'TRUE': not taken"));
    EXPECT_THAT(test::takeReportTexts(), Each("FcSimpleValue doesn't hold a boolean."));
}

TEST(ListTableTest, ATableNeedsAColumnOfGlobalIds)
{
    EXPECT_FALSE(ListTable::fromCsv("Name,Pset.A\nx,y\n"));
    EXPECT_FALSE(ListTable::fromCsv(""));
}

TEST(ListTableTest, RowsKeepTheirLinesAndGetAllTheirCells)
{
    auto const table = ListTable::fromCsv("A\tGlobalId\tB\n1\tid\n\t\t\n\"two\nlines\"\tid2\t3\t4\n");
    ASSERT_TRUE(table);
    EXPECT_THAT(table->columns, ElementsAre("A", "B"));
    ASSERT_THAT(table->rows, SizeIs(2));
    EXPECT_EQ(table->rows[0].line, 2u);
    EXPECT_EQ(table->rows[0].globalId, "id");
    EXPECT_THAT(table->rows[0].cells, ElementsAre("1", ""));
    EXPECT_EQ(table->rows[1].line, 4u);
    EXPECT_THAT(table->rows[1].cells, ElementsAre("two\nlines", "3"));
}

TEST(ListTableTest, ATableMayHaveGlobalIdsAlone)
{
    auto const table = ListTable::fromCsv("GlobalId\n0000000000000000000030\n");
    ASSERT_TRUE(table);
    EXPECT_THAT(table->columns, IsEmpty());
    EXPECT_EQ(table->rows[0].globalId, "0000000000000000000030");
}

} // namespace
} // namespace qev::test
