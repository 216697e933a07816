#pragma once

#include <OpenSG/OSGVector.h>

namespace osg {

template <class T>
class QuaternionBase;

/// A 4x4 matrix for column vectors. Stored as four columns, so `m[column][row]`.
template <class T>
class TransformationMatrix {
public:
    typedef T ValueType;
    typedef Vector<T, 3> Vec;
    typedef Point<T, 3> Pnt;
    typedef Vector<T, 4> Column;
    typedef QuaternionBase<T> Quat;

    /// The identity.
    TransformationMatrix() { setIdentity(); }
    /// The values row by row, as they stand on paper.
    TransformationMatrix(T r00, T r01, T r02, T r03, T r10, T r11, T r12, T r13, T r20, T r21,
                         T r22, T r23, T r30, T r31, T r32, T r33);

    static const TransformationMatrix &identity();

    void setIdentity();
    /// From 16 values, column by column as OpenGL has them unless said otherwise.
    void setValue(const T *values, bool columnMajor = true);
    /// 16 values, column by column.
    T *getValues() { return m_columns[0].getValues(); }
    const T *getValues() const { return m_columns[0].getValues(); }
    Column &operator[](UInt32 column) { return m_columns[column]; }
    const Column &operator[](UInt32 column) const { return m_columns[column]; }

    /// \name Parts
    /// Each overwrites its part only: the last column, the diagonal, the upper left 3x3.
    /// @{
    void setTranslate(const Vec &translation);
    void setTranslate(T x, T y, T z) { setTranslate(Vec(x, y, z)); }
    void setScale(const Vec &scale);
    void setScale(T x, T y, T z) { setScale(Vec(x, y, z)); }
    void setScale(T factor) { setScale(Vec(factor, factor, factor)); }
    void setRotate(const Quat &rotation);
    /// @}

    /// \name Whole transformations
    /// What is not given is the identity. In full: translation * center * rotation *
    /// scaleOrientation * scale * inverse scaleOrientation * inverse center.
    /// @{
    void setTransform(const Vec &translation);
    void setTransform(const Quat &rotation);
    void setTransform(const Vec &translation, const Quat &rotation);
    void setTransform(const Vec &translation, const Quat &rotation, const Vec &scale);
    void setTransform(const Vec &translation, const Quat &rotation, const Vec &scale,
                      const Quat &scaleOrientation);
    void setTransform(const Vec &translation, const Quat &rotation, const Vec &scale,
                      const Quat &scaleOrientation, const Vec &center);
    // There is no getTransform(): that of OpenSG 1.8 is wrong for what is turned and scaled
    // unevenly.
    /// @}

    /// \name Points and vectors
    /// The full form divides by w; vectors are not translated. Source and result may be the same.
    /// @{
    void multMatrixPnt(const Pnt &source, Pnt &result) const;
    void multFullMatrixPnt(const Pnt &source, Pnt &result) const;
    void multMatrixVec(const Vec &source, Vec &result) const;
    /// @}

    /// this = this * other
    void mult(const TransformationMatrix &other);
    /// this = other * this
    void multLeft(const TransformationMatrix &other);

    /// The determinant; 0 without inverse.
    T det() const;
    /// False, and no change, when there is no inverse.
    bool invert();
    bool inverse(TransformationMatrix &result) const;
    /// Swaps rows and columns.
    void transpose();
    void transposed(TransformationMatrix &result) const;

    bool operator==(const TransformationMatrix &other) const;
    bool operator!=(const TransformationMatrix &other) const { return !(*this == other); }
    bool equals(const TransformationMatrix &other, T tolerance) const;

private:
    Column multColumn(const Column &column) const;

    Column m_columns[4];
};

typedef TransformationMatrix<Real32> Matrix;
typedef Matrix Matrix4f;

extern template class TransformationMatrix<Real32>;

} // namespace osg
