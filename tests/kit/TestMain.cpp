#include "ReportRecorder.h"

#include <gtest/gtest.h>

int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    qev::test::failTestsOnUnexpectedReports();
    return RUN_ALL_TESTS();
}
