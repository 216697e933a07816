#include "qxVariants.h"

#include "Internal/Capture/qxCaptureProgress.h"
#include "Internal/Capture/qxCaptureState.h"
#include "Internal/Capture/qxNodeActivity.h"
#include "Internal/Capture/qxNodeNameGuard.h"
#include "Internal/Capture/qxPreview.h"
#include "Internal/Capture/qxSceneCapture.h"
#include "Internal/Materials/qxMaterialCapture.h"
#include "Internal/Options/qxHotkey.h"
#include "Internal/Registry/qxDeferredDeletion.h"
#include "Internal/Registry/qxSceneVariants.h"
#include "Internal/Registry/qxSetRegistry.h"
#include "Internal/Registry/qxSetSelection.h"
#include "Internal/Scene/qxPathLookup.h"
#include "Internal/Scene/qxSceneEdits.h"
#include "qxLightVariant.h"
#include "qxMaterialVariant.h"
#include "qxNodeVariant.h"
#include "qxOverlayVariant.h"
#include "qxTransformVariant.h"
#include "qxVariantGroup.h"
#include "qxVariantKinds.h"
#include "qxVariantSet.h"

#include "qxController.h"
#include "qxOSGWidget.h"

#include <OpenSG/OSGMultiPassMaterial.h>
#include <OpenSG/OSGSwitchMaterial.h>

namespace {

const char *const clearAllVariants = "clearAllVariants";

} // namespace

qxVariants qxVariants::_the;

qxVariants::qxVariants()
{
    qxController::addCB(clearAllVariants, &qxVariants::clearAll);
}

qxVariants::~qxVariants()
{
    qxController::subCB(clearAllVariants, &qxVariants::clearAll);
}

void qxVariants::clearAll(qxMessage &)
{
    for (const qxVariantKind *kind : qxVariantKinds::all())
        kind->clear();
    qxSetRegistry::clearSets();
    qxSetRegistry::clearGroups();
}

qxNodeVariant *qxVariants::createNodeVariant(osg::NodePtr node, bool notify)
{
    return qxSceneVariants::ofNode(node, notify);
}

qxMaterialVariant *qxVariants::createMaterialVariant(osg::MaterialPtr material, bool notify)
{
    return qxSceneVariants::ofMaterial(material, notify);
}

qxLightVariant *qxVariants::createLightVariant(osg::NodePtr node, bool notify)
{
    return qxSceneVariants::ofLight(node, notify);
}

qxOverlayVariant *qxVariants::createOverlayVariant(osg::NodePtr node, bool notify)
{
    return qxSceneVariants::ofOverlay(node, notify);
}

qxTransformVariant *qxVariants::createTransformVariant(osg::NodePtr node, bool notify)
{
    return qxSceneVariants::ofTransforms(node, notify);
}

qxNodeVariant *qxVariants::createNodeVariant(const QString &name, bool notify)
{
    return static_cast<qxNodeVariant *>(qxVariantKinds::node.create(name, notify));
}

qxMaterialVariant *qxVariants::createMaterialVariant(const QString &name, bool notify)
{
    return static_cast<qxMaterialVariant *>(qxVariantKinds::material.create(name, notify));
}

qxLightVariant *qxVariants::createLightVariant(const QString &name, bool notify)
{
    return static_cast<qxLightVariant *>(qxVariantKinds::light.create(name, notify));
}

qxOverlayVariant *qxVariants::createOverlayVariant(const QString &name, bool notify)
{
    return static_cast<qxOverlayVariant *>(qxVariantKinds::overlay.create(name, notify));
}

qxTransformVariant *qxVariants::createTransformVariant(const QString &name, bool notify)
{
    return static_cast<qxTransformVariant *>(qxVariantKinds::transform.create(name, notify));
}

qxNodeVariant *qxVariants::findNodeVariant(const QString &name)
{
    return _nodeVariants.find(name);
}

qxMaterialVariant *qxVariants::findMaterialVariant(const QString &name)
{
    return _materialVariants.find(name);
}

qxLightVariant *qxVariants::findLightVariant(const QString &name)
{
    return _lightVariants.find(name);
}

qxOverlayVariant *qxVariants::findOverlayVariant(const QString &name)
{
    return _overlayVariants.find(name);
}

qxTransformVariant *qxVariants::findTransformVariant(const QString &name)
{
    return _transformVariants.find(name);
}

