#include "Internal/Capture/qxCapture.h"
#include "Internal/Scene/qxPathLookup.h"
#include "Internal/Scene/qxSceneEdits.h"
#include "qxVariantSet.h"
#include "qxVariants.h"

#include "qxNodeUtils.h"
#include "qxNodeWalk.h"
#include "qxScenegraph.h"

#include <OpenSG/OSGMaterialGroup.h>

namespace {

void restore(const osg::NodePtr &node, qxVariantSet *set, qxCapture &run)
{
    const auto group = osg::MaterialGroupPtr::dcast(node->getCore());
    if (group != osg::NullFC)
        qxVariants::addMaterialGroupIgnoreToVSet(node, group, set);
    const osg::MaterialPtr material = qxNodeUtils::getMaterial(node);
    if (material != osg::NullFC)
        qxVariants::handleMaterialSnapshots(set, node, qxPathLookup::getNodePath(node), material,
                                            {qxScenegraph::getRoot()}, run.visitedNames,
                                            run.visitedSwitchMaterials, run.visitedMaterials,
                                            false, true);
}

/// Goes over what is active at and below `top`, in scene order.
void restoreFrom(const osg::NodePtr &top, qxVariantSet *set, qxCapture &run)
{
    qxWalkChangingNodes(top, [set, &run](const osg::NodePtr &node) {
        bool captureNodes = false; // hidden nodes are passed over, nothing is noted about them
        bool notify = true;
        if (!qxVariants::checkAndSetNodeActive(node, set, captureNodes, notify))
            return false;
        restore(node, set, run);
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
    qxCapture::reconcile(node, path, material,
                         {set, visitedNames, visitedMaterials, capture, notify});
}

void qxVariants::restoreSwitchNodes()
{
    const QString name = getUniqueVariantSetName(QStringLiteral("Temp"));
    qxVariantSet *const set = createVariantSet(name, true, nullptr);
    if (!set)
        return;
    {
        qxCapture run(*set, false);
        restoreFrom(qxScenegraph::getRoot(), set, run);
        restoreFrom(qxScenegraph::environmentGeometrySwitch(), set, run);
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
