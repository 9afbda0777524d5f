#include "Core/Math/Matrix.h"
#include "FoundationClasses/Core/ProductExtension/FcGrid.h"
#include "FoundationClasses/Data.h"
#include "FoundationClasses/Resource/GeometricConstraint/FcGridAxis.h"
#include "FoundationClasses/Resource/GeometricConstraint/FcGridPlacement.h"
#include "FoundationClasses/Resource/GeometricConstraint/FcLocalPlacement.h"
#include "FoundationClasses/Resource/GeometricConstraint/FcVirtualGridIntersection.h"
#include "FoundationClasses/Resource/Geometry/FcCartesianPoint.h"
#include "FoundationClasses/Resource/Geometry/FcCircle.h"
#include "FoundationClasses/Resource/Geometry/FcDirection.h"
#include "FoundationClasses/Resource/Geometry/FcLine.h"
#include "FoundationClasses/Resource/Geometry/FcPolyline.h"
#include "FoundationClasses/Resource/Geometry/FcTrimmedCurve.h"
#include "FoundationClasses/Resource/Geometry/FcVector.h"

#include <gtest/gtest.h>

#include <numbers>

namespace {

using namespace qev;
using namespace fc::resource::geometry;
using namespace fc::resource::geometricconstraint;
using fc::core::productextension::FcGrid;
using math::Matrix;
using math::Vector;
using Axis = std::shared_ptr<FcGridAxis>;
using Numbers = std::vector<double>;

std::shared_ptr<FcCartesianPoint> point(Numbers coordinates)
{
    auto result = std::make_shared<FcCartesianPoint>();
    result->Coordinates = std::move(coordinates);
    return result;
}

std::shared_ptr<FcDirection> direction(Numbers ratios)
{
    auto result = std::make_shared<FcDirection>();
    result->DirectionRatios = std::move(ratios);
    return result;
}

std::shared_ptr<FcPolyline> polyline(std::vector<Numbers> const& points)
{
    std::vector<std::shared_ptr<FcCartesianPoint>> made;
    for (auto const& coordinates : points)
        made.push_back(point(coordinates));
    auto result = std::make_shared<FcPolyline>();
    result->Points = fc::ReferenceList<FcCartesianPoint>(made);
    return result;
}

std::shared_ptr<FcLine> line(Numbers through, Numbers along)
{
    auto vector = std::make_shared<FcVector>();
    vector->Orientation = direction(std::move(along));
    vector->Magnitude = 5.0;
    auto result = std::make_shared<FcLine>();
    result->Pnt = point(std::move(through));
    result->Dir = vector;
    return result;
}

Axis axis(std::shared_ptr<FcCurve> const& curve, bool sameSense = true)
{
    auto result = std::make_shared<FcGridAxis>();
    result->AxisCurve = curve;
    result->SameSense = sameSense;
    return result;
}

std::shared_ptr<FcVirtualGridIntersection> crossing(std::vector<Axis> const& axes, Numbers offsets = {0, 0})
{
    auto result = std::make_shared<FcVirtualGridIntersection>();
    result->IntersectingAxes = fc::ReferenceList<FcGridAxis>(axes);
    result->OffsetDistances = std::move(offsets);
    return result;
}

/// A grid of one axis along X and one along Y, which cross at (4, 0).
struct GridPosition : testing::Test
{
    Axis alongX = axis(polyline({{0, 0}, {10, 0}}));
    Axis alongY = axis(polyline({{4, -5}, {4, 5}}));
    std::shared_ptr<FcGridPlacement> placement = std::make_shared<FcGridPlacement>();

