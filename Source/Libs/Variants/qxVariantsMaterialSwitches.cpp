#include "Internal/Materials/qxSnapshotReconciler.h"
#include "Internal/Scene/qxPathLookup.h"
#include "Internal/Scene/qxSceneEdits.h"
#include "qxVariantSet.h"
#include "qxVariants.h"

#include "qxNodeUtils.h"
#include "qxNodeWalk.h"
#include "qxScenegraph.h"

#include <OpenSG/OSGMaterialGroup.h>

namespace {

/// What a walk over the scene for a temporary set goes along with.
struct Restoring {
    qxVariantSet *set;
    QSet<QString> paths;
    std::set<osg::SwitchMaterialPtr> switches;
    std::set<osg::MaterialPtr> materials;
};

void restore(const osg::NodePtr &node, Restoring &restoring)
{
    const auto group = osg::MaterialGroupPtr::dcast(node->getCore());
    if (group != osg::NullFC)
        qxVariants::addMaterialGroupIgnoreToVSet(node, group, restoring.set);
    const osg::MaterialPtr material = qxNodeUtils::getMaterial(node);
    if (material != osg::NullFC)
        qxVariants::handleMaterialSnapshots(restoring.set, node, qxPathLookup::getNodePath(node),
                                            material, {qxScenegraph::getRoot()}, restoring.paths,
                                            restoring.switches, restoring.materials, false, true);
}

/// Goes over what is active at and below `top`, in scene order.
void restoreFrom(const osg::NodePtr &top, Restoring &restoring)
{
    qxWalkChangingNodes(top, [&restoring](const osg::NodePtr &node) {
        bool captureNodes = false; // hidden nodes are passed over, nothing is noted about them
        bool notify = true;
        if (!qxVariants::checkAndSetNodeActive(node, restoring.set, captureNodes, notify))
            return false;
        restore(node, restoring);
        return true;
    });
}

} // namespace

void qxVariants::handleMaterialSnapshots(qxVariantSet *set, osg::NodePtr node, const QString &path,
                                         osg::MaterialPtr material, const std::vector<qxNodePtr> &,
                                         QSet<QString> &visitedNames,
                                         std::set<osg::SwitchMaterialPtr> &,
                                         std::set<osg::MaterialPtr> &visitedMaterials, bool capture,
                                         bool notify)
{
    if (!set || node == osg::NullFC || node->getCore() == osg::NullFC)
        return;
    const qxSnapshotReconciler::Scope scope{set, visitedNames, visitedMaterials, capture, notify};
    if (qxSnapshotReconciler *run = qxSnapshotReconciler::current(set))
        run->handle(node, path, material, scope);
    else
        qxSnapshotReconciler(set).handle(node, path, material, scope);
}

void qxVariants::restoreSwitchNodes()
{
    const QString name = getUniqueVariantSetName(QStringLiteral("Temp"));
    qxVariantSet *const set = createVariantSet(name, true, nullptr);
    if (!set)
        return;
    {
        const qxSetUse use(*set); // Listeners hear of new variants and may remove any set.
        const qxSnapshotReconciler run(set);
        Restoring restoring{set, {}, {}, {}};
        restoreFrom(qxScenegraph::getRoot(), restoring);
        restoreFrom(qxScenegraph::environmentGeometrySwitch(), restoring);
    }
    removeVariantSet(name);
}

void qxVariants::changeMaterial(osg::NodePtr node, osg::MaterialPtr material)
{
    if (node == osg::NullFC)
        return;
    const auto group = osg::MaterialGroupPtr::dcast(node->getCore());
    if (group != osg::NullFC)
        qxSceneEdits::setMaterial(group, material);
    else
        qxNodeUtils::setMaterial(node, material, false, false);
}
