#include "Files/qxGltfCameras.h"

#include "Files/qxGltfExtras.h"
#include "Files/qxGltfModel.h"
#include "Files/qxGltfNodes.h"

namespace {

qxUberCamera cameraFrom(const tinygltf::Camera &values)
{
    qxUberCamera camera;
    camera.name = values.name;
    if (values.type == "orthographic") {
        camera.height = 2 * float(values.orthographic.ymag);
        camera.nearPlane = float(values.orthographic.znear);
        camera.farPlane = float(values.orthographic.zfar);
        return camera;
    }
    camera.fieldOfView = float(values.perspective.yfov);
    camera.nearPlane = float(values.perspective.znear);
    camera.farPlane = float(values.perspective.zfar);
    return camera;
}

} // namespace

std::vector<qxUberCamera> qxGltfCameras(qxGltfModel &model, const qxGltfNodes &nodes,
                                        qxGltfOrigin &origin)
{
    std::vector<qxUberCamera> cameras;
    for (const int index : nodes.order()) {
        const tinygltf::Node &node = model.typed.nodes[std::size_t(index)];
        if (node.camera < 0)
            continue;
        qxUberCamera camera = cameraFrom(model.typed.cameras[std::size_t(node.camera)]);
        if (!node.name.empty())
            camera.name = node.name;
        const qxGltfExtras extras(index, model.node(index), model.warnings);
        camera.name = extras.text(qxGltfKeys::viewpointName).value_or(camera.name);
        camera.toWorld =
            extras.matrix(qxGltfKeys::viewpoint).value_or(nodes.node(index)->getToWorld());
        cameras.push_back(camera);
        origin.viewpoints.push_back(index);
    }
    return cameras;
}
