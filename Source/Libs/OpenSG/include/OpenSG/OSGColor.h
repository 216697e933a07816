#pragma once

#include <OpenSG/OSGBaseTypes.h>

#include <algorithm>

namespace osg {

/// Red, green, blue from 0 to 1. Does not convert to other colours or to vectors.
template <class T>
class Color3 {
public:
    typedef T ValueType;

    /// Black.
    constexpr Color3() = default;
    constexpr Color3(T red, T green, T blue) : m_values{red, green, blue} {}
    /// From three numbers in memory.
    explicit Color3(const T *values) { std::copy(values, values + 3, m_values); }

    /// Channels by name as values, by index as variables.
    T red() const { return m_values[0]; }
    T green() const { return m_values[1]; }
    T blue() const { return m_values[2]; }
    T &operator[](UInt32 index) { return m_values[index]; }
    const T &operator[](UInt32 index) const { return m_values[index]; }

    /// All channels at once, and where they are in memory.
    void setValuesRGB(T red, T green, T blue) { *this = Color3(red, green, blue); }
    T *getValuesRGB() { return m_values; }
    const T *getValuesRGB() const { return m_values; }

    /// Exact.
    bool operator==(const Color3 &other) const
    {
        return std::equal(m_values, m_values + 3, other.m_values);
    }
    bool operator!=(const Color3 &other) const { return !(*this == other); }

private:
    T m_values[3] = {};
};

/// The same with alpha, 1 being opaque.
template <class T>
class Color4 {
public:
    typedef T ValueType;

    /// All 0, alpha included.
    constexpr Color4() = default;
    constexpr Color4(T red, T green, T blue, T alpha) : m_values{red, green, blue, alpha} {}
    /// From four numbers in memory.
    explicit Color4(const T *values) { std::copy(values, values + 4, m_values); }

    T red() const { return m_values[0]; }
    T green() const { return m_values[1]; }
    T blue() const { return m_values[2]; }
    T alpha() const { return m_values[3]; }
    T &operator[](UInt32 index) { return m_values[index]; }
    const T &operator[](UInt32 index) const { return m_values[index]; }

    /// All channels at once, and where they are in memory.
    void setValuesRGBA(T red, T green, T blue, T alpha) { *this = Color4(red, green, blue, alpha); }
    T *getValuesRGBA() { return m_values; }
    const T *getValuesRGBA() const { return m_values; }

    /// Exact.
    bool operator==(const Color4 &other) const
    {
        return std::equal(m_values, m_values + 4, other.m_values);
    }
    bool operator!=(const Color4 &other) const { return !(*this == other); }

private:
    T m_values[4] = {};
};

typedef Color3<Real32> Color3f;
typedef Color4<Real32> Color4f;

} // namespace osg
