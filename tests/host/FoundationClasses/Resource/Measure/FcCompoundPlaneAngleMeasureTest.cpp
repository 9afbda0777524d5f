#include "FoundationClasses/Resource/Measure/FcCompoundPlaneAngleMeasure.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

using qev::fc::resource::measure::FcCompoundPlaneAngleMeasure;
using testing::Each;
using testing::ElementsAre;
using testing::Ge;
using testing::Le;

TEST(CompoundAngle, AddsItsComponentsUp)
{
    EXPECT_EQ(FcCompoundPlaneAngleMeasure({90, 0, 0}).angleMeasure(), 90);
    EXPECT_DOUBLE_EQ(FcCompoundPlaneAngleMeasure({1, 30, 36}).angleMeasure(), 1.51);
    EXPECT_DOUBLE_EQ(FcCompoundPlaneAngleMeasure({0, 0, 0, 500000}).angleMeasure(), 0.5 / 3600);
    EXPECT_DOUBLE_EQ(FcCompoundPlaneAngleMeasure({-1, -30, -36}).angleMeasure(), -1.51);
}

TEST(CompoundAngle, WithoutComponentsIsZero)
{
    EXPECT_EQ(FcCompoundPlaneAngleMeasure().angleMeasure(), 0.0);
    EXPECT_EQ(FcCompoundPlaneAngleMeasure(std::vector<std::int64_t>()).angleMeasure(), 0.0);
    EXPECT_DOUBLE_EQ(FcCompoundPlaneAngleMeasure(std::vector<std::int64_t>{2}).angleMeasure(), 2);
}

TEST(CompoundAngle, IsTakenApartIntoComponentsOfOneSign)
{
    EXPECT_THAT(FcCompoundPlaneAngleMeasure(1.51).components(), ElementsAre(1, 30, 36, 0));
    EXPECT_THAT(FcCompoundPlaneAngleMeasure(-1.51).components(), ElementsAre(-1, -30, -36, 0));
    EXPECT_THAT(FcCompoundPlaneAngleMeasure(0.0).components(), ElementsAre(0, 0, 0, 0));
    for (double angle = -359.9; angle < 359.9; angle += 0.777) {
        auto const components = FcCompoundPlaneAngleMeasure(angle).components();
        if (angle < 0) {
            EXPECT_THAT(components, Each(Le(0))) << angle;
        } else {
            EXPECT_THAT(components, Each(Ge(0))) << angle;
        }
    }
}

TEST(CompoundAngle, RoundsUpThroughAllComponents)
{
    EXPECT_THAT(FcCompoundPlaneAngleMeasure(std::nextafter(2.0, 0.0)).components(), ElementsAre(2, 0, 0, 0));
}

TEST(CompoundAngle, ComesBackFromDegrees)
{
    for (auto const& components : {std::vector<std::int64_t>{48, 8, 13, 123456},
                                   {-122, -59, -59, -999999},
                                   {359, 59, 59, 999999},
                                   {0, 0, 0, 1}}) {
        FcCompoundPlaneAngleMeasure const angle(components);
        EXPECT_EQ(FcCompoundPlaneAngleMeasure(angle.angleMeasure()), angle);
    }
}

TEST(CompoundAngle, LeavesWholeTurnsOff)
{
    EXPECT_THAT(FcCompoundPlaneAngleMeasure(361.0).components(), ElementsAre(1, 0, 0, 0));
    EXPECT_THAT(FcCompoundPlaneAngleMeasure(std::nextafter(360.0, 0.0)).components(),
                ElementsAre(0, 0, 0, 0));
}

TEST(CompoundAngle, OfNoNumberIsZero)
{
    for (double const number : {std::nan(""), std::numeric_limits<double>::infinity()})
        EXPECT_THAT(FcCompoundPlaneAngleMeasure(number).components(), ElementsAre(0, 0, 0, 0));
    EXPECT_LE(std::abs(FcCompoundPlaneAngleMeasure(1e300).angleMeasure()), 360);
}

} // namespace
