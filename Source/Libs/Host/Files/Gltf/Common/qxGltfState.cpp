#include "Files/Gltf/Common/qxGltfState.h"

#include "Files/Gltf/Common/qxGltfCores.h"
#include "OSGOverlayCore.h"
#include "Scene/qxNodeName.h"
#include "qxNodeUtils.h"

#include <OpenSG/OSGSimpleAttachments.h>

#include <algorithm>
#include <limits>

namespace {

/// Builds the description of a scene, node by node.
class Describer {
public:
    Describer(const qxGltfOrigin &origin, qxGltfState &state) : m_origin(origin), m_state(state) {}

    void describeAll(const std::vector<osg::NodePtr> &roots);
    void describeMoved(const std::vector<osg::NodePtr> &nodes, const osg::NodePtr &environment);
    void findSharers();

private:
    struct Open {
        osg::NodePtr node;
        int parent;
    };

    /// A tree that stands outside of that of the scene, and where its nodes begin. Its parent is
    /// known once it is put back.
    struct Moved {
        osg::UInt32 node;
        int begin;
        int parent;
    };

    int fileIndex(const osg::NodePtr &node) const;
    bool isUpper(const osg::NodePtr &node) const;
    std::vector<osg::NodePtr> children(const osg::NodePtr &node, qxGltfNodeState &state);
    void takeParts(std::vector<osg::NodePtr> &nodes, bool onlyLast, qxGltfNodeState &state);
    void addPart(const osg::NodePtr &node, qxGltfNodeState &state);
    void describe(const Open &open, std::vector<Open> &rest);
    bool isBelow(int position, std::size_t moved) const;
    void putBack(std::size_t moved);
    int ownerOf(const std::vector<int> &sharers, osg::UInt32 core) const;

