#include <OpenSG/OSGMatrix.h>

#include <OpenSG/OSGQuaternion.h>

namespace osg {

template <class T>
TransformationMatrix<T>::TransformationMatrix(T r00, T r01, T r02, T r03, T r10, T r11, T r12,
                                              T r13, T r20, T r21, T r22, T r23, T r30, T r31,
                                              T r32, T r33)
    : m_columns{Column(r00, r10, r20, r30), Column(r01, r11, r21, r31), Column(r02, r12, r22, r32),
                Column(r03, r13, r23, r33)}
{
}

template <class T>
const TransformationMatrix<T> &TransformationMatrix<T>::identity()
{
    static const TransformationMatrix matrix;
    return matrix;
}

template <class T>
void TransformationMatrix<T>::setIdentity()
{
    for (UInt32 column = 0; column < 4; ++column) {
        m_columns[column].setNull();
        m_columns[column][column] = T(1);
    }
}

template <class T>
void TransformationMatrix<T>::setValue(const T *values, bool columnMajor)
{
    for (UInt32 column = 0; column < 4; ++column) {
        for (UInt32 row = 0; row < 4; ++row)
            m_columns[column][row] =
                columnMajor ? values[column * 4 + row] : values[row * 4 + column];
    }
}

template <class T>
void TransformationMatrix<T>::setTranslate(const Vec &translation)
{
    for (UInt32 row = 0; row < 3; ++row)
        m_columns[3][row] = translation[row];
}

template <class T>
void TransformationMatrix<T>::setScale(const Vec &scale)
{
    for (UInt32 i = 0; i < 3; ++i)
        m_columns[i][i] = scale[i];
}

template <class T>
void TransformationMatrix<T>::setRotate(const Quat &rotation)
{
    TransformationMatrix turned;
    rotation.getValue(turned);
    for (UInt32 column = 0; column < 3; ++column) {
        for (UInt32 row = 0; row < 3; ++row)
            m_columns[column][row] = turned[column][row];
    }
}

template <class T>
void TransformationMatrix<T>::setTransform(const Vec &translation)
{
    setIdentity();
    setTranslate(translation);
}

template <class T>
void TransformationMatrix<T>::setTransform(const Quat &rotation)
{
    rotation.getValue(*this);
}

template <class T>
void TransformationMatrix<T>::setTransform(const Vec &translation, const Quat &rotation)
{
    rotation.getValue(*this);
    setTranslate(translation);
}

template <class T>
void TransformationMatrix<T>::setTransform(const Vec &translation, const Quat &rotation,
                                           const Vec &scale)
{
    rotation.getValue(*this);
    // rotation * scale: each column by its factor.
    for (UInt32 column = 0; column < 3; ++column)
        m_columns[column] *= scale[column];
    setTranslate(translation);
}

template <class T>
void TransformationMatrix<T>::setTransform(const Vec &translation, const Quat &rotation,
                                           const Vec &scale, const Quat &scaleOrientation)
{
    if (scaleOrientation == Quat::identity()) {
        setTransform(translation, rotation, scale);
        return;
    }
    Quat turned = rotation;
    turned.mult(scaleOrientation);
    setTransform(Vec(), turned, scale);
    TransformationMatrix back;
    back.setTransform(scaleOrientation.inverse());
    mult(back);
    setTranslate(translation);
}

template <class T>
void TransformationMatrix<T>::setTransform(const Vec &translation, const Quat &rotation,
                                           const Vec &scale, const Quat &scaleOrientation,
                                           const Vec &center)
{
    setTransform(translation, rotation, scale, scaleOrientation);
    // The center stays where it is, apart from the translation.
    Vec moved;
    multMatrixVec(center, moved);
    setTranslate(translation + center - moved);
}

template <class T>
typename TransformationMatrix<T>::Column TransformationMatrix<T>::multColumn(const Column &c) const
{
    Column result;
    for (UInt32 row = 0; row < 4; ++row) {
        result[row] = m_columns[0][row] * c[0] + m_columns[1][row] * c[1] + m_columns[2][row] * c[2]
            + m_columns[3][row] * c[3];
    }
    return result;
}

template <class T>
void TransformationMatrix<T>::multMatrixPnt(const Pnt &source, Pnt &result) const
{
    const Column moved = multColumn(Column(source.x(), source.y(), source.z(), T(1)));
    result.setValues(moved.x(), moved.y(), moved.z());
}

template <class T>
void TransformationMatrix<T>::multFullMatrixPnt(const Pnt &source, Pnt &result) const
{
    const Column moved = multColumn(Column(source.x(), source.y(), source.z(), T(1)));
    result.setValues(moved.x(), moved.y(), moved.z());
    if (moved.w() != T(0))
        result /= moved.w();
}

template <class T>
void TransformationMatrix<T>::multMatrixVec(const Vec &source, Vec &result) const
{
    const Column turned = multColumn(Column(source.x(), source.y(), source.z(), T(0)));
    result.setValues(turned.x(), turned.y(), turned.z());
}

template <class T>
void TransformationMatrix<T>::mult(const TransformationMatrix &other)
{
    // Copies, because a matrix may be multiplied by itself.
    const TransformationMatrix left(*this), right(other);
    for (UInt32 column = 0; column < 4; ++column)
        m_columns[column] = left.multColumn(right.m_columns[column]);
}

template <class T>
void TransformationMatrix<T>::multLeft(const TransformationMatrix &other)
{
    const TransformationMatrix right(*this), left(other);
    for (UInt32 column = 0; column < 4; ++column)
        m_columns[column] = left.multColumn(right.m_columns[column]);
}

/// The determinant of what is left of \a m without one row and one column, with its sign.
template <class T>
static double cofactor(const TransformationMatrix<T> &m, UInt32 column, UInt32 row)
{
    UInt32 c[3], r[3];
    for (UInt32 i = 0; i < 3; ++i) {
        c[i] = i < column ? i : i + 1;
        r[i] = i < row ? i : i + 1;
    }
    const auto at = [&](UInt32 i, UInt32 j) { return double(m[c[i]][r[j]]); };
    const double minor = at(0, 0) * (at(1, 1) * at(2, 2) - at(1, 2) * at(2, 1))
        - at(0, 1) * (at(1, 0) * at(2, 2) - at(1, 2) * at(2, 0))
        + at(0, 2) * (at(1, 0) * at(2, 1) - at(1, 1) * at(2, 0));
    return (column + row) % 2 ? -minor : minor;
}

template <class T>
static double determinant(const TransformationMatrix<T> &m)
{
    double sum = 0;
    for (UInt32 row = 0; row < 4; ++row)
        sum += double(m[0][row]) * cofactor(m, 0, row);
    return sum;
}

template <class T>
T TransformationMatrix<T>::det() const
{
    return T(determinant(*this));
}

template <class T>
bool TransformationMatrix<T>::inverse(TransformationMatrix &result) const
{
    // In double precision: cofactors of far-away scenes cancel badly in single.
    const double size = determinant(*this);
    if (size == 0.0)
        return false;
    const TransformationMatrix source(*this);
    for (UInt32 column = 0; column < 4; ++column) {
        for (UInt32 row = 0; row < 4; ++row)
            result[row][column] = T(cofactor(source, column, row) / size);
    }
    return true;
}

template <class T>
bool TransformationMatrix<T>::invert()
{
    return inverse(*this);
}

template <class T>
void TransformationMatrix<T>::transposed(TransformationMatrix &result) const
{
    const TransformationMatrix source(*this);
    result.setValue(source.getValues(), false);
}

template <class T>
void TransformationMatrix<T>::transpose()
{
    transposed(*this);
}

template <class T>
bool TransformationMatrix<T>::operator==(const TransformationMatrix &other) const
{
    return std::equal(m_columns, m_columns + 4, other.m_columns);
}

template <class T>
bool TransformationMatrix<T>::equals(const TransformationMatrix &other, T tolerance) const
{
    return std::equal(
        m_columns, m_columns + 4, other.m_columns,
        [tolerance](const Column &a, const Column &b) { return a.equals(b, tolerance); });
}

template class TransformationMatrix<Real32>;

} // namespace osg
