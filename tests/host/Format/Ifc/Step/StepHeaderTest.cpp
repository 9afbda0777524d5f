#include "StepTestFiles.h"

#include <gmock/gmock.h>

namespace qev::step {
namespace {

using test::openText;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

std::string refusalOf(std::string_view text)
{
    StepOpenResult const result = StepFile::fromText(text);
    EXPECT_FALSE(result.file) << text;
    if (result.messages.empty())
        return {};
    EXPECT_EQ(result.messages.all().back().severity, StepMessage::Severity::Refused);
    return result.messages.all().back().text;
}

TEST(StepHeader, TellsNamesAndSchema)
{
    auto const file = openText("ISO-10303-21;\nHEADER;\n"
                               "FILE_DESCRIPTION(('ViewDefinition [X]','Option'),'2;1');\n"
                               "FILE_NAME('name','2020-01-01',('me'),('us'),'pre','origin','auth');\n"
                               "FILE_SCHEMA(('IFC4'));\nENDSEC;\nDATA;\nENDSEC;\nEND-ISO-10303-21;\n");
    ASSERT_TRUE(file);
    EXPECT_THAT(file->header().descriptions(), ElementsAre("ViewDefinition [X]", "Option"));
    EXPECT_EQ(file->header().fileName(), "name");
    EXPECT_EQ(file->header().timeStamp(), "2020-01-01");
    EXPECT_EQ(file->header().preprocessor(), "pre");
    EXPECT_EQ(file->header().originatingSystem(), "origin");
    EXPECT_THAT(file->header().schemaNames(), ElementsAre("IFC4"));
    EXPECT_THAT(test::messageTexts(*file), IsEmpty());
}

TEST(StepHeader, IsReadBeforeTheRecordsAreIndexed)
{
    StepOpenResult const result = StepFile::fromText(test::fileText("#1=IFCWALL();\n"));
    ASSERT_TRUE(result.file);
    EXPECT_THAT(result.file->header().schemaNames(), ElementsAre("IFC4"));
    EXPECT_EQ(result.file->recordCount(), 0U);
}

TEST(StepHeader, MaySpreadOverLinesWithCommentsAndLowerCase)
{
    auto const file = openText(
        "/* c */ iso-10303-21 ;\r\nheader;\r\nfile_schema\t(\r\n( /* HEADER; */\r\n'IFC4'\r\n)\r\n)\r\n;\r\n"
        "endsec; data ;\r\n#1=IFCWALL();\r\nendsec;\r\nend-iso-10303-21;");
    ASSERT_TRUE(file);
    EXPECT_THAT(file->header().schemaNames(), ElementsAre("IFC4"));
    EXPECT_EQ(file->recordCount(), 1U);
    EXPECT_THAT(test::messageTexts(*file), IsEmpty());
}

TEST(StepHeader, DropsTheObjectIdentifierOfASchema)
{
    auto const file = openText(
        "ISO-10303-21;HEADER;FILE_SCHEMA(('AP { 1 0 10303 }'));ENDSEC;DATA;ENDSEC;END-ISO-10303-21;");
    ASSERT_TRUE(file);
    EXPECT_THAT(file->header().schemaNames(), ElementsAre("AP"));
}

TEST(StepHeader, MayBeginWithAByteOrderMark)
{
    auto const file = openText("\xef\xbb\xbf" + test::fileText("#1=IFCWALL();\n"));
    ASSERT_TRUE(file);
    EXPECT_EQ(file->recordCount(), 1U);
    EXPECT_THAT(test::messageTexts(*file), IsEmpty());
}

TEST(StepHeader, WithABrokenRecordIsReadAndReported)
{
    auto const file =
        openText("ISO-10303-21;\nHEADER;\nFILE_NAME('n',?,'x');\nFILE_SCHEMA(('IFC4'));\nENDSEC;\nDATA;\n"
                 "ENDSEC;\nEND-ISO-10303-21;");
    ASSERT_TRUE(file);
    EXPECT_THAT(file->header().schemaNames(), ElementsAre("IFC4"));
    EXPECT_THAT(test::messageTexts(*file),
                ElementsAre("error in line 3: Expected a value in FILE_NAME, found \"?,'x');\"."));
}

TEST(StepHeader, WithoutEndIsReportedAndTheDataIsRead)
{
    auto const file = openText(
        "ISO-10303-21;\nHEADER;\nFILE_SCHEMA(('IFC4'));\nDATA;\n#1=IFCWALL();\nENDSEC;\nEND-ISO-10303-21;");
    ASSERT_TRUE(file);
    EXPECT_EQ(file->recordCount(), 1U);
    EXPECT_THAT(test::messageTexts(*file), ElementsAre(HasSubstr("line 4: Expected \"ENDSEC;\"")));
}

TEST(StepHeader, WithoutFirstLineIsReportedAndTheDataIsRead)
{
    auto const file = openText(
        "HEADER;\nFILE_SCHEMA(('IFC4'));\nENDSEC;\nDATA;\n#1=IFCWALL();\nENDSEC;\nEND-ISO-10303-21;");
    ASSERT_TRUE(file);
    EXPECT_EQ(file->recordCount(), 1U);
    EXPECT_EQ(file->messages().all().size(), 1U);
}

TEST(StepHeader, RefusesWhatIsNoStepFile)
{
    EXPECT_THAT(refusalOf(""), HasSubstr("empty file"));
    EXPECT_THAT(
        refusalOf("hello world"),
        HasSubstr("Expected \"ISO-10303-21;\" at the beginning of a STEP file, found \"hello world\"."));
    EXPECT_THAT(refusalOf("<?xml version='1.0'?><ifc/>"), HasSubstr("found \"<?xml"));
    EXPECT_THAT(refusalOf("PK\x03\x04 zipped"), HasSubstr("ZIP archive"));
    EXPECT_THAT(refusalOf(std::string(1000, '\0')), HasSubstr("ISO-10303-21"));
    EXPECT_THAT(refusalOf(std::string(1000, '\'')), HasSubstr("ISO-10303-21"));
}

TEST(StepHeader, RefusesUtf16WithAClearMessage)
{
    using namespace std::string_view_literals;
    EXPECT_THAT(refusalOf("\xff\xfeI\0S\0O\0"sv), HasSubstr("UTF-16"));
    EXPECT_THAT(refusalOf("\xfe\xff\0I\0S\0O"sv), HasSubstr("UTF-16"));
    EXPECT_THAT(refusalOf("I\0S\0O\0-\0"sv), HasSubstr("UTF-16"));
}

TEST(StepHeader, RefusesAFileWithoutHeaderOrDataSection)
{
    EXPECT_THAT(refusalOf("ISO-10303-21;"), HasSubstr("Expected a HEADER section"));
    EXPECT_THAT(refusalOf("ISO-10303-21;DATA;#1=IFCWALL();ENDSEC;"), HasSubstr("Expected a HEADER section"));
    EXPECT_THAT(refusalOf("ISO-10303-21;HEADER;FILE_SCHEMA(('IFC4'));ENDSEC;END-ISO-10303-21;"),
                HasSubstr("Expected a DATA section"));
    EXPECT_THAT(refusalOf("ISO-10303-21;HEADER;FILE_SCHEMA(('IFC4'"), HasSubstr("Expected a DATA section"));
}

TEST(StepHeader, OfAMissingFileIsRefusedWithItsName)
{
    StepOpenResult const result = StepFile::open("no-such-folder/no-such-file.ifc");
    EXPECT_FALSE(result.file);
    ASSERT_EQ(result.messages.all().size(), 1U);
    EXPECT_THAT(result.messages.all()[0].text, HasSubstr("no-such-file.ifc"));
}

} // namespace
} // namespace qev::step
