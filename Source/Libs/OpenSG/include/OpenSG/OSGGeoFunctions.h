#pragma once

#include <OpenSG/OSGGeometry.h>

namespace osg {

/// Gives the geometry one normal per position: the mean over all triangles there. Null is ignored.
void calcVertexNormals(GeometryPtr geometry);

/// Gives each vertex the mean over those triangles at its position that are inclined to its own by
/// less than \a creaseAngle (radians), so that sharper edges stay visible. The normals get an index
/// of their own.
void calcVertexNormals(GeometryPtr geometry, Real32 creaseAngle);

} // namespace osg
