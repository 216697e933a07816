#pragma once

#include <OpenSG/OSGMatrix.h>

namespace osg {

/// A rotation. The real part is w.
template <class T>
class QuaternionBase {
public:
    typedef T ValueType;
    typedef Vector<T, 3> Vec;
    typedef TransformationMatrix<T> Mat;

    /// No rotation.
    QuaternionBase() = default;
    QuaternionBase(const Vec &axis, T radians) { setValueAsAxisRad(axis, radians); }
    /// The shortest rotation that turns \a from into \a to.
    QuaternionBase(const Vec &from, const Vec &to) { setValue(from, to); }
    /// The rotation of a matrix without scale.
    explicit QuaternionBase(const Mat &matrix) { setValue(matrix); }

    static const QuaternionBase &identity();

    void setIdentity() { *this = QuaternionBase(); }
    /// The four numbers as they are; the caller keeps the length at 1.
    void setValueAsQuat(T x, T y, T z, T w);
    /// An axis of any length, 0 meaning no rotation, and an angle.
    void setValueAsAxisRad(const Vec &axis, T radians);
    void setValueAsAxisRad(T x, T y, T z, T radians) { setValueAsAxisRad(Vec(x, y, z), radians); }
    void setValueAsAxisDeg(const Vec &axis, T degrees);
    void setValueAsAxisDeg(T x, T y, T z, T degrees) { setValueAsAxisDeg(Vec(x, y, z), degrees); }
    /// As the constructors from a matrix and from two directions.
    void setValue(const Mat &matrix);
    void setValue(const Vec &from, const Vec &to);

    /// Axis of length 1 and angle; the z axis and 0 without rotation.
    void getValueAsAxisRad(T &x, T &y, T &z, T &radians) const;
    void getValueAsAxisRad(Vec &axis, T &radians) const;
    void getValueAsAxisDeg(T &x, T &y, T &z, T &degrees) const;
    void getValueAsAxisDeg(Vec &axis, T &degrees) const;
    /// The rotation as a matrix, all 16 values.
    void getValue(Mat &matrix) const;
    /// x, y, z, w.
    const T *getValues() const { return m_values; }

    /// The parts as values; w is the real one.
    T x() const { return m_values[0]; }
    T y() const { return m_values[1]; }
    T z() const { return m_values[2]; }
    T w() const { return m_values[3]; }
    T &operator[](UInt32 index) { return m_values[index]; }
    const T &operator[](UInt32 index) const { return m_values[index]; }

    T length() const;
    void normalize();
    /// Turns back by the same angle.
    void invert();
    const QuaternionBase inverse() const;

    /// this = this * other: \a other turns first.
    void mult(const QuaternionBase &other);
    /// this = other * this
    void multLeft(const QuaternionBase &other);
    void operator*=(const QuaternionBase &other) { mult(other); }
    /// Turns a vector. Source and result may be the same.
    void multVec(const Vec &source, Vec &result) const;

    /// The rotation \a t of the shorter way from \a from (0) to \a to (1).
    static QuaternionBase slerp(const QuaternionBase &from, const QuaternionBase &to, T t);

    bool operator==(const QuaternionBase &other) const;
    bool operator!=(const QuaternionBase &other) const { return !(*this == other); }
    bool equals(const QuaternionBase &other, T tolerance) const;

private:
    T m_values[4] = {0, 0, 0, 1};
};

typedef QuaternionBase<Real32> Quaternion;

extern template class QuaternionBase<Real32>;

} // namespace osg
