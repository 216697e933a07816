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
qxKindAccess accessOf(const qxStateList qxVariantSet::*states, const char *changed, int flag)
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
        states,
        changed,
        flag};
}

} // namespace

// A list, not a procedure.
const qxKindAccess &qxKindAccess::of(int kind)
{
    typedef qxVariants All;
    static const qxKindAccess kinds[] = {
        accessOf<qxNodeVariant, All::_nodeVariants, &qxNodeVariant::nodeName,
                 &All::createNodeVariant, &All::removeNodeVariant>(&qxVariantSet::nodeVariants,
                                                                   "nodeVariantChanged", 1),
        accessOf<qxMaterialVariant, All::_materialVariants, &qxMaterialVariant::switchMaterialName,
                 &All::createMaterialVariant, &All::removeMaterialVariant>(
            &qxVariantSet::materialVariants, "materialVariantChanged", 1),
        accessOf<qxLightVariant, All::_lightVariants, &qxLightVariant::lightName,
                 &All::createLightVariant, &All::removeLightVariant>(&qxVariantSet::lightVariants,
                                                                     "lightVariantChanged", 1),
        accessOf<qxOverlayVariant, All::_overlayVariants, &qxOverlayVariant::overlayName,
                 &All::createOverlayVariant, &All::removeOverlayVariant>(
            &qxVariantSet::overlayVariants, "overlayVariantChanged", 1),
        accessOf<qxTransformVariant, All::_transformVariants, &qxTransformVariant::nodeName,
                 &All::createTransformVariant, &All::removeTransformVariant>(
            &qxVariantSet::transformVariants, "transformVariantChanged", 0),
    };
    return kinds[kind];
}
