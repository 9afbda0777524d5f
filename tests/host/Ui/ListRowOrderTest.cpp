#include "Ui/List/ListRowOrder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <limits>

namespace {

using namespace qev::ui;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr auto all = std::numeric_limits<std::size_t>::max();

class ListRowOrderTest : public testing::Test
{
protected:
    void fill(std::vector<std::vector<std::string>> texts)
    {
        table = std::move(texts);
        order.setRowCount(table.size());
    }
    bool advance(std::size_t rows = all)
    {
        auto const getText = [this](std::size_t row, std::size_t column) {
            ++reads;
            return table.at(row).at(column);
        };
        return order.advance(rows, {getText, [&](std::size_t row, std::size_t column) {
                                        return ListSortCell{getText(row, column), getNumber(row)};
                                    }});
    }
    [[nodiscard]] std::vector<std::size_t> rows() const
    {
        std::vector<std::size_t> result;
        for (std::size_t position = 0; position < order.getShownCount(); ++position)
            result.push_back(order.getRow(position));
        return result;
    }
    /// The rows of one column with these texts, sorted by it.
    std::vector<std::size_t> sorted(std::vector<std::string> const& texts, bool isDescending = false)
    {
        std::vector<std::vector<std::string>> cells;
        for (auto const& text : texts)
            cells.push_back({text});
        fill(cells);
        order.setSorting({{0, isDescending}});
        advance();
        return rows();
    }

