#pragma once

#include "qxDocument.h"

/// The text of variants documents.
namespace qxDocumentXml {

/// Reads UTF-8, and takes it as the module does when it fills the registry. Without a listener
/// flaws are passed over. A text that is not well-formed, or that the module refuses, gives what
/// stands before the fault, and is not whole.
qxDocument read(const QByteArray &xml, const qxDocument::FlawListener &listener = nullptr);

/// The text of a document, UTF-8. Equal documents have equal texts. Characters that no text can
/// hold are left out, which the log says.
QByteArray write(const qxDocument &document);

} // namespace qxDocumentXml
