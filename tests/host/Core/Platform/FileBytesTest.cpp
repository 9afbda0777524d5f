#include "Core/Platform/FileBytes.h"
#include "Core/Platform/ProcessMemory.h"

#include "TemporaryFolder.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <string>

namespace qev::platform {
namespace {

using ::testing::HasSubstr;

bool isPadded(FileBytes const& bytes)
{
    return std::all_of(bytes.data() + bytes.size(), bytes.data() + bytes.size() + FileBytes::padding,
                       [](char c) { return c == '\0'; });
}

TEST(FileBytes, HoldTheContentOfASmallFileWithZeroesBehind)
{
    test::TemporaryFolder const folder;
    FileReadResult const result = FileBytes::read(folder.write("a.ifc", std::string_view("ab\0c\n", 5)));
    ASSERT_TRUE(result.bytes);
    EXPECT_EQ(result.bytes->view(), std::string_view("ab\0c\n", 5));
    EXPECT_TRUE(isPadded(*result.bytes));
    EXPECT_EQ(result.stamp.size, 5U);
}

TEST(FileBytes, HoldTheContentOfALargeFileWithZeroesBehind)
{
    test::TemporaryFolder const folder;
    std::string content(std::size_t{4} << 20, 'x');
    for (std::size_t i = 0; i < content.size(); i += 1000)
        content[i] = static_cast<char>('a' + i / 1000 % 26);
    FileReadResult const result = FileBytes::read(folder.write("a.ifc", content));
    ASSERT_TRUE(result.bytes);
    EXPECT_TRUE(result.bytes->view() == content);
    EXPECT_TRUE(isPadded(*result.bytes));
}

TEST(FileBytes, OfAnEmptyFileAreEmptyAndPadded)
{
    test::TemporaryFolder const folder;
    FileReadResult const result = FileBytes::read(folder.write("a.ifc", ""));
    ASSERT_TRUE(result.bytes);
    EXPECT_EQ(result.bytes->size(), 0U);
    EXPECT_TRUE(isPadded(*result.bytes));
}

TEST(FileBytes, StayWhenTheFileIsCutShortAfterwards)
{
    test::TemporaryFolder const folder;
    std::filesystem::path const path = folder.write("a.ifc", std::string(100000, 'x'));
    FileReadResult const result = FileBytes::read(path);
    std::filesystem::resize_file(path, 10);
    ASSERT_TRUE(result.bytes);
    EXPECT_EQ(result.bytes->view(), std::string(100000, 'x'));
}

TEST(FileBytes, OfAMissingFileAreAnErrorThatNamesIt)
{
    test::TemporaryFolder const folder;
    FileReadResult const result = FileBytes::read(folder.path() / "missing.ifc");
    EXPECT_FALSE(result.bytes);
    EXPECT_THAT(result.error, HasSubstr("missing.ifc"));
}

TEST(FileBytes, OfAFolderAreAnError)
{
    test::TemporaryFolder const folder;
    FileReadResult const result = FileBytes::read(folder.path());
    EXPECT_FALSE(result.bytes);
    EXPECT_FALSE(result.error.empty());
}

TEST(FileBytes, ReadingCanBeCancelled)
{
    test::TemporaryFolder const folder;
    FileReadResult const result =
        FileBytes::read(folder.write("a.ifc", "abc"), [](std::uint64_t, std::uint64_t) { return false; });
    EXPECT_FALSE(result.bytes);
    EXPECT_TRUE(result.cancelled);
    EXPECT_TRUE(result.error.empty());
}

TEST(FileBytes, MoveWithTheirContent)
{
    FileBytes first = FileBytes::copyOf("first");
    FileBytes second = FileBytes::copyOf("second");
    second = std::move(first);
    EXPECT_EQ(second.view(), "first");
}

TEST(FileStamp, TellsWhenAFileIsReplacedByOneOfTheSameSize)
{
    test::TemporaryFolder const folder;
    std::filesystem::path const path = folder.write("a.ifc", "abc");
    std::optional<FileStamp> const before = fileStamp(path);
    ASSERT_TRUE(before);
    EXPECT_EQ(fileStamp(path), before);
    std::filesystem::rename(folder.write("b.ifc", "abd"), path);
    EXPECT_NE(fileStamp(path), before);
}

TEST(FileStamp, IsNothingWithoutAFile)
{
    test::TemporaryFolder const folder;
    EXPECT_FALSE(fileStamp(folder.path() / "missing"));
}

#if defined(__linux__) || defined(__APPLE__)
TEST(ProcessMemory, GrowsWithMemoryInUse)
{
    constexpr std::size_t size = std::size_t{64} << 20;
    std::uint64_t const before = residentBytes();
    ASSERT_GT(before, 0U);
    std::string const block(size, 'x');
    EXPECT_GT(residentBytes(), before + size / 2) << block.size();
}
#endif

} // namespace
} // namespace qev::platform
