#pragma once

#include <OpenSG/OSGGeometry.h>

namespace osg {

/// A node with a box around the origin as its core. The counts say how many parts each side is cut
/// into along x, y and z; all at least 1. Has normals, texture coordinates and the default
/// material.
NodePtr makeBox(Real32 xsize, Real32 ysize, Real32 zsize, UInt16 hor, UInt16 vert, UInt16 depth);
/// The same without a node.
GeometryPtr makeBoxGeo(Real32 xsize, Real32 ysize, Real32 zsize, UInt16 hor, UInt16 vert,
                       UInt16 depth);

/// One grey SimpleMaterial for all that has no other.
MaterialPtr getDefaultMaterial();
/// The same, shown as it is without lights.
MaterialPtr getDefaultUnlitMaterial();

} // namespace osg
