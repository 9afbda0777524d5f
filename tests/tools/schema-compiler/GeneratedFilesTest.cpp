#include "Output/GeneratedFiles.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>

namespace qev::schemacompiler {

namespace {

class GeneratedFilesTest : public testing::Test
{
protected:
    void SetUp() override
    {
        auto const* const info = testing::UnitTest::GetInstance()->current_test_info();
        m_folder = std::filesystem::path(testing::TempDir()) / "schema-compiler" / info->name();
        std::filesystem::remove_all(m_folder);
        std::filesystem::create_directories(m_folder);
    }

    void TearDown() override { std::filesystem::remove_all(m_folder); }

    std::string read(std::string const& path) const
    {
        std::ifstream file(m_folder / path, std::ios::binary);
        return std::string(std::istreambuf_iterator<char>(file), {});
    }

    std::filesystem::path m_folder;
};

} // namespace

TEST_F(GeneratedFilesTest, WritesIntoFoldersThatDoNotExistYet)
{
    GeneratedFiles files;
    files.add("A/B/C.h", "text\n");
    EXPECT_EQ(files.writeTo(m_folder), 1u);
    EXPECT_EQ(read("A/B/C.h"), "text\n");
}

TEST_F(GeneratedFilesTest, LeavesAFileAloneWhoseTextIsTheSame)
{
    GeneratedFiles files;
    files.add("A.h", "one\n");
    files.add("B.h", "two\n");
    files.writeTo(m_folder);
    auto const longAgo = std::filesystem::file_time_type::clock::now() - std::chrono::hours(24);
    std::filesystem::last_write_time(m_folder / "A.h", longAgo);
    std::ofstream(m_folder / "B.h") << "2\n";

    EXPECT_EQ(files.writeTo(m_folder), 1u);
    EXPECT_EQ(std::filesystem::last_write_time(m_folder / "A.h"), longAgo);
    EXPECT_EQ(read("B.h"), "two\n");
}

TEST_F(GeneratedFilesTest, RemovesSourcesThatAreNotMadeAnyMore)
{
    GeneratedFiles before;
    before.add("A.h", "one\n");
    before.add("Old.cpp", "two\n");
    before.writeTo(m_folder);
    GeneratedFiles after;
    after.add("A.h", "one\n");
    after.writeTo(m_folder);
    EXPECT_TRUE(std::filesystem::exists(m_folder / "A.h"));
    EXPECT_FALSE(std::filesystem::exists(m_folder / "Old.cpp"));
}

TEST_F(GeneratedFilesTest, ReportsAFileThatCannotBeWritten)
{
    std::filesystem::create_directories(m_folder / "A.h");
    GeneratedFiles files;
    files.add("A.h", "one\n");
    EXPECT_THROW(files.writeTo(m_folder), std::runtime_error);
}

TEST_F(GeneratedFilesTest, RefusesTwoFilesOfOnePath)
{
    GeneratedFiles files;
    files.add("A.h", "one\n");
    EXPECT_THROW(files.add("A.h", "two\n"), std::runtime_error);
}

} // namespace qev::schemacompiler
