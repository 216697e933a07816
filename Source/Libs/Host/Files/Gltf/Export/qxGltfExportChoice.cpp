#include "Files/Gltf/Export/qxGltfExportChoice.h"

#include "qxNames.h"
#include "qxNodeWalk.h"

#include <algorithm>
#include <numeric>

qxGltfExportChoice::qxGltfExportChoice(const qxGltfEdited &scene, const qxGltfOrigin &origin,
                                       qxExportOptions::Extent extent, qxExport &result)
    : m_scene(scene), m_origin(origin), m_extent(extent), m_result(result),
      m_positions(qxGltfSection(scene.json, "nodes").size(), -1),
      m_parents(scene.state.nodes.size(), -1), m_isThere(scene.state.nodes.size(), false),
      m_isBare(scene.state.nodes.size(), false), m_numbers(scene.state.nodes.size(), -1)
{
    for (std::size_t i = 0; i < scene.nodes.size(); ++i) {
        m_positions[std::size_t(scene.nodes[i])] = int(i);
        for (const int child : scene.state.nodes[i].children)
            m_parents[std::size_t(child)] = int(i);
    }
    chooseShown();
    chooseJoints();
    setNumbers();
}

/// Whether a child, or behind the children a part, is one that the node shows.
bool qxGltfExportChoice::isChosen(int position, std::size_t child) const
{
    const qxGltfNodeState &node = state(position);
    const qxGltfNodeState &owner = node.sharesCoreOf ? state(*node.sharesCoreOf) : node;
    const int all = -2;
    return !owner.switchChoice || *owner.switchChoice == all || *owner.switchChoice == int(child);
}

/// Whether an own reason keeps the node and all below it out.
bool qxGltfExportChoice::isLeftOut(int position, QString &kind, QString &reason) const
{
    const qxGltfNodeState &node = state(position);
    kind = node.overlayLayer ? "overlay" : node.environment ? "environment" : "node";
    reason = node.overlayLayer ? "it would lie in the scene"
        : node.environment     ? "glTF has no place for surroundings"
        : !node.visible        ? "it is hidden"
                               : QString();
    return !reason.isEmpty();
}

void qxGltfExportChoice::tell(const QString &kind, int position, const QString &reason)
{
    m_result.losses +=
        {kind, qxText::fromUtf8(qxNames::pathOf(state(position).node)), true, reason};
}

void qxGltfExportChoice::chooseShown()
{
    const bool isEverything = m_extent == qxExportOptions::Everything;
    QString kind;
    QString reason;
    qxWalkTree(m_scene.state.roots, [&](int position, std::vector<int> &below) {
        if (!isEverything && isLeftOut(position, kind, reason))
            return tell(kind, position, reason);
        m_isThere[std::size_t(position)] = true;
        const std::vector<int> &children = state(position).children;
        for (std::size_t i = 0; i < children.size(); ++i) {
            if (isEverything || isChosen(position, i))
                below.push_back(children[i]);
            else
                tell("node", children[i], "the switch above it shows another one");
        }
        if (!isEverything)
            tellOfContents(position);
    });
}

void qxGltfExportChoice::tellOfContents(int position)
{
    const qxGltfNodeState &node = state(position);
    if (node.light && !node.lightOn)
        tell("light", position, "it is off");
    const std::size_t hidden = node.mesh.size() - parts(position).size();
    if (hidden > 0)
        tell("geometry", position,
             QStringLiteral("%1 of its %2 parts are hidden").arg(hidden).arg(node.mesh.size()));
}

/// Skins move with nodes that may be hidden.
void qxGltfExportChoice::chooseJoints()
{
    for (std::size_t i = 0; i < m_isThere.size(); ++i) {
        const int skin = qxGltfIndex(m_scene.json["nodes"][std::size_t(m_scene.nodes[i])], "skin");
        if (!m_isThere[i] || m_isBare[i] || skin < 0)
            continue;
        for (const qxJson &joint : m_scene.json["skins"][std::size_t(skin)]["joints"]) {
            int position = m_positions[joint.get<std::size_t>()];
            for (; position >= 0 && !m_isThere[std::size_t(position)];
                 position = m_parents[std::size_t(position)]) {
                m_isThere[std::size_t(position)] = true;
                m_isBare[std::size_t(position)] = true;
            }
        }
    }
}

/// Where all nodes are there they keep their places.
void qxGltfExportChoice::setNumbers()
{
    if (m_extent == qxExportOptions::Everything) {
        m_numbers = m_scene.nodes;
        m_order = m_positions;
        return;
    }
    qxWalkTree(m_scene.state.roots, [this](int position, std::vector<int> &below) {
        if (!m_isThere[std::size_t(position)])
            return;
        m_numbers[std::size_t(position)] = int(m_order.size());
        m_order.push_back(position);
        const std::vector<int> &children = state(position).children;
        below.insert(below.end(), children.begin(), children.end());
    });
}

int qxGltfExportChoice::numberOf(int fileNode) const
{
    const int position = m_positions[std::size_t(fileNode)];
    return position < 0 ? -1 : number(position);
}

std::vector<int> qxGltfExportChoice::numbersOf(const std::vector<int> &positions) const
{
    std::vector<int> numbers;
    for (const int position : positions) {
        if (number(position) >= 0)
            numbers.push_back(number(position));
    }
    return numbers;
}

std::vector<int> qxGltfExportChoice::children(int position) const
{
    return numbersOf(state(position).children);
}

int qxGltfExportChoice::meshOf(int position) const
{
    return qxGltfIndex(m_scene.json["nodes"][std::size_t(m_scene.nodes[std::size_t(position)])],
                       "mesh");
}

int qxGltfExportChoice::partOf(int position, std::size_t part) const
{
    const auto origin = m_origin.geometries.find(state(position).mesh[part]);
    const bool isFromFile =
        origin != m_origin.geometries.end() && origin->second.mesh == meshOf(position);
    return isFromFile ? origin->second.primitive : int(part);
}

std::vector<int> qxGltfExportChoice::parts(int position) const
{
    const qxGltfNodeState &node = state(position);
    std::vector<int> parts;
    if (m_extent == qxExportOptions::Everything) {
        const int mesh = meshOf(position);
        parts.resize(mesh < 0 ? 0 : m_scene.json["meshes"][std::size_t(mesh)]["primitives"].size());
        std::iota(parts.begin(), parts.end(), 0);
        return parts;
    }
    for (std::size_t i = 0; i < node.mesh.size(); ++i) {
        const bool isHidden = std::count(node.hiddenParts.begin(), node.hiddenParts.end(), int(i));
        if (!isHidden && isChosen(position, node.children.size() + i))
            parts.push_back(partOf(position, i));
    }
    return parts;
}