    const qxGltfOrigin &m_origin;
    qxGltfState &m_state;
    std::unordered_map<osg::UInt32, std::vector<int>> m_sharers; ///< per switch core
    std::vector<Moved> m_moved;
    std::unordered_map<int, int> m_positions; ///< of nodes of the file, by their index there
};

bool isNamed(const osg::NodePtr &node)
{
    return osg::getName(node) != nullptr;
}

int Describer::fileIndex(const osg::NodePtr &node) const
{
    const auto found = m_origin.nodes.find(node.getFieldContainerId());
    return found == m_origin.nodes.end() ? -1 : found->second;
}

/// Whether the node only says something about the node below it, which has no place for it: where a
/// switch or a light stands, or that it is an overlay.
bool Describer::isUpper(const osg::NodePtr &node) const
{
    const bool isOverlay = osg::OverlayCorePtr::dcast(node->getCore()) != osg::NullFC;
    if (isNamed(node) || node->getTravMask() == 0 || node->getNChildren() != 1
        || !(isOverlay || qxGltfIsPlainTransform(node->getCore())))
        return false;
    const bool madeForFile = m_origin.uppers.count(node.getFieldContainerId()) > 0;
    if (!qxGltfNeedsPose(node->getChild(0)->getCore()))
        return isOverlay && madeForFile;
    // What are two nodes in the file stay two.
    return madeForFile || fileIndex(node) < 0;
}

void Describer::addPart(const osg::NodePtr &node, qxGltfNodeState &state)
{
    const osg::GeometryPtr geometry = osg::GeometryPtr::dcast(node->getCore());
    state.mesh.push_back(geometry.getFieldContainerId());
    m_state.geometries[geometry.getFieldContainerId()] = geometry;
}

/// Moves geometries from `nodes` into the mesh: with `onlyLast` those behind all other nodes,
/// because a switch counts its children.
void Describer::takeParts(std::vector<osg::NodePtr> &nodes, bool onlyLast, qxGltfNodeState &state)
{
    auto begin = std::find_if_not(nodes.rbegin(), nodes.rend(), qxIsPart).base();
    if (!onlyLast)
        begin = std::stable_partition(nodes.begin(), nodes.end(),
                                      [](const osg::NodePtr &node) { return !qxIsPart(node); });
    for (auto node = begin; node != nodes.end(); ++node) {
        if ((*node)->getTravMask() == 0)
            state.hiddenParts.push_back(int(state.mesh.size()));
        addPart(*node, state);
    }
    nodes.erase(begin, nodes.end());
}

std::vector<osg::NodePtr> Describer::children(const osg::NodePtr &node, qxGltfNodeState &state)
{
    if (osg::GeometryPtr::dcast(node->getCore()) != osg::NullFC)
        addPart(node, state);
    const osg::MFNodePtr &all = *node->getMFChildren();
    std::vector<osg::NodePtr> nodes(all.begin(), all.end());
    takeParts(nodes, qxGltfIsSwitch(node->getCore()), state);
    return nodes;
}

void Describer::describe(const Open &open, std::vector<Open> &rest)
{
    osg::NodePtr node = open.node;
    qxGltfNodeState above;
    for (; isUpper(node); node = node->getChild(0))
        qxGltfDescribeCore(node, above);
    const int position = int(m_state.nodes.size());
    (open.parent < 0 ? m_state.roots : m_state.nodes[std::size_t(open.parent)].children)
        .push_back(position);

    m_state.nodes.emplace_back();
    qxGltfNodeState &state = m_state.nodes.back();
    state.node = node;
    state.index = fileIndex(node);
    m_positions.emplace(state.index, position);
    if (isNamed(node))
        state.name = osg::getName(node);
    else if (osg::GeometryPtr::dcast(node->getCore()) != osg::NullFC
             && osg::getName(node->getCore()))
        state.name = osg::getName(node->getCore()); // by which it is found
    state.visible = node->getTravMask() != 0;
    qxGltfDescribeCore(node, state);
    qxGltfDescribeTransformStates(node, state.transformStates);
    if (above.pose.kind != qxGltfPose::None)
        state.pose = above.pose;
    if (above.overlayLayer)
        state.overlayLayer = above.overlayLayer;
    if (state.switchChoice || state.transformChoice)
        m_sharers[node->getCore().getFieldContainerId()].push_back(position);
    const std::vector<osg::NodePtr> below = children(node, state);
    for (auto child = below.rbegin(); child != below.rend(); ++child)
        rest.push_back({*child, position});
}

/// The one of the nodes with this core whose entry describes it: the environment, which cannot be a
/// clone, else the one of the file when it is still there, else the first.
int Describer::ownerOf(const std::vector<int> &sharers, osg::UInt32 core) const
{
    const auto stated = m_origin.coreOwners.find(core);
    for (const int position : sharers) {
        if (m_state.nodes[std::size_t(position)].environment)
            return position;
    }
    for (const int position : sharers) {
        if (stated != m_origin.coreOwners.end()
            && m_state.nodes[std::size_t(position)].index == stated->second)
            return position;
    }
    return sharers.front();
}

void Describer::findSharers()
{
    for (const auto &sharers : m_sharers) {
        const int owner = ownerOf(sharers.second, sharers.first);
        for (const int position : sharers.second) {
            if (position == owner)
                continue;
            qxGltfNodeState &clone = m_state.nodes[std::size_t(position)];
            clone.sharesCoreOf = owner;
            clone.switchChoice.reset();
            clone.transformChoice.reset();
            clone.switchTransforms.clear();
            if (!qxGltfIsSwitch(clone.node->getCore()))
                clone.pose = qxGltfPose();
        }
    }
}

void Describer::describeAll(const std::vector<osg::NodePtr> &roots)
{
    std::vector<Open> open;
    for (auto root = roots.rbegin(); root != roots.rend(); ++root)
        open.push_back({*root, -1});
    while (!open.empty()) {
        const Open next = open.back();
        open.pop_back();
        describe(next, open);
    }
}

/// Whether what is at that position lies in the moved tree, or below it once all are back.
bool Describer::isBelow(int position, std::size_t moved) const
{
    while (position >= m_moved.front().begin) {
        const auto behind =
            std::upper_bound(m_moved.begin(), m_moved.end(), position,
                             [](int wanted, const Moved &tree) { return wanted < tree.begin; });
        const std::size_t tree = std::size_t(behind - m_moved.begin()) - 1;
        if (tree == moved)
            return true;
        position = m_moved[tree].parent;
    }
    return false;
}

/// What stands outside of the tree goes back to where it was taken from, when that is still there
/// and has not moved into it.
void Describer::putBack(std::size_t moved)
{
    Moved &tree = m_moved[moved];
    const auto origin = m_origin.moved.find(tree.node);
    if (origin == m_origin.moved.end()) {
        m_state.roots.push_back(tree.begin);
        return;
    }
    const auto parent =
        origin->second.parent < 0 ? m_positions.end() : m_positions.find(origin->second.parent);
    if (parent != m_positions.end() && !isBelow(parent->second, moved))
        tree.parent = parent->second;
    std::vector<int> &list =
        tree.parent < 0 ? m_state.roots : m_state.nodes[std::size_t(tree.parent)].children;
    const std::ptrdiff_t place = origin->second.position;
    list.insert(list.begin() + std::min(place, std::ptrdiff_t(list.size())), tree.begin);
}

void Describer::describeMoved(const std::vector<osg::NodePtr> &nodes,
                              const osg::NodePtr &environment)
{
    std::vector<osg::NodePtr> inFileOrder = nodes;
    if (environment != osg::NullFC)
        inFileOrder.push_back(environment);
    const auto placeOf = [this](const osg::NodePtr &node) {
        const auto origin = m_origin.moved.find(node.getFieldContainerId());
        return origin == m_origin.moved.end() ? std::numeric_limits<int>::max()
                                              : origin->second.position;
    };
    std::stable_sort(inFileOrder.begin(), inFileOrder.end(),
                     [&placeOf](const osg::NodePtr &one, const osg::NodePtr &other) {
                         return placeOf(one) < placeOf(other);
                     });
    for (const osg::NodePtr &node : inFileOrder) {
        const std::size_t position = m_state.nodes.size();
        m_moved.push_back({node.getFieldContainerId(), int(position), -1});
        describeAll({node});
        m_state.roots.pop_back();
        m_state.nodes[position].environment = node == environment;
        if (node != environment && !m_state.nodes[position].overlayLayer)
            m_state.nodes[position].overlayLayer = 0;
    }
    for (std::size_t moved = 0; moved < m_moved.size(); ++moved)
        putBack(moved);
}

} // namespace

qxGltfState qxGltfState::of(const std::vector<osg::NodePtr> &roots,
                            const std::vector<osg::NodePtr> &overlays,
                            const osg::NodePtr &environment, const qxGltfOrigin &origin)
{
    qxGltfState state;
    Describer describer(origin, state);
    describer.describeAll(roots);
    describer.describeMoved(overlays, environment);
    describer.findSharers();
    return state;
}

std::unordered_map<std::string, int> qxGltfState::owners() const
{
    std::unordered_map<std::string, int> first;
    std::vector<int> open(roots.rbegin(), roots.rend());
    while (!open.empty()) {
        const int position = open.back();
        open.pop_back();
        const qxGltfNodeState &node = nodes[std::size_t(position)];
        if ((node.switchChoice || node.transformChoice) && node.name)
            first.emplace(*node.name, position);
        open.insert(open.end(), node.children.rbegin(), node.children.rend());
    }
    return first;
}

QString qxGltfLabel(const osg::NodePtr &node)
{
    return qxFileText::tr("node \"%1\"").arg(QString::fromStdString(qxNodeUtils::getName(node)));
}
