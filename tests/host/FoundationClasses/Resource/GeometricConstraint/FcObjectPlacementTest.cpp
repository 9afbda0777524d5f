#include "FoundationClasses/Resource/GeometricConstraint/FcLocalPlacement.h"

#include "Core/Math/Matrix.h"
#include "FoundationClasses/Data.h"
#include "FoundationClasses/Resource/GeometricConstraint/FcGridPlacement.h"
#include "FoundationClasses/Resource/GeometricConstraint/FcLinearPlacement.h"
#include "FoundationClasses/Resource/Geometry/FcAxis2Placement2D.h"
#include "FoundationClasses/Resource/Geometry/FcAxis2Placement3D.h"
#include "FoundationClasses/Resource/Geometry/FcCartesianPoint.h"
#include "FoundationClasses/Resource/Geometry/FcDirection.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace {

using namespace qev;
using namespace fc::resource::geometry;
using namespace fc::resource::geometricconstraint;
using math::Matrix;
using math::Vector;

constexpr double quarterTurn = std::numbers::pi / 2;

std::shared_ptr<FcCartesianPoint> point(std::vector<double> coordinates)
{
    auto result = std::make_shared<FcCartesianPoint>();
    result->Coordinates = std::move(coordinates);
    return result;
}

std::shared_ptr<FcDirection> direction(std::vector<double> ratios)
{
    auto result = std::make_shared<FcDirection>();
    result->DirectionRatios = std::move(ratios);
    return result;
}

std::shared_ptr<FcAxis2Placement3D> inSpace(std::vector<double> location, std::vector<double> axis = {},
                                            std::vector<double> refDirection = {})
{
    auto result = std::make_shared<FcAxis2Placement3D>();
    result->Location = point(std::move(location));
    if (!axis.empty())
        result->Axis = direction(std::move(axis));
    if (!refDirection.empty())
        result->RefDirection = direction(std::move(refDirection));
    return result;
}

std::shared_ptr<FcLocalPlacement> placement(FcAxis2Placement const& relative,
                                            std::shared_ptr<FcObjectPlacement> const& outer = nullptr)
{
    auto result = std::make_shared<FcLocalPlacement>();
    result->RelativePlacement = relative;
    result->PlacementRelTo = outer;
    return result;
}

void expectNear(Vector const& a, Vector const& b)
{
    EXPECT_LT((a - b).length(), 1e-12) << a.toString() << " is not " << b.toString();
}

void expectNear(Matrix const& a, Matrix const& b)
{
    expectNear(a.xAxis(), b.xAxis());
    expectNear(a.yAxis(), b.yAxis());
    expectNear(a.zAxis(), b.zAxis());
    expectNear(a.translation(), b.translation());
}

TEST(PlacementInSpace, StandsUprightWithoutAxes)
{
    expectNear(inSpace({1, 2, 3})->placementGet(), Matrix::createTranslation({1, 2, 3}));
}

TEST(PlacementInSpace, TurnsByItsAxes)
{
    auto const turned = inSpace({1, 2, 3}, {0, 0, 2}, {0, 5, 0})->placementGet();
    expectNear(turned, Matrix::createTranslation({1, 2, 3}) * Matrix::createZRotate(quarterTurn));
}

TEST(PlacementInSpace, TakesOnlyThePartOfTheReferenceDirectionThatIsAcross)
{
    auto const skew = inSpace({0, 0, 0}, {0, 0, 1}, {1, 0, 1})->placementGet();
    expectNear(skew, Matrix::identity());
}

TEST(PlacementInSpace, FindsAxesWhereTheyAreParallelOrNone)
{
    for (auto const& placed :
         {inSpace({0, 0, 0}, {1, 0, 0}, {1, 0, 0}), inSpace({0, 0, 0}, {0, 0, 1}, {0, 0, 1}),
          inSpace({0, 0, 0}, {0, 0, 0}, {0, 0, 0}), inSpace({0, 0, 0}, {1, 0, 0})}) {
        Matrix const matrix = placed->placementGet();
        EXPECT_NEAR(matrix.xAxis().length(), 1.0, 1e-12);
        EXPECT_NEAR(matrix.xAxis().dot(matrix.zAxis()), 0.0, 1e-12);
        expectNear(matrix.xAxis().cross(matrix.yAxis()), matrix.zAxis());
    }
}

