#include "Classification/ClassificationPlugins.h"
#include "TemporaryFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <system_error>

namespace qev::test {
namespace {

using namespace classification;
using Names = std::vector<std::string>;

Names namesOf(ClassificationPlugins const& plugins)
{
    Names names;
    for (auto const& plugin : plugins.getPlugins())
        names.push_back(dynamic_cast<ClassificationInterface const&>(*plugin).getKey());
    return names;
}

TEST(ClassificationPlugins, OfferTheSystemsOfAFolderByTheNamesOfTheFiles)
{
    TemporaryFolder const folder;
    folder.write("b.csv", "1,One\n");
    folder.write("a.csv", "# Name: First\n1,One\n");
    folder.write("notes.txt", "no codes here");
    ClassificationPlugins plugins;
    EXPECT_EQ(plugins.read(folder.path()), Names());
    EXPECT_EQ(namesOf(plugins), (Names{"First", "b"}));
}

TEST(ClassificationPlugins, ReadAFileAgainInItsPlace)
{
    TemporaryFolder const folder;
    auto const first = folder.write("first.csv", "1,One\n");
    ClassificationPlugins plugins;
    plugins.read(first);
    plugins.read(folder.write("second.csv", "2,Two\n"));
    folder.write("first.csv", "# Name: Renamed\n1,One\n");
    plugins.read(first);
    EXPECT_EQ(namesOf(plugins), (Names{"Renamed", "second"}));
}

TEST(ClassificationPlugins, TellWhatCouldNotBeRead)
{
    TemporaryFolder const folder;
    ClassificationPlugins plugins;
    EXPECT_EQ(
        plugins.read(folder.path()),
        (Names{folder.path().string() + ": there is no table (.csv, .tsv) and no IFC file in the folder"}));
    EXPECT_EQ(plugins.read(folder.path() / "missing.csv").size(), 1u);
    EXPECT_TRUE(plugins.getPlugins().empty());
}

TEST(ClassificationPlugins, TellAFolderThatCannotBeReadFromAnEmptyOne)
{
    TemporaryFolder const folder;
    std::filesystem::permissions(folder.path(), std::filesystem::perms::none);
    std::error_code error;
    std::filesystem::directory_iterator const entries(folder.path(), error);
    if (!error) {
        std::filesystem::permissions(folder.path(), std::filesystem::perms::owner_all);
        GTEST_SKIP() << "this user may read every folder";
    }
    ClassificationPlugins plugins;
    auto const messages = plugins.read(folder.path());
    std::filesystem::permissions(folder.path(), std::filesystem::perms::owner_all);
    EXPECT_EQ(messages,
              (Names{"Cannot read the folder \"" + folder.path().string() + "\": " + error.message() + "."}));
}

} // namespace
} // namespace qev::test
