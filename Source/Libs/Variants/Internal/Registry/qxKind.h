#pragma once

#include "Internal/Document/qxDocumentNames.h"
#include "Internal/Registry/qxFiveKinds.h"
#include "Internal/Registry/qxNotify.h"
#include "Internal/Registry/qxOperation.h"
#include "qxVariantSet.h"
#include "qxVariants.h"

#include <memory>

/// What the five kinds of variants differ in, one row of constants per kind.
///
/// `tag` and `refTag` are the document's elements for a variant and for a reference to it. `list`
/// is its list in the registry, `states` the list of a set that refers to it, `sceneName` the
/// member that names its scene object. `createNamed` finds or creates, the rest are announcements.
template <class Variant>
struct qxKind;

template <>
struct qxKind<qxNodeVariant> {
    static constexpr const QString &tag = qxDocumentNames::NodeVariant;
    static constexpr const QString &refTag = qxDocumentNames::NodeVariantRef;
    static constexpr auto &list = qxVariants::_nodeVariants;
    static constexpr auto states = &qxVariantSet::nodeVariants;
    static constexpr auto sceneName = &qxNodeVariant::nodeName;
    static constexpr qxNodeVariant *(*createNamed)(const QString &,
                                                   bool) = &qxVariants::createNodeVariant;
    static constexpr auto added = &qxNotify::nodeVariantAdded;
    static constexpr auto removed = &qxNotify::nodeVariantRemoved;
    static constexpr auto changed = &qxNotify::nodeVariantChanged;
    static constexpr auto highlight = &qxNotify::selectNodeVariants;
};

template <>
struct qxKind<qxMaterialVariant> {
    static constexpr const QString &tag = qxDocumentNames::MaterialVariant;
    static constexpr const QString &refTag = qxDocumentNames::MaterialVariantRef;
    static constexpr auto &list = qxVariants::_materialVariants;
    static constexpr auto states = &qxVariantSet::materialVariants;
    static constexpr auto sceneName = &qxMaterialVariant::switchMaterialName;
    static constexpr qxMaterialVariant *(*createNamed)(const QString &,
                                                       bool) = &qxVariants::createMaterialVariant;
    static constexpr auto added = &qxNotify::materialVariantAdded;
    static constexpr auto removed = &qxNotify::materialVariantRemoved;
    static constexpr auto changed = &qxNotify::materialVariantChanged;
    static constexpr auto highlight = &qxNotify::selectMaterialVariants;
};

template <>
struct qxKind<qxLightVariant> {
    static constexpr const QString &tag = qxDocumentNames::LightVariant;
    static constexpr const QString &refTag = qxDocumentNames::LightVariantRef;
    static constexpr auto &list = qxVariants::_lightVariants;
    static constexpr auto states = &qxVariantSet::lightVariants;
    static constexpr auto sceneName = &qxLightVariant::lightName;
    static constexpr qxLightVariant *(*createNamed)(const QString &,
                                                    bool) = &qxVariants::createLightVariant;
    static constexpr auto added = &qxNotify::lightVariantAdded;
    static constexpr auto removed = &qxNotify::lightVariantRemoved;
    static constexpr auto changed = &qxNotify::lightVariantChanged;
    static constexpr auto highlight = &qxNotify::selectLightVariants;
};

template <>
struct qxKind<qxOverlayVariant> {
    static constexpr const QString &tag = qxDocumentNames::OverlayVariant;
    static constexpr const QString &refTag = qxDocumentNames::OverlayRef;
    static constexpr auto &list = qxVariants::_overlayVariants;
    static constexpr auto states = &qxVariantSet::overlayVariants;
    static constexpr auto sceneName = &qxOverlayVariant::overlayName;
    static constexpr qxOverlayVariant *(*createNamed)(const QString &,
                                                      bool) = &qxVariants::createOverlayVariant;
    static constexpr auto added = &qxNotify::overlayVariantAdded;
    static constexpr auto removed = &qxNotify::overlayVariantRemoved;
    static constexpr auto changed = &qxNotify::overlayVariantChanged;
    static constexpr auto highlight = &qxNotify::selectOverlayVariants;
};

template <>
struct qxKind<qxTransformVariant> {
    static constexpr const QString &tag = qxDocumentNames::TransformVariant;
    static constexpr const QString &refTag = qxDocumentNames::TransformRef;
    static constexpr auto &list = qxVariants::_transformVariants;
    static constexpr auto states = &qxVariantSet::transformVariants;
    static constexpr auto sceneName = &qxTransformVariant::nodeName;
    static constexpr qxTransformVariant *(*createNamed)(const QString &,
                                                        bool) = &qxVariants::createTransformVariant;
    static constexpr auto added = &qxNotify::transformVariantAdded;
    static constexpr auto removed = &qxNotify::transformVariantRemoved;
    static constexpr auto changed = &qxNotify::transformVariantChanged;
    static constexpr auto highlight = &qxNotify::selectTransformVariants;
};

/// The registry's operations, the same for every kind.
namespace qxKinds {

template <class Variant>
Variant *find(const QString &name)
{
    return qxKind<Variant>::list.find(name);
}

/// Gives a new variant to the registry. Null when a listener took it out again.
template <class Variant>
Variant *adopt(std::unique_ptr<Variant> variant, bool notify)
{
    const qxOperation operation;
    qxNamedList<Variant> &list = qxKind<Variant>::list;
    list.append(variant.get());
    Variant *const added = variant.release();
    if (notify)
        qxKind<Variant>::added(added);
    return list.contains(added) ? added : nullptr;
}

/// The variant `name`, built from `source` when there is none; null for an empty name.
template <class Variant, class Source>
Variant *findOrBuild(const QString &name, const Source &source, bool notify)
{
    if (name.isEmpty())
        return nullptr;
    if (Variant *known = find<Variant>(name))
        return known;
    return adopt(std::make_unique<Variant>(source), notify);
}

/// The variant `name`; when there is none, a new one without options.
template <class Variant>
Variant *findOrCreate(const QString &name, bool notify)
{
    if (Variant *known = find<Variant>(name))
        return known;
    auto variant = std::make_unique<Variant>();
    variant->name = name;
    return adopt(std::move(variant), notify);
}

template <class Variant>
bool remove(const QString &name)
{
    if (name.isEmpty())
        return false;
    if (Variant *variant = find<Variant>(name)) {
        qxKind<Variant>::list.take(variant);
        qxOperation::bury(variant);
    }
    qxKind<Variant>::removed();
    return true;
}

template <class Variant>
void clear()
{
    for (Variant *variant : qxKind<Variant>::list.takeAll())
        qxOperation::bury(variant);
    qxKind<Variant>::changed();
}

} // namespace qxKinds
