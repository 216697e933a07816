#include "Internal/Capture/qxCaptureWalk.h"

#include "Internal/Capture/qxCaptureProgress.h"
#include "Internal/Capture/qxCaptureState.h"
#include "Internal/Capture/qxNodeActivity.h"
#include "Internal/Materials/qxMaterialCapture.h"
#include "Internal/Materials/qxSwitchMaterials.h"
#include "Internal/Registry/qxSceneVariants.h"
#include "Internal/Scene/qxPathLookup.h"
#include "Internal/Scene/qxSceneEdits.h"
#include "qxLightVariant.h"
#include "qxNodeVariant.h"
#include "qxTransformVariant.h"
#include "qxVariantLists.h"
#include "qxVariantSet.h"

#include "OSGUberLight.h"
#include "qxLights.h"
#include "qxMaterials.h"
#include "qxNames.h"
#include "qxNodeWalk.h"

#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGMaterialGroup.h>
#include <OpenSG/OSGMultiPassMaterial.h>
#include <OpenSG/OSGSwitch.h>
#include <OpenSG/OSGSwitchMaterial.h>

using qxNames::nameOf;

namespace {

/// The core as that kind, null when it is another one. The type is looked at first, because a cast
/// that fails is slow.
template <class Core>
typename Core::Ptr coreAs(const osg::NodeCorePtr &core)
{
    return core->getType().isDerivedFrom(Core::getClassType()) ? Core::Ptr::dcast(core)
                                                               : typename Core::Ptr();
}

QString stateOf(const osg::NodePtr &node, const osg::SwitchPtr &core)
{
    if (core->getChoice() < 0)
        return variantNone;
    return node->getActive() ? nameOf(node->getChild(osg::UInt32(core->getChoice())))
                             : variantDisable;
}

} // namespace

qxCaptureWalk::qxCaptureWalk(qxVariantSet &set, const qxCaptureKinds &kinds,
                             const qxCaptureNotes &notes, bool notify)
    : m_set(set), m_kinds(kinds), m_notes(notes), m_notify(notify)
{
}

void qxCaptureWalk::visit(const osg::NodePtr &top)
{
    qxCaptureProgress::processEvents();
    qxWalkChangingNodes(top, [this](const osg::NodePtr &node) {
        const bool goesOn = node->getCore() != osg::NullFC && captureNode(node);
        qxCaptureProgress::processEvents();
        return goesOn;
    });
}

/// Whether the walk goes on below the node.
bool qxCaptureWalk::captureNode(const osg::NodePtr &node)
{
    const osg::NodeCorePtr core = node->getCore();
    const auto geometry = coreAs<osg::Geometry>(core);
    if (geometry != osg::NullFC && !qxVariantLists::_clonedGeoms.insert(core).second)
        return false;
    captureTransform(node);
    captureSwitch(node);
    const auto group = coreAs<osg::MaterialGroup>(core);
    if (group != osg::NullFC) {
        if (!mayDescend(node))
            return false;
        captureMaterialGroup(node, group);
    }
    if (geometry != osg::NullFC) {
        captureGeometry(node, geometry);
        return false;
    }
    if (coreAs<osg::UberLight>(core) != osg::NullFC)
        captureLight(node);
    return coreAs<osg::Group>(core) != osg::NullFC && mayDescend(node);
}

bool qxCaptureWalk::mayDescend(const osg::NodePtr &node)
{
    return qxNodeActivity::goesOnBelow(node, &m_set, m_kinds.nodes, m_notify);
}

void qxCaptureWalk::captureTransform(const osg::NodePtr &node)
{
    if (!m_kinds.transforms || qxNodeUtils::getTransformVariantCount(node) <= 0
        || !qxNodeUtils::isTransformVariantInState(node))
        return;
    if (qxTransformVariant *variant = qxSceneVariants::ofTransforms(node, m_notify))
        m_set.add(variant, qxText::fromUtf8(qxNodeUtils::getSelectedTransformVariantName(node)));
}

