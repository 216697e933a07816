#include <OpenSG/OSGMatrix.h>
#include <OpenSG/OSGQuaternion.h>
#include <OpenSG/OSGVector.h>

#include <gtest/gtest.h>

using namespace osg;

namespace {

const Quaternion quarterTurn(Vec3f(0, 0, 2), 1.5707963f);

void expectMoved(const Matrix &matrix, const Pnt3f &point, const Pnt3f &expected)
{
    Pnt3f moved;
    matrix.multMatrixPnt(point, moved);
    EXPECT_TRUE(moved.equals(expected, 1e-4f)) << moved[0] << " " << moved[1] << " " << moved[2];
}

} // namespace

TEST(Matrices, AreBuiltFromRowsAndStoredInColumns)
{
    const Matrix matrix(1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16);
    EXPECT_EQ(matrix[3][0], 4);
    EXPECT_EQ(matrix.getValues()[1], 5);
}

TEST(Matrices, SetEachPartAloneAndMultiplyInOrder)
{
    Matrix matrix, turn;
    matrix.setScale(2, 3, 4);
    matrix.setTranslate(1, 0, 0);
    turn.setRotate(quarterTurn);
    expectMoved(matrix, Pnt3f(1, 1, 1), Pnt3f(3, 3, 4));
    Matrix turnFirst = matrix;
    turnFirst.mult(turn);
    expectMoved(turnFirst, Pnt3f(1, 0, 0), Pnt3f(1, 3, 0));
    Matrix turnLast = matrix;
    turnLast.multLeft(turn);
    expectMoved(turnLast, Pnt3f(1, 0, 0), Pnt3f(0, 3, 0));
}

TEST(Matrices, ComeApartAndAreUndoneByTheirInverse)
{
    Matrix matrix, again, inverse;
    matrix.setTransform(Vec3f(1, 2, 3), quarterTurn, Vec3f(2, 3, 4));
    Vec3f translation, scale;
    Quaternion rotation, scaleOrientation;
    matrix.getTransform(translation, rotation, scale, scaleOrientation);
    again.setTransform(translation, rotation, scale, scaleOrientation);
    expectMoved(again, Pnt3f(1, 1, 1), Pnt3f(-2, 4, 7));
    ASSERT_TRUE(matrix.inverse(inverse));
    expectMoved(inverse, Pnt3f(-2, 4, 7), Pnt3f(1, 1, 1));
}
