#include "qxKindAccess.h"

#include "qxLightVariant.h"
#include "qxMaterialVariant.h"
#include "qxNodeVariant.h"
#include "qxOverlayVariant.h"
#include "qxTransformVariant.h"
#include "qxVariants.h"

namespace {

template <class Variant, auto &list, QString Variant::*sceneName,
          Variant *(*create)(const QString &, bool), bool (*remove)(const QString &)>
qxKindAccess accessOf(const qxStateList qxVariantSet::*states)
{
    return {
        [](const qxKindAccess::Visit &visit) {
            for (Variant *each : list)
                visit(*each);
        },
        [](const QString &name) -> qxVariant * { return list.find(name); },
        [](const QString &name) -> qxVariant * { return create(name, false); },
        remove,
        [](qxVariant &variant) -> QString & { return static_cast<Variant &>(variant).*sceneName; },
        states};
}

} // namespace

// A list, not a procedure.
const qxKindAccess &qxKindAccess::of(int kind)
{
    typedef qxVariants All;
    static const qxKindAccess kinds[] = {
        accessOf<qxNodeVariant, All::_nodeVariants, &qxNodeVariant::nodeName,
                 &All::createNodeVariant, &All::removeNodeVariant>(&qxVariantSet::nodeVariants),
        accessOf<qxMaterialVariant, All::_materialVariants, &qxMaterialVariant::switchMaterialName,
                 &All::createMaterialVariant, &All::removeMaterialVariant>(
            &qxVariantSet::materialVariants),
        accessOf<qxLightVariant, All::_lightVariants, &qxLightVariant::lightName,
                 &All::createLightVariant, &All::removeLightVariant>(&qxVariantSet::lightVariants),
        accessOf<qxOverlayVariant, All::_overlayVariants, &qxOverlayVariant::overlayName,
                 &All::createOverlayVariant, &All::removeOverlayVariant>(
            &qxVariantSet::overlayVariants),
        accessOf<qxTransformVariant, All::_transformVariants, &qxTransformVariant::nodeName,
                 &All::createTransformVariant, &All::removeTransformVariant>(
            &qxVariantSet::transformVariants),
    };
    return kinds[kind];
}
