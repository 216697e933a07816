#include "Internal/Registry/qxSceneVariants.h"

#include "qxLightVariant.h"
#include "qxMaterialVariant.h"
#include "qxNodeVariant.h"
#include "qxOverlayVariant.h"
#include "qxTransformVariant.h"
#include "qxVariantKinds.h"

#include "qxNames.h"

#include <OpenSG/OSGSwitchMaterial.h>

using qxNames::nameOf;

namespace {

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

qxNodeVariant *qxSceneVariants::ofNode(const osg::NodePtr &node, bool notify)
{
    return findOrBuild<qxNodeVariant>(qxVariantKinds::node, nameOf(node), node, notify);
}

qxMaterialVariant *qxSceneVariants::ofMaterial(const osg::MaterialPtr &material, bool notify)
{
    return findOrBuild<qxMaterialVariant>(qxVariantKinds::material, switchNameOf(material),
                                          material, notify);
}

qxLightVariant *qxSceneVariants::ofLight(const osg::NodePtr &node, bool notify)
{
    return findOrBuild<qxLightVariant>(qxVariantKinds::light, nameOf(node), node, notify);
}

qxOverlayVariant *qxSceneVariants::ofOverlay(const osg::NodePtr &node, bool notify)
{
    return findOrBuild<qxOverlayVariant>(qxVariantKinds::overlay, nameOf(node), node, notify);
}

qxTransformVariant *qxSceneVariants::ofTransforms(const osg::NodePtr &node, bool notify)
{
    if (!qxNodeUtils::hasTransformVariants(node))
        return nullptr;
    const QString name = nameOf(node);
    return findOrBuild<qxTransformVariant>(qxVariantKinds::transform, name, name, notify);
}
