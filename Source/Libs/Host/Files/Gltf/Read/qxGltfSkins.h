#pragma once

class qxGltfNodes;
struct qxGltfModel;

/// Gives the nodes the joints of their skins and the weights of their mesh's morph targets
/// (osg::Deformation). Throws qxGltfError when the data of a skin are not there.
void qxGltfSetSkins(qxGltfModel &model, const qxGltfNodes &nodes);