    std::vector<std::vector<std::string>> table;
    /// The number of the owner's for a row.
    std::function<std::optional<double>(std::size_t)> getNumber = [](std::size_t) { return std::nullopt; };
    ListRowOrder order;
    std::size_t reads = 0;
};

TEST_F(ListRowOrderTest, AllRowsAreShownInTheirOwnOrderAtFirst)
{
    fill({{"b"}, {"a"}});
    EXPECT_FALSE(order.isPending());
    EXPECT_THAT(rows(), ElementsAre(0u, 1u));
    EXPECT_FALSE(advance());
    EXPECT_EQ(reads, 0u);
}

TEST_F(ListRowOrderTest, TextsStandInNaturalOrder)
{
    EXPECT_THAT(sorted({"Wall 10", "wall 2", "Tür", "Tor", "Wall 2"}), ElementsAre(3u, 2u, 1u, 4u, 0u));
}

TEST_F(ListRowOrderTest, NumbersOfOneUnitGoByTheirValue)
{
    EXPECT_THAT(sorted({"0.25 m", "-1 m", "10 m", "9.5 m", "1e-3 m"}), ElementsAre(1u, 4u, 0u, 3u, 2u));
    EXPECT_THAT(sorted({"10' 3\"", "8' 2 1/2\"", "8' 2\"", "9\""}), ElementsAre(3u, 2u, 1u, 0u));
}

TEST_F(ListRowOrderTest, NumbersOfSeveralUnitsAreTexts)
{
    EXPECT_THAT(sorted({"2 m", "1 mm", "1 m"}), ElementsAre(2u, 1u, 0u));
    EXPECT_THAT(sorted({"2B", "10A", "2A"}), ElementsAre(2u, 0u, 1u));
}

TEST_F(ListRowOrderTest, NumbersOfTheOwnerGoBeforeTexts)
{
    std::vector<double> const numbers{1000, 1, 0, 20};
    getNumber = [&](std::size_t row) { return numbers[row]; };
    EXPECT_THAT(sorted({"1 km", "1 m", "", "20 m"}), ElementsAre(1u, 3u, 0u, 2u));
    getNumber = [&](std::size_t row) { return row == 1 ? std::nullopt : std::optional(numbers[row]); };
    EXPECT_THAT(sorted({"b", "c", "", "a"}, true), ElementsAre(1u, 0u, 3u, 2u)) << "Not all have one.";
}

TEST_F(ListRowOrderTest, EmptyCellsComeLastEitherWay)
{
    EXPECT_THAT(sorted({"", "1", "2"}), ElementsAre(1u, 2u, 0u));
    order.setRowCount(0);
    order.setSorting({});
    EXPECT_THAT(sorted({"", "1", "2"}, true), ElementsAre(2u, 1u, 0u));
    order.setSorting({});
    EXPECT_THAT(sorted({"", "a", "b"}, true), ElementsAre(2u, 1u, 0u));
}

TEST_F(ListRowOrderTest, TheNextColumnDecidesWhereTheFirstDoesNotAndThenTheRow)
{
    fill({{"b", "2"}, {"a", "10"}, {"b", "1"}, {"a", "9"}, {"b", "2"}});
    order.setSorting({{0, true}, {1, false}});
    EXPECT_TRUE(advance());
    EXPECT_THAT(rows(), ElementsAre(2u, 0u, 4u, 3u, 1u));
}

TEST_F(ListRowOrderTest, EachSortedCellIsReadOnce)
{
    fill(std::vector<std::vector<std::string>>(100, {"x", "y"}));
    order.setSorting({{1, false}});
    advance();
    EXPECT_EQ(reads, 100u);
}

TEST_F(ListRowOrderTest, OnlyRowsThatPassTheFilterAreShownAndSorted)
{
    fill({{"Wall 10"}, {"Door 1"}, {"Wall 2"}});
    order.setFilter({"wall", {0}, {}});
    EXPECT_TRUE(advance());
    EXPECT_THAT(rows(), ElementsAre(0u, 2u));
    order.setSorting({{0, false}});
    EXPECT_TRUE(advance());
    EXPECT_THAT(rows(), ElementsAre(2u, 0u));
    EXPECT_EQ(order.getRowCount(), 3u);
    order.setFilter({});
    order.setSorting({});
    EXPECT_TRUE(advance());
    EXPECT_THAT(rows(), ElementsAre(0u, 1u, 2u));
}

TEST_F(ListRowOrderTest, TheOldOrderStaysUntilTheNewOneIsWorkedOut)
{
    fill({{"c"}, {"b"}, {"a"}});
    order.setSorting({{0, false}});
    EXPECT_FALSE(advance(2));
    EXPECT_TRUE(order.isPending());
    EXPECT_EQ(order.getProgress(), 2u);
    EXPECT_THAT(rows(), ElementsAre(0u, 1u, 2u));
    EXPECT_TRUE(advance(2));
    EXPECT_FALSE(order.isPending());
    EXPECT_THAT(rows(), ElementsAre(2u, 1u, 0u));
}

TEST_F(ListRowOrderTest, AnotherFilterMeanwhileBeginsAnew)
{
    fill({{"c"}, {"b"}, {"a"}});
    order.setFilter({"c", {0}, {}});
    advance(2);
    order.setFilter({"a", {0}, {}});
    EXPECT_EQ(order.getProgress(), 0u);
    advance();
    EXPECT_THAT(rows(), ElementsAre(2u));
}

TEST_F(ListRowOrderTest, NewRowsAreSortedAndFilteredToo)
{
    fill({{"b"}, {"a"}});
    order.setSorting({{0, false}});
    advance();
    fill({{"z"}, {"y"}, {"x"}});
    EXPECT_THAT(rows(), ElementsAre(0u, 1u, 2u)) << "until it is worked out";
    advance();
    EXPECT_THAT(rows(), ElementsAre(2u, 1u, 0u));
    fill({{"1"}, {"2"}, {"3"}});
    EXPECT_THAT(rows(), ElementsAre(2u, 1u, 0u)) << "As many as before stay where they are meanwhile.";
    advance();
    EXPECT_THAT(rows(), ElementsAre(0u, 1u, 2u));
}

TEST_F(ListRowOrderTest, ChangedValuesMoveRowsWhenAsked)
{
    fill({{"b"}, {"a"}});
    order.setSorting({{0, false}});
    advance();
    table = {{"b"}, {"c"}};
    EXPECT_FALSE(advance());
    EXPECT_THAT(rows(), ElementsAre(1u, 0u));
    order.restart();
    EXPECT_TRUE(advance());
    EXPECT_THAT(rows(), ElementsAre(0u, 1u));
}

TEST_F(ListRowOrderTest, TheSameFilterAndOrderAgainAreNoWork)
{
    fill({{"b"}, {"a"}});
    order.setSorting({{0, false}});
    order.setFilter({"a", {0}, {}});
    advance();
    order.setSorting({{0, false}});
    order.setFilter({"a", {0}, {}});
    EXPECT_FALSE(order.isPending());
}

TEST_F(ListRowOrderTest, TellsWhereRowsStand)
{
    fill({{"c"}, {"b"}, {"a"}, {"d"}});
    EXPECT_THAT(order.getPositions({3, 1, 7}), ElementsAre(1u, 3u));
    order.setSorting({{0, false}});
    order.setFilter({{}, {}, {{0, "!=d"}}});
    advance();
    EXPECT_THAT(order.getPositions({0, 2, 3}), ElementsAre(0u, 2u));
    EXPECT_THAT(order.getPositions({3}), IsEmpty());
}

} // namespace
