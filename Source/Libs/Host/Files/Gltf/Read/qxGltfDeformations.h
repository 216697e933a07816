#pragma once

#include "Files/Gltf/Common/qxGltfJson.h"

#include <OpenSG/OSGGeometry.h>

class qxGltfNodes;
class qxGltfPrimitive;
struct qxGltfModel;

/// Gives the geometry the morph targets and the joints of its vertices (osg::Deformation), if the
/// primitive has any; the model's budget pays. Throws qxGltfError when data are not as stated.
void qxGltfSetDeformation(const osg::GeometryPtr &geometry, const qxGltfPrimitive &primitive,
                          qxGltfModel &model);
/// Gives the nodes the joints of their skins and the weights of their mesh's targets. Throws
/// qxGltfError when the data of a skin are not there.
void qxGltfSetDeformations(qxGltfModel &model, const qxGltfNodes &nodes);
