#include "Internal/Document/qxVariantElements.h"

#include "Internal/Document/qxDocumentNames.h"
#include "Internal/Document/qxDocumentText.h"
#include "Internal/Options/qxHotkey.h"
#include "Internal/Options/qxOptionAppender.h"
#include "qxVariantKind.h"

namespace {

namespace names = qxDocumentNames;
namespace text = qxDocumentText;

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

} // namespace

qxVariant *qxVariantElements::read(const qxVariantKind &kind, const QDomElement &element)
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