    Matrix at(std::shared_ptr<FcVirtualGridIntersection> const& location) const
    {
        placement->PlacementLocation = location;
        return placement->relativeMatrix();
    }
    Vector placeAt(std::vector<Axis> const& axes, Numbers offsets = {0, 0}) const
    {
        return at(crossing(axes, std::move(offsets))).translation();
    }
};

void expectNear(Vector const& a, Vector const& b)
{
    EXPECT_LT((a - b).length(), 1e-12) << a.toString() << " is not " << b.toString();
}

TEST_F(GridPosition, IsWhereTheAxesCross)
{
    Matrix const matrix = at(crossing({alongX, alongY}));
    expectNear(matrix.translation(), {4, 0, 0});
    expectNear(matrix.xAxis(), {1, 0, 0});
    expectNear(matrix.yAxis(), {0, 1, 0});
    expectNear(at(crossing({alongY, alongX})).xAxis(), {0, 1, 0});
}

TEST_F(GridPosition, MovesAxesToTheirLeftAndUp)
{
    expectNear(placeAt({alongX, alongY}, {1, 2}), {2, 1, 0});
    expectNear(placeAt({alongX, alongY}, {1, 2, 3}), {2, 1, 3});
    expectNear(placeAt({alongX, alongY}, {}), {4, 0, 0});
    auto const downwards = axis(polyline({{4, -5}, {4, 5}}), false);
    expectNear(placeAt({alongX, downwards}, {1, 2}), {6, 1, 0});
}

TEST_F(GridPosition, TakesLinesAndPartsOfLinesForAxes)
{
    auto const skew = line({1, 1}, {3, 4});
    expectNear(placeAt({alongX, axis(skew)}), {0.25, 0, 0});

    auto const part = std::make_shared<FcTrimmedCurve>();
    part->BasisCurve = skew;
    part->SenseAgreement = true;
    expectNear(placeAt({alongX, axis(part)}, {0, -5}), {6.5, 0, 0});
    part->SenseAgreement = false;
    expectNear(placeAt({alongX, axis(part)}, {0, 5}), {6.5, 0, 0});

    expectNear(placeAt({alongX, axis(polyline({{4, -5}, {4, 1}, {4, 5}}))}), {4, 0, 0});
}

TEST_F(GridPosition, TurnsToTheDirectionThatIsGiven)
{
    placement->PlacementRefDirection = FcGridPlacementDirectionSelect(direction({0, 3, 0}));
    Matrix const matrix = at(crossing({alongX, alongY}));
    expectNear(matrix.xAxis(), {0, 1, 0});
    expectNear(matrix.yAxis(), {-1, 0, 0});
    expectNear(matrix.zAxis(), {0, 0, 1});
}

TEST_F(GridPosition, TurnsToTheOtherCrossing)
{
    placement->PlacementRefDirection = FcGridPlacementDirectionSelect(crossing({alongX, alongY}, {2, 0, 7}));
    expectNear(at(crossing({alongX, alongY})).xAxis(), {0, 1, 0});
    placement->PlacementRefDirection = FcGridPlacementDirectionSelect(crossing({alongX, alongY}));
    expectNear(at(crossing({alongX, alongY})).xAxis(), {1, 0, 0});
}

TEST_F(GridPosition, IsThatOfTheGridWhereNothingCrosses)
{
    EXPECT_EQ(at(nullptr), Matrix::identity());
    EXPECT_EQ(at(crossing({alongX})), Matrix::identity());
    EXPECT_EQ(at(crossing({alongX, axis(polyline({{0, 3}, {10, 3}}))})), Matrix::identity());
    EXPECT_EQ(at(crossing({alongX, axis(polyline({{4, -5}, {5, 0}, {4, 5}}))})), Matrix::identity());
    EXPECT_EQ(at(crossing({alongX, axis(polyline({{4, -5}}))})), Matrix::identity());
    EXPECT_EQ(at(crossing({alongX, axis(std::make_shared<FcLine>())})), Matrix::identity());
    EXPECT_EQ(at(crossing({alongX, axis(std::make_shared<FcCircle>())})), Matrix::identity());
    EXPECT_EQ(at(crossing({alongX, axis(nullptr)})), Matrix::identity());
}

// --- Whose coordinates they are ---------------------------------------------------------------------

struct PlacedGrid : GridPosition
{
    std::shared_ptr<fc::Data> data = fc::Data::create();
    std::shared_ptr<FcGrid> grid = std::make_shared<FcGrid>();

    PlacedGrid()
    {
        grid->UAxes = fc::ReferenceList<FcGridAxis>({alongX});
        grid->VAxes = fc::ReferenceList<FcGridAxis>({alongY});
        grid->ObjectPlacement =
            placedAt(Matrix::createTranslation({100, 0, 0}) * Matrix::createZRotate(std::numbers::pi / 2));
        placement->PlacementLocation = crossing({alongX, alongY});
        data->entityAdd(grid, false);
        data->entityAdd(placement, false);
    }
    static std::shared_ptr<FcLocalPlacement> placedAt(Matrix const& matrix)
    {
        auto result = std::make_shared<FcLocalPlacement>();
        result->RelativePlacement.edit([&matrix](auto& relative) { relative.setTransformation(matrix); });
        return result;
    }
};

TEST_F(PlacedGrid, GivesItsPlacementToWhatStandsAtItsAxes)
{
    expectNear(placement->absoluteMatrix().translation(), {100, 4, 0});
    expectNear(placement->absoluteMatrix().xAxis(), {0, 1, 0});

    auto const part = placedAt(Matrix::createTranslation({0, 0, 3}));
    part->PlacementRelTo = placement;
    data->entityAdd(part, false);
    expectNear(part->absoluteMatrix().translation(), {100, 4, 3});
}

TEST_F(PlacedGrid, StandsBackBehindThePlacementThatIsNamed)
{
    placement->PlacementRelTo = placedAt(Matrix::createTranslation({0, 20, 0}));
    expectNear(placement->absoluteMatrix().translation(), {4, 20, 0});
}

TEST_F(PlacedGrid, PlacedByItsOwnAxesCountsOnce)
{
    grid->ObjectPlacement = placement;
    expectNear(placement->absoluteMatrix().translation(), {4, 0, 0});
}

} // namespace
