#include "StepTestFiles.h"

#include "Format/Ifc/Step/StepRecordParser.h"

#include <gmock/gmock.h>

#include <future>

namespace qev::step {
namespace {

using test::openRecords;
using test::openText;
using ::testing::ElementsAre;
using ::testing::ElementsAreArray;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

std::vector<InstanceId> idsOf(StepFile const& file)
{
    std::vector<InstanceId> ids;
    for (RecordIndex i = 0; i < file.recordCount(); ++i)
        ids.push_back(file.idOf(i));
    return ids;
}

TEST(StepFile, KnowsIdClassKeywordAndBytesOfEachRecord)
{
    auto const file = openRecords("#1=IFCWALL('a',$);\n#2= IFCDOOR ( #1 ) ;\n#5=IFCSTRANGE(1.);\n");
    ASSERT_TRUE(file);
    EXPECT_THAT(idsOf(*file), ElementsAre(1, 2, 5));
    EXPECT_EQ(file->classOf(0), 1);
    EXPECT_EQ(file->classOf(1), 2);
    EXPECT_EQ(file->classOf(2), StepKeywordTable::unknown);
    EXPECT_EQ(file->keywordOf(2), "IFCSTRANGE");
    EXPECT_EQ(file->bytesOf(0), "#1=IFCWALL('a',$);");
    EXPECT_EQ(file->bytesOf(1), "#2= IFCDOOR ( #1 ) ;");
    EXPECT_EQ(file->argumentsOf(1), " #1 ) ;");
    EXPECT_EQ(file->lineOfRecord(2), 10U);
    EXPECT_THAT(test::messageTexts(*file), IsEmpty());
}

TEST(StepFile, ReadsLowerCaseKeywords)
{
    auto const file = openRecords("#1=ifcwall();\n#2=IfcDoor();\n");
    EXPECT_EQ(file->classOf(0), 1);
    EXPECT_EQ(file->classOf(1), 2);
    EXPECT_EQ(file->keywordOf(0), "ifcwall");
}

TEST(StepFile, KeepsRecordsOfSeveralKeywordsAsUnknown)
{
    auto const file = openRecords("#1=(IFCA('x;')IFCWALL(#2));\n#2=IFCWALL();\n");
    ASSERT_EQ(file->recordCount(), 2U);
    EXPECT_EQ(file->classOf(0), StepKeywordTable::unknown);
    EXPECT_EQ(file->keywordOf(0), "");
    EXPECT_EQ(file->argumentsOf(0), "");
    EXPECT_TRUE(file->extentOf(0).isComplex);
    EXPECT_EQ(file->bytesOf(0), "#1=(IFCA('x;')IFCWALL(#2));");
    EXPECT_THAT(test::messageTexts(*file), IsEmpty());
}

TEST(StepFile, PassesBlanksTabsAndCommentsAnywhere)
{
    auto const file = openRecords(
        "/*#9=IFCWALL();*/ # 1 /*;*/ = /*'*/\tIFCWALL /* ( */ \n ( 'a' /* ); */ , $ ) /* \n#8=IFCDOOR(); */ ;"
        "  #2=IFCDOOR();#3=IFCDOOR();\n\n\n/* end */");
    EXPECT_THAT(idsOf(*file), ElementsAre(1, 2, 3));
    EXPECT_EQ(file->classOf(0), 1);
    EXPECT_THAT(test::messageTexts(*file), IsEmpty());
}

TEST(StepFile, SeesNoRecordEndInsideTexts)
{
    auto const file = openRecords("#1=IFCWALL('a;b','it''s;','/*',';');\n#2=IFCWALL('*/');\n");
    EXPECT_THAT(idsOf(*file), ElementsAre(1, 2));
    EXPECT_EQ(file->bytesOf(0), "#1=IFCWALL('a;b','it''s;','/*',';');");
}

TEST(StepFile, TakesTheApostropheOfAnEscapeAsPartOfTheText)
{
    auto const file =
        openRecords("#1=IFCWALL('\\S\\';');\n#2=IFCWALL('\\S\\'');\n#3=IFCWALL('\\\\S\\');\n#4=IFCWALL();\n");
    EXPECT_THAT(idsOf(*file), ElementsAre(1, 2, 3, 4));
    EXPECT_EQ(file->bytesOf(0), "#1=IFCWALL('\\S\\';');");
    EXPECT_THAT(test::messageTexts(*file), IsEmpty());
}

TEST(StepFile, TakesTheApostropheBehindAnEscapeAsTheEndWhereThereIsNoOther)
{
    auto const file = openRecords("#1=IFCWALL('C:\\S\\',$,'b');\n#2=IFCWALL();\n");
    EXPECT_THAT(idsOf(*file), ElementsAre(1, 2));
    EXPECT_EQ(file->bytesOf(0), "#1=IFCWALL('C:\\S\\',$,'b');");
    EXPECT_THAT(test::messageTexts(*file), IsEmpty());
    std::vector<StepValue> values;
    EXPECT_EQ(StepRecordParser(*file).argumentSpan(0, 2), "'b'");
}

TEST(StepFile, ReadsEveryKindOfLineEnd)
{
    std::string const unixText = test::fileText("#1=IFCWALL();\n#2=IFCWALL(\n'x');\n#3=IFCSTRANGE(;\n");
    for (std::string_view const lineEnd : {"\n", "\r\n", "\r"}) {
        std::string text;
        for (char const c : unixText)
            text += c == '\n' ? std::string(lineEnd) : std::string(1, c);
        auto const file = openText(text);
        ASSERT_TRUE(file);
        EXPECT_THAT(idsOf(*file), ElementsAre(1, 2, 3));
        EXPECT_EQ(file->lineOfRecord(2), 11U);
        EXPECT_EQ(file->messages().all()[0].line, 11U);
    }
}

TEST(StepFile, ReadsARecordOverThousandsOfLines)
{
    std::string records = "#1=IFCWALL((";
    for (int i = 0; i < 5000; ++i)
        records += "#2,\n#2,\n";
    records += "#2));\n#2=IFCDOOR();\n";
    auto const file = openRecords(records);
    EXPECT_THAT(idsOf(*file), ElementsAre(1, 2));
    EXPECT_EQ(file->lineOfRecord(1), 8U + 10001U);
    std::size_t references = 0;
    StepRecordParser(*file).forEachReference(0, 0, [&references](InstanceId) { ++references; });
    EXPECT_EQ(references, 10001U);
}

TEST(StepFile, ReadsSeveralDataSections)
{
    auto const file = openText(
        std::string(test::head) +
        "#1=IFCWALL();\nENDSEC;\nDATA('two',('IFC4'));\n#2=IFCDOOR();\nENDSEC;\nEND-ISO-10303-21;\n");
    EXPECT_THAT(idsOf(*file), ElementsAre(1, 2));
    EXPECT_THAT(test::messageTexts(*file), IsEmpty());
}

TEST(StepFile, PassesSectionsOfOtherKinds)
{
    auto const file = openText(
        "ISO-10303-21;HEADER;FILE_SCHEMA(('IFC4'));ENDSEC;ANCHOR;<a>=#1;ENDSEC;REFERENCE;#7=<b>;ENDSEC;"
        "DATA;#1=IFCWALL();ENDSEC;SIGNATURE;abc\nENDSEC;END-ISO-10303-21;");
    ASSERT_TRUE(file);
    EXPECT_THAT(idsOf(*file), ElementsAre(1));
    EXPECT_THAT(test::messageTexts(*file), IsEmpty());
}

TEST(StepFile, IgnoresWhatStandsBehindItsEnd)
{
    auto const file = openText(test::fileText("#1=IFCWALL();\n") + "#2=IFCWALL();\n' unclosed /* text");
    EXPECT_THAT(idsOf(*file), ElementsAre(1));
    EXPECT_THAT(test::messageTexts(*file), IsEmpty());
}

TEST(StepFile, FindsRecordsByIdInAnyOrder)
{
    auto const file = openRecords(
        "#30=IFCWALL();\n#4294967299=IFCWALL();\n#18446744073709551615=IFCDOOR();\n#2=IFCDOOR();\n");
    EXPECT_THAT(idsOf(*file), ElementsAre(30, 4294967299U, 18446744073709551615U, 2));
    for (RecordIndex i = 0; i < 4; ++i)
        EXPECT_EQ(file->indexOf(file->idOf(i)), i);
    EXPECT_EQ(file->indexOf(3), StepFile::noRecord);
    EXPECT_EQ(file->highestId(), 18446744073709551615U);
    EXPECT_THAT(test::messageTexts(*file), IsEmpty());
}

TEST(StepFile, FindsManyRecordsByTheirIdsAtOnce)
{
    // Ids in ascending order, in another order without and with gaps between them.
    for (auto const& [factor, isBackwards] :
         {std::pair<InstanceId, bool>(3, false), {1, true}, {1000, true}}) {
        constexpr InstanceId count = 500;
        std::string records;
        for (InstanceId i = 1; i <= count; ++i) {
            InstanceId const number = isBackwards ? count + 1 - i : i;
            records += "#" + std::to_string(number * factor) + "=IFCWALL();\n";
        }
        auto const file = openRecords(records);
        std::vector<InstanceId> ids = {0, ~InstanceId{0}};
        for (InstanceId i = 0; i <= count * factor + 1; i += 1 + i % 5)
            ids.push_back(i * 7919 % (count * factor + 2));
        std::vector<RecordIndex> expected;
        for (InstanceId const id : ids)
            expected.push_back(file->indexOf(id));
        EXPECT_THAT(file->indicesOf(ids), ElementsAreArray(expected));
        EXPECT_EQ(expected[1], StepFile::noRecord);
        EXPECT_EQ(file->indicesOf({}), std::vector<RecordIndex>());
    }
    EXPECT_THAT(openRecords("")->indicesOf(std::vector<InstanceId>{1}), ElementsAre(StepFile::noRecord));
}

TEST(StepFile, MayBeReadBySeveralThreads)
{
    constexpr RecordIndex count = 20000;
    std::string records;
    for (RecordIndex i = 1; i <= count; ++i)
        records += "#" + std::to_string(i) + "=IFCWALL('a;b',(#" + std::to_string(count + 1 - i) + "));\n";
    auto const file = openRecords(records);
    file->prepareReading();
    auto const sumOfTargets = [&file] {
        std::uint64_t sum = 0;
        for (RecordIndex i = 0; i < count; ++i)
            StepRecordParser(*file).forEachReference(
                i, 1, [&](InstanceId id) { sum += std::uint64_t{file->indexOf(id)} * i; });
        return sum;
    };
    auto other = std::async(std::launch::async, sumOfTargets);
    std::uint64_t const sum = sumOfTargets();
    EXPECT_EQ(other.get(), sum);
    EXPECT_GT(sum, 0U);
}

TEST(StepFile, HintsOfWhatComesNextMayNameWhatIsNotThere)
{
    auto const file = openRecords("#1=IFCWALL();\n#2=IFCWALL();\n");
    std::vector<RecordIndex> const records(20, 1);
    std::vector<RecordIndex> const others(20, StepFile::noRecord);
    for (std::size_t i = 0; i < 25; ++i) {
        file->expectNext(records, i);
        file->expectNext(others, i);
    }
    EXPECT_EQ(file->recordCount(), 2U);
}

TEST(StepFile, ListsAndCountsRecordsByClass)
{
    auto const file = openRecords("#1=IFCWALL();\n#2=IFCDOOR();\n#3=IFCWALL();\n#4=IFCOTHER();\n");
    EXPECT_THAT(file->recordsOf(1), ElementsAre(0, 2));
    EXPECT_THAT(file->recordsOf(2), ElementsAre(1));
    EXPECT_THAT(file->recordsOf(3), IsEmpty());
    EXPECT_THAT(file->recordsOf(60000), IsEmpty());
    EXPECT_THAT(file->classCounts(), ElementsAre(1, 2, 1, 0, 0));
}

TEST(StepFile, CanBeIndexedAgainWithAnotherTable)
{
    auto const file = openRecords("#1=IFCWALL();\n#1=IFCDOOR();\n");
    StepKeywordTable other;
    other.add("IFCDOOR", 9);
    EXPECT_TRUE(file->index(other));
    EXPECT_EQ(file->recordCount(), 2U);
    EXPECT_THAT(file->recordsOf(9), ElementsAre(1));
    EXPECT_EQ(file->messages().all().size(), 1U);
}

TEST(StepFile, IndexingCanBeCancelled)
{
    std::string records;
    for (int i = 1; i < 40000; ++i)
        records += "#" + std::to_string(i) + "=IFCWALL();\n";
    StepOpenResult const result = StepFile::fromText(test::fileText(records));
    int calls = 0;
    EXPECT_FALSE(result.file->index(test::keywords(), [&calls](std::uint64_t done, std::uint64_t total) {
        EXPECT_LT(done, total);
        return ++calls < 2;
    }));
    EXPECT_EQ(calls, 2);
    EXPECT_TRUE(result.file->index(test::keywords()));
    EXPECT_EQ(result.file->recordCount(), 39999U);
    for (RecordIndex i = 0; i < 39999; i += 1111)
        EXPECT_EQ(result.file->indexOf(i + 1), i);
}

TEST(StepFile, FreeIdLiesAboveReferencesThatLeadNowhere)
{
    EXPECT_EQ(openRecords("#1=IFCWALL(#7);\n")->firstFreeId(), 8U);
    EXPECT_EQ(openRecords("#9=IFCWALL(#7);\n")->firstFreeId(), 10U);
    EXPECT_EQ(openRecords("#1=(IFCA(#3)IFCB(#4));\n")->firstFreeId(), 5U);
    EXPECT_EQ(openRecords("")->firstFreeId(), 1U);
}

TEST(StepFile, FreeIdIgnoresTextsAndComments)
{
    EXPECT_EQ(openRecords("#1=IFCWALL('#70',/*#80*/#5);\n/* #99 */\n#2=IFCWALL(\"#71\");\n")->firstFreeId(),
              6U);
}

} // namespace
} // namespace qev::step
