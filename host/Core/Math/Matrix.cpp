#include "Core/Math/Matrix.h"

#include "Core/Math/Epsilon.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace qev::math {

Matrix::Matrix()
    : Matrix({1, 0, 0}, {0, 1, 0}, {0, 0, 1}, {0, 0, 0})
{
}

Matrix::Matrix(Vector const& xAxis, Vector const& yAxis, Vector const& zAxis, Point const& origin)
    : m_rows{{{xAxis.x, yAxis.x, zAxis.x, origin.x},
              {xAxis.y, yAxis.y, zAxis.y, origin.y},
              {xAxis.z, yAxis.z, zAxis.z, origin.z}}}
{
}

Matrix Matrix::createTranslation(Vector const& by)
{
    Matrix result;
    result.setTranslation(by);
    return result;
}

Matrix Matrix::createXRotate(double angle)
{
    double const sine = std::sin(angle);
    double const cosine = std::cos(angle);
    return {{1, 0, 0}, {0, cosine, sine}, {0, -sine, cosine}, {0, 0, 0}};
}

Matrix Matrix::createYRotate(double angle)
{
    double const sine = std::sin(angle);
    double const cosine = std::cos(angle);
    return {{cosine, 0, -sine}, {0, 1, 0}, {sine, 0, cosine}, {0, 0, 0}};
}

Matrix Matrix::createZRotate(double angle)
{
    double const sine = std::sin(angle);
    double const cosine = std::cos(angle);
    return {{cosine, sine, 0}, {-sine, cosine, 0}, {0, 0, 1}, {0, 0, 0}};
}

double Matrix::at(int row, int column) const
{
    if (row == 3)
        return column == 3 ? 1 : 0;
    return m_rows.at(static_cast<std::size_t>(row)).at(static_cast<std::size_t>(column));
}

void Matrix::setTranslation(Vector const& translation)
{
    m_rows[0][3] = translation.x;
    m_rows[1][3] = translation.y;
    m_rows[2][3] = translation.z;
}

Matrix Matrix::inverse() const
{
    double const size = determinant();
    if (!isInvertible())
        return {};
    Vector const x = xAxis();
    Vector const y = yAxis();
    Vector const z = zAxis();
    // The rows of the inverse are the cross products of the columns.
    Vector const first = (1 / size) * y.cross(z);
    Vector const second = (1 / size) * z.cross(x);
    Vector const third = (1 / size) * x.cross(y);
    Vector const origin = translation();
    Matrix result({first.x, second.x, third.x}, {first.y, second.y, third.y}, {first.z, second.z, third.z},
                  {});
    result.setTranslation({-first.dot(origin), -second.dot(origin), -third.dot(origin)});
    return result;
}

bool Matrix::isInvertible() const
{
    double const size = determinant();
    return std::isfinite(size) && size != 0;
}

Vector Matrix::getRotations() const
{
    // In the product about Z, X and Y the last row is (-cos x sin y, sin x, cos x cos y),
    // and the middle column is (-sin z cos x, cos z cos x, sin x).
    double const sineOfX = std::clamp(at(2, 1), -1.0, 1.0);
    double const cosineOfX = std::hypot(at(2, 0), at(2, 2));
    double const x = std::atan2(sineOfX, cosineOfX);
    if (cosineOfX <= Epsilon::current())
        return {x, 0, std::atan2(at(1, 0), at(0, 0))};
    return {x, std::atan2(-at(2, 0), at(2, 2)), std::atan2(-at(0, 1), at(1, 1))};
}

Point Matrix::transform(Point const& point) const { return transformDirection(point) + translation(); }

Vector Matrix::transformDirection(Vector const& direction) const
{
    return direction.x * xAxis() + direction.y * yAxis() + direction.z * zAxis();
}

Matrix operator*(Matrix const& left, Matrix const& right)
{
    return {left.transformDirection(right.xAxis()), left.transformDirection(right.yAxis()),
            left.transformDirection(right.zAxis()), left.transform(right.translation())};
}

Vector Matrix::axis(int column) const { return {at(0, column), at(1, column), at(2, column)}; }

double Matrix::determinant() const { return xAxis().dot(yAxis().cross(zAxis())); }

} // namespace qev::math
