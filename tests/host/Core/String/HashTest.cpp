#include "Core/String/Hash.h"

#include <gtest/gtest.h>

namespace {

using qev::str::fnv1a;

TEST(Hash, IsThatOfTheBytes)
{
    EXPECT_EQ(fnv1a(""), 0x811C9DC5U);
    EXPECT_EQ(fnv1a("a"), 0xE40C292CU);
    EXPECT_EQ(fnv1a("foobar"), 0xBF9CF968U);
}

TEST(Hash, TakesBytesBeyondAsciiAsTheyAre)
{
    static_assert(fnv1a("\xFF") == (0x811C9DC5U ^ 0xFFU) * 16777619U);
    EXPECT_NE(fnv1a("\xC3\xA4"), fnv1a("\xC3\x84"));
}

} // namespace
