#pragma once

#include "qxUberCameraPool.h"

#include <OpenSG/OSGMaterial.h>
#include <OpenSG/OSGNodePtr.h>
#include <OpenSG/OSGRefPtr.h>

#include <optional>

/// The changes of a capture to the scene, for undo: names and materials of nodes, new materials in
/// the pool, names, contents and choices of materials, and viewpoints.
///
/// Undo and redo touch only what is still as the capture (or the undo) left it, so that later
/// changes by others stay. This object keeps the nodes and materials that it needs alive.
class qxSceneUndo {
public:
    /// Records the present scene.
    qxSceneUndo();
    /// Keeps only what has changed.
    void finish();

    void redo() const { apply(true); }
    void undo() const { apply(false); }

private:
    /// The text of a name attachment; no attachment differs from an empty text.
    typedef std::optional<std::string> Name;

    struct NodeState {
        Name name;
        osg::MaterialRefPtr material;
    };
    struct MaterialState {
        Name name;
        std::vector<osg::MaterialRefPtr> parts; ///< of a switch material
        osg::UInt32 choice = 0;
    };
    template <class Object, class State>
    struct Changed {
        Object object;
        State before;
        State after;
    };
    typedef Changed<osg::NodeRefPtr, NodeState> Node;
    typedef Changed<osg::MaterialRefPtr, MaterialState> Material;

    void apply(bool forward) const;
    bool applyNodes(bool forward) const;
    bool applyMaterials(bool forward) const;
    void applyPool(bool forward) const;
    void applyViewpoints(bool forward) const;
    static NodeState stateOf(const osg::NodePtr &node);
    static MaterialState stateOf(const osg::MaterialPtr &material);

    std::vector<Node> m_nodes;
    std::vector<Material> m_materials;
    std::vector<osg::MaterialRefPtr> m_pool; ///< all of them until finish, then the new ones
    std::vector<qxUberCamera> m_viewpoints; ///< the same
};
