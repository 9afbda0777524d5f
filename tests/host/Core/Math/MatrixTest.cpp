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
