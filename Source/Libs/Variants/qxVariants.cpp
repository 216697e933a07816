#include "qxVariants.h"

#include "Internal/Options/qxHotkey.h"
#include "Internal/Registry/qxKind.h"
#include "Internal/Registry/qxText.h"
#include "qxVariantGroup.h"

#include "qxController.h"
#include "qxMaterials.h"
#include "qxNodeUtils.h"

#include <OpenSG/OSGSwitchMaterial.h>

namespace {

const char *const clearAllVariants = "clearAllVariants";

QString nameOf(const osg::NodePtr &node)
{
    return qxText::fromUtf8(qxNodeUtils::getName(node));
}

/// The name of the switch material that a variant of this material drives.
QString switchNameOf(const osg::MaterialPtr &material)
{
    const QString name = qxText::fromUtf8(qxMaterials::getName(material));
    const bool isSwitch = osg::SwitchMaterialPtr::dcast(material) != osg::NullFC;
    return name.isEmpty() || isSwitch ? name : name + QStringLiteral(" Switch");
}

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
    clearNodeVariants();
    clearMaterialVariants();
    clearLightVariants();
    clearOverlayVariants();
    clearTransformVariants();
    clearVariantSets();
    clearVariantGroups();
}

qxNodeVariant *qxVariants::createNodeVariant(osg::NodePtr node, bool notify)
{
    return qxKinds::findOrBuild<qxNodeVariant>(nameOf(node), node, notify);
}

qxMaterialVariant *qxVariants::createMaterialVariant(osg::MaterialPtr material, bool notify)
{
    return qxKinds::findOrBuild<qxMaterialVariant>(switchNameOf(material), material, notify);
}

qxLightVariant *qxVariants::createLightVariant(osg::NodePtr node, bool notify)
{
    return qxKinds::findOrBuild<qxLightVariant>(nameOf(node), node, notify);
}

qxOverlayVariant *qxVariants::createOverlayVariant(osg::NodePtr node, bool notify)
{
    return qxKinds::findOrBuild<qxOverlayVariant>(nameOf(node), node, notify);
}

qxTransformVariant *qxVariants::createTransformVariant(osg::NodePtr node, bool notify)
{
    if (!qxNodeUtils::hasTransformVariants(node))
        return nullptr;
    const QString name = nameOf(node);
    return qxKinds::findOrBuild<qxTransformVariant>(name, name, notify);
}

qxNodeVariant *qxVariants::createNodeVariant(const QString &name, bool notify)
{
    return qxKinds::findOrCreate<qxNodeVariant>(name, notify);
}

qxMaterialVariant *qxVariants::createMaterialVariant(const QString &name, bool notify)
{
    return qxKinds::findOrCreate<qxMaterialVariant>(name, notify);
}

qxLightVariant *qxVariants::createLightVariant(const QString &name, bool notify)
{
    return qxKinds::findOrCreate<qxLightVariant>(name, notify);
}

qxOverlayVariant *qxVariants::createOverlayVariant(const QString &name, bool notify)
{
    if (name.isEmpty())
        return nullptr;
    if (qxOverlayVariant *known = findOverlayVariant(name))
        return known;
    auto variant = std::make_unique<qxOverlayVariant>();
    variant->name = name;
    variant->overlayName = name;
    return qxKinds::adopt(std::move(variant), notify);
}

qxTransformVariant *qxVariants::createTransformVariant(const QString &name, bool notify)
{
    return qxKinds::findOrCreate<qxTransformVariant>(name, notify);
}

qxNodeVariant *qxVariants::findNodeVariant(const QString &name)
{
    return qxKinds::find<qxNodeVariant>(name);
}

qxMaterialVariant *qxVariants::findMaterialVariant(const QString &name)
{
    return qxKinds::find<qxMaterialVariant>(name);
}

qxLightVariant *qxVariants::findLightVariant(const QString &name)
{
    return qxKinds::find<qxLightVariant>(name);
}

qxOverlayVariant *qxVariants::findOverlayVariant(const QString &name)
{
    return qxKinds::find<qxOverlayVariant>(name);
}

qxTransformVariant *qxVariants::findTransformVariant(const QString &name)
{
    return qxKinds::find<qxTransformVariant>(name);
}

bool qxVariants::removeNodeVariant(const QString &name)
{
    return qxKinds::remove<qxNodeVariant>(name);
}

bool qxVariants::removeMaterialVariant(const QString &name)
{
    return qxKinds::remove<qxMaterialVariant>(name);
}

bool qxVariants::removeLightVariant(const QString &name)
{
    return qxKinds::remove<qxLightVariant>(name);
}

bool qxVariants::removeOverlayVariant(const QString &name)
{
    return qxKinds::remove<qxOverlayVariant>(name);
}

bool qxVariants::removeTransformVariant(const QString &name)
{
    return qxKinds::remove<qxTransformVariant>(name);
}

void qxVariants::clearNodeVariants()
{
    qxKinds::clear<qxNodeVariant>();
}

void qxVariants::clearMaterialVariants()
{
    qxKinds::clear<qxMaterialVariant>();
}

void qxVariants::clearLightVariants()
{
    qxKinds::clear<qxLightVariant>();
}

void qxVariants::clearOverlayVariants()
{
    qxKinds::clear<qxOverlayVariant>();
}

void qxVariants::clearTransformVariants()
{
    qxKinds::clear<qxTransformVariant>();
}

void qxVariants::mapHotkey(const QString &text, int &key, Qt::KeyboardModifiers &modifiers)
{
    qxHotkey::map(text, key, modifiers);
}
