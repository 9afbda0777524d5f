#include "Ui/List/ListRowFilter.h"

#include <gtest/gtest.h>

namespace {

using namespace qev::ui;

using Row = std::vector<std::string>;

bool passes(ListFilter const& filter, Row const& row)
{
    return ListRowFilter(filter).passes([&](std::size_t column) { return row.at(column); });
}

bool passesColumn(std::string const& condition, std::string const& text)
{
    return passes({{}, {}, {{0, condition}}}, {text});
}

TEST(ListRowFilter, EachWordHasToStandInSomeSearchedColumn)
{
    ListFilter const filter{"wall f30", {0, 1}, {}};
    EXPECT_TRUE(passes(filter, {"Outer Wall", "F30", ""}));
    EXPECT_TRUE(passes(filter, {"Wall F30", "", ""}));
    EXPECT_FALSE(passes(filter, {"Outer Wall", "F60", ""}));
    EXPECT_FALSE(passes(filter, {"Outer Wall", "", "F30"}));
    EXPECT_TRUE(passes({}, {"anything"}));
    EXPECT_TRUE(passes({"  ", {0}, {}}, {"anything"}));
}

TEST(ListRowFilter, TheCaseOfLettersDoesNotCount)
{
    EXPECT_TRUE(passesColumn("TÜR", "Innentür"));
    EXPECT_TRUE(passes({"ÖFFNUNG", {0}, {}}, {"Türöffnung"}));
}

TEST(ListRowFilter, AllConditionsOfColumnsHaveToBeMet)
{
    ListFilter const filter{"w", {0}, {{0, "1"}, {1, "> 2"}}};
    EXPECT_TRUE(passes(filter, {"W1", "2.5 m"}));
    EXPECT_FALSE(passes(filter, {"W1", "1.5 m"}));
    EXPECT_FALSE(passes(filter, {"W2", "2.5 m"}));
    EXPECT_FALSE(passes(filter, {"1", "2.5 m"}));
}

TEST(ListRowFilter, ASignSaysWhatIsAskedOfAColumn)
{
    EXPECT_TRUE(passesColumn("= f30", "F30"));
    EXPECT_FALSE(passesColumn("=F30", "F30/F60"));
    EXPECT_TRUE(passesColumn("=", ""));
    EXPECT_FALSE(passesColumn("=", "x"));
    EXPECT_TRUE(passesColumn("!=", "x"));
    EXPECT_FALSE(passesColumn("<>F30", "F30"));
    EXPECT_TRUE(passesColumn("!=F30", ""));
    EXPECT_TRUE(passesColumn("<=2.5", "2,5 m"));
    EXPECT_FALSE(passesColumn("<2.5", "2.5 m"));
    EXPECT_TRUE(passesColumn(">=2", "2"));
    EXPECT_FALSE(passesColumn(">=2", "1.9"));
}

TEST(ListRowFilter, TextsWithoutANumberAreInNoRelation)
{
    EXPECT_FALSE(passesColumn(">2", ""));
    EXPECT_FALSE(passesColumn(">2", "wide"));
    EXPECT_FALSE(passesColumn(">wide", "3"));
    EXPECT_TRUE(passesColumn(">", "wide")) << "Nothing is asked yet.";
}

TEST(ListRowFilter, NoMoreCellsAreReadThanAreNeeded)
{
    std::vector<std::size_t> read;
    ListRowFilter const filter({"wall", {0, 1, 2}, {}});
    EXPECT_TRUE(filter.passes([&](std::size_t column) {
        read.push_back(column);
        return std::string(column == 1 ? "Wall" : "");
    }));
    EXPECT_EQ(read, (std::vector<std::size_t>{0, 1}));
}

} // namespace
