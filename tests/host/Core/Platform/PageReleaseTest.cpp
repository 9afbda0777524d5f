#include "Core/Platform/PageRelease.h"

#include "Core/Platform/ProcessMemory.h"

#include <algorithm>
#include <memory>

namespace qev::platform {
namespace {

#if defined(__linux__)
TEST(PageRelease, GivesTheMemoryOfALargeBlockBackBeforeItIsFreed)
{
    constexpr std::size_t size = std::size_t{96} << 20;
    auto const block = std::make_unique_for_overwrite<char[]>(size);
    std::fill_n(block.get(), size, 'x');
    std::uint64_t const before = residentBytes();

    releasePages(block.get(), size);

    EXPECT_LT(residentBytes(), before - size / 2);
}
#endif

TEST(PageRelease, KeepsWhatStandsAroundTheBlock)
{
    constexpr std::size_t size = std::size_t{40} << 20;
    auto const block = std::make_unique_for_overwrite<char[]>(size);
    std::fill_n(block.get(), size, 'x');
    constexpr std::size_t margin = 100;

    releasePages(block.get() + margin, size - 2 * margin);

    EXPECT_TRUE(std::all_of(block.get(), block.get() + margin, [](char c) { return c == 'x'; }));
    EXPECT_TRUE(
        std::all_of(block.get() + size - margin, block.get() + size, [](char c) { return c == 'x'; }));
}

TEST(PageRelease, LeavesASmallBlockToBeFreed)
{
    auto const block = std::make_unique<char[]>(1000);
    block[999] = 'x';
    releasePages(block.get(), 1000);
    EXPECT_EQ(block[999], 'x');
}

} // namespace
} // namespace qev::platform
