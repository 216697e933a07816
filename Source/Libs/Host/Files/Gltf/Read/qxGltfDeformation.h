#pragma once

#include <OpenSG/OSGGeometry.h>

class qxGltfPrimitive;
class qxMemoryBudget;

/// Gives the geometry the morph targets and the joints of its vertices (osg::Deformation), if the
/// primitive has any; the budget pays. Throws qxGltfError when data are not as stated.
void qxGltfSetDeformation(const osg::GeometryPtr &geometry, const qxGltfPrimitive &primitive,
                          qxMemoryBudget &budget);
