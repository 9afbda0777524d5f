#include "StepTestFiles.h"

#include "Format/Ifc/Step/StepRecordParser.h"

#include <gmock/gmock.h>

namespace qev::step {
namespace {

using test::messageTexts;
using test::openRecords;
using test::openText;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

TEST(StepMalformed, UnclosedTextEndsBeforeTheNextRecord)
{
    auto const file = openRecords("#1=IFCLABELX('unclosed,$);\n#2=IFCWALL('after',$);\n");
    ASSERT_EQ(file->recordCount(), 2U);
    EXPECT_EQ(file->endingOf(0), StepFile::Ending::UnclosedText);
    EXPECT_EQ(file->bytesOf(0), "#1=IFCLABELX('unclosed,$);");
    EXPECT_EQ(file->bytesOf(1), "#2=IFCWALL('after',$);");
    EXPECT_THAT(
        messageTexts(*file),
        ElementsAre(
            "error in line 8, record #1: Expected \"'\" at the end of a text, found the next record."));
    std::vector<StepValue> values;
    EXPECT_FALSE(StepRecordParser(*file).parse(0, values));
}

TEST(StepMalformed, UnclosedTextInTheLastRecordDoesNotSwallowTheEnd)
{
    auto const file = openRecords("#1=IFCLABELX('unclosed,$);\n");
    EXPECT_EQ(file->bytesOf(0), "#1=IFCLABELX('unclosed,$);");
    EXPECT_EQ(file->messages().all().size(), 1U);
}

TEST(StepMalformed, MissingSemicolonEndsTheRecordBeforeTheNext)
{
    auto const file = openRecords("#1=IFCWALL((1.,2.)\n  #2 = IFCDOOR();\n#3=IFCDOOR()\n");
    ASSERT_EQ(file->recordCount(), 3U);
    EXPECT_EQ(file->bytesOf(0), "#1=IFCWALL((1.,2.)");
    EXPECT_EQ(file->endingOf(0), StepFile::Ending::MissingSemicolon);
    EXPECT_EQ(file->endingOf(2), StepFile::Ending::MissingSemicolon);
    EXPECT_THAT(messageTexts(*file), ElementsAre(HasSubstr("line 8, record #1: Expected \";\""),
                                                 HasSubstr("line 10, record #3: Expected \";\"")));
}

TEST(StepMalformed, ReferencesInNewLinesBeginNoRecord)
{
    auto const file = openRecords("#1=IFCWALL((\n#2,\n#3\n));\n");
    EXPECT_EQ(file->recordCount(), 1U);
    EXPECT_THAT(messageTexts(*file), IsEmpty());
}

TEST(StepMalformed, MissingParenthesisIsReportedWhenOpening)
{
    auto const file = openRecords("#1=IFCWALL('x';\n#2=IFCDOOR();\n");
    EXPECT_EQ(file->recordCount(), 2U);
    EXPECT_THAT(messageTexts(*file), ElementsAre(HasSubstr("line 8, record #1: Expected \")\"")));
}

TEST(StepMalformed, FileThatEndsInsideARecordKeepsTheRest)
{
    auto const file = openText(std::string(test::head) + "#1=IFCWALL();\n#2=IFCDOOR(#");
    ASSERT_EQ(file->recordCount(), 2U);
    EXPECT_EQ(file->endingOf(0), StepFile::Ending::Complete);
    EXPECT_EQ(file->endingOf(1), StepFile::Ending::EndOfFile);
    EXPECT_EQ(file->bytesOf(1), "#2=IFCDOOR(#");
    EXPECT_THAT(messageTexts(*file),
                ElementsAre(HasSubstr("record #2: Expected \";\""), HasSubstr("Expected \"ENDSEC;\""),
                            HasSubstr("Expected \"END-ISO-10303-21;\"")));
}

TEST(StepMalformed, MissingEndOfSectionIsAWarning)
{
    auto const file = openText(std::string(test::head) + "#1=IFCWALL();\nEND-ISO-10303-21;\n");
    EXPECT_EQ(file->recordCount(), 1U);
    ASSERT_EQ(file->messages().all().size(), 1U);
    EXPECT_EQ(file->messages().all()[0].severity, StepMessage::Severity::Warning);
    EXPECT_THAT(messageTexts(*file), ElementsAre(HasSubstr("line 9: Expected \"ENDSEC;\"")));
}

TEST(StepMalformed, FirstOfSeveralRecordsWithOneIdIsFound)
{
    auto const file = openRecords("#1=IFCWALL();\n#2=IFCWALL();\n#1=IFCDOOR();\n");
    ASSERT_EQ(file->recordCount(), 3U);
    EXPECT_EQ(file->indexOf(1), 0U);
    EXPECT_FALSE(file->isDuplicate(0));
    EXPECT_TRUE(file->isDuplicate(2));
    EXPECT_THAT(messageTexts(*file),
                ElementsAre("error in line 10, record #1: Expected an id that no other record has, "
                            "found it in line 8 before."));
}

TEST(StepMalformed, IdOfZeroIsReadWithAWarning)
{
    auto const file = openRecords("#0=IFCWALL();\n#1=IFCWALL();\n");
    EXPECT_EQ(file->recordCount(), 2U);
    EXPECT_EQ(file->indexOf(0), 0U);
    EXPECT_THAT(messageTexts(*file), ElementsAre(HasSubstr("warning in line 8, record #0")));
}

TEST(StepMalformed, BrokenHeadsAreReportedAndPassed)
{
    auto const file = openRecords(
        "#=IFCWALL();\n#99999999999999999999=IFCWALL();\n#3 IFCWALL('#4=');\n#5=;\n#6=7;\n#7=IFCWALL();\n");
    ASSERT_EQ(file->recordCount(), 1U);
    EXPECT_EQ(file->idOf(0), 7U);
    EXPECT_THAT(messageTexts(*file), ElementsAre(HasSubstr("line 8: Expected an id behind \"#\""),
                                                 HasSubstr("line 9: Expected an id of up to 64 bits"),
                                                 HasSubstr("line 10, record #3: Expected \"=\""),
                                                 HasSubstr("line 11, record #5: Expected a keyword"),
                                                 HasSubstr("line 12, record #6: Expected a keyword")));
}

TEST(StepMalformed, RecordWithoutArgumentsIsKeptAndReported)
{
    auto const file = openRecords("#1=IFCWALL;\n#2=IFCDOOR();\n");
    ASSERT_EQ(file->recordCount(), 2U);
    EXPECT_EQ(file->bytesOf(0), "#1=IFCWALL;");
    std::vector<StepValue> values;
    EXPECT_FALSE(StepRecordParser(*file).parse(0, values));
    EXPECT_THAT(file->messages().all()[0].text, HasSubstr("Expected \"(\""));
}

TEST(StepMalformed, OtherTextBetweenRecordsIsReportedAndPassed)
{
    auto const file = openRecords("#1=IFCWALL();\nhello there\n#2=IFCDOOR();\nworld;\n#3=IFCDOOR();\n");
    EXPECT_EQ(file->recordCount(), 3U);
    EXPECT_THAT(messageTexts(*file),
                ElementsAre(HasSubstr("line 9: Expected a record or \"ENDSEC;\", found \"hello there\""),
                            HasSubstr("line 11")));
}

TEST(StepMalformed, CommentThatNeverEndsIsNoComment)
{
    auto const file = openRecords("#1=IFCWALL(/* 'x');\n#2=IFCDOOR();\n");
    EXPECT_EQ(file->recordCount(), 2U);
    std::vector<StepValue> values;
    EXPECT_FALSE(StepRecordParser(*file).parse(0, values));
    EXPECT_TRUE(StepRecordParser(*file).parse(1, values));
}

TEST(StepMalformed, RecordsBeforeAnyDataSectionAreRead)
{
    auto const file = openText("ISO-10303-21;\nHEADER;\nFILE_SCHEMA(('IFC4'));\nENDSEC;\n#1=IFCWALL();\n#2="
                               "IFCWALL();\nENDSEC;\nEND-ISO-10303-21;");
    ASSERT_TRUE(file);
    EXPECT_EQ(file->recordCount(), 2U);
    EXPECT_THAT(messageTexts(*file), ElementsAre(HasSubstr("line 5: Expected \"DATA;\"")));
}

TEST(StepMalformed, MessagesAreCountedBeyondTheLimit)
{
    std::string records;
    for (int i = 0; i < 3000; ++i)
        records += "#1=IFCWALL();\n";
    auto const file = openRecords(records);
    EXPECT_EQ(file->recordCount(), 3000U);
    EXPECT_EQ(file->messages().all().size(), StepMessages::limit);
    EXPECT_EQ(file->messages().dropped(), 2999U - StepMessages::limit);
}

} // namespace
} // namespace qev::step
