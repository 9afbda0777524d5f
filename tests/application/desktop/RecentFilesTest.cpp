#include "RecentFiles.h"

#include <gtest/gtest.h>
#include <QSettings>

namespace qev::test {
namespace {

using application::RecentFiles;

class RecentFilesTest : public testing::Test
{
protected:
    RecentFilesTest() { QSettings().clear(); }
};

TEST_F(RecentFilesTest, NewestComesFirstAndEachOnce)
{
    for (auto const* const path : {"/a.ifc", "/b.ifc", "/a.ifc"})
        RecentFiles::add(path);
    EXPECT_EQ(RecentFiles::get(), QStringList({"/a.ifc", "/b.ifc"}));
}

TEST_F(RecentFilesTest, OldestGoesWhenThereAreTooMany)
{
    for (int number = 0; number <= RecentFiles::limit; ++number)
        RecentFiles::add("/" + QString::number(number) + ".ifc");
    EXPECT_EQ(RecentFiles::get().size(), RecentFiles::limit);
    EXPECT_EQ(RecentFiles::get().back(), "/1.ifc");
}

TEST_F(RecentFilesTest, FileThatCannotBeOpenedIsTakenOut)
{
    RecentFiles::add("/a.ifc");
    RecentFiles::remove("/a.ifc");
    EXPECT_TRUE(RecentFiles::get().isEmpty());
}

} // namespace
} // namespace qev::test
