#include "Core/Platform/AtomicFileWriter.h"

#include "TemporaryFolder.h"

#include <gmock/gmock.h>

#include <string>

#if defined(__unix__) || defined(__APPLE__)
#include <csignal>
#include <sys/resource.h>
#endif

namespace qev::platform {
namespace {

using ::testing::HasSubstr;

TEST(AtomicFileWriter, ReplacesTheTargetAtCommitOnly)
{
    test::TemporaryFolder const folder;
    std::filesystem::path const path = folder.write("a.ifc", "old");
    AtomicFileWriter writer(path);
    writer.write("ne");
    writer.write("w");
    EXPECT_EQ(test::readFile(path), "old");
    EXPECT_TRUE(writer.commit()) << writer.error();
    EXPECT_EQ(test::readFile(path), "new");
    EXPECT_EQ(folder.entryCount(), 1U);
    EXPECT_EQ(writer.stamp(), fileStamp(path));
}

TEST(AtomicFileWriter, MakesANewFile)
{
    test::TemporaryFolder const folder;
    AtomicFileWriter writer(folder.path() / "new.ifc");
    writer.write("content");
    EXPECT_TRUE(writer.commit()) << writer.error();
    EXPECT_EQ(test::readFile(folder.path() / "new.ifc"), "content");
}

TEST(AtomicFileWriter, KeepsTheOrderOfSmallAndLargePieces)
{
    test::TemporaryFolder const folder;
    std::string const large(std::size_t{3} << 20, 'l');
    AtomicFileWriter writer(folder.path() / "a.ifc");
    writer.write("first ");
    writer.write(large);
    writer.write(" last");
    EXPECT_TRUE(writer.commit()) << writer.error();
    EXPECT_TRUE(test::readFile(folder.path() / "a.ifc") == "first " + large + " last");
}

TEST(AtomicFileWriter, LeavesNothingBehindWithoutACommit)
{
    test::TemporaryFolder const folder;
    std::filesystem::path const path = folder.write("a.ifc", "old");
    {
        AtomicFileWriter writer(path);
        writer.write("new");
    }
    EXPECT_EQ(test::readFile(path), "old");
    EXPECT_EQ(folder.entryCount(), 1U);
}

TEST(AtomicFileWriter, NamesTheFileWhenItsFolderIsMissing)
{
    test::TemporaryFolder const folder;
    AtomicFileWriter writer(folder.path() / "missing" / "a.ifc");
    writer.write("new");
    EXPECT_TRUE(writer.failed());
    EXPECT_FALSE(writer.commit());
    EXPECT_THAT(writer.error(), HasSubstr("a.ifc"));
}

TEST(AtomicFileWriter, RefusesAFolderAsTarget)
{
    test::TemporaryFolder const folder;
    AtomicFileWriter writer(folder.path());
    EXPECT_TRUE(writer.failed());
    EXPECT_FALSE(writer.commit());
    EXPECT_TRUE(std::filesystem::is_directory(folder.path()));
}

#if defined(__unix__) || defined(__APPLE__)

TEST(AtomicFileWriter, ReplacesTheFileASymbolicLinkLeadsTo)
{
    test::TemporaryFolder const folder;
    std::filesystem::path const path = folder.write("a.ifc", "old");
    std::filesystem::path const link = folder.path() / "link.ifc";
    std::filesystem::create_symlink("a.ifc", link);
    AtomicFileWriter writer(link);
    writer.write("new");
    EXPECT_TRUE(writer.commit()) << writer.error();
    EXPECT_TRUE(std::filesystem::is_symlink(link));
    EXPECT_EQ(test::readFile(path), "new");
}

TEST(AtomicFileWriter, KeepsThePermissionsOfTheOldFile)
{
    using std::filesystem::perms;
    test::TemporaryFolder const folder;
    std::filesystem::path const path = folder.write("a.ifc", "old");
    perms const wanted = perms::owner_read | perms::owner_write | perms::group_read;
    std::filesystem::permissions(path, wanted);
    AtomicFileWriter writer(path);
    writer.write("new");
    EXPECT_TRUE(writer.commit()) << writer.error();
    EXPECT_EQ(std::filesystem::status(path).permissions(), wanted);
}

/// Makes writes beyond a size fail, as they do on a full disk.
class FileSizeLimit
{
public:
    explicit FileSizeLimit(rlim_t bytes)
    {
        ::getrlimit(RLIMIT_FSIZE, &m_before);
        m_signal = std::signal(SIGXFSZ, SIG_IGN);
        rlimit const limit{bytes, m_before.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FileSizeLimit()
    {
        ::setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_signal);
    }
    FileSizeLimit(FileSizeLimit const&) = delete;
    FileSizeLimit& operator=(FileSizeLimit const&) = delete;

private:
    rlimit m_before = {};
    void (*m_signal)(int) = SIG_DFL;
};

TEST(AtomicFileWriter, LeavesTheOldFileWhenTheDiskTakesNoMore)
{
    test::TemporaryFolder const folder;
    std::filesystem::path const path = folder.write("a.ifc", "old");
    {
        FileSizeLimit const limit(1 << 20);
        AtomicFileWriter writer(path);
        writer.write(std::string(std::size_t{2} << 20, 'x'));
        EXPECT_FALSE(writer.commit());
        EXPECT_THAT(writer.error(), HasSubstr("a.ifc"));
    }
    EXPECT_EQ(test::readFile(path), "old");
    EXPECT_EQ(folder.entryCount(), 1U);
}

#endif

} // namespace
} // namespace qev::platform
