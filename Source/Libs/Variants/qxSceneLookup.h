#pragma once

#include "qxNodePtr.h"

#include <OpenSG/OSGMaterialFields.h>

#include <QStringList>

#include <memory>
#include <vector>

/// What the scene has of some name, looked up in the same time in every scene.
///
/// What takes a walk over the scene is gathered when it is first asked for. It is a snapshot:
/// whoever adds, removes or renames something outdates it. A look-up that is made while another
/// lives shares what that gathers.
class qxSceneLookup {
public:
    /// Looks at nothing yet.
    qxSceneLookup();

    ///@{
    /// All that bear the name, in scene order: nodes of any sort, lights and nodes with transform
    /// states included; nodes of the overlay tree; materials of any sort. None for an empty name.
    std::vector<qxNodePtr> nodes(const QString &name) const;
    std::vector<qxNodePtr> overlays(const QString &name) const;
    std::vector<osg::MaterialPtr> materials(const QString &name) const;
    ///@}

    ///@{
    /// Whether one of the nodes of that name stands below another one, and so is hidden with it.
    bool hasNestedNodes(const QString &name) const;
    bool hasNestedOverlays(const QString &name) const;
    ///@}

    ///@{
    /// Whether the look-ups above find something.
    bool hasNode(const QString &name) const;
    bool hasMaterial(const QString &name) const;
    ///@}
    /// Whether qxLights lists a light of that name. The sets go by this list, which has lights that
    /// are called "" as well; light variants look among nodes(), and those find none by that name.
    bool hasLight(const QString &name) const;
    /// Whether the pool has a viewpoint of that name; an empty one finds nothing.
    bool hasViewpoint(const QString &name) const;
    /// The names of all viewpoints, in their order.
    static QStringList viewpointNames();
    /// Whether the scene has a clip of that name; an empty one finds nothing.
    bool hasClip(const QString &name) const;
    /// Whether the names of some node and of all above it, the root left out, make up that path.
    bool hasPath(const QString &path) const;

private:
    struct Gathered;
    static std::weak_ptr<Gathered> s_shared;

    std::shared_ptr<Gathered> m_gathered;
};