TEST(PlacementInSpace, CountsWhatIsMissingAsTheOrigin)
{
    FcAxis2Placement3D const nowhere;
    expectNear(nowhere.placementGet(), Matrix::identity());
    expectNear(inSpace({7})->placementGet().translation(), {7, 0, 0});
    expectNear(inSpace({std::nan(""), 2, 3})->placementGet().translation(), {0, 2, 3});
}

TEST(AxisPlacement, IsTheIdentityWhenUnset)
{
    expectNear(FcAxis2Placement().transformationGet(), Matrix::identity());
}

TEST(AxisPlacement, OfThePlaneTurnsAboutTheUpright)
{
    auto const plane = std::make_shared<FcAxis2Placement2D>();
    plane->Location = point({1, 2});
    plane->RefDirection = direction({0, 1});
    expectNear(FcAxis2Placement(plane).transformationGet(),
               Matrix::createTranslation({1, 2, 0}) * Matrix::createZRotate(quarterTurn));
}

TEST(AxisPlacement, GivesBackTheTransformationItWasGiven)
{
    Matrix const matrix =
        Matrix::createTranslation({1, 2, 3}) * Matrix::createXRotate(0.3) * Matrix::createZRotate(1.2);
    FcAxis2Placement placed;
    placed.setTransformation(matrix);
    EXPECT_EQ(placed.tag(), FcAxis2Placement::Axis2Placement3D);
    expectNear(placed.transformationGet(), matrix);

    Matrix const flat = Matrix::createTranslation({1, 2, 0}) * Matrix::createZRotate(1.2);
    FcAxis2Placement plane(std::make_shared<FcAxis2Placement2D>());
    plane.setTransformation(flat);
    EXPECT_EQ(plane.tag(), FcAxis2Placement::Axis2Placement2D);
    expectNear(plane.transformationGet(), flat);
}

TEST(AxisPlacement, AChangeDoesNotMoveOthersThatUseTheSamePlacement)
{
    auto const data = fc::Data::create();
    auto const shared = inSpace({1, 2, 3});
    auto const moved = placement(shared);
    auto const other = placement(shared);
    data->entityAdd(moved, false);
    data->entityAdd(other, false);
    moved->RelativePlacement.edit([](FcAxis2Placement& placed) {
        placed.setTransformation(Matrix::createTranslation({9, 9, 9}));
    });
    expectNear(moved->absoluteMatrix().translation(), {9, 9, 9});
    expectNear(other->absoluteMatrix().translation(), {1, 2, 3});
    EXPECT_EQ(moved->RelativePlacement->entity()->getData(), data.get());
    data->changes().undo();
    expectNear(moved->absoluteMatrix().translation(), {1, 2, 3});
}

TEST(ObjectPlacement, IsRelativeToTheOnesAroundIt)
{
    auto const building = placement(inSpace({10, 0, 0}, {0, 0, 1}, {0, 1, 0}));
    auto const storey = placement(inSpace({0, 0, 3}), building);
    auto const wall = placement(inSpace({5, 0, 0}), storey);
    expectNear(wall->relativeMatrix().translation(), {5, 0, 0});
    expectNear(wall->absoluteMatrix().translation(), {10, 5, 3});
    expectNear(wall->absoluteMatrix().xAxis(), {0, 1, 0});
}

TEST(ObjectPlacement, IsAVirtualOperationOfEveryPlacement)
{
    auto const linear = std::make_shared<FcLinearPlacement>();
    expectNear(linear->absoluteMatrix(), Matrix::identity());
    linear->CartesianPosition = inSpace({1, 2, 3});
    std::shared_ptr<FcObjectPlacement> const any = linear;
    expectNear(any->absoluteMatrix().translation(), {1, 2, 3});
    auto const grid = std::make_shared<FcGridPlacement>();
    grid->PlacementRelTo = any;
    expectNear(grid->absoluteMatrix().translation(), {1, 2, 3});
}

TEST(ObjectPlacement, ACircleEnds)
{
    auto const data = fc::Data::create();
    auto const a = placement(inSpace({1, 0, 0}));
    auto const b = placement(inSpace({0, 1, 0}), a);
    data->entityAdd(b, false);
    a->PlacementRelTo = b;
    expectNear(a->absoluteMatrix().translation(), {1, 1, 0});
    a->PlacementRelTo = a;
    expectNear(a->absoluteMatrix().translation(), {1, 0, 0});
}

} // namespace
