#include "Golden.h"

#include "TemporaryFolder.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>

namespace qev::test {

bool isRecordingGolden() { return std::getenv("QEV_RECORD_GOLDEN") != nullptr; }

void expectGolden(std::string_view text, std::filesystem::path const& golden)
{
    if (isRecordingGolden()) {
        std::filesystem::create_directories(golden.parent_path());
        std::ofstream(golden, std::ios::binary) << text;
    }
    EXPECT_EQ(text, readFile(golden)) << golden;
}

} // namespace qev::test
