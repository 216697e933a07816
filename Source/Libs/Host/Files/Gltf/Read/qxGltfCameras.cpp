#include "Files/Gltf/Read/qxGltfCameras.h"

#include "Files/Gltf/Common/qxGltfExtras.h"
#include "Files/Gltf/Read/qxGltfModel.h"
#include "Files/Gltf/Read/qxGltfNodes.h"

#include <OpenSG/OSGTransform.h>

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

/// Where nodes stand. Very many may stand deep below the same ones, whose place is found once.
class Places {
public:
    const osg::Matrix &of(const osg::NodePtr &node)
    {
        std::vector<osg::NodePtr> open;
        for (osg::NodePtr at = node;
             at != osg::NullFC && m_known.count(at.getFieldContainerId()) == 0;
             at = at->getParent())
            open.push_back(at);
        for (auto at = open.rbegin(); at != open.rend(); ++at) {
            const osg::NodePtr parent = (*at)->getParent();
            osg::Matrix toWorld;
            if (parent != osg::NullFC)
                toWorld = m_known[parent.getFieldContainerId()];
            const auto transform = osg::TransformPtr::dcast((*at)->getCore());
            if (transform != osg::NullFC)
                toWorld.mult(transform->getMatrix());
            m_known[at->getFieldContainerId()] = toWorld;
        }
        return m_known[node.getFieldContainerId()];
    }

private:
    std::unordered_map<osg::UInt32, osg::Matrix> m_known;
};

} // namespace

std::vector<qxUberCamera> qxGltfCameras(qxGltfModel &model, const qxGltfNodes &nodes,
                                        qxGltfOrigin &origin)
{
    std::vector<qxUberCamera> cameras;
    Places places;
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
            extras.matrix(qxGltfKeys::viewpoint).value_or(places.of(nodes.node(index)));
        cameras.push_back(camera);
        origin.viewpoints.push_back(index);
    }
    return cameras;
}
