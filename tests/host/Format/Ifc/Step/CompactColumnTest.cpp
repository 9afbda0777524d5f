#include "Format/Ifc/Step/CompactColumn.h"

#include "Format/Ifc/Step/RecordLookup.h"
#include "Format/Ifc/Step/StructuralScanner.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

namespace qev::step {
namespace {

std::vector<std::uint64_t> numbersAround(std::uint64_t centre, std::size_t count)
{
    std::vector<std::uint64_t> numbers;
    for (std::size_t i = 0; i < count; ++i)
        numbers.push_back(centre + i * 7919 % 100003);
    return numbers;
}

CompactColumn columnOf(std::vector<std::uint64_t> const& numbers)
{
    CompactColumn column;
    for (std::uint64_t const number : numbers)
        column.push(number);
    return column;
}

void expectNumbers(std::vector<std::uint64_t> const& numbers)
{
    CompactColumn const column = columnOf(numbers);
    ASSERT_EQ(column.size(), numbers.size());
    for (std::size_t i = 0; i < numbers.size(); ++i)
        ASSERT_EQ(column[i], numbers[i]) << i;
}

TEST(CompactColumn, KeepsSmallNumbers) { expectNumbers(numbersAround(0, 50000)); }

TEST(CompactColumn, KeepsLargeNumbersCompactly)
{
    std::vector<std::uint64_t> const numbers = numbersAround(std::uint64_t{1} << 60, 50000);
    expectNumbers(numbers);
    EXPECT_LE(columnOf(numbers).memory(), std::size_t{65536} * 4);
}

TEST(CompactColumn, KeepsNumbersFarFromEachOther)
{
    std::vector<std::uint64_t> numbers = numbersAround(5, 40000);
    numbers[3] = ~std::uint64_t{0};
    numbers[20000] = 0;
    numbers[20001] = std::uint64_t{1} << 40;
    numbers[39999] = 0;
    expectNumbers(numbers);
}

TEST(RecordLookup, FindsEveryIdInAnyOrder)
{
    std::mt19937 random(7);
    std::vector<std::uint64_t> ascending;
    for (std::uint64_t id = 3; ascending.size() < 20000; id += 1 + random() % 9)
        ascending.push_back(id);
    std::vector<std::uint64_t> dense = ascending;
    std::shuffle(dense.begin(), dense.end(), random);
    std::vector<std::uint64_t> sparse = dense;
    for (std::uint64_t& id : sparse)
        id *= 1000003;
    for (auto const& [ids, isAscending] : {std::pair(ascending, true), {dense, false}, {sparse, false}}) {
        CompactColumn const column = columnOf(ids);
        RecordLookup lookup;
        lookup.build(column, isAscending);
        for (std::size_t i = 0; i < ids.size(); ++i)
            ASSERT_EQ(lookup.find(column, ids[i]), i);
        EXPECT_EQ(lookup.find(column, 0), StepFile::noRecord);
        EXPECT_EQ(lookup.find(column, ~std::uint64_t{0}), StepFile::noRecord);
        EXPECT_EQ(lookup.highestId(), *std::max_element(ids.begin(), ids.end()));
    }
}

TEST(RecordLookup, FindsIdsWithOneFarAwayFromTheRest)
{
    std::vector<std::uint64_t> ids = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, std::uint64_t{1} << 63};
    CompactColumn const column = columnOf(ids);
    RecordLookup lookup;
    lookup.build(column, true);
    for (std::size_t i = 0; i < ids.size(); ++i)
        EXPECT_EQ(lookup.find(column, ids[i]), i);
    EXPECT_EQ(lookup.find(column, 11), StepFile::noRecord);
}

TEST(StructuralScanner, FindsTheSameBytesWithAndWithoutProcessorInstructions)
{
    std::mt19937 random(11);
    constexpr std::string_view often = ";'/\n\r #(),$*x";
    for (int round = 0; round < 2000; ++round) {
        char block[64];
        for (char& c : block)
            c = random() % 3 == 0 ? static_cast<char>(random()) : often[random() % often.size()];
        ASSERT_EQ(StructuralScanner::structuralBytes(block),
                  StructuralScanner::structuralBytesPortable(block));
    }
}

} // namespace
} // namespace qev::step
