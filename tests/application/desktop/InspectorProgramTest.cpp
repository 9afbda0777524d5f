#include "TemporaryFolder.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

namespace qev::test {
namespace {

/// Runs `qev-inspector` as a shell does.
class InspectorProgramTest : public testing::Test
{
protected:
    [[nodiscard]] int run(std::string const& arguments) const
    {
        auto const command = quoted(QEV_INSPECTOR_PROGRAM) + " " + arguments + " >" +
                             quoted((folder.path() / "output.txt").string()) + " 2>&1";
        int const status = std::system(command.c_str());
#ifdef _WIN32
        return status;
#else
        return status >> 8;
#endif
    }
    static std::string quoted(std::string const& text) { return '"' + text + '"'; }
    [[nodiscard]] std::string picture() const
    {
        return " --screenshot " + quoted((folder.path() / "window.png").string());
    }

    TemporaryFolder folder;
    std::string sample = quoted(OWN_SAMPLES_DIRECTORY "/office-IFC4X3.ifc");
};

TEST_F(InspectorProgramTest, EndsWithTheCodesOfTheCommandLine)
{
    EXPECT_EQ(run(sample + picture()), 0);
    EXPECT_EQ(run("--help"), 0);
    EXPECT_EQ(run("--no-such-option"), 2);
    EXPECT_EQ(run("--units cubits"), 2);
    EXPECT_EQ(run("missing.ifc" + picture()), 3);
    EXPECT_EQ(run(sample + " --object 0000000000000000000000" + picture()), 4);
    EXPECT_EQ(run(sample + " --screenshot " + quoted((folder.path() / "missing/window.png").string())), 6);
}

} // namespace
} // namespace qev::test
