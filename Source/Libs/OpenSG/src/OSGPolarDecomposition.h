#pragma once

#include <OpenSG/OSGMatrix.h>

namespace osg {

/// The upper left 3x3 of a matrix taken apart into rotation * stretch, and the stretch into axes
/// and factors: scaleOrientation * scale * inverse scaleOrientation. Mirroring gives negative
/// factors.
struct PolarDecomposition {
    explicit PolarDecomposition(const Matrix &matrix);

    Matrix rotation;
    Matrix scaleOrientation;
    Vec3f scale;
};

} // namespace osg