bool qxVariants::removeNodeVariant(const QString &name)
{
    return qxVariantKinds::node.remove(name);
}

bool qxVariants::removeMaterialVariant(const QString &name)
{
    return qxVariantKinds::material.remove(name);
}

bool qxVariants::removeLightVariant(const QString &name)
{
    return qxVariantKinds::light.remove(name);
}

bool qxVariants::removeOverlayVariant(const QString &name)
{
    return qxVariantKinds::overlay.remove(name);
}

bool qxVariants::removeTransformVariant(const QString &name)
{
    return qxVariantKinds::transform.remove(name);
}

void qxVariants::clearNodeVariants()
{
    qxVariantKinds::node.clear();
}

void qxVariants::clearMaterialVariants()
{
    qxVariantKinds::material.clear();
}

void qxVariants::clearLightVariants()
{
    qxVariantKinds::light.clear();
}

void qxVariants::clearOverlayVariants()
{
    qxVariantKinds::overlay.clear();
}

void qxVariants::clearTransformVariants()
{
    qxVariantKinds::transform.clear();
}

qxVariantSet *qxVariants::createVariantSet(const QString &name, bool notify, qxVariantGroup *group)
{
    return qxSetRegistry::createSet(name, notify, group);
}

bool qxVariants::removeVariantSet(const QString &name)
{
    return qxSetRegistry::removeSet(name);
}

void qxVariants::clearVariantSets()
{
    qxSetRegistry::clearSets();
}

void qxVariants::clearEmptyVariantSets()
{
    qxSetRegistry::clearEmptySets();
}

bool qxVariants::hasEmptyVariantSets()
{
    return qxSetRegistry::hasEmptySets();
}

void qxVariants::optimizeVariantSets()
{
    qxSetRegistry::optimizeSets();
}

qxVariantGroup *qxVariants::createVariantGroup(const QString &name, bool notify, bool visible)
{
    return qxSetRegistry::createGroup(name, notify, visible);
}

qxVariantGroup *qxVariants::findOrCreateVariantGroup(const QString &name)
{
    return qxSetRegistry::findOrCreateGroup(name);
}

bool qxVariants::removeVariantGroup(const QString &name)
{
    return qxSetRegistry::removeGroup(name);
}

void qxVariants::clearVariantGroups()
{
    qxSetRegistry::clearGroups();
}

void qxVariants::clearEmptyGroups()
{
    qxSetRegistry::clearEmptyGroups();
}

bool qxVariants::hasEmptyGroups()
{
    return qxSetRegistry::hasEmptyGroups();
}

QString qxVariants::getUniqueVariantSetName(QString base)
{
    return qxSetRegistry::uniqueSetName(base);
}

QString qxVariants::getUniqueVariantGroupName(QString base)
{
    return qxSetRegistry::uniqueGroupName(base);
}

void qxVariants::showConnectedVariants(QString setName)
{
    if (qxVariantSet *set = findVariantSet(setName))
        set->showConnectedVariants();
}

void qxVariants::selectVariantSet(const char *name, bool flag)
{
    qxOSGWidget::cancelAntialiasing();
    qxVariantSet *const set = findVariantSet(QString::fromUtf8(name));
    if (!set)
        return;
    const qxDeferredDeletion deferred;
    if (set->inclNodes)
        qxSetSelection::showTargets(*set);
    set->select(true, flag);
}

bool qxVariants::verifyNodeNames()
{
    return qxNodeNameGuard::verifyNodeNames();
}

bool qxVariants::showAmbiguousNodesDialog(std::vector<osg::NodePtr> &nodes)
{
    return qxNodeNameGuard::askToRename(nodes);
}

bool qxVariants::containsAmbiguousVSets(std::vector<osg::NodePtr> &nodes)
{
    return qxNodeNameGuard::areReferredTo(nodes);
}

bool qxVariants::checkIfNodeMatchesNodePath(osg::NodePtr, const char *path, bool apply)
{
    if (!path)
        return false;
    const std::vector<qxNodePtr> nodes = qxPathLookup::findPath(path);
    if (apply)
        qxSceneEdits::shareMaterial(nodes);
    return !nodes.empty();
}

void qxVariants::createAndCaptureVariantSet(const char *name, const char *groupName)
{
    qxSceneCapture::createAndCapture(name, groupName);
}

