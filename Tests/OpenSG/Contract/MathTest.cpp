#include <OpenSG/OSGMatrix.h>
#include <OpenSG/OSGQuaternion.h>
#include <OpenSG/OSGVector.h>

#include <gtest/gtest.h>

using namespace osg;

const Quaternion quarterTurn(Vec3f(0, 0, 2), 1.5707963f);

static void expectMoved(const Matrix &matrix, const Pnt3f &point, const Pnt3f &expected)
{
    Pnt3f moved;
    matrix.multMatrixPnt(point, moved);
    EXPECT_TRUE(moved.equals(expected, 1e-4f)) << moved[0] << " " << moved[1] << " " << moved[2];
}

TEST(Matrices, AreBuiltFromRowsAndStoredInColumns)
{
    const Matrix matrix(1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16);
    EXPECT_EQ(matrix[3][0], 4);
    EXPECT_EQ(matrix.getValues()[1], 5);
    Matrix rows;
    rows.setValue(matrix.getValues(), false);
    EXPECT_EQ(rows[0][3], 4);
    rows.transpose();
    EXPECT_EQ(rows, matrix);
}

TEST(Matrices, MultiplyInOrder)
{
    Matrix matrix, turn;
    matrix.setScale(2, 3, 4); // Each sets its part alone,
    matrix.setTranslate(1, 0, 0);
    turn.setRotate(quarterTurn);
    Vec3f direction;
    matrix.multMatrixVec(Vec3f(1, 1, 1), direction);
    EXPECT_EQ(direction, Vec3f(2, 3, 4)); // The translation moves points only.
    Matrix turnFirst = matrix, turnLast = matrix;
    turnFirst.mult(turn);
    expectMoved(turnFirst, Pnt3f(1, 0, 0), Pnt3f(1, 3, 0));
    turnLast.multLeft(turn);
    expectMoved(turnLast, Pnt3f(1, 0, 0), Pnt3f(0, 3, 0));
    matrix.setTransform(Vec3f(5, 0, 0)); // and this the whole.
    expectMoved(matrix, Pnt3f(1, 1, 1), Pnt3f(6, 1, 1));
}

TEST(Matrices, AreInverted)
{
    Matrix matrix, inverse;
    matrix.setTransform(Vec3f(1, 2, 3), quarterTurn, Vec3f(2, 3, 4));
    expectMoved(matrix, Pnt3f(1, 1, 1), Pnt3f(-2, 4, 7));
    ASSERT_TRUE(matrix.inverse(inverse));
    expectMoved(inverse, Pnt3f(-2, 4, 7), Pnt3f(1, 1, 1));
    matrix.invert();
    EXPECT_EQ(matrix, inverse);
}

TEST(Quaternions, TurnMultiplyInvertAndInterpolate)
{
    Quaternion twice = quarterTurn;
    twice.mult(quarterTurn);
    Matrix matrix;
    matrix.setRotate(quarterTurn);
    const std::pair<Quaternion, Vec3f> turns[] = {
        {quarterTurn, Vec3f(0, 1, 0)},
        {Quaternion(Vec3f(1, 0, 0), Vec3f(0, 0, 1)), Vec3f(0, 0, 1)},
        {quarterTurn.inverse(), Vec3f(0, -1, 0)},
        {Quaternion::slerp(Quaternion(), quarterTurn, 0.5f), Vec3f(1, 1, 0) * 0.70711f},
        {twice, Vec3f(-1, 0, 0)},
        {Quaternion(matrix), Vec3f(0, 1, 0)},
    };
    for (const auto &[turn, expected] : turns) {
        Vec3f turned;
        turn.multVec(Vec3f(1, 0, 0), turned);
        EXPECT_TRUE(turned.equals(expected, 1e-4f)) << turned[0] << " " << turned[1];
    }
}
