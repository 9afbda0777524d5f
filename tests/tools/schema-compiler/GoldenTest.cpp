#include "Emit/Generate.h"
#include "ToySchema.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace qev::schemacompiler {

namespace {

std::filesystem::path goldenPath(std::string const& path)
{
    return test::testFolder() / "golden" / (path + ".golden");
}

/// With QEV_RECORD_GOLDEN in the environment the golden files are written instead of compared.
bool isRecording() { return std::getenv("QEV_RECORD_GOLDEN") != nullptr; }

void record(std::filesystem::path const& path, std::string const& text)
{
    std::filesystem::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary) << text;
}

} // namespace

TEST(SchemaCompilerGolden, ToySchemaGivesTheFilesThatWereReviewed)
{
    auto const files = generate(test::toyModel());
    for (auto const& [path, text] : files.texts()) {
        if (isRecording())
            record(goldenPath(path), text);
        EXPECT_EQ(text, test::readText(goldenPath(path))) << path;
    }
}

TEST(SchemaCompilerGolden, EveryGoldenFileIsStillMade)
{
    auto const files = generate(test::toyModel());
    auto const folder = test::testFolder() / "golden";
    for (auto const& entry : std::filesystem::recursive_directory_iterator(folder)) {
        if (!entry.is_regular_file())
            continue;
        auto const path = entry.path().lexically_relative(folder).replace_extension().generic_string();
        EXPECT_TRUE(files.texts().contains(path)) << path;
    }
}

TEST(SchemaCompilerGolden, TwoRunsMakeTheSameText)
{
    EXPECT_EQ(generate(test::toyModel()).texts(), generate(test::toyModel()).texts());
}

} // namespace qev::schemacompiler