void qxCaptureWalk::captureSwitch(const osg::NodePtr &node)
{
    const auto core = coreAs<osg::Switch>(node->getCore());
    if (core == osg::NullFC || core->getChoice() >= osg::Int32(node->getNChildren()))
        return;
    const bool isEnvironment = qxNodeUtils::isEnvironmentGeometrySwitch(node);
    if (!(isEnvironment ? m_kinds.environments : m_kinds.nodes))
        return;
    const QString state = stateOf(node, core);
    if (qxNodeVariant *variant = qxSceneVariants::ofNode(node, m_notify))
        m_set.add(variant, state);
}

void qxCaptureWalk::captureMaterialGroup(const osg::NodePtr &node,
                                         const osg::MaterialGroupPtr &group)
{
    if (!m_kinds.materials)
        return;
    qxNodeActivity::recordIgnored(node, m_set);
    if (group->getMaterial() != osg::NullFC)
        takeSnapshot(node, group->getMaterial());
}

void qxCaptureWalk::captureGeometry(const osg::NodePtr &node, const osg::GeometryPtr &geometry)
{
    if (!mayDescend(node) || (!m_kinds.materials && !m_kinds.environments))
        return;
    const osg::MaterialPtr material = geometry->getMaterial();
    if (material == osg::NullFC)
        return;
    const osg::MaterialRefPtr kept(material);
    if (isEnvironment(material) && qxSwitchMaterials::switchOf(material) != osg::NullFC)
        return captureStates(material);
    if (m_kinds.materials)
        qxMaterialCapture::capture(m_set, material, m_notify);
    if (isWanted(material))
        takeSnapshot(node, material);
}

/// Asked once for each material: the answer takes as long as the material has contents.
bool qxCaptureWalk::isEnvironment(const osg::MaterialPtr &material)
{
    const osg::UInt32 id = material.getFieldContainerId();
    const auto known = m_isEnvironment.constFind(id);
    return known != m_isEnvironment.constEnd()
        ? *known
        : *m_isEnvironment.insert(id, qxMaterials::isEnvironmentMaterial(material));
}

bool qxCaptureWalk::isWanted(const osg::MaterialPtr &material)
{
    return isEnvironment(material) ? m_kinds.environments : m_kinds.materials;
}

/// Takes down what the switch materials show that are seen of the material, as far as the flags
/// want them.
void qxCaptureWalk::captureStates(const osg::MaterialPtr &material)
{
    const auto isSeen = [this](const osg::MaterialPtr &each) { return isWanted(each); };
    qxMaterialCapture::capture(m_set, material, m_notify, isSeen);
}

void qxCaptureWalk::captureLight(const osg::NodePtr &node)
{
    if (!m_kinds.lights)
        return;
    if (qxLightVariant *variant = qxSceneVariants::ofLight(node, m_notify))
        m_set.add(variant,
                  node->getActive() && qxLights::getOn(node) ? variantEnable : variantDisable);
}

/// Notes the node's material, unless a node met earlier has the same path.
void qxCaptureWalk::takeSnapshot(const osg::NodePtr &node, const osg::MaterialPtr &material)
{
    const QString path = qxPathLookup::getNodePath(node);
    qxCaptureState::reconcile(
        node, path, material,
        {&m_set, m_notes.visitedNames, m_notes.visitedMaterials, true, m_notify});
    const osg::MaterialRefPtr now(qxNodeUtils::getMaterial(node)); // may be another one now
    if (now == osg::NullFC)
        return;
    // Of a material group, and of what was just built or named; that was recorded unasked.
    captureStates(now.get());
    if (!isWanted(now.get()))
        m_set.removeMaterialVariant(nameOf(now.get()));
    if (m_notes.materials.contains(path))
        return;
    m_notes.materials.insert(path, nameOf(now.get()));
    qxSceneEdits::shareMaterial(qxPathLookup::findPath(qxText::toUtf8(path).c_str()));
}
