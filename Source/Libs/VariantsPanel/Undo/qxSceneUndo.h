#pragma once

#include "qxUberCameraPool.h"

#include <OpenSG/OSGMaterial.h>
#include <OpenSG/OSGNodePtr.h>
#include <OpenSG/OSGRefPtr.h>

#include <optional>

/// What a capture does to the scene, to undo: names of nodes, materials of nodes, materials that
/// come into the pool, names, contents and choices of materials, and viewpoints.
///
/// Undoing and redoing touch only what is still as the capture (or the undoing) left it, so that
/// what others changed since stays. The change keeps alive what it needs of the scene.
class qxSceneUndo {
public:
    /// Notes how the scene is now.
    qxSceneUndo();
    /// Keeps only what has become different.
    void finish();

    void redo() const { apply(true); }
    void undo() const { apply(false); }

private:
    /// A name attachment's text; none is another thing than an empty one.
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
    std::vector<osg::MaterialRefPtr> m_pool; ///< all at first, then those that came
    std::vector<qxUberCamera> m_viewpoints; ///< the same
};
