#pragma once

#include "Internal/Materials/qxSnapshotIndex.h"

#include "qxNodePtr.h"

#include <OpenSG/OSGNodePtr.h>
#include <OpenSG/OSGRefPtr.h>
#include <OpenSG/OSGSwitchMaterial.h>

#include <QSet>

#include <map>
#include <set>

/// Gives nodes switch materials that hold what different variant sets saw on them, so that each set
/// brings back its own material.
///
/// One object serves one run over the scene: it keeps tables that no node has to be searched for
/// again.
class qxSnapshotReconciler {
public:
    /// What is the same for all nodes of a run. `set` is the one that is being captured (`capture`)
    /// or a temporary one. `notify` announces new material variants. The rest is what the run has
    /// dealt with: paths, and materials that have a name.
    struct Scope {
        qxVariantSet *set;
        QSet<QString> &paths;
        std::set<osg::MaterialPtr> &materials;
        bool capture;
        bool notify;
    };

    /// Begins a run for `set`: reads what all other sets record.
    explicit qxSnapshotReconciler(const qxVariantSet *set);
    /// Ends it, and tells the other modules when materials changed.
    ~qxSnapshotReconciler();
    qxSnapshotReconciler(const qxSnapshotReconciler &) = delete;
    qxSnapshotReconciler &operator=(const qxSnapshotReconciler &) = delete;

    /// Reconciles a material group or geometry with the snapshots. `path` and `material` are those
    /// of the node. The first node of a path counts, and the first one that has its core.
    void handle(const osg::NodePtr &node, const QString &path, const osg::MaterialPtr &material,
                const Scope &scope);

private:
    /// What one set wants to see on a node: a state of the switch material that its snapshot names
    /// (`from`), or a plain material (`from` is null). `leaf` is the material meant, null when the
    /// state is not the name of one.
    struct Need {
        qxVariantSet *set;
        osg::SwitchMaterialPtr from;
        osg::MaterialPtr leaf;
        QString state;
    };
    typedef std::vector<Need> Needs;
    typedef std::vector<std::pair<qxVariantSet *, QString>> States;
    /// A material that nodes have, and what other sets have to choose in the switch material that
    /// takes its place: nodes that agree in both share it.
    typedef std::pair<osg::MaterialPtr, States> Case;

    bool isClone(const osg::NodePtr &node);
    Needs needsAt(const QString &path, const osg::MaterialPtr &material);
    void reconcile(const osg::NodePtr &node, const QString &path, const osg::MaterialPtr &material,
                   const Needs &needs, const Scope &scope);
    osg::SwitchMaterialPtr fromSwitch(const osg::NodePtr &node, const osg::SwitchMaterialPtr &own,
                                      const Needs &needs, const Scope &scope);
    osg::SwitchMaterialPtr fromPlain(const osg::MaterialPtr &own, const Needs &needs,
                                     const Scope &scope);
    bool mayTake(const osg::NodePtr &node, const osg::SwitchMaterialPtr &own, const States &states);
    bool mayReuse(const osg::SwitchMaterialPtr &old, const osg::MaterialPtr &shown,
                  const Needs &needs);
    bool isContained(const osg::MaterialPtr &material);
    void addContents(const osg::MaterialPtr &material);
    static States missingStates(const osg::SwitchMaterialPtr &choices, const Needs &needs);
    osg::SwitchMaterialPtr duplicate(const osg::SwitchMaterialPtr &original, const Scope &scope);
    osg::SwitchMaterialPtr build(const osg::MaterialPtr &own, const Needs &needs);
    void extend(const osg::SwitchMaterialPtr &target, const osg::MaterialPtr &own,
                const Needs &needs, const Scope &scope);
    osg::MaterialPtr heldBy(const osg::SwitchMaterialPtr &choices, const QString &name);
    void chooseIn(const osg::SwitchMaterialPtr &target, const States &states);
    osg::NodePtr lastUser(const osg::MaterialPtr &material);

    qxSnapshotIndex m_index;
    std::map<Case, osg::SwitchMaterialRefPtr> m_settled;
    QHash<osg::UInt32, osg::NodeRefPtr> m_firstOfCore; ///< by the ids of cores
    QHash<osg::UInt32, osg::NodeRefPtr> m_lastUsers; ///< by the ids of materials
    /// By the ids of switch materials and the names asked for; forgotten where one gets more.
    std::map<std::pair<osg::UInt32, QString>, osg::MaterialRefPtr> m_held;
    /// By ids: materials that are part of other ones; read when it is first asked for.
    QSet<osg::UInt32> m_contained;
    bool m_isContainedRead = false;
    bool m_changed = false;
};
