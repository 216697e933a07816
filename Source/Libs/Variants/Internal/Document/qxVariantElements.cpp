#include "Internal/Document/qxVariantElements.h"

#include "Internal/Document/qxDocumentParser.h"
#include "Internal/Document/qxDomCursor.h"
#include "qxVariant.h"

#include "qxRegistryFill.h"

qxVariant *qxVariantElements::read(const qxVariantKind &kind, const QDomElement &element)
{
    qxDomCursor cursor(element);
    qxDocumentVariant data = qxDocumentParser(cursor).variant(kind);
    qxVariant *const variant = data.name.isEmpty() ? nullptr : kind.create(data.name, false);
    if (!variant)
        return nullptr;
    data.settle();
    if (!data.hasStandard)
        data.standard.text = variant->defaultState;
    variant->options.clear(); // what was an action need not be one now
    qxRegistryFill::fill(*variant, data);
    if (kind.complete)
        kind.complete(*variant);
    return variant;
}
