#include "Files/Gltf/Read/qxGltfCheck.h"

#include <vector>

namespace {

const int _maxDepth = 1000;
const std::size_t _maxPaths = 32000000;

/// The parent of every node, -1 for those without.
typedef std::vector<int> Parents;

void checkNode(const QString &called, const qxJson &node, const qxJson &document)
{
    qxGltfCheckIndex(called, node, "mesh", qxGltfSection(document, "meshes"), "mesh");
    qxGltfCheckIndex(called, node, "camera", qxGltfSection(document, "cameras"), "camera");
    qxGltfCheckIndex(called, node, "skin", qxGltfSection(document, "skins"), "skin");
    qxGltfCheckNumbers(called, node, "matrix", 16);
    qxGltfCheckNumbers(called, node, "translation", 3);
    qxGltfCheckNumbers(called, node, "rotation", 4);
    qxGltfCheckNumbers(called, node, "scale", 3);
}

void checkChildren(int index, const qxJson &nodes, Parents &parents)
{
    const qxJson &node = nodes[std::size_t(index)];
    const QString called = qxGltfLabel("node", index, node);
    const qxJson &children = qxGltfMember(node, "children");
    if (!children.is_null() && !children.is_array())
        throw qxGltfError(qxFileText::tr("%1: \"children\" is not a list").arg(called));
    for (const qxJson &value : children) {
        qxGltfCheckIndexValue(called, value, nodes, "node");
        const std::size_t child = value.get<std::size_t>();
        if (parents[child] >= 0) {
            throw qxGltfError(qxFileText::tr("%1 has two parents, node %2 and node %3")
                                  .arg(qxGltfLabel("node", int(child), nodes[child]))
                                  .arg(parents[child])
                                  .arg(index));
        }
        parents[child] = index;
    }
}

/// Every node has at most one parent by now: a walk upwards ends at a root or goes round in a loop.
void checkLoops(const qxJson &nodes, const Parents &parents)
{
    std::vector<int> visitedBy(parents.size(), -1);
    for (int start = 0; start < int(parents.size()); ++start) {
        int node = start;
        while (node >= 0 && visitedBy[std::size_t(node)] < 0) {
            visitedBy[std::size_t(node)] = start;
            node = parents[std::size_t(node)];
        }
        if (node >= 0 && visitedBy[std::size_t(node)] == start) {
            throw qxGltfError(qxFileText::tr("%1 is its own ancestor")
                                  .arg(qxGltfLabel("node", node, nodes[std::size_t(node)])));
        }
    }
}

std::size_t nameSize(const qxJson &entry)
{
    const qxJson &name = qxGltfMember(entry, "name");
    return name.is_string() ? name.get_ref<const std::string &>().size() : 0;
}

/// Walks over scenes recurse, and variants address nodes by their path: refuses scenes that would
/// exhaust the stack, and paths that are many times as long as the file.
class PathCheck {
public:
    /// The nodes form trees.
    PathCheck(const qxJson &document, const Parents &parents)
        : m_document(document), m_parents(parents), m_places(parents.size())
    {
    }

    void run()
    {
        for (std::size_t start = 0; start < m_parents.size(); ++start) {
            std::vector<std::size_t> open; // from the node up to the first one that is known
            for (int node = int(start); node >= 0 && m_places[std::size_t(node)].depth == 0;
                 node = m_parents[std::size_t(node)])
                open.push_back(std::size_t(node));
            for (auto node = open.rbegin(); node != open.rend(); ++node)
                visit(*node);
        }
    }

private:
    struct Place {
        int depth = 0; ///< from 1 on
        std::size_t path = 0; ///< its length
    };

    void visit(std::size_t index)
    {
        const qxJson &node = qxGltfSection(m_document, "nodes")[index];
        const int parent = m_parents[index];
        const Place above = parent < 0 ? Place() : m_places[std::size_t(parent)];
        const Place place{above.depth + 1, above.path + nameSize(node) + 1};
        m_places[index] = place;
        m_total += place.path + partPaths(node, place.path);
        if (place.depth > _maxDepth)
            throw qxGltfError(qxFileText::tr("%1 is nested deeper than %2 levels")
                                  .arg(qxGltfLabel("node", int(index), node))
                                  .arg(_maxDepth));
        if (m_total > _maxPaths)
            throw qxGltfError(
                qxFileText::tr("the paths of all nodes together are longer than %1 characters")
                    .arg(_maxPaths));
    }

    /// The length of the paths of the nodes that show the parts of the node's mesh.
    std::size_t partPaths(const qxJson &node, std::size_t path) const
    {
        const int index = qxGltfIndex(node, "mesh");
        if (index < 0)
            return 0;
        const qxJson &mesh = qxGltfSection(m_document, "meshes")[std::size_t(index)];
        return qxGltfSection(mesh, "primitives").size() * (path + nameSize(mesh) + 1);
    }

    const qxJson &m_document;
    const Parents &m_parents;
    std::vector<Place> m_places;
    std::size_t m_total = 0;
};

void checkScenes(const qxJson &document, const Parents &parents)
{
    const qxJson &scenes = qxGltfSection(document, "scenes");
    const qxJson &nodes = qxGltfSection(document, "nodes");
    qxGltfCheckIndex(qxFileText::tr("the file"), document, "scene", scenes, "scene");
    int index = 0;
    for (const qxJson &scene : scenes) {
        const QString called = qxGltfLabel("scene", index++, scene);
        const qxJson &roots = qxGltfMember(scene, "nodes");
        if (!roots.is_null() && !roots.is_array())
            throw qxGltfError(qxFileText::tr("%1: \"nodes\" is not a list").arg(called));
        std::vector<bool> listed(parents.size(), false);
        for (const qxJson &root : roots) {
            qxGltfCheckIndexValue(called, root, nodes, "node");
            const std::size_t node = root.get<std::size_t>();
            const QString name = qxGltfLabel("node", int(node), nodes[node]);
            if (parents[node] >= 0)
                throw qxGltfError(qxFileText::tr("%1 lists %2, which is a child of node %3")
                                      .arg(called, name)
                                      .arg(parents[node]));
            if (listed[node])
                throw qxGltfError(qxFileText::tr("%1 lists %2 twice").arg(called, name));
            listed[node] = true;
        }
    }
}

} // namespace

void qxGltfCheckNodes(const qxJson &document)
{
    const qxJson &nodes = qxGltfSection(document, "nodes");
    Parents parents(nodes.size(), -1);
    for (int i = 0; i < int(nodes.size()); ++i) {
        const qxJson &node = nodes[std::size_t(i)];
        checkNode(qxGltfLabel("node", i, node), node, document);
        checkChildren(i, nodes, parents);
    }
    checkLoops(nodes, parents);
    PathCheck(document, parents).run();
    checkScenes(document, parents);
}
