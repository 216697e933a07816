#pragma once

#include "Files/Gltf/Read/qxGltfScene.h"

#include <QString>

class qxGltfExtras;

/// Makes scene-graph nodes of the nodes of a file: those of the shown scene.
class qxGltfNodes {
public:
    /// Takes meshes from `scene` and puts the roots and the origin of the nodes there.
    qxGltfNodes(qxGltfModel &model, qxGltfScene &scene);

    /// Throws qxGltfError; what is left out is a warning in the model.
    void build();

    /// The nodes of the shown scene in scene order, as indices into the file.
    const std::vector<int> &order() const { return m_order; }
    /// The node made of node `index` of the file, null when it is not in the shown scene.
    osg::NodePtr node(int index) const;
    /// The one that has its transform: the node itself, or one above it that was made for it.
    osg::NodePtr placedNode(int index) const;

private:
    /// The scene-graph nodes of one node of the file. The upper one has what the node's core cannot
    /// hold, such as the transform of a switch; otherwise it is the node itself.
    struct Made {
        osg::NodeRefPtr upper;
        osg::NodeRefPtr node;
        qxGltfOrigin::Place place;
        bool overlay = false;
        bool inOverlay = false; ///< the node or one above it is an overlay
        bool environment = false;
        bool moved = false; ///< out of the tree of the scene
    };

    void findOrder();
    void findOverlay(int index);
    void findEnvironment(int index);
    void make(int index);
    void describe(int index, const osg::NodePtr &node);
    void share(int index);
    void putAbove(int index, const osg::NodeCorePtr &core);
    void makeOverlay(int index);
    void assemble(int index);
    void addParts(int index, const osg::NodePtr &node, int mesh) const;
    static void hidePart(const osg::NodePtr &part, bool isAll);
    osg::NodeCorePtr ownCore(int index, qxGltfExtras &extras);
    osg::NodeCorePtr lightCore(int index, const qxGltfExtras &extras);
    bool ownsCore(int index) const;
    osg::NodeCorePtr sharedCore(int index);
    void setTransformStates(int index, const osg::NodePtr &node, qxGltfExtras &extras);
    void warn(int index, const QString &text);

    qxGltfModel &m_model;
    qxGltfScene &m_scene;
    std::vector<int> m_order;
    std::vector<Made> m_made;
    std::unordered_map<std::string, int> m_switches; ///< first node of a name with a switch core
};
