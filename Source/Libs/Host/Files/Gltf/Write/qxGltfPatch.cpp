#include "Files/Gltf/Write/qxGltfPatch.h"

#include "Files/Gltf/Common/qxGltfExtras.h"
#include "Files/Gltf/Common/qxGltfLights.h"
#include "qxNodeWalk.h"

#include <algorithm>

namespace {

/// Writes or removes a member.
void setMember(qxJson &object, const char *name, const qxJson &value)
{
    if (value.is_null())
        object.erase(name);
    else
        object[name] = value;
}

/// The part of a pose that one member holds; null for the identity.
qxJson component(const qxGltfPose &pose, std::size_t begin, const std::vector<float> &identity)
{
    if (pose.kind != qxGltfPose::Components)
        return qxJson();
    const float *numbers = &pose.numbers[begin];
    if (std::equal(identity.begin(), identity.end(), numbers))
        return qxJson();
    return qxGltfNumberList(numbers, identity.size());
}

void writePose(qxJson &node, const qxGltfPose &before, const qxGltfPose &after)
{
    if (before == after)
        return;
    const struct {
        const char *name;
        std::size_t begin;
        std::vector<float> identity;
    } parts[] = {
        {"translation", 0, {0, 0, 0}}, {"rotation", 3, {0, 0, 0, 1}}, {"scale", 7, {1, 1, 1}}};
    for (const auto &part : parts) {
        const qxJson now = component(after, part.begin, part.identity);
        if (before.kind != after.kind || now != component(before, part.begin, part.identity))
            setMember(node, part.name, now);
    }
    setMember(node, "matrix",
              after.kind == qxGltfPose::Matrix
                  ? qxGltfNumberList(after.numbers.data(), after.numbers.size())
                  : qxJson());
}

/// What has come to stand still is a transform all the same: variants know a node without a name by
/// the type of its core.
void keepTransform(qxJson &node, const qxGltfNodeState &before, const qxGltfNodeState &after)
{
    const bool isTransform = !(before.pose == after.pose)
        && after.pose.kind == qxGltfPose::Components && !after.switchChoice
        && !after.transformChoice && !after.sharesCoreOf && !after.light;
    if (isTransform && !node.contains("translation") && !node.contains("rotation")
        && !node.contains("scale"))
        node["translation"] = {0.0, 0.0, 0.0};
}

template <class T>
qxJson optionalJson(const std::optional<T> &value)
{
    return value ? qxJson(*value) : qxJson();
}

qxJson listJson(const std::vector<float> &numbers)
{
    return numbers.empty() ? qxJson() : qxGltfNumberList(numbers.data(), numbers.size());
}

/// Writes an entry of the extras when it changed.
template <class T, class ToJson>
void writeExtra(qxJson &node, const char *key, const T &before, const T &after,
                const ToJson &toJson)
{
    if (!(before == after))
        qxGltfSetExtra(node, key, toJson(after));
}

void writeTransformStates(qxJson &node, const qxGltfTransformStates &before,
                          const qxGltfTransformStates &after)
{
    writeExtra(node, qxGltfKeys::poses, before.numbers, after.numbers, listJson);
    writeExtra(node, qxGltfKeys::poseNames, before.names, after.names,
               [](const std::vector<std::string> &names) {
                   return names.empty() ? qxJson() : qxJson(names);
               });
    writeExtra(node, qxGltfKeys::pose, before.selected, after.selected,
               [](int selected) { return selected < 0 ? qxJson() : qxJson(selected); });
    writeExtra(node, qxGltfKeys::inPose, before.isShown, after.isShown,
               [](bool shows) { return shows ? qxJson(true) : qxJson(); });
}

/// Whether the node has to say anew if it is shown. One without children may say so by a hidden
/// part, which would not hide the children that it has now.
bool changesVisibility(const qxGltfNodeState &before, const qxGltfNodeState &after)
{
    return before.visible != after.visible
        || (!after.visible && before.children.empty() && !after.children.empty());
}

void writeExtras(qxJson &node, const qxGltfNodeState &before, const qxGltfNodeState &after)
{
    writeExtra(node, qxGltfKeys::switchChoice, before.switchChoice, after.switchChoice,
               optionalJson<int>);
    writeExtra(node, qxGltfKeys::transformStates, before.switchTransforms, after.switchTransforms,
               listJson);
    writeExtra(node, qxGltfKeys::transformChoice, before.transformChoice, after.transformChoice,
               optionalJson<int>);
    if (changesVisibility(before, after) || before.hiddenParts != after.hiddenParts)
        qxGltfSetExtra(node, qxGltfKeys::hiddenParts,
                       after.hiddenParts.empty() ? qxJson() : qxJson(after.hiddenParts));
    writeExtra(node, qxGltfKeys::lightOn, before.lightOn, after.lightOn,
               [](bool on) { return on ? qxJson() : qxJson(false); });
    writeExtra(node, qxGltfKeys::overlay, before.overlayLayer.has_value(),
               after.overlayLayer.has_value(),
               [](bool overlay) { return overlay ? qxJson(true) : qxJson(); });
    writeExtra(node, qxGltfKeys::overlayLayer, before.overlayLayer.value_or(0),
               after.overlayLayer.value_or(0),
               [](osg::UInt32 layer) { return layer == 0 ? qxJson() : qxJson(layer); });
    writeExtra(node, qxGltfKeys::environment, before.environment, after.environment,
               [](bool environment) { return environment ? qxJson(true) : qxJson(); });
    writeTransformStates(node, before.transformStates, after.transformStates);
}

void writeMesh(qxJson &node, int mesh)
{
    setMember(node, "mesh", mesh < 0 ? qxJson() : qxJson(mesh));
    if (mesh >= 0)
        return;
    // Both mean something only together with a mesh.
    node.erase("skin");
    node.erase("weights");
}

std::vector<int> fileIndices(const qxGltfState &state)
{
    std::vector<int> indices;
    for (const qxGltfNodeState &node : state.nodes)
        indices.push_back(node.index);
    return indices;
}

} // namespace

