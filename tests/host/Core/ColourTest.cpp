#include "Core/Attribute/Colour.h"

#include <gtest/gtest.h>

namespace {

using qev::attr::Colour;

TEST(Colour, IsOpaqueBlackByDefault) { EXPECT_EQ(Colour(), (Colour{255, 0, 0, 0})); }

TEST(Colour, DiffersByEachOfItsBytes)
{
    Colour const colour{1, 2, 3, 4};
    EXPECT_NE(colour, (Colour{9, 2, 3, 4}));
    EXPECT_NE(colour, (Colour{1, 9, 3, 4}));
    EXPECT_NE(colour, (Colour{1, 2, 9, 4}));
    EXPECT_NE(colour, (Colour{1, 2, 3, 9}));
    EXPECT_LT(colour, (Colour{1, 2, 3, 5}));
}

static_assert(sizeof(Colour) == 4);

} // namespace
