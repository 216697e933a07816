#include "Files/Gltf/Write/qxGltfCameraPatch.h"

#include "Files/Gltf/Common/qxGltfExtras.h"
#include "Files/Gltf/Common/qxGltfState.h"
#include "qxUberCameraPool.h"

#include <algorithm>
#include <unordered_map>
#include <vector>

namespace {

/// Stands for infinity, which a parallel projection cannot have in a file.
constexpr float FarAway = 1e6f;

qxJson parallelJson(const qxUberCamera &camera)
{
    const float nearPlane = std::max(camera.nearPlane, 0.0f);
    return {{"xmag", qxGltfNumber(camera.height / 2)},
            {"ymag", qxGltfNumber(camera.height / 2)},
            {"znear", qxGltfNumber(nearPlane)},
            {"zfar", qxGltfNumber(camera.farPlane > nearPlane ? camera.farPlane : FarAway)}};
}

qxJson perspectiveJson(const qxUberCamera &camera)
{
    qxJson json = {{"yfov", qxGltfNumber(camera.fieldOfView)},
                   {"znear", qxGltfNumber(camera.nearPlane)}};
    if (camera.farPlane > camera.nearPlane)
        json["zfar"] = qxGltfNumber(camera.farPlane);
    return json;
}

/// What is shown as long as the file has no scenes.
qxJson nodesWithoutParent(const qxJson &json)
{
    const qxJson &nodes = qxGltfSection(json, "nodes");
    std::vector<bool> isChild(nodes.size(), false);
    for (const qxJson &node : nodes) {
        for (const qxJson &child : qxGltfMember(node, "children"))
            isChild[child.get<std::size_t>()] = true;
    }
    qxJson list = qxJson::array();
    for (std::size_t i = 0; i < isChild.size(); ++i) {
        if (!isChild[i])
            list.push_back(i);
    }
    return list;
}

qxJson cameraNodeJson(const qxUberCamera &camera, std::size_t index)
{
    qxJson json;
    json["camera"] = index;
    if (camera.toWorld != osg::Matrix::identity())
        json["matrix"] = qxGltfNumberList(camera.toWorld.getValues(), 16);
    return json;
}

} // namespace

qxJson qxGltfCamera(const qxUberCamera &camera)
{
    qxJson json;
    if (!camera.name.empty())
        json["name"] = camera.name;
    const bool isParallel = camera.fieldOfView <= 0;
    json["type"] = isParallel ? "orthographic" : "perspective";
    json[isParallel ? "orthographic" : "perspective"] =
        isParallel ? parallelJson(camera) : perspectiveJson(camera);
    return json;
}

void qxGltfKeepViewpoints(qxJson &json, const qxGltfOrigin &origin, const qxGltfState &after)
{
    std::unordered_map<int, const qxUberCamera *> viewpoints;
    for (std::size_t id = 0; id < origin.viewpoints.size(); ++id)
        viewpoints[origin.viewpoints[id]] = qxUberCameraPool::the()->get(int(id));
    for (const qxGltfNodeState &state : after.nodes) {
        const auto found = viewpoints.find(state.index);
        if (found == viewpoints.end() || !found->second)
            continue;
        const qxUberCamera &camera = *found->second;
        qxJson &node = json["nodes"][std::size_t(state.index)];
        const qxJson &extras = qxGltfMember(node, "extras");
        const qxJson &kept = qxGltfMember(extras, qxGltfKeys::viewpointName);
        const bool hasPose = !qxGltfMember(extras, qxGltfKeys::viewpoint).is_null();
        const qxJson &own =
            qxGltfMember(json["cameras"][node["camera"].get<std::size_t>()], "name");
        const std::string ownName = own.is_string() ? own.get<std::string>() : std::string();
        const std::string shownName = kept.is_string() ? kept.get<std::string>()
            : state.name.value_or("").empty()          ? ownName
                                                       : *state.name;
        if (shownName != camera.name)
            qxGltfSetExtra(node, qxGltfKeys::viewpointName, camera.name);
        if (!hasPose && qxGltfIsFinite(camera.toWorld)
            && state.node->getToWorld() != camera.toWorld)
            qxGltfSetExtra(node, qxGltfKeys::viewpoint,
                           qxGltfNumberList(camera.toWorld.getValues(), 16));
    }
}

void qxGltfAddViewpoints(qxJson &json, int scene, int first)
{
    const qxUberCameraPool &pool = *qxUberCameraPool::the();
    if (first >= pool.count())
        return;
    if (qxGltfSection(json, "scenes").empty()) {
        json["scene"] = 0;
        json["scenes"] = qxJson::array({{{"nodes", nodesWithoutParent(json)}}});
    }
    qxJson &roots = json["scenes"][std::size_t(std::max(scene, 0))]["nodes"];
    for (int id = first; id < pool.count(); ++id) {
        const qxUberCamera &camera = *pool.get(id);
        const std::size_t index = qxGltfSection(json, "cameras").size();
        roots.push_back(qxGltfSection(json, "nodes").size());
        json["cameras"].push_back(qxGltfCamera(camera));
        json["nodes"].push_back(cameraNodeJson(camera, index));
    }
}
