#include "Internal/Capture/qxCaptureProgress.h"
#include "Internal/Capture/qxCaptureRun.h"
#include "Internal/Materials/qxSnapshotReconciler.h"
#include "Internal/Materials/qxSwitchMaterials.h"
#include "Internal/Registry/qxSetUse.h"
#include "Internal/Scene/qxActiveNames.h"
#include "Internal/Scene/qxPathLookup.h"
#include "qxNodeVariant.h"
#include "qxVariantSet.h"
#include "qxVariants.h"

#include "qxCameraService.h"
#include "qxConnector.h"
#include "qxFindCache.h"
#include "qxMaterials.h"
#include "qxNames.h"
#include "qxOpenSGUtils.h"
#include "qxScenegraph.h"
#include "qxScript.h"
#include "qxUberCameraPool.h"

#include <OpenSG/OSGMultiPassMaterial.h>
#include <OpenSG/OSGSwitchMaterial.h>

using qxNames::nameOf;

namespace {

/// Forgets at the end of a scope which geometries were captured in it.
class CapturedGeometries {
public:
    CapturedGeometries() = default;
    ~CapturedGeometries() { qxVariants::_clonedGeoms.clear(); }
    CapturedGeometries(const CapturedGeometries &) = delete;
    CapturedGeometries &operator=(const CapturedGeometries &) = delete;
};

/// The path as an argument in a script.
QString quotedPath(const osg::NodePtr &node)
{
    const QLatin1Char quote('"');
    return quote + qxText::escaped(qxPathLookup::getNodePath(node), quote) + quote;
}

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

bool isWanted(const osg::MaterialPtr &)
{
    return true;
}

} // namespace

qxVariantGroup *qxVariants::findOrCreateVariantGroup(const QString &name)
{
    if (qxVariantGroup *known = findVariantGroup(name))
        return known;
    const bool isOrdinary = name != QLatin1String("Render Queue");
    return createVariantGroup(getUniqueVariantGroupName(name), isOrdinary, isOrdinary);
}

void qxVariants::createAndCaptureVariantSet(const char *name, const char *groupName)
{
    if (!verifyNodeNames())
        return;
    const QString wanted = QString::fromUtf8(groupName);
    qxVariantGroup *const group =
        findOrCreateVariantGroup(wanted.isEmpty() ? QStringLiteral("New Group 1") : wanted);
    if (!group)
        return;
    qxVariantSet *const set =
        createVariantSet(getUniqueVariantSetName(QString::fromUtf8(name)), true, group);
    if (!set)
        return;
    const qxSetUse use(*set);
    leaveHome(*set);
    captureVariantsFromRootNodes(set, {qxOpenSGUtils::getRoot()}, true, true, true, true, true,
                                 true, true, true);
    set->setPreview(createPreviewImage(false, true));
}

void qxVariants::captureVariantsFromRootNodes(qxVariantSet *set, std::vector<qxNodePtr> roots,
                                              bool captureNodes, bool captureMaterials,
                                              bool captureLights, bool captureEnvironments,
                                              bool captureViewpoint, bool captureTransforms,
                                              bool notify, bool plainViewpointName)
{
    if (!set)
        return;
    const qxSetUse use(*set);
    const qxUnchangedNames unchanged;
    const std::vector<osg::NodeRefPtr> kept(roots.begin(), roots.end()); // beyond listeners
    const qxCaptureProgress progress;
    const CapturedGeometries geometries;
    set->clear();
    qxPathLookup::createLookupTable();
    qxCaptureProgress::processEvents();

    const qxActiveNames activeNames;
    const qxSnapshotReconciler switches(set);
    const qxFindCache cache(true); // new variants of transforms look for their nodes
    QMap<QString, QString> materials;
    QSet<QString> names;
    std::set<osg::SwitchMaterialPtr> switchMaterials;
    std::set<osg::MaterialPtr> visitedMaterials;
    for (const qxNodePtr &root : roots) {
        captureVariantsFromRootNode(set, root, captureNodes, captureMaterials, captureLights,
                                    captureEnvironments, captureTransforms, materials, roots, names,
                                    switchMaterials, visitedMaterials, notify);
    }
    if (captureEnvironments) {
        captureVariantsFromRootNode(set, qxScenegraph::environmentGeometrySwitch(), false, false,
                                    false, true, false, materials, roots, names, switchMaterials,
                                    visitedMaterials, notify);
    }
    set->materialSnapshots = materials;
    if (captureViewpoint)
        ::captureViewpoint(*set, plainViewpointName);
    for (const qxNodePtr &root : roots)
        set->addTargetNodeName(nameOf(root));
    set->setInclInfo(captureNodes, captureMaterials, captureLights, captureEnvironments,
                     captureViewpoint);
}

