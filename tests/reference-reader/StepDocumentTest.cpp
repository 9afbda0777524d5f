#include "reference-reader/StepDocument.h"

#include "reference-reader/StepNumber.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace {

using namespace qev::test::reference;
using testing::IsEmpty;
using testing::SizeIs;

StepDocument read(std::string const& records)
{
    return StepDocument::fromText(
        "ISO-10303-21;\nHEADER;\nFILE_NAME('n','t',(''),(''),'p','Maker''s tool','');\n"
        "FILE_SCHEMA(('IFC4'));\nENDSEC;\nDATA;\n" +
        records + "\nENDSEC;\nEND-ISO-10303-21;\n");
}

TEST(StepDocument, HeaderNamesSchemaAndOrigin)
{
    StepDocument const document = read("");
    EXPECT_EQ(document.schemaName(), "IFC4");
    EXPECT_EQ(document.originatingSystem(), "Maker's tool");
    EXPECT_THAT(document.messages(), IsEmpty());
}

TEST(StepDocument, EachKindOfArgumentIsTold)
{
    StepDocument const document =
        read("#7=IFCX($,*,-12,1.5E-3,'t',.ITEM.,\"0F\",#3,(1,(2)),IFCLABEL('v'),());");
    ASSERT_THAT(document.records(), SizeIs(1));
    StepRecord const& record = document.records()[0];
    EXPECT_EQ(record.id, 7u);
    EXPECT_EQ(record.keyword, "IFCX");
    EXPECT_EQ(record.line, 7u);
    ASSERT_THAT(record.arguments, SizeIs(11));
    EXPECT_EQ(record.argument(0).kind, StepArgument::Kind::Unset);
    EXPECT_EQ(record.argument(1).kind, StepArgument::Kind::Derived);
    EXPECT_EQ(record.argument(2).kind, StepArgument::Kind::Integer);
    EXPECT_EQ(numberOf(record.argument(2)), -12.0);
    EXPECT_EQ(record.argument(3).kind, StepArgument::Kind::Real);
    EXPECT_EQ(record.argument(3).text, "1.5E-3");
    EXPECT_EQ(numberOf(record.argument(3)), 0.0015);
    EXPECT_EQ(record.argument(4).text, "t");
    EXPECT_EQ(record.argument(5).text, "ITEM");
    EXPECT_EQ(record.argument(6).text, "0F");
    EXPECT_EQ(record.argument(7).reference, 3u);
    EXPECT_EQ(record.argument(8).items[1].items[0].text, "2");
    EXPECT_EQ(record.argument(9).text, "IFCLABEL");
    EXPECT_EQ(record.argument(9).items[0].text, "v");
    EXPECT_EQ(record.argument(10).kind, StepArgument::Kind::List);
    EXPECT_EQ(record.argument(11).kind, StepArgument::Kind::Unset) << "behind the last";
}

TEST(StepDocument, CommentsAndBlanksStandAnywhere)
{
    StepDocument const document =
        read("#1 /* #9=IFCX(); */ =\r\n ifcwall (/*'*/ 1. ,\t.t.\n) ;#2=IFCY('a;b');");
    ASSERT_THAT(document.records(), SizeIs(2));
    EXPECT_EQ(document.records()[0].keyword, "IFCWALL");
    EXPECT_EQ(numberOf(document.records()[0].argument(0)), 1.0);
    EXPECT_EQ(document.records()[0].argument(1).text, "T");
    EXPECT_EQ(document.records()[1].argument(0).text, "a;b");
    EXPECT_EQ(document.records()[1].line, 9u);
}

TEST(StepDocument, SeveralSectionsAndAByteOrderMarkAreRead)
{
    StepDocument const document = StepDocument::fromText(
        "\xEF\xBB\xBFISO-10303-21;HEADER;FILE_SCHEMA(('IFC4'));ENDSEC;DATA;#1=A();ENDSEC;"
        "DATA('two',('IFC4'));#18446744073=B();ENDSEC;END-ISO-10303-21;#3=C();");
    EXPECT_THAT(document.records(), SizeIs(2));
    EXPECT_NE(document.find(18446744073u), nullptr);
    EXPECT_EQ(document.find(3), nullptr);
    EXPECT_THAT(document.messages(), IsEmpty());
}

TEST(StepDocument, ComposedRecordKeepsItsParts)
{
    StepDocument const document = read("#1=(A(1)B('x',2));");
    ASSERT_THAT(document.records(), SizeIs(1));
    EXPECT_EQ(document.records()[0].keyword, "");
    ASSERT_THAT(document.records()[0].arguments, SizeIs(2));
    EXPECT_EQ(document.records()[0].arguments[1].text, "B");
    EXPECT_THAT(document.records()[0].arguments[1].items, SizeIs(2));
}

TEST(StepDocument, ShiftedApostropheDoesNotEndAText)
{
    StepDocument const document = read("#1=A('\\S\\'x');");
    ASSERT_THAT(document.records(), SizeIs(1));
    EXPECT_EQ(document.records()[0].argument(0).text, "\u00a7x");
}

TEST(StepDocument, BadRecordIsLeftOutAndTheNextIsRead)
{
    for (std::string const bad :
         {"#1=A('open,$);", "#1=A(1,2;", "#1=A(1 2);", "#1=(A(1);", "#1=A(%);", "#x=A();"}) {
        StepDocument const document = read(bad + "\n#2=B();");
        ASSERT_THAT(document.messages(), SizeIs(1)) << bad;
        EXPECT_EQ(document.messages()[0].line, 7u) << bad;
        ASSERT_THAT(document.records(), SizeIs(1)) << bad;
        EXPECT_EQ(document.records()[0].id, 2u) << bad;
    }
}

TEST(StepDocument, TruncatedFileGivesWhatWasWhole)
{
    StepDocument const document = StepDocument::fromText("ISO-10303-21;\nDATA;\n#1=A();\n#2=B('x");
    EXPECT_THAT(document.records(), SizeIs(1));
    EXPECT_THAT(document.messages(), SizeIs(1));
}

TEST(StepDocument, FirstOfTwoRecordsWithOneNumberCounts)
{
    StepDocument const document = read("#1=A();\n#1=B();");
    EXPECT_EQ(document.find(1)->keyword, "A");
    ASSERT_THAT(document.messages(), SizeIs(1));
    EXPECT_EQ(document.messages()[0].line, 8u);
}

TEST(StepDocument, EndlessNestingIsRefused)
{
    StepDocument const document = read("#1=A(" + std::string(100000, '(') + ");\n#2=B();");
    EXPECT_THAT(document.messages(), SizeIs(1));
    EXPECT_THAT(document.records(), SizeIs(1));
}

} // namespace
