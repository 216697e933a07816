#include "Scene/qxPoseParts.h"

#include <algorithm>
#include <cmath>

namespace {

/// A 3x3 matrix of doubles, by row and column.
struct Square {
    double at[3][3] = {{1, 0, 0}, {0, 1, 0}, {0, 0, 1}};

    Square transposed() const
    {
        Square result;
        for (int r = 0; r < 3; ++r) {
            for (int c = 0; c < 3; ++c)
                result.at[r][c] = at[c][r];
        }
        return result;
    }

    /// Transposed inverse times determinant.
    Square cofactors() const
    {
        Square result;
        for (int r = 0; r < 3; ++r) {
            const double *a = at[(r + 1) % 3], *b = at[(r + 2) % 3];
            for (int c = 0; c < 3; ++c) {
                const int i = (c + 1) % 3, j = (c + 2) % 3;
                result.at[r][c] = a[i] * b[j] - a[j] * b[i];
            }
        }
        return result;
    }

    double determinant() const
    {
        const Square minors = cofactors();
        return at[0][0] * minors.at[0][0] + at[0][1] * minors.at[0][1] + at[0][2] * minors.at[0][2];
    }

    /// That of a rotation. It starts from the largest component, so that no small number divides.
    osg::Quaternion toQuaternion() const
    {
        const double trace = at[0][0] + at[1][1] + at[2][2];
        double q[4] = {at[2][1] - at[1][2], at[0][2] - at[2][0], at[1][0] - at[0][1], 1 + trace};
        if (trace <= 0) {
            const int d =
                at[1][1] > at[0][0] ? (at[2][2] > at[1][1] ? 2 : 1) : (at[2][2] > at[0][0] ? 2 : 0);
            const int j = (d + 1) % 3, k = (d + 2) % 3;
            q[3] = q[d];
            q[d] = 1 + at[d][d] - at[j][j] - at[k][k];
            q[j] = at[d][j] + at[j][d];
            q[k] = at[d][k] + at[k][d];
        }
        const double length = std::sqrt(q[0] * q[0] + q[1] * q[1] + q[2] * q[2] + q[3] * q[3]);
        osg::Quaternion result;
        result.setValueAsQuat(float(q[0] / length), float(q[1] / length), float(q[2] / length),
                              float(q[3] / length));
        return result;
    }
};

Square operator*(const Square &a, const Square &b)
{
    Square result;
    for (int r = 0; r < 3; ++r) {
        for (int c = 0; c < 3; ++c)
            result.at[r][c] =
                a.at[r][0] * b.at[0][c] + a.at[r][1] * b.at[1][c] + a.at[r][2] * b.at[2][c];
    }
    return result;
}

/// The orthogonal matrix nearest to \a m, which has an inverse: the mean of a matrix and its
/// inverse transposed, over and over.
Square nearestOrthogonal(Square m)
{
    for (int step = 0; step < 600; ++step) {
        const Square minors = m.cofactors();
        const double determinant = m.determinant();
        double change = 0;
        for (int i = 0; i < 9; ++i) {
            double &value = m.at[i / 3][i % 3];
            const double next = 0.5 * (value + minors.at[i / 3][i % 3] / determinant);
            change += std::abs(next - value);
            value = next;
        }
        if (change < 1e-14)
            break;
    }
    return m;
}

/// Turns \a symmetric into a diagonal matrix; gives the axes as columns.
Square diagonalize(Square &symmetric)
{
    Square axes;
    for (int step = 0; step < 60; ++step) {
        const int p = step % 3, q = (p + 1) % 3;
        const double offDiagonal = symmetric.at[p][q];
        if (std::abs(offDiagonal)
            < 1e-12 * (std::abs(symmetric.at[p][p]) + std::abs(symmetric.at[q][q])))
            continue;
        // At most an eighth of a turn: larger ones go round without end.
        const double difference = symmetric.at[q][q] - symmetric.at[p][p];
        const double angle = 0.5
            * std::atan2(std::copysign(2 * offDiagonal, offDiagonal * difference),
                         std::abs(difference));
        Square turn;
        turn.at[p][p] = turn.at[q][q] = std::cos(angle);
        turn.at[p][q] = std::sin(angle);
        turn.at[q][p] = -std::sin(angle);
        symmetric = turn.transposed() * symmetric * turn;
        axes = axes * turn;
    }
    return axes;
}

} // namespace

qxPoseParts::qxPoseParts(const osg::Matrix &pose) : translation(pose[3][0], pose[3][1], pose[3][2])
{
    Square m;
    for (osg::UInt32 r = 0; r < 3; ++r) {
        for (osg::UInt32 c = 0; c < 3; ++c)
            m.at[r][c] = double(pose[c][r]);
    }
    Square turn;
    if (m.determinant() != 0)
        turn = nearestOrthogonal(m);
    // A mirroring is no rotation: it goes into the factors.
    if (turn.determinant() < 0) {
        for (double(&row)[3] : turn.at) {
            for (double &value : row)
                value = -value;
        }
    }
    Square stretch = turn.transposed() * m;
    const Square axes = diagonalize(stretch);
    rotation = turn.toQuaternion();
    scaleOrientation = axes.toQuaternion();
    scale.setValues(osg::Real32(stretch.at[0][0]), osg::Real32(stretch.at[1][1]),
                    osg::Real32(stretch.at[2][2]));
}

bool qxPoseParts::isFinite() const
{
    osg::Matrix together;
    together.setTransform(translation, rotation, scale, scaleOrientation);
    return std::all_of(together.getValues(), together.getValues() + 16,
                       [](osg::Real32 number) { return std::isfinite(number); });
}
