#include "ReportRecorder.h"

#include <gtest/gtest.h>
#include <QApplication>
#include <QSettings>
#include <QStyleFactory>
#include <QTemporaryDir>

int main(int argc, char** argv)
{
    // No display is needed, and none is touched where there is one.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // What a program keeps for its user stays out of the way of the tests, and the other way round.
    QTemporaryDir const settings;
    QSettings::setDefaultFormat(QSettings::IniFormat);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, settings.path());
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication const application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    qev::test::failTestsOnUnexpectedReports();
    return RUN_ALL_TESTS();
}
