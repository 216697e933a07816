#include "qxVariantReader.h"

#include "Internal/Document/qxDocumentGuard.h"
#include "Internal/Document/qxDocumentNames.h"
#include "Internal/Document/qxOlderOverlays.h"
#include "Internal/Document/qxSetElements.h"
#include "Internal/Document/qxVariantElements.h"
#include "Internal/Options/qxHotkey.h"
#include "Internal/Registry/qxNotify.h"
#include "qxLightVariant.h"
#include "qxMaterialVariant.h"
#include "qxNodeVariant.h"
#include "qxOverlayVariant.h"
#include "qxTransformVariant.h"
#include "qxVariantKinds.h"

#include "qxLog.h"
#include "qxNameLookUp.h"
#include "qxText.h"

#include <cstring>

namespace {

namespace names = qxDocumentNames;

bool parse(QDomDocument &document, const QByteArray &bytes, qxDocumentError &error)
{
    const std::string_view look(bytes.constData(), std::size_t(bytes.size()));
    return qxDocumentGuard::admits(look, error)
        && document.setContent(bytes, &error.message, &error.line, &error.column);
}

void readRoot(const QDomElement &root)
{
    for (QDomElement child = root.firstChildElement(); !child.isNull();
         child = child.nextSiblingElement()) {
        const QString tag = child.tagName();
        if (tag == names::VariantGroup)
            qxSetElements::readGroup(child);
        else if (tag == names::VariantSet)
            qxSetElements::readSet(child, true);
        else if (const qxVariantKind *kind = qxVariantKinds::by(&qxVariantKind::tag, tag))
            qxVariantElements::read(*kind, child);
    }
}

void announceAll()
{
    for (const qxVariantKind *kind : qxVariantKinds::readingOrder().all())
        qxNotify::variantsChangedByDocument(kind->notifications);
    qxNotify::variantSetChanged();
    qxNotify::variantGroupChanged();
}

} // namespace

void qxVariantReader::read(const char *xml)
{
    m_document = QDomDocument(names::Variants);
    const QByteArray bytes = QByteArray::fromRawData(xml, int(qstrlen(xml)));
    qxDocumentError error;
    m_isRead = parse(m_document, bytes, error);
    if (!m_isRead) {
        qxLog::error("Error loading variants: \"%s\" at %d %d\n",
                     qxText::toUtf8(error.message).c_str(), error.line, error.column);
        return;
    }
    const qxUnchangedNames unchanged;
    readRoot(m_document.documentElement());
    qxOlderOverlays::makeExplicit();
    announceAll();
}

qxVariantGroup *qxVariantReader::readVariantGroup(QDomElement &element)
{
    return qxSetElements::readGroup(element);
}

qxVariantSet *qxVariantReader::readVariantSet(QDomElement &element, bool replace)
{
    return qxSetElements::readSet(element, replace);
}

qxNodeVariant *qxVariantReader::readNodeVariant(QDomElement &element)
{
    return static_cast<qxNodeVariant *>(qxVariantElements::read(qxVariantKinds::node, element));
}

qxMaterialVariant *qxVariantReader::readMaterialVariant(QDomElement &element)
{
    return static_cast<qxMaterialVariant *>(
        qxVariantElements::read(qxVariantKinds::material, element));
}

qxLightVariant *qxVariantReader::readLightVariant(QDomElement &element)
{
    return static_cast<qxLightVariant *>(qxVariantElements::read(qxVariantKinds::light, element));
}

qxOverlayVariant *qxVariantReader::readOverlayVariant(QDomElement &element)
{
    return static_cast<qxOverlayVariant *>(
        qxVariantElements::read(qxVariantKinds::overlay, element));
}

qxTransformVariant *qxVariantReader::readTransformVariant(QDomElement &element)
{
    return static_cast<qxTransformVariant *>(
        qxVariantElements::read(qxVariantKinds::transform, element));
}

qxVariant *qxVariantReader::readVariant(QDomElement &element)
{
    const qxVariantKind *kind = qxVariantKinds::by(&qxVariantKind::tag, element.tagName());
    const bool isRead = kind == &qxVariantKinds::node || kind == &qxVariantKinds::material
        || kind == &qxVariantKinds::light;
    return isRead ? qxVariantElements::read(*kind, element) : nullptr;
}

void qxVariantReader::fixOverlayVariants()
{
    qxOlderOverlays::makeExplicit();
}

QString qxVariantReader::convertOldHotkey(QString text)
{
    return qxHotkey::convertOld(text);
}
