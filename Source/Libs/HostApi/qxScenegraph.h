#pragma once

#include "qxNodePtr.h"

#include <OpenSG/OSGMaterialPool.h>

#include <vector>

/// The scene that the host shows, and looking things up in it.
///
/// Names follow the rules of qxNodeUtils::getName and isFoundByName and are UTF-8; an empty or null
/// name finds nothing. Results come in scene order: depth first, a node before its children,
/// children in order; those of the environment come last.
class qxScenegraph {
public:
    /// The topmost node; never null while the host runs.
    static osg::NodePtr getRoot();
    /// The same node as a handle.
    static qxNodePtr getRootNode();
    /// The switch whose children are the environments, what surrounds the scene: the chosen one is
    /// the background. It is not below the root and has no parent. Null when the scene has none.
    static osg::NodePtr environmentGeometrySwitch();

    /// The first node of that name, or null.
    static qxNodePtr findNode(const char *name);
    /// All nodes of that name, hidden ones and those below unchosen switch children included.
    static std::vector<qxNodePtr> findNodes(const char *name);

    /// With the find cache on, look-ups of nodes and of overlays cost the same in every scene. It
    /// is a snapshot of the names: whoever switches it on must not rename, add or remove nodes
    /// until it is cleared.
    static bool hasFindCache();
    static void initFindCache();
    static void clearFindCache();

    /// Makes the given nodes and all their ancestors visible (traversal mask 0xFFFFFFFF).
    static void showNodes(const std::vector<qxNodePtr> &nodes);

    /// Brings everything that is derived from the scene up to date and asks for a new picture;
    /// `mode` 0 does so at once, 1 redoes what a picture keeps between frames as well.
    static void update(int mode);

    /// The pool that holds the materials of the scene; never null while the host runs.
    static osg::MaterialPoolPtr getMaterialPool();
};
