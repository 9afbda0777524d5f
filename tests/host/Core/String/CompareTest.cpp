#include "Core/String/Compare.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <thread>
#include <vector>

namespace {

using qev::str::details::CaseLevel;
using qev::str::details::compare;
using testing::ElementsAre;

std::vector<std::string> sorted(std::vector<std::string> texts)
{
    std::sort(texts.begin(), texts.end(), [](std::string const& left, std::string const& right) {
        return compare<char>(left, right, CaseLevel::Counted) == -1;
    });
    return texts;
}

TEST(Compare, NumbersGoByTheirValue)
{
    EXPECT_THAT(sorted({"Wall 10", "Wall 2"}), ElementsAre("Wall 2", "Wall 10"));
}

TEST(Compare, CaseDecidesWhereNothingElseDoes)
{
    EXPECT_THAT(sorted({"b", "B", "a", "A"}), ElementsAre("a", "A", "b", "B"));
    EXPECT_EQ(compare<char>("a", "A", CaseLevel::Ignored), 0);
    EXPECT_EQ(compare<char>("a", "B", CaseLevel::Ignored), -1);
}

TEST(Compare, AccentsStandBesideTheirLetters)
{
    EXPECT_THAT(sorted({"Zug", "Öl", "Ofen", "Tür"}), ElementsAre("Ofen", "Öl", "Tür", "Zug"));
}

TEST(Compare, KeysStandToEachOtherAsTheirTexts)
{
    std::vector<std::string> const texts{"",
                                         "a",
                                         "A",
                                         "á",
                                         "01",
                                         "1",
                                         "001",
                                         "Wall 2",
                                         "Wall 10",
                                         "Öl",
                                         "Zug",
                                         "a b",
                                         "ab",
                                         "a-b",
                                         "\xFF",
                                         "\xFE",
                                         std::string(300, 'x')};
    for (auto const level : {CaseLevel::Counted, CaseLevel::Ignored}) {
        for (auto const& left : texts) {
            for (auto const& right : texts) {
                auto const keys =
                    qev::str::details::sortKey(left, level).compare(qev::str::details::sortKey(right, level));
                EXPECT_EQ((keys > 0) - (keys < 0), compare<char>(left, right, level))
                    << left << ", " << right;
            }
        }
    }
}

TEST(Compare, IsTotal)
{
    std::vector<std::string> const texts{"",       "a",     "A",    "a\u0301", "á",  "01",  "1",    "001",
                                         "Pset_A", "Qto_A", "\x01", "a b",     "ab", "a-b", "\xFF", "\xFE"};
    for (auto const& left : texts) {
        for (auto const& right : texts) {
            int const order = compare<char>(left, right, CaseLevel::Counted);
            EXPECT_EQ(order, -compare<char>(right, left, CaseLevel::Counted)) << left << ", " << right;
            EXPECT_EQ(order == 0, left == right) << left << ", " << right;
        }
    }
}

TEST(Compare, SeveralThreadsMayAskAtOnce)
{
    std::vector<int> results(4, 0);
    std::vector<std::thread> threads;
    for (auto& result : results)
        threads.emplace_back([&result] {
            for (int i = 0; i < 200; ++i)
                result += compare<char>("Wall 2", "Wall 10", CaseLevel::Counted);
        });
    for (auto& thread : threads)
        thread.join();
    EXPECT_THAT(results, testing::Each(-200));
}

} // namespace