void qxVariants::captureVariantsFromRootNodes(qxVariantSet *set, std::vector<qxNodePtr> roots,
                                              bool captureNodes, bool captureMaterials,
                                              bool captureLights, bool captureEnvironments,
                                              bool captureViewpoint, bool captureTransforms,
                                              bool notify, bool plainViewpointName)
{
    const qxCaptureKinds kinds{captureNodes, captureMaterials, captureLights, captureEnvironments,
                               captureTransforms};
    if (set)
        qxSceneCapture::fromRoots(*set, roots, kinds,
                                  {captureViewpoint, notify, plainViewpointName});
}

void qxVariants::captureVariantsFromRootNode(
    qxVariantSet *set, qxNodePtr node, bool captureNodes, bool captureMaterials, bool captureLights,
    bool captureEnvironments, bool captureTransforms, QMap<QString, QString> &materials,
    std::vector<qxNodePtr>, QSet<QString> &visitedNames, std::set<osg::SwitchMaterialPtr> &,
    std::set<osg::MaterialPtr> &visitedMaterials, bool notify)
{
    const qxCaptureKinds kinds{captureNodes, captureMaterials, captureLights, captureEnvironments,
                               captureTransforms};
    const qxCaptureNotes notes{materials, visitedNames, visitedMaterials};
    if (set)
        qxCaptureWalk(*set, kinds, notes, notify).visit(node);
}

bool qxVariants::checkAndSetNodeActive(osg::NodePtr node, qxVariantSet *set, bool &captureNodes,
                                       bool &notify)
{
    return qxNodeActivity::goesOnBelow(node, set, captureNodes, notify);
}

void qxVariants::addMaterialGroupIgnoreToVSet(osg::NodePtr node, osg::MaterialGroupPtr,
                                              qxVariantSet *set)
{
    if (node != osg::NullFC && set)
        qxNodeActivity::recordIgnored(node, *set);
}

void qxVariants::captureMaterialVariantFromSwitchMaterial(qxVariantSet *set,
                                                          osg::SwitchMaterialPtr &material,
                                                          bool notify)
{
    if (set)
        qxMaterialCapture::capture(*set, material, notify);
}

void qxVariants::captureMaterialVariantFromMultiPassMaterial(qxVariantSet *set,
                                                             osg::MultiPassMaterialPtr &material,
                                                             bool notify)
{
    if (set)
        qxMaterialCapture::capture(*set, material, notify);
}

void qxVariants::initVSetProgressDialog(QProgressDialog *dialog)
{
    qxCaptureProgress::init(dialog);
}

void qxVariants::activateCapturedVariantSet(const char *name)
{
    qxSceneCapture::activate(name);
}

void qxVariants::handleMaterialSnapshots(qxVariantSet *set, osg::NodePtr node, const QString &path,
                                         osg::MaterialPtr material, const std::vector<qxNodePtr> &,
                                         QSet<QString> &visitedNames,
                                         std::set<osg::SwitchMaterialPtr> &,
                                         std::set<osg::MaterialPtr> &visitedMaterials, bool capture,
                                         bool notify)
{
    if (set)
        qxCaptureState::reconcile(node, path, material,
                                  {set, visitedNames, visitedMaterials, capture, notify});
}

void qxVariants::restoreSwitchNodes()
{
    qxSceneCapture::restoreSwitches();
}

void qxVariants::changeMaterial(osg::NodePtr node, osg::MaterialPtr material)
{
    if (node != osg::NullFC)
        qxSceneEdits::setMaterial(node, material);
}

QByteArray qxVariants::createPreviewImage(bool showProgress, bool fullRaytracingQuality)
{
    return qxPreview::fromScene(showProgress, fullRaytracingQuality);
}

QByteArray qxVariants::getPreviewImageFromFrameBuffer(qxVariantSet *)
{
    return qxPreview::fromFrameBuffer();
}

void qxVariants::renderVariantSetPreview(qxVariantSet *set, bool fromFrameBuffer, bool showProgress,
                                         bool fullRaytracingQuality)
{
    if (set)
        qxPreview::render(*set, fromFrameBuffer, showProgress, fullRaytracingQuality);
}

void qxVariants::mapHotkey(const QString &text, int &key, Qt::KeyboardModifiers &modifiers)
{
    qxHotkey::map(text, key, modifiers);
}
