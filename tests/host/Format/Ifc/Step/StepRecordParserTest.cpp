#include "Format/Ifc/Step/StepRecordParser.h"

#include "StepTestFiles.h"

#include <gmock/gmock.h>

#include <limits>

namespace qev::step {
namespace {

using test::openRecords;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

std::vector<StepValue> valuesOf(std::string_view arguments)
{
    auto const file = openRecords("#1=IFCWALL(" + std::string(arguments) + ");\n");
    std::vector<StepValue> values;
    StepMessages messages;
    EXPECT_TRUE(StepRecordParser(*file).parse(0, values, &messages));
    for (StepMessage const& message : messages.all())
        ADD_FAILURE() << message.toString();
    return values;
}

/// The message that reading these arguments gives, and the values all the same.
std::string problemOf(std::string_view arguments, std::vector<StepValue>* values = nullptr)
{
    auto const file = openRecords("#1=IFCWALL(" + std::string(arguments) + ");\n");
    std::vector<StepValue> parsed;
    StepMessages messages;
    EXPECT_FALSE(StepRecordParser(*file).parse(0, parsed, &messages)) << arguments;
    if (values != nullptr)
        *values = parsed;
    return messages.empty() ? std::string() : messages.all()[0].toString();
}

TEST(StepRecordParser, ReadsEveryKindOfValue)
{
    EXPECT_THAT(
        valuesOf("$,*,7,-7,+7,2.5,1.E-05,.T.,.notDefined.,'text',\"0F3\",#12,IFCLABEL('x'),(1,(2.,$),())"),
        ElementsAre(
            StepValue(), StepValue::derived(), StepValue::integer(7), StepValue::integer(-7),
            StepValue::integer(7), StepValue::real(2.5), StepValue::real(1e-5), StepValue::enumeration("T"),
            StepValue::enumeration("NOTDEFINED"), StepValue::text("text"), StepValue::binary("0F3"),
            StepValue::reference(12), StepValue::typed("IFCLABEL", StepValue::text("x")),
            StepValue::list({StepValue::integer(1), StepValue::list({StepValue::real(2.0), StepValue()}),
                             StepValue::list({})})));
}

TEST(StepRecordParser, ReadsLongLists)
{
    std::string items;
    std::vector<StepValue> expected;
    for (std::int64_t i = 0; i < 200; ++i) {
        items += std::to_string(i) + ",('a,b','c'),'d,e',";
        expected.push_back(StepValue::integer(i));
        expected.push_back(StepValue::list({StepValue::text("a,b"), StepValue::text("c")}));
        expected.push_back(StepValue::text("d,e"));
    }
    expected.push_back(StepValue());
    EXPECT_THAT(valuesOf("(" + items + "$),7"),
                ElementsAre(StepValue::list(std::move(expected)), StepValue::integer(7)));
}

TEST(StepRecordParser, ReadsNoArguments) { EXPECT_THAT(valuesOf(" /* none */ "), IsEmpty()); }

TEST(StepRecordParser, ReadsNumbersInEverySpelling)
{
    EXPECT_THAT(valuesOf("1.,-1.,.5,1.5e3,1.E+2,1E2,0.,-0."),
                ElementsAre(StepValue::real(1.0), StepValue::real(-1.0), StepValue::real(0.5),
                            StepValue::real(1500.0), StepValue::real(100.0), StepValue::real(100.0),
                            StepValue::real(0.0), StepValue::real(-0.0)));
}

TEST(StepRecordParser, ReadsIntegersUpTo64BitsAndLargerOnesAsReal)
{
    EXPECT_THAT(valuesOf("9223372036854775807,-9223372036854775808,9223372036854775808"),
                ElementsAre(StepValue::integer(std::numeric_limits<std::int64_t>::max()),
                            StepValue::integer(std::numeric_limits<std::int64_t>::min()),
                            StepValue::real(9223372036854775808.0)));
}

TEST(StepRecordParser, ReadsNumbersTooSmallForADoubleAsZeroAndRefusesThoseTooLarge)
{
    EXPECT_THAT(valuesOf("1.E-999"), ElementsAre(StepValue::real(0.0)));
    EXPECT_THAT(problemOf("1.E999"), HasSubstr("Expected a number"));
}

TEST(StepRecordParser, ReadsIdsAbove32Bits)
{
    EXPECT_THAT(valuesOf("#18446744073709551615"), ElementsAre(StepValue::reference(18446744073709551615U)));
    EXPECT_THAT(problemOf("#18446744073709551616"), HasSubstr("Expected a reference"));
}

TEST(StepRecordParser, ReadsLowerCaseTypesAndBlanksEverywhere)
{
    EXPECT_THAT(valuesOf(" ifclabel ( 'x' ) \n,\t( #1 , #2 )\r\n, /* c */ $ "),
                ElementsAre(StepValue::typed("IFCLABEL", StepValue::text("x")),
                            StepValue::list({StepValue::reference(1), StepValue::reference(2)}),
                            StepValue()));
}

TEST(StepRecordParser, DecodesTexts)
{
    EXPECT_THAT(
        valuesOf("'it''s \\X2\\00E4\\X0\\','\\S\\'','a;b'"),
        ElementsAre(StepValue::text("it's \u00e4"), StepValue::text("\u00a7"), StepValue::text("a;b")));
}

TEST(StepRecordParser, LosesOnlyTheBadValue)
{
    std::vector<StepValue> values;
    EXPECT_EQ(problemOf("1,?x(2,'a,b)'),3", &values),
              "error in line 8, record #1: Expected a value, found \"?x(2,'a,b)'),3);\".");
    EXPECT_THAT(values, ElementsAre(StepValue::integer(1), StepValue(), StepValue::integer(3)));
}

TEST(StepRecordParser, NamesWhatItExpected)
{
    EXPECT_THAT(problemOf("1 2"), HasSubstr("Expected \",\" or \")\", found \"2);\""));
    EXPECT_THAT(problemOf(".T"), HasSubstr("Expected an enumeration item between dots"));
    EXPECT_THAT(problemOf("\"0G\""), HasSubstr("Expected hexadecimal digits"));
    EXPECT_THAT(problemOf("-"), HasSubstr("Expected a number"));
    EXPECT_THAT(problemOf("1.2.3"), HasSubstr("Expected a number"));
    EXPECT_THAT(problemOf("#x"), HasSubstr("Expected a reference"));
    EXPECT_THAT(problemOf("1,,2"), HasSubstr("Expected a value"));
    EXPECT_THAT(problemOf("IFCLABEL"), HasSubstr("Expected a value"));
    EXPECT_THAT(problemOf("IFCLABEL()"), HasSubstr("Expected a value"));
    EXPECT_THAT(problemOf("IFCLABEL('a','b')"), HasSubstr("Expected \")\""));
    EXPECT_THAT(problemOf("1)"), HasSubstr("Expected \";\""));
    EXPECT_THAT(problemOf("(1"), HasSubstr("Expected \",\" or \")\""));
    EXPECT_THAT(problemOf("'\\X2\\00E'"), HasSubstr("Expected a text without broken escapes"));
}

TEST(StepRecordParser, RefusesAbsurdNesting)
{
    std::string const deep = std::string(100000, '(') + std::string(100000, ')');
    EXPECT_THAT(problemOf(deep), HasSubstr("no more than 64 lists"));
    std::string typed;
    for (int i = 0; i < 1000; ++i)
        typed += "IFCA(";
    EXPECT_THAT(problemOf(typed), HasSubstr("no more than 64 lists"));
    EXPECT_EQ(valuesOf(std::string(50, '(') + std::string(50, ')')).size(), 1U);
}

TEST(StepRecordParser, FindsTheBytesOfOneArgument)
{
    auto const file =
        openRecords("#1=IFCWALL( 'a,b' /* , */ ,(1,(2,3)), $ ,IFCLABEL(')'));\n#2=IFCWALL();\n");
    StepRecordParser const parser(*file);
    EXPECT_EQ(parser.argumentSpan(0, 0), "'a,b'");
    EXPECT_EQ(parser.argumentSpan(0, 1), "(1,(2,3))");
    EXPECT_EQ(parser.argumentSpan(0, 2), "$");
    EXPECT_EQ(parser.argumentSpan(0, 3), "IFCLABEL(')')");
    EXPECT_EQ(parser.argumentSpan(0, 4), std::nullopt);
    EXPECT_EQ(parser.argumentSpan(1, 0), std::nullopt);
    EXPECT_EQ(parser.argumentSpans(0)->size(), 4U);
    EXPECT_TRUE(parser.argumentSpans(1)->empty());
}

TEST(StepRecordParser, HasNoArgumentSpansForABrokenRecord)
{
    auto const file = openRecords(
        "#1=IFCWALL('a','b';\n#2=IFCWALL(1,,2);\n#3=IFCWALL(1) 2;\n#4=(IFCA(1));\n#5=IFCWALL('a)\n");
    for (RecordIndex i = 0; i < file->recordCount(); ++i)
        EXPECT_EQ(StepRecordParser(*file).argumentSpans(i), std::nullopt) << i;
}

TEST(StepRecordParser, ReadsOneArgument)
{
    auto const file = openRecords("#1=IFCWALL('a',(1,2),?);\n");
    StepRecordParser const parser(*file);
    EXPECT_EQ(parser.parseArgument(0, 0), StepValue::text("a"));
    EXPECT_EQ(parser.parseArgument(0, 1), StepValue::list({StepValue::integer(1), StepValue::integer(2)}));
    EXPECT_EQ(parser.parseArgument(0, 2), std::nullopt);
    EXPECT_EQ(parser.parseArgument(0, 3), std::nullopt);
}

TEST(StepRecordParser, WalksOverReferencesOfOneArgument)
{
    auto const file =
        openRecords("#1=IFCWALL('#9',#2,((#3,/*#8*/ #4),IFCX(#5)),#6);\n#2=IFCWALL(\n(\n#7\n)\n);\n");
    StepRecordParser const parser(*file);
    auto const references = [&parser](RecordIndex record, std::size_t slot) {
        std::vector<InstanceId> ids;
        parser.forEachReference(record, slot, [&ids](InstanceId id) { ids.push_back(id); });
        return ids;
    };
    EXPECT_THAT(references(0, 0), IsEmpty());
    EXPECT_THAT(references(0, 1), ElementsAre(2));
    EXPECT_THAT(references(0, 2), ElementsAre(3, 4, 5));
    EXPECT_THAT(references(0, 3), ElementsAre(6));
    EXPECT_THAT(references(0, 4), IsEmpty());
    EXPECT_THAT(references(1, 0), ElementsAre(7));
}

TEST(StepRecordParser, WalksOverAllReferencesOfARecord)
{
    auto const file = openRecords("#1=IFCWALL('#9',#2,(#3));\n#4=(IFCA(#5)IFCB(#6));\n");
    std::vector<InstanceId> ids;
    for (RecordIndex i = 0; i < 2; ++i)
        StepRecordParser(*file).forEachReference(i, [&ids](InstanceId id) { ids.push_back(id); });
    EXPECT_THAT(ids, ElementsAre(2, 3, 5, 6));
}

TEST(StepRecordParser, ReadsValuesThatStandAlone)
{
    std::vector<StepValue> values;
    EXPECT_TRUE(parseArguments("1,'a')", values));
    EXPECT_THAT(values, ElementsAre(StepValue::integer(1), StepValue::text("a")));
    EXPECT_FALSE(parseArguments("1,'a'", values));
    EXPECT_FALSE(parseArguments("1)x", values));
}

} // namespace
} // namespace qev::step