qxGltfPatch::qxGltfPatch(qxJson &json, const qxGltfState &before, const qxGltfState &after)
    : m_json(json), m_before(before), m_after(after), m_ownersBefore(before.owners()),
      m_owners(after.owners()), m_indicesBefore(fileIndices(before)), m_indices(fileIndices(after))
{
    for (std::size_t i = 0; i < before.nodes.size(); ++i)
        m_known[before.nodes[i].index] = i;
}

std::vector<int> qxGltfPatch::write(const std::vector<int> &meshes, int scene)
{
    placeNewNodes();
    releaseLiveChildren();
    for (std::size_t i = 0; i < m_after.nodes.size(); ++i)
        writeNode(i, meshes[i]);
    removeUnmeantMarks();
    writeScene(scene);
    return m_indices;
}

void qxGltfPatch::placeNewNodes()
{
    for (int &index : m_indices) {
        if (index >= 0)
            continue;
        qxJson &nodes = m_json["nodes"];
        index = int(nodes.size());
        nodes.push_back(qxJson::object());
    }
}

/// Nodes that left the scene keep only those children that left it with them.
void qxGltfPatch::releaseLiveChildren()
{
    std::vector<bool> live(qxGltfSection(m_json, "nodes").size(), false);
    for (const int index : m_indices)
        live[std::size_t(index)] = true;
    for (const int index : m_indicesBefore) {
        if (live[std::size_t(index)])
            continue;
        m_hasLeft = true;
        qxJson &node = m_json["nodes"][std::size_t(index)];
        qxJson left = qxJson::array();
        for (const qxJson &child : qxGltfMember(node, "children")) {
            if (!live[child.get<std::size_t>()])
                left.push_back(child);
        }
        if (left.size() != qxGltfMember(node, "children").size())
            setMember(node, "children", left.empty() ? qxJson() : left);
    }
}

const qxGltfNodeState &qxGltfPatch::stateBefore(int index) const
{
    static const qxGltfNodeState nothing;
    const auto known = m_known.find(index);
    return known == m_known.end() ? nothing : m_before.nodes[known->second];
}

qxJson qxGltfPatch::indicesOf(const std::vector<int> &positions,
                              const std::vector<int> &indices) const
{
    qxJson list = qxJson::array();
    for (const int position : positions)
        list.push_back(indices[std::size_t(position)]);
    return list.empty() ? qxJson() : list;
}

void qxGltfPatch::writeNode(std::size_t position, int mesh)
{
    const int index = m_indices[position];
    const qxGltfNodeState &before = stateBefore(index);
    const qxGltfNodeState &after = m_after.nodes[position];
    // Looked up each time: what is added to the file's top level moves the rest.
    const auto node = [&]() -> qxJson & { return m_json["nodes"][std::size_t(index)]; };
    if (before.name != after.name)
        setMember(node(), "name", optionalJson(after.name));
    writePose(node(), before.pose, after.pose);
    keepTransform(node(), before, after);
    if (changesVisibility(before, after))
        writeVisibility(node(), after.visible);
    if (before.mesh != after.mesh)
        writeMesh(node(), mesh);
    const qxJson children = indicesOf(after.children, m_indices);
    if (children != indicesOf(before.children, m_indicesBefore))
        setMember(node(), "children", children);
    writeExtras(node(), before, after);
    writeSharing(node(), before, after);
    if (!(before.light == after.light))
        qxGltfWriteLight(m_json, node(), after.light ? &*after.light : nullptr);
}

