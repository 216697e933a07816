#include "Files/qxGltfCheck.h"

#include <vector>

namespace {

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
    const QString called = qxGltfCalled("node", index, node);
    const qxJson &children = qxGltfMember(node, "children");
    if (!children.is_null() && !children.is_array())
        throw qxGltfError(qxFileText::tr("%1: \"children\" is not a list").arg(called));
    for (const qxJson &value : children) {
        qxGltfCheckIndexValue(called, value, nodes, "node");
        const std::size_t child = value.get<std::size_t>();
        if (parents[child] >= 0) {
            throw qxGltfError(qxFileText::tr("%1 has two parents, node %2 and node %3")
                                  .arg(qxGltfCalled("node", int(child), nodes[child]))
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
                                  .arg(qxGltfCalled("node", node, nodes[std::size_t(node)])));
        }
    }
}

void checkScenes(const qxJson &document, const Parents &parents)
{
    const qxJson &scenes = qxGltfSection(document, "scenes");
    const qxJson &nodes = qxGltfSection(document, "nodes");
    qxGltfCheckIndex(qxFileText::tr("the file"), document, "scene", scenes, "scene");
    int index = 0;
    for (const qxJson &scene : scenes) {
        const QString called = qxGltfCalled("scene", index++, scene);
        const qxJson &roots = qxGltfMember(scene, "nodes");
        if (!roots.is_null() && !roots.is_array())
            throw qxGltfError(qxFileText::tr("%1: \"nodes\" is not a list").arg(called));
        std::vector<bool> listed(parents.size(), false);
        for (const qxJson &root : roots) {
            qxGltfCheckIndexValue(called, root, nodes, "node");
            const std::size_t node = root.get<std::size_t>();
            const QString name = qxGltfCalled("node", int(node), nodes[node]);
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
        checkNode(qxGltfCalled("node", i, node), node, document);
        checkChildren(i, nodes, parents);
    }
    checkLoops(nodes, parents);
    checkScenes(document, parents);
}
