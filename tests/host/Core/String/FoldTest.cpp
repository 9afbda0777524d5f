#include "Core/String/Fold.h"

#include <gtest/gtest.h>

namespace {

using qev::str::foldCase;

TEST(FoldCase, LeavesOutTheCaseOfAllLetters)
{
    EXPECT_EQ(foldCase("Wall 12"), "wall 12");
    EXPECT_EQ(foldCase("TÜR"), foldCase("tür"));
    EXPECT_EQ(foldCase("ΔΟΜΗ"), foldCase("δομη"));
    EXPECT_NE(foldCase("Tür"), foldCase("Tor"));
    EXPECT_EQ(foldCase(""), "");
}

} // namespace
