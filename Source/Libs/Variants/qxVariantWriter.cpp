#include "qxVariantWriter.h"

#include "Internal/Document/qxDocumentElements.h"
#include "Internal/Document/qxDocumentPrint.h"
#include "Internal/Document/qxElementText.h"
#include "qxLightVariant.h"
#include "qxMaterialVariant.h"
#include "qxNodeVariant.h"
#include "qxOverlayVariant.h"
#include "qxTransformVariant.h"
#include "qxVariantGroup.h"

#include "qxRegistryDocument.h"

namespace {

/// Every name that the registry holds.
QSet<QString> allNames()
{
    return qxRegistryDocument::current().allNames();
}

void writeVariant(QDomElement &parent, const qxVariantKind &kind, const qxVariant &variant)
{
    const qxDocumentLoss loss(allNames);
    qxDocumentElements::append(parent, qxRegistryDocument::of(kind, variant));
}

} // namespace

QByteArray qxVariantWriter::write()
{
    const qxDocument document = qxRegistryDocument::current();
    const qxDocumentLoss loss([&document] { return document.allNames(); });
    m_document = qxDocumentElements::of(document);
    return qxDocumentPrint::print(m_document);
}

QByteArray qxVariantWriter::writeToCompare()
{
    const qxDocumentLoss loss(allNames, qxDocumentLoss::Silent);
    return write();
}

QString qxVariantWriter::writable(const QString &text)
{
    const qxDocumentLoss loss(allNames, qxDocumentLoss::Silent);
    return qxDocumentLoss::writable(text);
}

void qxVariantWriter::writeVariantGroup(QDomDocument &document, QDomElement &parent,
                                        qxVariantGroup *group)
{
    const qxDocumentLoss loss(allNames);
    QDomElement element = qxDocumentElements::append(parent, qxRegistryDocument::of(*group));
    for (qxVariantSet *set : group->sets)
        writeVariantSet(document, element, set);
}

void qxVariantWriter::writeVariantSet(QDomDocument &, QDomElement &parent, qxVariantSet *set)
{
    const qxDocumentLoss loss(allNames);
    qxDocumentElements::append(parent, qxRegistryDocument::of(*set));
}

void qxVariantWriter::writeNodeVariant(QDomDocument &, QDomElement &parent, qxNodeVariant *variant)
{
    writeVariant(parent, qxVariantKinds::node, *variant);
}

void qxVariantWriter::writeMaterialVariant(QDomDocument &, QDomElement &parent,
                                           qxMaterialVariant *variant)
{
    writeVariant(parent, qxVariantKinds::material, *variant);
}

void qxVariantWriter::writeLightVariant(QDomDocument &, QDomElement &parent,
                                        qxLightVariant *variant)
{
    writeVariant(parent, qxVariantKinds::light, *variant);
}

void qxVariantWriter::writeOverlayVariant(QDomDocument &, QDomElement &parent,
                                          qxOverlayVariant *variant)
{
    writeVariant(parent, qxVariantKinds::overlay, *variant);
}

void qxVariantWriter::writeTransformVariant(QDomDocument &, QDomElement &parent,
                                            qxTransformVariant *variant)
{
    writeVariant(parent, qxVariantKinds::transform, *variant);
}
