#pragma once

#include <OpenSG/OSGVector.h>

#include <limits>

/// A part of a straight line. `direction` has length 1, so distances are those of the world.
struct qxRay {
    osg::Vec3f at(float distance) const { return origin + direction * distance; }

    osg::Vec3f origin;
    osg::Vec3f direction = osg::Vec3f(0, 0, -1);
    float near = 0;
    float far = std::numeric_limits<float>::infinity();
};
