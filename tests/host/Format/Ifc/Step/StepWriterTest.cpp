#include "Format/Ifc/Step/StepWriter.h"

#include "Format/Ifc/Step/StepRecordParser.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <limits>
#include <random>

namespace qev::step {
namespace {

TEST(StepWriter, WritesRealsWithTheirPoint)
{
    EXPECT_EQ(StepWriter::real(0.0), "0.");
    EXPECT_EQ(StepWriter::real(2.0), "2.");
    EXPECT_EQ(StepWriter::real(-2.5), "-2.5");
    EXPECT_EQ(StepWriter::real(0.1), "0.1");
    EXPECT_EQ(StepWriter::real(1e-5), "1.E-05");
    EXPECT_EQ(StepWriter::real(1e20), "1.E+20");
    EXPECT_EQ(StepWriter::real(1.5e20), "1.5E+20");
    EXPECT_EQ(StepWriter::real(1e21), "1.E+21");
    EXPECT_EQ(StepWriter::real(1.5e-300), "1.5E-300");
}

TEST(StepWriter, WritesNoTextForNumbersThatAreNotFinite)
{
    EXPECT_EQ(StepWriter::real(std::nan("")), "$");
    EXPECT_EQ(StepWriter::real(-std::numeric_limits<double>::infinity()), "$");
}

TEST(StepWriter, WritesRealsThatReadBackEqual)
{
    std::mt19937_64 random(5);
    for (int round = 0; round < 20000; ++round) {
        auto const number = std::bit_cast<double>(random());
        if (!std::isfinite(number))
            continue;
        std::vector<StepValue> values;
        ASSERT_TRUE(parseArguments(StepWriter::real(number) + ")", values));
        ASSERT_EQ(values.front().kind(), StepValue::Kind::Real);
        ASSERT_EQ(std::bit_cast<std::uint64_t>(values.front().realValue()),
                  std::bit_cast<std::uint64_t>(number));
    }
}

TEST(StepWriter, WritesWholeRecords)
{
    std::vector<StepValue> const values = {StepValue(),
                                           StepValue::derived(),
                                           StepValue::integer(-3),
                                           StepValue::real(1.0),
                                           StepValue::text("it's"),
                                           StepValue::enumeration("T"),
                                           StepValue::binary("0F"),
                                           StepValue::reference(4294967299U),
                                           StepValue::typed("IFCLABEL", StepValue::text("x")),
                                           StepValue::list({StepValue::list({}), StepValue::integer(1)})};
    EXPECT_EQ(StepWriter::record(7, "IFCWALL", values),
              "#7=IFCWALL($,*,-3,1.,'it''s',.T.,\"0F\",#4294967299,IFCLABEL('x'),((),1));");
    std::vector<StepValue> read;
    EXPECT_TRUE(parseArguments(StepWriter::arguments(values) + ")", read));
    EXPECT_EQ(read, values);
}

TEST(StepWriter, WritesNoArguments) { EXPECT_EQ(StepWriter::record(1, "IFCWALL", {}), "#1=IFCWALL();"); }

} // namespace
} // namespace qev::step
