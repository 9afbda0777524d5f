#include "Core/Id/Guid.h"

#include <gtest/gtest.h>

#include <set>
#include <unordered_set>

namespace {

using qev::Guid;

TEST(Guid, ZeroBytesAreTwentyTwoZeros)
{
    EXPECT_EQ(Guid().toString(), std::string(22, '0'));
    EXPECT_TRUE(Guid().isNull());
}

TEST(Guid, AllBitsSetAreAThreeAndTwentyOneDollars)
{
    Guid::Bytes bytes;
    bytes.fill(0xFF);
    EXPECT_EQ(Guid(bytes).toString(), "3" + std::string(21, '$'));
}

TEST(Guid, TheBytesStandInTheTextFromTheFirstToTheLast)
{
    // 0x01 is "01"; 0x023456 is 0, 35, 17, 22 to the base 64.
    Guid const guid(Guid::Bytes{0x01, 0x02, 0x34, 0x56});
    EXPECT_EQ(guid.toString(), "010ZHM" + std::string(16, '0'));
}

TEST(Guid, TextAndBytesTakeEachOtherBack)
{
    for (int i = 0; i < 100; ++i) {
        Guid const guid = Guid::generate();
        EXPECT_EQ(guid.toString().size(), 22u);
        EXPECT_EQ(Guid::fromString(guid.toString()), guid);
    }
    EXPECT_EQ(Guid::fromString("2O2Fr$t4X7Zf8NOew3FLOH")->toString(), "2O2Fr$t4X7Zf8NOew3FLOH");
}

TEST(Guid, OtherTextsAreRefused)
{
    EXPECT_FALSE(Guid::fromString(""));
    EXPECT_FALSE(Guid::fromString("2O2Fr$t4X7Zf8NOew3FLO"));
    EXPECT_FALSE(Guid::fromString("2O2Fr$t4X7Zf8NOew3FLOHH"));
    EXPECT_FALSE(Guid::fromString("2O2Fr$t4X7Zf8NOew3FLO-"));
    EXPECT_FALSE(Guid::fromString("4O2Fr$t4X7Zf8NOew3FLOH")) << "the first character holds two bits";
    EXPECT_FALSE(Guid::fromString(std::string_view("2O2Fr$t4X7Zf8NOew3FLO\0", 22)));
}

TEST(Guid, GeneratedOnesDifferAndAreOfVersionFour)
{
    std::set<Guid> guids;
    for (int i = 0; i < 1000; ++i) {
        Guid const guid = Guid::generate();
        EXPECT_EQ(guid.bytes()[6] >> 4, 4);
        EXPECT_EQ(guid.bytes()[8] >> 6, 2);
        guids.insert(guid);
    }
    EXPECT_EQ(guids.size(), 1000u);
}

TEST(Guid, IsOrderedByItsBytesAndCanBeAKey)
{
    Guid const small(Guid::Bytes{0, 1});
    Guid const large(Guid::Bytes{1, 0});
    EXPECT_LT(small, large);
    std::unordered_set<Guid> const set{small, large, small};
    EXPECT_EQ(set.size(), 2u);
}

} // namespace
