#pragma once

#include "qxNodePtr.h"

#include <OpenSG/OSGGeometryFields.h>
#include <OpenSG/OSGMaterialGroupFields.h>
#include <OpenSG/OSGSwitchMaterialFields.h>

#include <QMap>
#include <QSet>
#include <QString>

#include <set>

class qxVariantSet;

/// What a capture takes down.
struct qxCaptureKinds {
    bool nodes;
    bool materials;
    bool lights;
    bool environments;
    bool transforms;
};

/// What the walks of one capture gather together, beside what they write into the set.
struct qxCaptureNotes {
    QMap<QString, QString> &materials; ///< material names by node path
    QSet<QString> &visitedNames;
    std::set<osg::MaterialPtr> &visitedMaterials;
};

/// Writes the present state of the scene into a set. With `notify` variants that have to be created
/// are announced.
class qxCaptureWalk {
public:
    qxCaptureWalk(qxVariantSet &set, const qxCaptureKinds &kinds, const qxCaptureNotes &notes,
                  bool notify);

    /// Captures the node and everything below it, as far as it is active.
    void visit(const osg::NodePtr &top);

private:
    bool captureNode(const osg::NodePtr &node);
    bool mayDescend(const osg::NodePtr &node);
    void captureTransform(const osg::NodePtr &node);
    void captureSwitch(const osg::NodePtr &node);
    void captureMaterialGroup(const osg::NodePtr &node, const osg::MaterialGroupPtr &group);
    void captureGeometry(const osg::NodePtr &node, const osg::GeometryPtr &geometry);
    bool isEnvironment(const osg::MaterialPtr &material);
    bool isWanted(const osg::MaterialPtr &material);
    void captureStates(const osg::MaterialPtr &material);
    void captureLight(const osg::NodePtr &node);
    void takeSnapshot(const osg::NodePtr &node, const osg::MaterialPtr &material);

    qxVariantSet &m_set;
    const qxCaptureKinds m_kinds;
    const qxCaptureNotes m_notes;
    const bool m_notify;
    QMap<osg::UInt32, bool> m_isEnvironment; ///< by the ids of materials
};
