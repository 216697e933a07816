#include "Internal/Document/qxVariantElements.h"

#include "Internal/Document/qxDocumentParser.h"
#include "Internal/Document/qxDomCursor.h"
#include "Internal/Options/qxHotkey.h"
#include "Internal/Options/qxOptionAppender.h"
#include "qxVariantKind.h"

qxVariant *qxVariantElements::read(const qxVariantKind &kind, const QDomElement &element)
{
    qxDomCursor cursor(element);
    const qxDocumentVariant data = qxDocumentParser(cursor).variant(kind);
    qxVariant *const variant = data.name.isEmpty() ? nullptr : kind.create(data.name, false);
    if (!variant)
        return nullptr;
    variant->*kind.sceneName = data.base;
    if (data.hasStandard)
        variant->defaultState = data.standard.text;
    variant->options.clear();
    qxOptionAppender options(*variant);
    for (const qxDocumentOption &each : data.options)
        options.add(false, each.name, qxHotkey::convertOld(each.hotkey.text));
    if (kind.complete)
        kind.complete(*variant);
    return variant;
}
