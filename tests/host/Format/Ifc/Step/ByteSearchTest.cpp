#include "Format/Ifc/Step/ByteSearch.h"

#include <gtest/gtest.h>

#include <string>

namespace qev::step {
namespace {

TEST(ByteSearch, FindsAtEveryPlaceAndOfEveryLength)
{
    std::string const wanted = "1234567890abcdefghij";
    for (std::size_t length = 1; length <= wanted.size(); ++length) {
        for (std::size_t place = 0; place <= 40; ++place) {
            std::string const bytes =
                std::string(place, '.') + wanted.substr(0, length) + std::string(80, '.');
            EXPECT_EQ(findBytes(bytes, wanted.substr(0, length)), place) << "length " << length;
        }
    }
}

TEST(ByteSearch, FindsNothingThatOnlyBeginsAndEndsAlike)
{
    std::string const padded =
        "#1001 #1201 #1301 #1401 #1501 #1601 #1701 #1801 #1901" + std::string(64, '\0');
    std::string_view const bytes = std::string_view(padded).substr(0, padded.size() - 64);
    EXPECT_EQ(findBytes(bytes, "#1101"), std::string_view::npos);
    EXPECT_EQ(findBytes(bytes, "#1901"), 48u);
}

TEST(ByteSearch, LooksNotBehindTheEnd)
{
    std::string const text = std::string(30, '.') + "1234567890" + std::string(64, '\0');
    for (std::size_t size = 0; size < 40; ++size)
        EXPECT_EQ(findBytes(std::string_view(text).substr(0, size), "1234567890"), std::string_view::npos);
    EXPECT_EQ(findBytes(std::string_view(text).substr(0, 40), "1234567890"), 30u);
    EXPECT_EQ(findBytes(std::string_view(text).substr(35, 4), "1234567890"), std::string_view::npos);
    EXPECT_EQ(findBytes(std::string_view(text).substr(0, 0), "1"), std::string_view::npos);
}

} // namespace
} // namespace qev::step
