#pragma once

#include "qxNodePtr.h"

#include <OpenSG/OSGMaterialPool.h>

#include <vector>

/// The scene of the host, and look-ups in it.
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
    /// The switch whose children are the environments; the chosen one surrounds the scene. It has
    /// no parent and is not below the root. Null when the scene has none.
    static osg::NodePtr environmentGeometrySwitch();

    /// The first node of that name, or null.
    static qxNodePtr findNode(const char *name);
    /// All nodes of that name, hidden ones and those below unchosen switch children included.
    static std::vector<qxNodePtr> findNodes(const char *name);

    ///@{
    /// With the find cache on, look-ups of nodes and overlays take constant time. It is a snapshot
    /// of the names: do not rename, add or remove nodes until it is cleared. What scripts remove
    /// nevertheless is not found any more.
    static bool hasFindCache();
    static void initFindCache();
    static void clearFindCache();
    ///@}

    /// Makes the given nodes and all their ancestors visible (traversal mask 0xFFFFFFFF).
    static void showNodes(const std::vector<qxNodePtr> &nodes);

    /// Updates everything that is derived from the scene and requests a new picture: at once with
    /// `mode` 0; 1 also rebuilds what is cached between frames.
    static void update(int mode);

    /// The pool that holds the materials of the scene; never null while the host runs.
    static osg::MaterialPoolPtr getMaterialPool();
};
