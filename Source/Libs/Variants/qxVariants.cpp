#include "qxVariants.h"

#include "qxLightVariant.h"
#include "qxMaterialVariant.h"
#include "qxNodeVariant.h"
#include "qxOverlayVariant.h"
#include "qxTransformVariant.h"
#include "qxVariantGroup.h"
#include "qxVariantKinds.h"
#include "qxVariantSet.h"

#include "qxController.h"
#include "qxNames.h"

#include <OpenSG/OSGSwitchMaterial.h>

#include <QKeySequence>

using qxNames::nameOf;

namespace {

const char *const clearAllVariants = "clearAllVariants";

/// The name of the switch material that a variant of this material drives.
QString switchNameOf(const osg::MaterialPtr &material)
{
    const QString name = nameOf(material);
    const bool isSwitch = osg::SwitchMaterialPtr::dcast(material) != osg::NullFC;
    return name.isEmpty() || isSwitch ? name : name + QStringLiteral(" Switch");
}

/// The variant `name`, built from `source` when there is none; null for an empty name.
template <class Variant, class Source>
Variant *findOrBuild(const qxVariantKind &kind, const QString &name, const Source &source,
                     bool notify)
{
    if (name.isEmpty())
        return nullptr;
    qxVariant *const known = kind.find(name);
    return static_cast<Variant *>(known ? known
                                        : kind.adopt(std::make_unique<Variant>(source), notify));
}

} // namespace

// Above _the: the lists are there as long as the module object is.
qxNamedList<qxNodeVariant> qxVariants::_nodeVariants;
qxNamedList<qxMaterialVariant> qxVariants::_materialVariants;
qxNamedList<qxLightVariant> qxVariants::_lightVariants;
qxNamedList<qxOverlayVariant> qxVariants::_overlayVariants;
qxNamedList<qxTransformVariant> qxVariants::_transformVariants;
qxNamedList<qxVariantSet> qxVariants::_variantSets;
qxNamedList<qxVariantGroup> qxVariants::_variantGroups;
bool qxVariants::_recurse = false;
std::set<osg::NodeCorePtr> qxVariants::_clonedGeoms;
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
    clearVariantSets();
    clearVariantGroups();
}

qxNodeVariant *qxVariants::createNodeVariant(osg::NodePtr node, bool notify)
{
    return findOrBuild<qxNodeVariant>(qxVariantKinds::node, nameOf(node), node, notify);
}

qxMaterialVariant *qxVariants::createMaterialVariant(osg::MaterialPtr material, bool notify)
{
    return findOrBuild<qxMaterialVariant>(qxVariantKinds::material, switchNameOf(material),
                                          material, notify);
}

qxLightVariant *qxVariants::createLightVariant(osg::NodePtr node, bool notify)
{
    return findOrBuild<qxLightVariant>(qxVariantKinds::light, nameOf(node), node, notify);
}

qxOverlayVariant *qxVariants::createOverlayVariant(osg::NodePtr node, bool notify)
{
    return findOrBuild<qxOverlayVariant>(qxVariantKinds::overlay, nameOf(node), node, notify);
}

qxTransformVariant *qxVariants::createTransformVariant(osg::NodePtr node, bool notify)
{
    if (!qxNodeUtils::hasTransformVariants(node))
        return nullptr;
    const QString name = nameOf(node);
    return findOrBuild<qxTransformVariant>(qxVariantKinds::transform, name, name, notify);
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

void qxVariants::mapHotkey(const QString &text, int &key, Qt::KeyboardModifiers &modifiers)
{
    const QKeySequence sequence(text, QKeySequence::NativeText);
    const int combination = sequence.isEmpty() ? 0 : sequence[0];
    const bool isKnown = combination != Qt::Key_unknown; // What Qt makes of a text without a key.
    key = isKnown ? combination & 0x01FFFFFF : 0;
    modifiers = Qt::KeyboardModifiers(isKnown ? combination & int(0xFE000000) : 0);
}
