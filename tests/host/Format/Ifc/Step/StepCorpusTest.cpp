#include "TemporaryFolder.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size);

namespace qev::step {
namespace {

int feed(std::string const& bytes)
{
    return LLVMFuzzerTestOneInput(reinterpret_cast<std::uint8_t const*>(bytes.data()), bytes.size());
}

TEST(StepCorpus, SurvivesEverySeed)
{
    std::size_t count = 0;
    for (auto const& entry : std::filesystem::directory_iterator(QEV_FUZZ_CORPUS_DIRECTORY)) {
        SCOPED_TRACE(entry.path().filename());
        EXPECT_EQ(feed(test::readFile(entry.path())), 0);
        ++count;
    }
    EXPECT_GE(count, 20U);
}

TEST(StepCorpus, SurvivesEverySeedCutShortAtEachByte)
{
    for (auto const& entry : std::filesystem::directory_iterator(QEV_FUZZ_CORPUS_DIRECTORY)) {
        SCOPED_TRACE(entry.path().filename());
        std::string const bytes = test::readFile(entry.path());
        for (std::size_t length = 0; length < bytes.size(); ++length)
            ASSERT_EQ(feed(bytes.substr(0, length)), 0);
    }
}

} // namespace
} // namespace qev::step
