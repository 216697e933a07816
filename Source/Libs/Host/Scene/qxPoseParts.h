#pragma once

#include <OpenSG/OSGMatrix.h>
#include <OpenSG/OSGQuaternion.h>

/// A pose taken apart, so that osg::Matrix::setTransform() of the parts gives it back. OpenSG's own
/// getTransform() does not give back what is turned and scaled unevenly.
///
/// A mirroring gives negative factors. A matrix without inverse has no rotation. Skewing and
/// perspective are lost.
struct qxPoseParts {
    explicit qxPoseParts(const osg::Matrix &pose);

    /// Whether the parts give a matrix of finite numbers.
    bool isFinite() const;

    osg::Vec3f translation;
    osg::Quaternion rotation;
    osg::Vec3f scale;
    osg::Quaternion scaleOrientation; ///< the axes along which it scales
};