void qxVariants::captureVariantsFromRootNode(
    qxVariantSet *set, qxNodePtr node, bool captureNodes, bool captureMaterials, bool captureLights,
    bool captureEnvironments, bool captureTransforms, QMap<QString, QString> &materials,
    std::vector<qxNodePtr> roots, QSet<QString> &visitedNames,
    std::set<osg::SwitchMaterialPtr> &visitedSwitchMaterials,
    std::set<osg::MaterialPtr> &visitedMaterials, bool notify)
{
    if (!set)
        return;
    const qxCaptureKinds kinds{captureNodes, captureMaterials, captureLights, captureEnvironments,
                               captureTransforms};
    const qxCaptureNotes notes{materials, visitedNames, visitedSwitchMaterials, visitedMaterials};
    qxCaptureRun(*set, kinds, notes, roots, notify).visit(node);
}

bool qxVariants::checkAndSetNodeActive(osg::NodePtr node, qxVariantSet *set, bool &captureNodes,
                                       bool &notify)
{
    if (node == osg::NullFC)
        return false;
    if (node->getActive())
        return true;
    if (!captureNodes || !set)
        return false;
    if (qxActiveNames::contain(qxNodeUtils::getName(node)))
        set->appendToScript(
            QStringLiteral("findNodePath(%1).setActive(false)").arg(quotedPath(node)));
    else if (qxNodeVariant *variant = createNodeVariant(node, notify))
        set->add(variant, variantDisable);
    return false;
}

void qxVariants::addMaterialGroupIgnoreToVSet(osg::NodePtr node, osg::MaterialGroupPtr,
                                              qxVariantSet *set)
{
    if (node == osg::NullFC || !set)
        return;
    const bool ignore = qxMaterials::getIgnoreMaterialGroup(node);
    set->appendToScript(
        QStringLiteral("setIgnoreMaterialGroup(%1,%2)")
            .arg(quotedPath(node), ignore ? QLatin1String("true") : QLatin1String("false")));
}

void qxVariants::captureMaterialVariantFromSwitchMaterial(qxVariantSet *set,
                                                          osg::SwitchMaterialPtr &material,
                                                          bool notify)
{
    if (set)
        qxSwitchMaterials::capture(*set, material, notify, isWanted);
}

void qxVariants::captureMaterialVariantFromMultiPassMaterial(qxVariantSet *set,
                                                             osg::MultiPassMaterialPtr &material,
                                                             bool notify)
{
    if (set)
        qxSwitchMaterials::capture(*set, material, notify, isWanted);
}

void qxVariants::initVSetProgressDialog(QProgressDialog *dialog)
{
    qxCaptureProgress::init(dialog);
}

void qxVariants::activateCapturedVariantSet(const char *name)
{
    qxPathLookup::createLookupTable();
    restoreSwitchNodes();
    const qxVariantSet *const set = findVariantSet(QString::fromUtf8(name));
    if (!set)
        return;
    const QString script =
        QStringLiteral("selectVariantSet('%1')").arg(qxText::escaped(set->name, QLatin1Char('\'')));
    qxScript::executeNUS(script.toUtf8().constData(), qxConnector::the()->syncVariants());
    qxScenegraph::update(0);
}
