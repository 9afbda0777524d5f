#include "Ui/List/ListFinder.h"

#include <gtest/gtest.h>

#include <limits>
#include <vector>

namespace {

using qev::ui::ListFinder;
using Place = ListFinder::Place;
using State = ListFinder::State;

class ListFinderTest : public testing::Test
{
protected:
    [[nodiscard]] ListFinder make(char const* text, Place start, bool forwards = true) const
    {
        return {text, table.size(), table[0].size(), start, forwards};
    }
    State advance(ListFinder& finder, std::size_t cells = std::numeric_limits<std::size_t>::max())
    {
        return finder.advance(cells, [this](Place const& place) {
            ++reads;
            return table.at(place.row).at(place.column);
        });
    }
    void expectFound(char const* text, Place start, Place expected, bool forwards = true)
    {
        auto finder = make(text, start, forwards);
        ASSERT_EQ(advance(finder), State::Found);
        EXPECT_EQ(finder.getPlace(), expected);
    }

    std::vector<std::vector<std::string>> table{{"Wall", "F30"}, {"Door", "f30"}, {"TÜR", "F60"}};
    std::size_t reads = 0;
};

TEST_F(ListFinderTest, FindsTheNextCellWithTheTextWhateverItsCase)
{
    expectFound("f30", {0, 0}, {0, 1});
    expectFound("f30", {0, 1}, {1, 1});
    expectFound("tür", {0, 0}, {2, 0});
    expectFound("oo", {0, 0}, {1, 0});
}

TEST_F(ListFinderTest, GoesRoundFromTheEndToTheBeginning)
{
    expectFound("f30", {1, 1}, {0, 1});
    expectFound("wall", {2, 1}, {0, 0});
    expectFound("f60", {2, 1}, {2, 1});
}

TEST_F(ListFinderTest, GoesBackwardsToo)
{
    expectFound("f30", {2, 0}, {1, 1}, false);
    expectFound("f30", {0, 1}, {1, 1}, false);
    expectFound("wall", {0, 1}, {0, 0}, false);
}

TEST_F(ListFinderTest, TellsWhenThereIsNone)
{
    auto finder = make("F90", {1, 0});
    EXPECT_EQ(advance(finder), State::NotFound);
    EXPECT_EQ(reads, 6u);
    auto empty = make("", {0, 0});
    EXPECT_EQ(advance(empty), State::NotFound);
    ListFinder nowhere("x", 0, 0, {0, 0}, true);
    EXPECT_EQ(advance(nowhere), State::NotFound);
}

TEST_F(ListFinderTest, GoesOnBitByBit)
{
    auto finder = make("f60", {0, 0});
    EXPECT_EQ(advance(finder, 2), State::Searching);
    EXPECT_EQ(reads, 2u);
    EXPECT_EQ(advance(finder), State::Found);
    EXPECT_EQ(finder.getPlace(), (Place{2, 1}));
}

} // namespace
