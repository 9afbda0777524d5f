#pragma once

#include "Core/Math/Vector.h"
#include "HostCoreExport.h"

#include <array>
#include <optional>

namespace qev::math {

/// An affine map of space: a 4 by 4 matrix whose last row is 0, 0, 0, 1.
///
/// It is applied to columns: `(a * b).transform(p)` is `a.transform(b.transform(p))`.
class HOSTCORE_EXPORT Matrix
{
public:
    /// The identity.
    Matrix();

    /// The map that takes the axes to these vectors and the origin to \p origin.
    Matrix(Vector const& xAxis, Vector const& yAxis, Vector const& zAxis, Point const& origin);

    static Matrix identity() { return {}; }
    static Matrix createTranslation(Vector const& by);
    /// Turns by \p angle radians about an axis; seen from its tip, against the clock.
    static Matrix createXRotate(double angle);
    static Matrix createYRotate(double angle);
    static Matrix createZRotate(double angle);

    /// The element in \p row and \p column, both from 0 to 3.
    [[nodiscard]] double at(int row, int column) const;

    [[nodiscard]] Vector xAxis() const { return axis(0); }
    [[nodiscard]] Vector yAxis() const { return axis(1); }
    [[nodiscard]] Vector zAxis() const { return axis(2); }
    [[nodiscard]] Vector translation() const { return axis(3); }
    void setTranslation(Vector const& translation);

    /// The map back. A map that squeezes space flat has none: the result is the identity.
    /// Ask `isInvertible` where that makes a difference.
    [[nodiscard]] Matrix inverse() const;
    [[nodiscard]] bool isInvertible() const;

    /// The rotations about the three axes, in radians, such that
    /// `createZRotate(z) * createXRotate(x) * createYRotate(y)` is the rotation of this map.
    ///
    /// The map has to keep lengths and angles. Where x is a quarter turn, y and z turn about the same
    /// axis, and y is given as 0.
    [[nodiscard]] Vector getRotations() const;

    [[nodiscard]] Point transform(Point const& point) const;
    /// Maps a direction, to which the translation does not apply.
    [[nodiscard]] Vector transformDirection(Vector const& direction) const;

    friend HOSTCORE_EXPORT Matrix operator*(Matrix const& left, Matrix const& right);
    friend bool operator==(Matrix const&, Matrix const&) = default;

private:
    [[nodiscard]] Vector axis(int column) const;
    [[nodiscard]] double determinant() const;

    /// The first three rows.
    std::array<std::array<double, 4>, 3> m_rows;
};

} // namespace qev::math
