#include "Core/Math/Matrix.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <random>

namespace {

using namespace qev::math;

constexpr double quarterTurn = std::numbers::pi / 2;

void expectEqual(Vector const& actual, Vector const& expected, double tolerance = 1e-12)
{
    EXPECT_NEAR(actual.x, expected.x, tolerance);
    EXPECT_NEAR(actual.y, expected.y, tolerance);
    EXPECT_NEAR(actual.z, expected.z, tolerance);
}

void expectEqual(Matrix const& actual, Matrix const& expected, double tolerance = 1e-12)
{
    for (int row = 0; row < 4; ++row) {
        for (int column = 0; column < 4; ++column)
            EXPECT_NEAR(actual.at(row, column), expected.at(row, column), tolerance) << row << ", " << column;
    }
}

Matrix fromRotations(Vector const& angles)
{
    return Matrix::createZRotate(angles.z) * Matrix::createXRotate(angles.x) *
           Matrix::createYRotate(angles.y);
}

class RandomMatrices : public testing::Test
{
protected:
    double number(double limit) { return std::uniform_real_distribution<double>(-limit, limit)(m_random); }
    Vector vector(double limit) { return {number(limit), number(limit), number(limit)}; }
    Matrix placement()
    {
        return Matrix::createTranslation(vector(100)) * fromRotations(vector(std::numbers::pi));
    }

private:
    std::mt19937_64 m_random{1};
};

TEST(Matrix, TurnsAgainstTheClockAboutItsAxis)
{
    expectEqual(Matrix::createZRotate(quarterTurn).transform({1, 0, 0}), {0, 1, 0});
    expectEqual(Matrix::createXRotate(quarterTurn).transform({0, 1, 0}), {0, 0, 1});
    expectEqual(Matrix::createYRotate(quarterTurn).transform({0, 0, 1}), {1, 0, 0});
}

TEST(Matrix, TheTranslationMovesPointsAndNotDirections)
{
    Matrix const matrix = Matrix::createTranslation({1, 2, 3});
    expectEqual(matrix.transform({1, 1, 1}), {2, 3, 4});
    expectEqual(matrix.transformDirection({1, 1, 1}), {1, 1, 1});
    EXPECT_EQ(matrix.translation(), (Vector{1, 2, 3}));
}

/// The angle of the triangle with sides 3, 4 and 5 whose cosine is 0.6 and whose sine is 0.8.
double const angleOfTriangle = std::atan2(4, 3);

TEST(Matrix, HasTheFiguresOfATurnAndAMove)
{
    Matrix const turn = Matrix::createZRotate(angleOfTriangle);
    expectEqual(turn.xAxis(), {0.6, 0.8, 0});
    expectEqual(turn.yAxis(), {-0.8, 0.6, 0});
    Matrix const placed = Matrix::createTranslation({1, 2, 3}) * turn;
    expectEqual(placed.transform({5, 0, 0}), {4, 6, 3});
    expectEqual((turn * Matrix::createTranslation({5, 0, 0})).translation(), {3, 4, 0});
}

TEST(Matrix, HasTheFiguresOfAnInverse)
{
    Matrix const placed = Matrix::createTranslation({1, 2, 3}) * Matrix::createZRotate(angleOfTriangle);
    Matrix const back({0.6, -0.8, 0}, {0.8, 0.6, 0}, {0, 0, 1}, {-2.2, -0.4, -3});
    expectEqual(placed.inverse(), back);
    Matrix const stretched({2, 0, 0}, {0, 4, 0}, {0, 0, 5}, {6, 8, 10});
    Matrix const shrunk({0.5, 0, 0}, {0, 0.25, 0}, {0, 0, 0.2}, {-3, -2, -2});
    expectEqual(stretched.inverse(), shrunk);
}

TEST(Matrix, HasTheFiguresOfItsRotations)
{
    Matrix const aboutX({1, 0, 0}, {0, 0.6, 0.8}, {0, -0.8, 0.6}, {7, 8, 9});
    expectEqual(aboutX.getRotations(), {angleOfTriangle, 0, 0});
    Matrix const aboutY({0.6, 0, -0.8}, {0, 1, 0}, {0.8, 0, 0.6}, {});
    expectEqual(aboutY.getRotations(), {0, angleOfTriangle, 0});
    Matrix const aboutZ({0.6, 0.8, 0}, {-0.8, 0.6, 0}, {0, 0, 1}, {});
    expectEqual(aboutZ.getRotations(), {0, 0, angleOfTriangle});
    Matrix const axesInTurn({0, 1, 0}, {0, 0, 1}, {1, 0, 0}, {});
    expectEqual(axesInTurn.getRotations(), {quarterTurn, 0, quarterTurn});
}

TEST(Matrix, TurnsInTheOrderOfTheProduct)
{
    Matrix const aboutX = Matrix::createXRotate(quarterTurn);
    Matrix const aboutZ = Matrix::createZRotate(quarterTurn);
    expectEqual((aboutZ * aboutX).transform({0, 1, 0}), {0, 0, 1});
    expectEqual((aboutX * aboutZ).transform({0, 1, 0}), {-1, 0, 0});
}

TEST_F(RandomMatrices, AProductAppliesTheRightOneFirst)
{
    for (int i = 0; i < 50; ++i) {
        Matrix const left = placement();
        Matrix const right = placement();
        Vector const point = vector(10);
        expectEqual((left * right).transform(point), left.transform(right.transform(point)), 1e-9);
    }
}

TEST_F(RandomMatrices, TimesItsInverseIsTheIdentity)
{
    for (int i = 0; i < 50; ++i) {
        Matrix const matrix(vector(3), vector(3), vector(3), vector(100));
        ASSERT_TRUE(matrix.isInvertible());
        Matrix const inverse = matrix.inverse();
        double const tolerance = 1e-9;
        Matrix const product = matrix * inverse;
        for (int axis = 0; axis < 3; ++axis)
            EXPECT_NEAR(product.at(axis, axis), 1, tolerance);
        expectEqual(inverse.transform(matrix.transform({1, 2, 3})), {1, 2, 3}, 1e-7);
    }
}

TEST_F(RandomMatrices, TheInverseOfAProductUndoesTheLeftOneFirst)
{
    for (int i = 0; i < 50; ++i) {
        Matrix const left = placement();
        Matrix const right = placement();
        expectEqual((left * right).inverse(), right.inverse() * left.inverse(), 1e-9);
    }
}

TEST(Matrix, AFlatOneHasNoInverse)
{
    Matrix const flat({1, 0, 0}, {0, 1, 0}, {1, 1, 0}, {5, 5, 5});
    EXPECT_FALSE(flat.isInvertible());
    EXPECT_EQ(flat.inverse(), Matrix::identity());
}

TEST_F(RandomMatrices, RotationsTakenApartBuildTheSameMatrix)
{
    for (int i = 0; i < 200; ++i) {
        Matrix const matrix = fromRotations(vector(std::numbers::pi));
        expectEqual(fromRotations(matrix.getRotations()), matrix, 1e-9);
    }
}

TEST_F(RandomMatrices, RotationsInTheirUsualRangesComeBack)
{
    for (int i = 0; i < 50; ++i) {
        Vector const angles{number(1.5), number(3.1), number(3.1)};
        expectEqual(fromRotations(angles).getRotations(), angles, 1e-9);
    }
}

TEST(Matrix, AQuarterTurnAboutXStillBuildsTheSameMatrix)
{
    for (double const x : {quarterTurn, -quarterTurn}) {
        Matrix const matrix = fromRotations({x, 0.3, 0.9});
        Vector const angles = matrix.getRotations();
        EXPECT_EQ(angles.y, 0);
        expectEqual(fromRotations(angles), matrix, 1e-9);
    }
}

} // namespace
