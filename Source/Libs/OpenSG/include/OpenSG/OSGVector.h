#pragma once

#include <OpenSG/OSGBaseTypes.h>

#include <algorithm>
#include <cmath>
#include <type_traits>

namespace osg {

template <class T, UInt32 N>
class Vector;

/// A position of N coordinates. Moves by vectors; the difference of two points is a vector.
template <class T, UInt32 N>
class Point {
public:
    typedef T ValueType;
    /// Whether these are one to N numbers.
    template <class... Values>
    using IfComponents = std::enable_if_t<sizeof...(Values) <= N && sizeof...(Values) >= 1
                                          && (std::is_arithmetic_v<Values> && ...)>;

    /// All coordinates 0.
    constexpr Point() = default;
    /// From the first coordinates; the others are 0.
    explicit constexpr Point(T x) : m_values{x} {}
    template <class X, class Y, class... Rest, class = IfComponents<X, Y, Rest...>>
    constexpr Point(X x, Y y, Rest... rest) : m_values{T(x), T(y), T(rest)...}
    {
    }
    /// From N numbers in memory.
    explicit Point(const T *values) { std::copy(values, values + N, m_values); }
    constexpr Point(const Point &) = default;

    /// A point is not set to a vector, nor to numbers in braces, which could be either.
    Point &operator=(const Point &) = default;
    Point &operator=(const Vector<T, N> &) = delete;

    /// Coordinates by index, and by letter as values; letters beyond the size do not compile.
    T &operator[](UInt32 index) { return m_values[index]; }
    const T &operator[](UInt32 index) const { return m_values[index]; }
    T x() const { return m_values[0]; }
    T y() const { return m_values[1]; }
    T z() const { return component<2>(); }
    T w() const { return component<3>(); }
    /// The N coordinates in memory.
    T *getValues() { return m_values; }
    const T *getValues() const { return m_values; }
    /// Sets the first coordinates; the others become 0.
    template <class... Values, class = IfComponents<Values...>>
    void setValues(Values... values)
    {
        *this = Point(values...);
    }
    void setNull() { *this = Point(); }

    /// Exact; equals() allows each coordinate to differ by \a tolerance.
    bool operator==(const Point &other) const
    {
        return std::equal(m_values, m_values + N, other.m_values);
    }
    bool operator!=(const Point &other) const { return !(*this == other); }
    /// Lexicographic.
    bool operator<(const Point &other) const
    {
        return std::lexicographical_compare(m_values, m_values + N, other.m_values,
                                            other.m_values + N);
    }
    bool equals(const Point &other, T tolerance) const
    {
        return std::equal(m_values, m_values + N, other.m_values,
                          [tolerance](T a, T b) { return std::abs(a - b) <= tolerance; });
    }

    /// The distance between two points, squared and plain.
    T dist2(const Point &other) const { return (*this - other).squareLength(); }
    T dist(const Point &other) const { return (*this - other).length(); }
    /// The vector from the origin to here.
    Vector<T, N> subZero() const { return Vector<T, N>(m_values); }

    /// The way from \a other to here.
    Vector<T, N> operator-(const Point &other) const { return subZero() -= other.subZero(); }
    /// Points move by vectors.
    Point operator-(const Vector<T, N> &by) const { return Point(*this).add(by, T(-1)); }
    Point operator+(const Vector<T, N> &by) const { return Point(*this).add(by, T(1)); }
    void operator-=(const Vector<T, N> &by) { add(by, T(-1)); }
    void operator+=(const Vector<T, N> &by) { add(by, T(1)); }
    /// Scales about the origin.
    Point operator*(T factor) const
    {
        Point result(*this);
        result *= factor;
        return result;
    }
    void operator*=(T factor)
    {
        for (T &value : m_values)
            value *= factor;
    }
    void operator/=(T divisor)
    {
        for (T &value : m_values)
            value /= divisor;
    }

protected:
    /// Adds \a other, that many times.
    Point &add(const Point &other, T factor)
    {
        for (UInt32 i = 0; i < N; ++i)
            m_values[i] += other.m_values[i] * factor;
        return *this;
    }

private:
    /// A coordinate that only larger points have.
    template <UInt32 Index>
    T component() const
    {
        static_assert(Index < N, "no such coordinate");
        return m_values[Index];
    }

    T m_values[N] = {};
};

/// A direction with a length. Converts from and to the point of its size.
template <class T, UInt32 N>
class Vector : public Point<T, N> {
public:
    using Point<T, N>::Point;
    constexpr Vector() = default;
    /// The way from the origin to \a point.
    constexpr Vector(const Point<T, N> &point) : Point<T, N>(point) {}

    /// Sums and differences of vectors are vectors.
    Vector operator+(const Vector &other) const { return Vector(*this) += other; }
    Vector operator-(const Vector &other) const { return Vector(*this) -= other; }
    Vector operator-() const { return *this * T(-1); }
    Vector &operator+=(const Vector &other)
    {
        this->add(other, T(1));
        return *this;
    }
    Vector &operator-=(const Vector &other)
    {
        this->add(other, T(-1));
        return *this;
    }
    /// There is a multiplication by a number, but no division: only /= divides.
    Vector operator*(T factor) const { return Point<T, N>::operator*(factor); }

    /// Product of the lengths and the cosine of the angle between.
    T dot(const Vector &other) const
    {
        T sum = 0;
        for (UInt32 i = 0; i < N; ++i)
            sum += (*this)[i] * other[i];
        return sum;
    }
    /// The dot product.
    T operator*(const Vector &other) const { return dot(other); }

    /// The vector perpendicular to both, right-handed; for three coordinates only.
    Vector cross(const Vector &other) const
    {
        static_assert(N == 3, "only vectors of three coordinates have a cross product");
        const Vector &a = *this;
        return Vector(a[1] * other[2] - a[2] * other[1], a[2] * other[0] - a[0] * other[2],
                      a[0] * other[1] - a[1] * other[0]);
    }
    /// The cross product.
    Vector operator%(const Vector &other) const { return cross(other); }

    /// The square is cheaper, and enough to compare.
    T squareLength() const { return dot(*this); }
    T length() const { return std::sqrt(squareLength()); }
    /// Makes the length 1; a zero vector stays.
    void normalize()
    {
        if (const T size = length(); size > T(0))
            *this /= size;
    }
};

template <class T, UInt32 N>
Vector<T, N> operator*(T factor, const Vector<T, N> &vector)
{
    return vector * factor;
}

typedef Vector<Real32, 2> Vec2f;
typedef Vector<Real32, 3> Vec3f;
typedef Vector<Real32, 4> Vec4f;
typedef Point<Real32, 2> Pnt2f;
typedef Point<Real32, 3> Pnt3f;
typedef Point<Real32, 4> Pnt4f;

} // namespace osg
