#include "qxVariantReader.h"

#include "Internal/Document/qxDocumentGuard.h"
#include "Internal/Document/qxDocumentNames.h"
#include "Internal/Document/qxDocumentText.h"
#include "Internal/Options/qxOptionAppender.h"
#include "Internal/Registry/qxNotify.h"
#include "qxLightVariant.h"
#include "qxMaterialVariant.h"
#include "qxNodeVariant.h"
#include "qxOverlayVariant.h"
#include "qxTransformVariant.h"
#include "qxVariantGroup.h"
#include "qxVariantKinds.h"
#include "qxVariants.h"

#include "qxLog.h"

#include <cstring>

namespace {

namespace names = qxDocumentNames;
namespace text = qxDocumentText;

bool parse(QDomDocument &document, const QByteArray &bytes, qxDocumentError &error)
{
    const std::string_view look(bytes.constData(), std::size_t(bytes.size()));
    return qxDocumentGuard::admits(look, error)
        && document.setContent(bytes, &error.message, &error.line, &error.column);
}

/// The text of the last hotkey of a state; empty when it has none.
QString hotkeyOf(const QDomElement &state)
{
    QDomElement hotkey = state.lastChildElement(names::Hotkey);
    return qxVariantReader::convertOldHotkey(hotkey.text());
}

void readOptions(const QDomElement &element, qxVariant &variant)
{
    variant.options.clear();
    qxOptionAppender options(variant);
    text::forEachChild(element, [&](const QDomElement &child) {
        const QString tag = child.tagName();
        if (tag == names::State)
            options.add(false, text::attribute(child, names::name), hotkeyOf(child));
        else if (tag == names::Default)
            variant.defaultState = text::attribute(child, names::ref);
    });
}

qxVariant *readVariantOf(const qxVariantKind &kind, const QDomElement &element)
{
    const QString name = text::attribute(element, names::name);
    qxVariant *const variant = name.isEmpty() ? nullptr : kind.create(name, false);
    if (!variant)
        return nullptr;
    variant->*kind.sceneName = text::attribute(element, names::base);
    readOptions(element, *variant);
    if (kind.complete)
        kind.complete(*variant);
    return variant;
}

void readRoot(const QDomElement &root)
{
    text::forEachChild(root, [](QDomElement &child) {
        const QString tag = child.tagName();
        if (tag == names::VariantGroup)
            qxVariantReader::readVariantGroup(child);
        else if (tag == names::VariantSet)
            qxVariantReader::readVariantSet(child, true);
        else if (const qxVariantKind *kind = qxVariantKinds::by(&qxVariantKind::tag, tag))
            readVariantOf(*kind, child);
    });
}

void announceAll()
{
    const qxVariantKinds::Order &order = qxVariantKinds::readingOrder();
    for (const auto *kinds : {&order.first, &order.rest}) {
        for (const qxVariantKind *kind : *kinds)
            qxNotify::variantsChangedByDocument(kind->notifications);
    }
    qxNotify::variantSetChanged();
    qxNotify::variantGroupChanged();
}

} // namespace

void qxVariantReader::read(const char *xml)
{
    m_document = QDomDocument(names::Variants);
    const QByteArray bytes = QByteArray::fromRawData(xml, int(qstrlen(xml)));
    qxDocumentError error;
    if (!parse(m_document, bytes, error)) {
        qxLog::error("Error loading variants: \"%s\" at %d %d\n",
                     error.message.toUtf8().constData(), error.line, error.column);
        return;
    }
    const qxUnchangedNames unchanged;
    readRoot(m_document.documentElement());
    fixOverlayVariants();
    announceAll();
}

qxVariantGroup *qxVariantReader::readVariantGroup(QDomElement &element)
{
    const QString name = text::attribute(element, names::name);
    qxVariants::removeVariantGroup(name);
    qxVariantGroup *const group = qxVariants::createVariantGroup(name, false, true);
    if (!group)
        return nullptr;
    text::apply(element, names::comment, group->comment);
    if (element.hasAttribute(names::visible))
        group->visible = element.attribute(names::visible) == names::trueWord;
    for (auto child = element.firstChildElement(names::VariantSet); !child.isNull();
         child = child.nextSiblingElement(names::VariantSet)) {
        qxVariantSet *const set = readVariantSet(child, true);
        // Listeners hear of the set that was replaced, and may remove the group.
        if (qxVariants::findVariantGroup(name) != group)
            return nullptr;
        if (set)
            group->append(set);
    }
    return group;
}

qxNodeVariant *qxVariantReader::readNodeVariant(QDomElement &element)
{
    return static_cast<qxNodeVariant *>(readVariantOf(qxVariantKinds::node, element));
}

qxMaterialVariant *qxVariantReader::readMaterialVariant(QDomElement &element)
{
    return static_cast<qxMaterialVariant *>(readVariantOf(qxVariantKinds::material, element));
}

qxLightVariant *qxVariantReader::readLightVariant(QDomElement &element)
{
    return static_cast<qxLightVariant *>(readVariantOf(qxVariantKinds::light, element));
}

qxOverlayVariant *qxVariantReader::readOverlayVariant(QDomElement &element)
{
    return static_cast<qxOverlayVariant *>(readVariantOf(qxVariantKinds::overlay, element));
}

qxTransformVariant *qxVariantReader::readTransformVariant(QDomElement &element)
{
    return static_cast<qxTransformVariant *>(readVariantOf(qxVariantKinds::transform, element));
}

qxVariant *qxVariantReader::readVariant(QDomElement &element)
{
    const qxVariantKind *kind = qxVariantKinds::by(&qxVariantKind::tag, element.tagName());
    const bool isRead = kind == &qxVariantKinds::node || kind == &qxVariantKinds::material
        || kind == &qxVariantKinds::light;
    return isRead ? readVariantOf(*kind, element) : nullptr;
}

QString qxVariantReader::convertOldHotkey(QString text)
{
    const QChar joint = QLatin1Char('+');
    return text.trimmed().replace(QLatin1Char('-'), joint).replace(QLatin1Char(' '), joint);
}
