#include "Internal/Document/qxSetElements.h"

#include "Internal/Document/qxDocumentNames.h"
#include "Internal/Document/qxDocumentParser.h"
#include "Internal/Document/qxDomCursor.h"
#include "Internal/Options/qxHotkey.h"
#include "Internal/Registry/qxDeferredDeletion.h"
#include "Internal/Registry/qxSetRegistry.h"
#include "qxVariantGroup.h"
#include "qxVariantLists.h"
#include "qxVariantSet.h"

#include "qxPreviewPicture.h"

#include <QGuiApplication>
#include <QPixmap>

#include <cstdio>

namespace {

/// Base64 texts below this length are printed.
constexpr int ShortPreview = 80;

/// Loads the picture once, so that a picture that cannot be shown is noticed while loading.
void tryPreview(const QByteArray &bytes)
{
    if (qobject_cast<QGuiApplication *>(QCoreApplication::instance())
        && qxPreviewPicture::isDecodable(bytes))
        QPixmap().loadFromData(bytes);
}

void fillPreview(qxVariantSet &set, const QByteArray &base64)
{
    if (base64.isNull())
        return;
    if (base64.size() < ShortPreview)
        std::printf("\t%s\n", base64.constData());
    set.setPreview(QByteArray::fromBase64(base64));
    tryPreview(set.preview);
}

template <void (qxVariantSet::*add)(const QString &)>
void fillNames(qxVariantSet &set, const qxDocumentSet &data, qxNameList list)
{
    for (const qxDocumentText &each : data.of(list))
        (set.*add)(each.text);
}

void fill(qxVariantSet &set, const qxDocumentSet &data)
{
    set.comment = data.comment;
    set.defaultViewpoint = data.defaultViewpoint;
    if (data.hasHotkey) {
        set.hotkey = qxHotkey::convertOld(data.hotkey.text);
        set.updateShortcut();
    }
    set.sequentialAnimation = data.isSequential;
    set.script = data.script.text;
    for (const qxDocumentReference &each : data.references)
        (set.*each.kind->states).add(each.variant, each.state);
    fillNames<&qxVariantSet::addViewpoint>(set, data, qxNameList::Viewpoints);
    fillNames<&qxVariantSet::addAnimation>(set, data, qxNameList::Animations);
    fillNames<&qxVariantSet::addGeometry>(set, data, qxNameList::Geometries);
    fillNames<&qxVariantSet::addTargetNodeName>(set, data, qxNameList::Targets);
    const auto &taken = data.inclusions;
    set.setInclInfo(taken[0], taken[1], taken[2], taken[3], taken[4]);
    for (const qxDocumentText &each : data.snapshots)
        set.addMaterialSnapshot(each.text, each.more);
    for (const qxDocumentText &each : data.values)
        set.values.insert(each.text, each.more);
    set.analyzer = data.clipping;
    fillPreview(set, data.preview);
}

/// A new set for an element of that name, or null.
qxVariantSet *createSet(const QString &name, bool replace)
{
    if (name.isEmpty())
        return nullptr;
    if (replace)
        qxSetRegistry::removeSet(name);
    const QString free = replace ? name : qxSetRegistry::uniqueSetName(name);
    return qxSetRegistry::createSet(free, false, nullptr);
}

} // namespace

qxVariantSet *qxSetElements::readSet(const QDomElement &element, bool replace)
{
    qxDomCursor cursor(element);
    const qxDocumentSet data = qxDocumentParser(cursor).set();
    qxVariantSet *const set = createSet(data.name, replace);
    if (set)
        fill(*set, data);
    return set;
}

qxVariantGroup *qxSetElements::readGroup(const QDomElement &element)
{
    qxDomCursor cursor(element);
    const qxDocumentGroup data = qxDocumentParser(cursor).groupHead();
    const qxDeferredDeletion deferred;
    qxSetRegistry::removeGroup(data.name);
    qxVariantGroup *const group = qxSetRegistry::createGroup(data.name, false, data.isVisible);
    if (!group)
        return nullptr;
    group->comment = data.comment;
    for (auto child = element.firstChildElement(qxDocumentNames::VariantSet); !child.isNull();
         child = child.nextSiblingElement(qxDocumentNames::VariantSet)) {
        qxVariantSet *const set = readSet(child, true);
        if (!qxVariantLists::_variantGroups.contains(group)) // the replaced set was announced
            return nullptr;
        if (set)
            group->append(set);
    }
    return group;
}
