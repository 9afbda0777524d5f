#include "Core/Math/Vector.h"

#include "Core/Math/Vector2d.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numbers>

namespace {

using namespace qev::math;

TEST(Vector, HasALength) { EXPECT_DOUBLE_EQ((Vector{2, 3, 6}.length()), 7); }

TEST(Vector, TheCrossProductIsPerpendicularToBoth)
{
    Vector const a{1, 2, 3};
    Vector const b{-4, 5, 6};
    EXPECT_DOUBLE_EQ(a.cross(b).dot(a), 0);
    EXPECT_DOUBLE_EQ(a.cross(b).dot(b), 0);
    EXPECT_EQ((Vector{1, 0, 0}.cross({0, 1, 0})), (Vector{0, 0, 1}));
}

TEST(Vector, NormalisedHasLengthOne)
{
    EXPECT_EQ((Vector{0, 0, 5}.normalised()), (Vector{0, 0, 1}));
    EXPECT_DOUBLE_EQ((Vector{1, 2, 3}.normalised().length()), 1);
}

TEST(Vector, WithoutAUsableLengthItIsNotNormalised)
{
    Vector const tiny{0, 0, 1e-12};
    EXPECT_EQ(tiny.normalised(), tiny);
    double const infinity = std::numeric_limits<double>::infinity();
    EXPECT_EQ((Vector{infinity, 0, 0}.normalised()), (Vector{infinity, 0, 0}));
}

TEST(Vector, IsWrittenWithSixDecimals)
{
    EXPECT_EQ((Vector{1, -2.5, 0}.toString()), "(1.000000, -2.500000, 0.000000)");
    EXPECT_EQ((_2d::Vector{1, -2.5}.toString()), "(1.000000, -2.500000)");
}

TEST(Vector2d, TheCounterClockwiseAngleGoesOneWayRound)
{
    _2d::Vector const up{0, 1};
    EXPECT_DOUBLE_EQ(up.counterClockwiseAngle({-1, 0}), std::numbers::pi / 2);
    EXPECT_DOUBLE_EQ(up.counterClockwiseAngle({1, 0}), 3 * std::numbers::pi / 2);
    EXPECT_DOUBLE_EQ(up.counterClockwiseAngle({0, 7}), 0);
    EXPECT_DOUBLE_EQ(up.counterClockwiseAngle({0, 0}), 0);
}

TEST(Vector2d, TurnsAgainstTheClock)
{
    double const angleOfTriangle = std::atan2(4, 3);
    _2d::Vector const north = _2d::Vector{0, 1}.rotate(angleOfTriangle);
    EXPECT_NEAR(north.x, -0.8, 1e-15);
    EXPECT_NEAR(north.y, 0.6, 1e-15);
    EXPECT_DOUBLE_EQ((_2d::Vector{0, 1}.counterClockwiseAngle({-4, 3})), angleOfTriangle);
    EXPECT_DOUBLE_EQ((_2d::Vector{4, 3}.innerAngle({5, 0})), std::atan2(3, 4));
}

TEST(Vector2d, TheInnerAngleGoesTheShorterWayRound)
{
    _2d::Vector const up{0, 1};
    EXPECT_DOUBLE_EQ(up.innerAngle({-1, 0}), std::numbers::pi / 2);
    EXPECT_DOUBLE_EQ(up.innerAngle({1, 0}), std::numbers::pi / 2);
    EXPECT_DOUBLE_EQ(up.innerAngle({0, -1}), std::numbers::pi);
}

TEST(Vector2d, RotatingByTheAngleBetweenTwoLeadsFromOneToTheOther)
{
    _2d::Vector const from{0, 1};
    for (double angle = 0; angle < 6.2; angle += 0.1) {
        _2d::Vector const to = from.rotate(angle);
        EXPECT_NEAR(from.counterClockwiseAngle(to), angle, 1e-12);
        EXPECT_NEAR(to.length(), 1, 1e-12);
    }
}

} // namespace
