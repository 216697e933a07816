#pragma once

#include <OpenSG/OSGMaterial.h>
#include <OpenSG/OSGNodePtr.h>

#include <QList>
#include <QString>

#include <vector>

class qxForecast;

/// One changed state in the scene.
struct qxSceneChange {
    QString object; ///< path of the node from below the root, or name of the material
    int others; ///< how many further nodes share the change, because they are clones
    QString before;
    QString after;
};

/// A record of everything that variants can change: visibility, choices of switches, of transform
/// switches and of switch materials, lights, and the pose of nodes with named transform states.
class qxSceneState {
public:
    /// Records the present scene.
    static qxSceneState take();

    /// The same scene after all that was foreseen.
    qxSceneState after(const qxForecast &forecast) const;

    /// The differences of `later`, in scene order, materials last.
    QList<qxSceneChange> changesTo(const qxSceneState &later) const;
    /// Whether nodes and materials and their states are the same.
    bool isLike(const qxSceneState &other) const;
    /// Makes the scene stand like this again, as far as its nodes and materials are still there;
    /// poses are left out.
    void restore() const;

private:
    struct NodeState {
        osg::NodeRefPtr node; ///< kept alive: scripts may take nodes out
        osg::UInt32 mask;
        osg::Int64 choice; ///< of whatever the core chooses from; 0 for other cores
        std::string pose;
    };
    struct MaterialState {
        osg::MaterialRefPtr material;
        osg::UInt32 choice;
        std::size_t count; ///< of the materials to choose from
    };

    static QList<qxSceneChange> nodeChanges(const NodeState &before, const NodeState &after);

    std::vector<NodeState> m_nodes;
    std::vector<MaterialState> m_materials;
};
