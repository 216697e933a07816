#include <OpenSG/OSGQuaternion.h>

#include <OpenSG/OSGBaseFunctions.h>

namespace osg {

template <class T>
const QuaternionBase<T> &QuaternionBase<T>::identity()
{
    static const QuaternionBase quaternion;
    return quaternion;
}

template <class T>
void QuaternionBase<T>::setValueAsQuat(T x, T y, T z, T w)
{
    m_values[0] = x;
    m_values[1] = y;
    m_values[2] = z;
    m_values[3] = w;
}

template <class T>
void QuaternionBase<T>::setValueAsAxisRad(const Vec &axis, T radians)
{
    Vec unit = axis;
    unit.normalize();
    if (unit.squareLength() == T(0)) {
        setIdentity();
        return;
    }
    unit *= std::sin(radians / 2);
    setValueAsQuat(unit.x(), unit.y(), unit.z(), std::cos(radians / 2));
}

template <class T>
void QuaternionBase<T>::setValueAsAxisDeg(const Vec &axis, T degrees)
{
    setValueAsAxisRad(axis, osgDegree2Rad(degrees));
}

template <class T>
void QuaternionBase<T>::setValue(const Mat &m)
{
    // Starts from the largest component, so that no small number is divided by.
    const T trace = m[0][0] + m[1][1] + m[2][2];
    if (trace > T(0)) {
        const T s = std::sqrt(trace + 1) * 2;
        setValueAsQuat((m[1][2] - m[2][1]) / s, (m[2][0] - m[0][2]) / s, (m[0][1] - m[1][0]) / s,
                       s / 4);
        return;
    }
    const UInt32 i = m[0][0] >= m[1][1] && m[0][0] >= m[2][2] ? 0 : m[1][1] >= m[2][2] ? 1 : 2;
    const UInt32 j = (i + 1) % 3, k = (i + 2) % 3;
    const T s = std::sqrt(m[i][i] - m[j][j] - m[k][k] + 1) * 2;
    m_values[i] = s / 4;
    m_values[j] = (m[i][j] + m[j][i]) / s;
    m_values[k] = (m[i][k] + m[k][i]) / s;
    m_values[3] = (m[j][k] - m[k][j]) / s;
}

template <class T>
void QuaternionBase<T>::setValue(const Vec &from, const Vec &to)
{
    Vec start = from, end = to;
    start.normalize();
    end.normalize();
    const T cosine = start.dot(end);
    if (cosine > T(-0.99999)) {
        const Vec axis = start.cross(end);
        setValueAsQuat(axis.x(), axis.y(), axis.z(), 1 + cosine);
        normalize();
        return;
    }
    // Half a turn, about any axis perpendicular to it.
    const bool isAlongX = std::abs(start.x()) > T(0.9);
    setValueAsAxisRad(start.cross(isAlongX ? Vec(0, 1, 0) : Vec(1, 0, 0)), T(Pi));
}

template <class T>
void QuaternionBase<T>::getValueAsAxisRad(Vec &axis, T &radians) const
{
    axis.setValues(x(), y(), z());
    const T sine = axis.length();
    if (sine < T(1e-7)) {
        axis.setValues(0, 0, 1);
        radians = 0;
        return;
    }
    axis /= sine;
    radians = 2 * std::atan2(sine, w());
}

template <class T>
void QuaternionBase<T>::getValueAsAxisRad(T &x, T &y, T &z, T &radians) const
{
    Vec axis;
    getValueAsAxisRad(axis, radians);
    x = axis.x();
    y = axis.y();
    z = axis.z();
}

template <class T>
void QuaternionBase<T>::getValueAsAxisDeg(Vec &axis, T &degrees) const
{
    getValueAsAxisRad(axis, degrees);
    degrees = osgRad2Degree(degrees);
}

template <class T>
void QuaternionBase<T>::getValueAsAxisDeg(T &x, T &y, T &z, T &degrees) const
{
    getValueAsAxisRad(x, y, z, degrees);
    degrees = osgRad2Degree(degrees);
}

template <class T>
void QuaternionBase<T>::getValue(Mat &matrix) const
{
    const T xx = x() * x(), yy = y() * y(), zz = z() * z();
    const T xy = x() * y(), xz = x() * z(), yz = y() * z();
    const T wx = w() * x(), wy = w() * y(), wz = w() * z();
    matrix =
        Mat(1 - 2 * (yy + zz), 2 * (xy - wz), 2 * (xz + wy), 0, 2 * (xy + wz), 1 - 2 * (xx + zz),
            2 * (yz - wx), 0, 2 * (xz - wy), 2 * (yz + wx), 1 - 2 * (xx + yy), 0, 0, 0, 0, 1);
}

template <class T>
T QuaternionBase<T>::length() const
{
    return Vector<T, 4>(m_values).length();
}

template <class T>
void QuaternionBase<T>::normalize()
{
    const T size = length();
    if (size == T(0))
        setIdentity();
    else
        setValueAsQuat(x() / size, y() / size, z() / size, w() / size);
}

template <class T>
void QuaternionBase<T>::invert()
{
    *this = inverse();
}

template <class T>
const QuaternionBase<T> QuaternionBase<T>::inverse() const
{
    QuaternionBase result;
    result.setValueAsQuat(-x(), -y(), -z(), w());
    return result;
}

template <class T>
void QuaternionBase<T>::mult(const QuaternionBase &other)
{
    const QuaternionBase a(*this), b(other);
    setValueAsQuat(a.w() * b.x() + a.x() * b.w() + a.y() * b.z() - a.z() * b.y(),
                   a.w() * b.y() - a.x() * b.z() + a.y() * b.w() + a.z() * b.x(),
                   a.w() * b.z() + a.x() * b.y() - a.y() * b.x() + a.z() * b.w(),
                   a.w() * b.w() - a.x() * b.x() - a.y() * b.y() - a.z() * b.z());
}

template <class T>
void QuaternionBase<T>::multLeft(const QuaternionBase &other)
{
    QuaternionBase result(other);
    result.mult(*this);
    *this = result;
}

template <class T>
void QuaternionBase<T>::multVec(const Vec &source, Vec &result) const
{
    Mat matrix;
    getValue(matrix);
    matrix.multMatrixVec(source, result);
}

template <class T>
QuaternionBase<T> QuaternionBase<T>::slerp(const QuaternionBase &from, const QuaternionBase &to,
                                           T t)
{
    const Vector<T, 4> start(from.m_values);
    Vector<T, 4> end(to.m_values);
    T cosine = start.dot(end);
    // A rotation has two quaternions; take the one that is nearer.
    if (cosine < T(0)) {
        cosine = -cosine;
        end = -end;
    }
    T startPart = 1 - t, endPart = t;
    // Nearly equal ones are mixed in a straight line.
    if (cosine < T(0.9999)) {
        const T angle = std::acos(cosine), sine = std::sin(angle);
        startPart = std::sin((1 - t) * angle) / sine;
        endPart = std::sin(t * angle) / sine;
    }
    const Vector<T, 4> mix = start * startPart + end * endPart;
    QuaternionBase result;
    result.setValueAsQuat(mix.x(), mix.y(), mix.z(), mix.w());
    result.normalize();
    return result;
}

template <class T>
bool QuaternionBase<T>::operator==(const QuaternionBase &other) const
{
    return std::equal(m_values, m_values + 4, other.m_values);
}

template <class T>
bool QuaternionBase<T>::equals(const QuaternionBase &other, T tolerance) const
{
    return Vector<T, 4>(m_values).equals(Vector<T, 4>(other.m_values), tolerance);
}

template class QuaternionBase<Real32>;

} // namespace osg
