#include "FoundationClasses/Resource/Topology/FcFaceBound.h"

#include "FoundationClasses/Resource/Geometry/FcCartesianPoint.h"
#include "FoundationClasses/Resource/Topology/FcPolyLoop.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace qev::fc::resource::topology;
using qev::fc::resource::geometry::FcCartesianPoint;
using testing::ElementsAre;

TEST(FaceBound, IsMadeOfALoopAndItsOrientation)
{
    auto const loop = std::make_shared<FcPolyLoop>();
    FcFaceBound const bound(loop, true);
    EXPECT_EQ(bound.Bound->get(), loop);
    EXPECT_TRUE(bound.Orientation.get());
    EXPECT_FALSE(FcFaceBound(loop, false).Orientation.get());
    EXPECT_FALSE(FcFaceBound().Bound->isSet());
}

TEST(PolyLoop, TakesItsCornersInOrder)
{
    auto const a = std::make_shared<FcCartesianPoint>();
    auto const b = std::make_shared<FcCartesianPoint>();
    FcPolyLoop loop;
    loop.vPolygonSet({a, b, a});
    EXPECT_THAT(loop.Polygon->get(), ElementsAre(a, b, a));
    loop.vPolygonSet({});
    EXPECT_TRUE(loop.Polygon->empty());
}

} // namespace
