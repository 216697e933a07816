#include "qxVariantReader.h"

#include "Internal/Document/qxDocumentGuard.h"
#include "Internal/Document/qxDocumentText.h"
#include "Internal/Materials/qxSwitchMaterialRepair.h"
#include "Internal/Options/qxHotkey.h"
#include "Internal/Options/qxOptionAppender.h"
#include "Internal/Registry/qxKind.h"
#include "qxVariantGroup.h"

#include "qxLog.h"

#include <QHash>

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
    return qxHotkey::convertOld(hotkey.text());
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

template <class Variant>
Variant *readVariantOf(const QDomElement &element)
{
    typedef qxKind<Variant> Kind;
    const QString name = text::attribute(element, names::name);
    Variant *const variant = name.isEmpty() ? nullptr : Kind::createNamed(name, false);
    if (!variant)
        return nullptr;
    variant->*Kind::sceneName = text::attribute(element, names::base);
    readOptions(element, *variant);
    return variant;
}

typedef void (*RootAction)(QDomElement &);

const QHash<QString, RootAction> &rootActions()
{
    static const QHash<QString, RootAction> actions{
        {names::VariantGroup, [](QDomElement &e) { qxVariantReader::readVariantGroup(e); }},
        {names::VariantSet, [](QDomElement &e) { qxVariantReader::readVariantSet(e, true); }},
        {names::NodeVariant, [](QDomElement &e) { qxVariantReader::readNodeVariant(e); }},
        {names::MaterialVariant, [](QDomElement &e) { qxVariantReader::readMaterialVariant(e); }},
        {names::LightVariant, [](QDomElement &e) { qxVariantReader::readLightVariant(e); }},
        {names::OverlayVariant, [](QDomElement &e) { qxVariantReader::readOverlayVariant(e); }},
        {names::TransformVariant, [](QDomElement &e) { qxVariantReader::readTransformVariant(e); }},
    };
    return actions;
}

void readRoot(const QDomElement &root)
{
    text::forEachChild(root, [](QDomElement &child) {
        if (const RootAction action = rootActions().value(child.tagName()))
            action(child);
    });
}

void announceAll()
{
    qxNotify::lightVariantChanged();
    qxNotify::nodeVariantChanged();
    qxNotify::materialVariantChanged();
    qxNotify::overlayVariantChanged();
    qxNotify::transformVariantChangedByDocument();
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
    const qxOperation operation;
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
        if (!qxVariants::_variantGroups.contains(group)) // the replaced set was announced
            return nullptr;
        if (set)
            group->append(set);
    }
    return group;
}

qxNodeVariant *qxVariantReader::readNodeVariant(QDomElement &element)
{
    return readVariantOf<qxNodeVariant>(element);
}

qxMaterialVariant *qxVariantReader::readMaterialVariant(QDomElement &element)
{
    qxMaterialVariant *const variant = readVariantOf<qxMaterialVariant>(element);
    if (variant)
        qxSwitchMaterialRepair::ensureSwitchMaterial(*variant);
    return variant;
}

qxLightVariant *qxVariantReader::readLightVariant(QDomElement &element)
{
    return readVariantOf<qxLightVariant>(element);
}

qxOverlayVariant *qxVariantReader::readOverlayVariant(QDomElement &element)
{
    return readVariantOf<qxOverlayVariant>(element);
}

qxTransformVariant *qxVariantReader::readTransformVariant(QDomElement &element)
{
    return readVariantOf<qxTransformVariant>(element);
}

qxVariant *qxVariantReader::readVariant(QDomElement &element)
{
    const QString tag = element.tagName();
    if (tag == names::NodeVariant)
        return readNodeVariant(element);
    if (tag == names::MaterialVariant)
        return readMaterialVariant(element);
    if (tag == names::LightVariant)
        return readLightVariant(element);
    return nullptr;
}

QString qxVariantReader::convertOldHotkey(QString text)
{
    return qxHotkey::convertOld(text);
}
