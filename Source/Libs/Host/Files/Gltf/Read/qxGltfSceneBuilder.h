#pragma once

struct qxGltfModel;
struct qxGltfScene;

/// Makes the scene of the model, whose materials it has already. Throws qxGltfError; what is left
/// out is a warning in the model.
void qxGltfBuildScene(qxGltfModel &model, qxGltfScene &scene);
