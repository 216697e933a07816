#pragma once

#include <OpenSG/OSGVector.h>

#include <limits>

/// How the rays of the next pixels, to the right and upwards, differ from a ray (ray differentials,
/// Igehy 1999). Null for a ray without width.
struct qxRaySpread {
    bool isNull() const { return origin[0].squareLength() + direction[0].squareLength() <= 0.0f; }
    /// As if the pixels were so many times as wide.
    void scale(float factor)
    {
        for (int i = 0; i < 2; ++i) {
            origin[i] *= factor;
            direction[i] *= factor;
        }
    }

    osg::Vec3f origin[2];
    osg::Vec3f direction[2];
};

/// A part of a straight line. `direction` has length 1, so distances are those of the world.
struct qxRay {
    osg::Vec3f at(float distance) const { return origin + direction * distance; }

    osg::Vec3f origin;
    osg::Vec3f direction = osg::Vec3f(0, 0, -1);
    float near = 0;
    float far = std::numeric_limits<float>::infinity();
    qxRaySpread spread;
};
