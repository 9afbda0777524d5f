#include "ReportRecorder.h"

#include <gtest/gtest.h>
#include <QApplication>
#include <QStandardPaths>
#include <QStyleFactory>

int main(int argc, char** argv)
{
    // No display is needed, and none is touched where there is one.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QStandardPaths::setTestModeEnabled(true);
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication const application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    qev::test::failTestsOnUnexpectedReports();
    return RUN_ALL_TESTS();
}