/// A clone names the node whose core it shares, or tells its place in the list of nodes where that
/// name means another one. What named nothing must not begin to name something.
void qxGltfPatch::writeSharing(qxJson &node, const qxGltfNodeState &before,
                               const qxGltfNodeState &after)
{
    const auto ownerJson = [](const qxGltfState &state, const auto &owners, int owner, int index) {
        const std::optional<std::string> &name = state.nodes[std::size_t(owner)].name;
        return name && owners.at(*name) == owner ? qxJson(*name) : qxJson(index);
    };
    const qxJson &stated = qxGltfMember(qxGltfMember(node, "extras"), qxGltfKeys::sharesCoreOf);
    if (!after.sharesCoreOf) {
        const bool owns = after.switchChoice || after.transformChoice;
        const bool names = stated.is_string() && m_owners.count(stated.get<std::string>()) > 0;
        // A light that was left out because of the entry stays out.
        const bool hidesLight = !after.light && qxGltfLightOf(node) >= 0;
        if (before.sharesCoreOf || (!owns && names))
            qxGltfSetExtra(node, qxGltfKeys::sharesCoreOf, hidesLight ? qxJson(-1) : qxJson());
        return;
    }
    const int index = m_indices[std::size_t(*after.sharesCoreOf)];
    const qxJson now = ownerJson(m_after, m_owners, *after.sharesCoreOf, index);
    if (before.sharesCoreOf) {
        const int indexBefore = m_indicesBefore[std::size_t(*before.sharesCoreOf)];
        if (index == indexBefore
            && now == ownerJson(m_before, m_ownersBefore, *before.sharesCoreOf, indexBefore))
            return;
    }
    qxGltfSetExtra(node, qxGltfKeys::sharesCoreOf, now);
}

void qxGltfPatch::writeVisibility(qxJson &node, bool visible)
{
    const char *const name = "KHR_node_visibility";
    if (!visible) {
        node["extensions"][name]["visible"] = false;
        qxGltfUseExtension(m_json, name);
        return;
    }
    if (qxGltfMember(qxGltfMember(node, "extensions"), name).is_null()) // the part was hidden
        return;
    qxJson &visibility = node["extensions"][name];
    visibility.erase("visible");
    if (visibility.empty())
        qxGltfEraseExtension(node, name);
}

/// What the file marks as overlay or environment although it cannot be one where it stood must not
/// become one because it, or what is around it, changed.
void qxGltfPatch::removeUnmeantMarks()
{
    struct Open {
        int position;
        int parent;
        bool inOverlay;
    };
    std::vector<Open> tops;
    for (const int root : m_after.roots)
        tops.push_back({root, -1, false});
    bool hasEnvironment = false;
    QStringList warnings;
    qxWalkTree(tops, [&](const Open &next, std::vector<Open> &below) {
        const qxGltfNodeState &state = m_after.nodes[std::size_t(next.position)];
        const int index = m_indices[std::size_t(next.position)];
        qxJson &nodes = m_json["nodes"];
        qxJson &node = nodes[std::size_t(index)];
        const qxGltfExtras extras(index, node, warnings);
        const bool isCounted =
            next.parent >= 0 && qxGltfCountsChildren(nodes[std::size_t(next.parent)]);
        if (!state.overlayLayer && (next.inOverlay || !isCounted)
            && extras.flag(qxGltfKeys::overlay, false))
            qxGltfSetExtra(node, qxGltfKeys::overlay, qxJson());
        const bool inOverlay = next.inOverlay || state.overlayLayer;
        if (!state.environment && !hasEnvironment && !inOverlay && !isCounted
            && extras.has(qxGltfKeys::switchChoice) && extras.flag(qxGltfKeys::environment, false))
            qxGltfSetExtra(node, qxGltfKeys::environment, qxJson());
        hasEnvironment = hasEnvironment || state.environment;
        for (const int child : state.children)
            below.push_back({child, index, inOverlay});
    });
}

/// Scenes list no node that has a parent: what moved below another node leaves all of them.
void qxGltfPatch::takeChildrenFromScenes()
{
    std::vector<bool> isChild(qxGltfSection(m_json, "nodes").size(), false);
    for (const qxGltfNodeState &node : m_after.nodes) {
        for (const int child : node.children)
            isChild[std::size_t(m_indices[std::size_t(child)])] = true;
    }
    if (qxGltfSection(m_json, "scenes").empty())
        return;
    for (qxJson &scene : m_json["scenes"]) {
        qxJson left = qxJson::array();
        const qxJson &listed = qxGltfMember(scene, "nodes");
        for (const qxJson &node : listed) {
            if (!isChild[node.get<std::size_t>()])
                left.push_back(node);
        }
        if (left.size() != listed.size())
            setMember(scene, "nodes", left.empty() ? qxJson() : left);
    }
}

void qxGltfPatch::writeScene(int scene)
{
    const qxJson roots = indicesOf(m_after.roots, m_indices);
    // Without a scene every node without a parent is a root, also one that left.
    const bool rootsFollow = scene >= 0 || !m_hasLeft;
    if (rootsFollow && roots == indicesOf(m_before.roots, m_indicesBefore))
        return;
    takeChildrenFromScenes();
    if (scene < 0) {
        m_json["scene"] = 0;
        m_json["scenes"] = qxJson::array({qxJson::object()});
    }
    setMember(m_json["scenes"][std::size_t(std::max(scene, 0))], "nodes", roots);
}
