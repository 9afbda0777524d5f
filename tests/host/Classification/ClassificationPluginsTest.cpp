#include "Classification/ClassificationPlugins.h"
#include "TemporaryFolder.h"

#include <gtest/gtest.h>

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

} // namespace
} // namespace qev::test
