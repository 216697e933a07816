#pragma once

#include <OpenSG/OSGMatrix.h>

#include <algorithm>
#include <cmath>

/// Small mathematics of the renderer. Light is kept in vectors: red, green, blue, linear.

constexpr float qxPi = 3.14159265f;

inline osg::Vec3f qxProduct(const osg::Vec3f &a, const osg::Vec3f &b)
{
    return osg::Vec3f(a[0] * b[0], a[1] * b[1], a[2] * b[2]);
}

/// `a` at 0, `b` at 1.
template <class Value>
[[gnu::always_inline]] inline Value qxMixed(const Value &a, const Value &b, float share)
{
    return a * (1.0f - share) + b * share;
}

/// The share of light that is left after a way through something that attenuates it by so much per
/// length.
inline osg::Vec3f qxLeftAfter(const osg::Vec3f &attenuation, float length)
{
    return osg::Vec3f(std::exp(-attenuation[0] * length), std::exp(-attenuation[1] * length),
                      std::exp(-attenuation[2] * length));
}

inline float qxPeak(const osg::Vec3f &light)
{
    return std::max(light[0], std::max(light[1], light[2]));
}

inline osg::Vec3f qxNotNegative(const osg::Vec3f &light)
{
    return osg::Vec3f(std::max(light[0], 0.0f), std::max(light[1], 0.0f), std::max(light[2], 0.0f));
}

/// Of length 1; a null vector stays.
inline osg::Vec3f qxUnit(osg::Vec3f vector)
{
    vector.normalize();
    return vector;
}

inline bool qxIsFinite(const osg::Vec3f &v)
{
    return std::isfinite(v[0]) && std::isfinite(v[1]) && std::isfinite(v[2]);
}

/// `direction` as seen from the other side of a mirror with that normal.
inline osg::Vec3f qxMirrored(const osg::Vec3f &direction, const osg::Vec3f &normal)
{
    return direction - normal * (2.0f * direction.dot(normal));
}

/// Three axes at right angles, the third of them given.
struct qxFrame {
    explicit qxFrame(const osg::Vec3f &normal) : z(normal)
    {
        const osg::Vec3f other =
            std::fabs(normal[0]) > 0.7f ? osg::Vec3f(0, 1, 0) : osg::Vec3f(1, 0, 0);
        x = qxUnit(other.cross(normal));
        y = normal.cross(x);
    }

    osg::Vec3f toWorld(const osg::Vec3f &v) const { return x * v[0] + y * v[1] + z * v[2]; }
    osg::Vec3f toLocal(const osg::Vec3f &v) const
    {
        return osg::Vec3f(v.dot(x), v.dot(y), v.dot(z));
    }

    osg::Vec3f x, y, z;
};

/// A box along the axes; empty as long as nothing extended it.
struct qxBox {
    bool isEmpty() const { return !(lower[0] <= upper[0]); }
    osg::Vec3f centre() const { return (lower + upper) * 0.5f; }
    /// Of the sphere around the box; 0 when it is empty.
    float radius() const { return isEmpty() ? 0.0f : (upper - lower).length() * 0.5f; }
    osg::Vec3f corner(int number) const
    {
        return osg::Vec3f((number & 1 ? upper : lower)[0], (number & 2 ? upper : lower)[1],
                          (number & 4 ? upper : lower)[2]);
    }

    osg::Vec3f lower = osg::Vec3f(1, 1, 1);
    osg::Vec3f upper = osg::Vec3f(-1, -1, -1);
};
