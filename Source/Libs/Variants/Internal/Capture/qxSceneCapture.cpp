#include "Internal/Capture/qxSceneCapture.h"

#include "Internal/Capture/qxCaptureProgress.h"
#include "Internal/Capture/qxCaptureState.h"
#include "Internal/Capture/qxNodeActivity.h"
#include "Internal/Capture/qxNodeNameGuard.h"
#include "Internal/Capture/qxPreview.h"
#include "Internal/Registry/qxSetRegistry.h"
#include "Internal/Scene/qxPathLookup.h"
#include "qxVariantLists.h"
#include "qxVariantSet.h"

#include "qxCameraService.h"
#include "qxConnector.h"
#include "qxNames.h"
#include "qxNodeWalk.h"
#include "qxOpenSGUtils.h"
#include "qxScript.h"
#include "qxUberCameraPool.h"

#include <OpenSG/OSGMaterialGroup.h>

using qxNames::nameOf;

namespace {

/// Forgets at the end of a scope which geometries were captured in it.
class CapturedGeometries {
public:
    CapturedGeometries() = default;
    ~CapturedGeometries() { qxVariantLists::_clonedGeoms.clear(); }
    CapturedGeometries(const CapturedGeometries &) = delete;
    CapturedGeometries &operator=(const CapturedGeometries &) = delete;
};

/// Stores the active camera as a viewpoint and makes it the set's.
void captureViewpoint(qxVariantSet &set, bool plainName)
{
    const auto cameras = qxKernelServiceFactory::the()->getService<qxCameraService>();
    const int active = cameras ? cameras->getActiveCamera() : 0;
    if (active == 0)
        return;
    const int source = plainName ? cameras->getSourceOf(active) : cameras->getCopyOf(active);
    if (source == 0)
        return;
    const QString name = plainName ? QString(set.name) : set.name + QLatin1String(" View");
    const int id = cameras->createViewpoint(qxText::toUtf8(name), source);
    const qxUberCamera *const camera = qxUberCameraPool::the()->get(id);
    if (!camera)
        return;
    const QString viewpoint = qxText::fromUtf8(qxUberCameraUtils::getName(camera));
    set.addViewpoint(viewpoint);
    set.defaultViewpoint = viewpoint;
}

/// Makes "home" lead to none of the viewpoints that listeners gave to a new set.
void leaveHome(const qxVariantSet &set)
{
    const auto cameras = qxKernelServiceFactory::the()->getService<qxCameraService>();
    for (const QString &viewpoint : set.viewpoints) {
        if (cameras)
            cameras->setHomeViewpoint(cameras->findViewpoint(qxText::toUtf8(viewpoint)), 0);
    }
}

void restore(const osg::NodePtr &node, qxVariantSet &set, qxCaptureState &run)
{
    const auto group = osg::MaterialGroupPtr::dcast(node->getCore());
    if (group != osg::NullFC)
        qxNodeActivity::recordIgnored(node, set);
    const osg::MaterialPtr material = qxNodeUtils::getMaterial(node);
    if (material != osg::NullFC)
        qxCaptureState::reconcile(node, qxPathLookup::getNodePath(node), material,
                                  {&set, run.visitedNames, run.visitedMaterials, false, true});
}

/// Goes over what is active at and below `top`, in scene order.
void restoreFrom(const osg::NodePtr &top, qxVariantSet &set, qxCaptureState &run)
{
    qxWalkChangingNodes(top, [&set, &run](const osg::NodePtr &node) {
        if (!node->getActive())
            return false;
        restore(node, set, run);
        return true;
    });
}

} // namespace

void qxSceneCapture::createAndCapture(const char *name, const char *groupName)
{
    if (!qxNodeNameGuard::verifyNodeNames())
        return;
    const QString wanted = QString::fromUtf8(groupName);
    qxVariantGroup *const group =
        qxSetRegistry::findOrCreateGroup(wanted.isEmpty() ? QStringLiteral("New Group 1") : wanted);
    if (!group)
        return;
    const qxDeferredDeletion deferred;
    qxVariantSet *const set = qxSetRegistry::createSet(
        qxSetRegistry::uniqueSetName(QString::fromUtf8(name)), true, group);
    if (!set)
        return;
    leaveHome(*set);
    fromRoots(*set, {qxOpenSGUtils::getRoot()}, {true, true, true, true, true}, {true, true, true});
    set->setPreview(qxPreview::fromScene(false, true));
}

void qxSceneCapture::fromRoots(qxVariantSet &set, const std::vector<qxNodePtr> &roots,
                               const qxCaptureKinds &kinds, const Options &options)
{
    const qxDeferredDeletion deferred;
    const qxUnchangedNames unchanged;
    const std::vector<osg::NodeRefPtr> kept(roots.begin(), roots.end());
    const qxCaptureProgress progress;
    const CapturedGeometries geometries;
    set.clear();
    qxPathLookup::createLookupTable();
    qxCaptureProgress::processEvents();

    qxCaptureState capture(set, true); // new variants of transforms look for their nodes
    const qxCaptureNotes notes{capture.materials, capture.visitedNames, capture.visitedMaterials};
    for (const qxNodePtr &root : roots)
        qxCaptureWalk(set, kinds, notes, options.notify).visit(root);
    if (kinds.environments)
        qxCaptureWalk(set, {false, false, false, true, false}, notes, options.notify)
            .visit(qxScenegraph::environmentGeometrySwitch());
    set.materialSnapshots = capture.materials;
    if (options.viewpoint)
        captureViewpoint(set, options.plainViewpointName);
    for (const qxNodePtr &root : roots)
        set.addTargetNodeName(nameOf(root));
    set.setInclInfo(kinds.nodes, kinds.materials, kinds.lights, kinds.environments,
                    options.viewpoint);
}

void qxSceneCapture::restoreSwitches()
{
    const QString name = qxSetRegistry::uniqueSetName(QStringLiteral("Temp"));
    const qxDeferredDeletion deferred;
    qxVariantSet *const set = qxSetRegistry::createSet(name, true, nullptr);
    if (!set)
        return;
    {
        qxCaptureState run(*set, false);
        restoreFrom(qxScenegraph::getRoot(), *set, run);
        restoreFrom(qxScenegraph::environmentGeometrySwitch(), *set, run);
    }
    qxSetRegistry::removeSet(name);
}

void qxSceneCapture::activate(const char *name)
{
    qxPathLookup::createLookupTable();
    restoreSwitches();
    const qxVariantSet *const set = qxVariantLists::_variantSets.find(QString::fromUtf8(name));
    if (!set)
        return;
    const QString script =
        QStringLiteral("selectVariantSet('%1')").arg(qxText::escaped(set->name, QLatin1Char('\'')));
    qxScript::executeNUS(qxText::toUtf8(script).c_str(), qxConnector::the()->syncVariants());
    qxScenegraph::update(0);
}
