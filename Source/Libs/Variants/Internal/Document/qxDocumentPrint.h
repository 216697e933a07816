#pragma once

#include <QByteArray>

class QDomDocument;
struct qxDocument;

/// The text of a variants document.
namespace qxDocumentPrint {

/// What QDomDocument::toString makes of it, as UTF-8, one blank per level; but where that shuffles
/// the attributes of an element from process to process, they stand in the order of
/// qxDocumentNames::attributes and qxClippingField here, so that equal documents have equal bytes.
QByteArray print(const QDomDocument &document);
/// The same for the elements of a document. It makes them thing by thing: together they would take
/// several times the memory of their text.
QByteArray print(const qxDocument &document);

} // namespace qxDocumentPrint
