#include "ReportRecorder.h"

#include <gtest/gtest.h>

namespace {

/// Fails each test that leaves a report of a programming error behind.
class UnexpectedReports : public testing::EmptyTestEventListener
{
    void OnTestEnd(testing::TestInfo const&) override
    {
        for (auto const& info : qev::test::takeReports())
            ADD_FAILURE() << "unexpected report: " << info.text << " (" << info.function << ", " << info.path << ':'
                          << info.line << ')';
    }
};

} // namespace

int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    qev::test::ReportRecorder::instance().install();
    testing::UnitTest::GetInstance()->listeners().Append(new UnexpectedReports);
    return RUN_ALL_TESTS();
}
