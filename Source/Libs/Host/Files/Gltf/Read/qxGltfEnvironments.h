#pragma once

#include <OpenSG/OSGNode.h>

struct qxGltfModel;

/// Gives the node made of node `index`, an environment, the picture that its extras name. One that
/// cannot be read is a warning in the model.
void qxGltfSetEnvironmentPicture(qxGltfModel &model, int index, const osg::NodePtr &node);
