#pragma once

#include <OpenSG/OSGMaterialPool.h>
#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGRefPtr.h>

/// The traversal mask of a node that is shown.
constexpr osg::UInt32 qxShownMask = 0xFFFFFFFF;

/// The parts of the scene: its root, the root of the overlays and the pool of materials, which live
/// as long as the host, and the environment. The scene graph must have been started.
class qxScene {
public:
    qxScene();
    qxScene(const qxScene &) = delete;
    ~qxScene();

    /// The scene of the running host, null when there is none.
    static qxScene *current();

    /// A node named "Root" with a Group core.
    const osg::NodePtr &root() const { return m_root; }
    /// A node named "Overlays", not part of the tree below the root.
    const osg::NodePtr &overlayRoot() const { return m_overlayRoot; }
    const osg::MaterialPoolPtr &materialPool() const { return m_materialPool; }
    /// The switch over the environments; null when there is none.
    osg::NodePtr environment() const { return m_environment.get(); }
    /// Replaces it; null removes it. The node must have a Switch core and no parent.
    void setEnvironment(const osg::NodePtr &node);

    /// Empties all of them.
    void clear();

private:
    osg::NodePtr m_root;
    osg::NodePtr m_overlayRoot;
    osg::MaterialPoolPtr m_materialPool;
    osg::NodeRefPtr m_environment;
};
