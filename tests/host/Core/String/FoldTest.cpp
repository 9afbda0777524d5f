#include "Core/String/Fold.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using qev::str::foldCase;
using qev::str::foldedWords;
using testing::ElementsAre;
using testing::IsEmpty;

TEST(FoldCase, LeavesOutTheCaseOfAllLetters)
{
    EXPECT_EQ(foldCase("Wall 12"), "wall 12");
    EXPECT_EQ(foldCase("TÜR"), foldCase("tür"));
    EXPECT_EQ(foldCase("ΔΟΜΗ"), foldCase("δομη"));
    EXPECT_NE(foldCase("Tür"), foldCase("Tor"));
    EXPECT_EQ(foldCase(""), "");
}

TEST(FoldedWords, ArePartedByBlanksTabsAndLineEnds)
{
    EXPECT_THAT(foldedWords(" East\tTÜR\n12  "), ElementsAre("east", foldCase("tür"), "12"));
    EXPECT_THAT(foldedWords("  "), IsEmpty());
}

} // namespace
