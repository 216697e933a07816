#include "Internal/Document/qxSetElements.h"

#include "Internal/Document/qxDocumentNames.h"
#include "Internal/Document/qxDocumentParser.h"
#include "Internal/Document/qxDomCursor.h"
#include "Internal/Registry/qxDeferredDeletion.h"
#include "Internal/Registry/qxSetRegistry.h"
#include "qxVariantGroup.h"
#include "qxVariantLists.h"
#include "qxVariantSet.h"

#include "qxPreviewPicture.h"
#include "qxRegistryFill.h"

#include <QGuiApplication>
#include <QPixmap>

#include <cstdio>

namespace {

/// Base64 texts below this length are printed.
constexpr int ShortPreview = 80;

/// Prints short previews, and loads each picture once, so that one that cannot be shown is noticed
/// while loading.
void notePreviews(const QDomElement &element)
{
    const bool hasScreen = qobject_cast<QGuiApplication *>(QCoreApplication::instance());
    const QString tag = qxDocumentNames::Preview;
    for (auto each = element.firstChildElement(tag); !each.isNull();
         each = each.nextSiblingElement(tag)) {
        QByteArray base64;
        if (!qxDomCursor(each).picture(base64))
            continue;
        if (base64.size() < ShortPreview)
            std::printf("\t%s\n", base64.constData());
        const QByteArray bytes = hasScreen ? QByteArray::fromBase64(base64) : QByteArray();
        if (qxPreviewPicture::isDecodable(bytes))
            QPixmap().loadFromData(bytes);
    }
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
    qxDocumentSet data = qxDocumentParser(cursor).set();
    qxVariantSet *const set = createSet(data.name, replace);
    if (!set)
        return nullptr;
    data.settle();
    qxRegistryFill::fill(*set, data);
    if (data.hasHotkey && set->key < 0)
        set->updateShortcut(); // of none
    notePreviews(element);
    return set;
}

qxVariantGroup *qxSetElements::readGroup(const QDomElement &element)
{
    qxDomCursor cursor(element);
    const qxDocumentGroup data = qxDocumentParser(cursor).groupHead();
    const qxDeferredDeletion deferred;
    qxSetRegistry::removeGroup(data.name);
    qxVariantGroup *const group = qxSetRegistry::createGroup(data.name, false, true);
    if (!group)
        return nullptr;
    qxRegistryFill::fill(*group, data);
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
