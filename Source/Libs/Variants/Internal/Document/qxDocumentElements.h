#pragma once

#include "qxDocument.h"

#include <QDomDocument>

/// The elements that stand for the things of a document; see qxDocumentLoss.
namespace qxDocumentElements {

/// A document with an element for everything.
QDomDocument of(const qxDocument &document);

///@{
/// Appends an element to `parent`; a group's has no children.
QDomElement append(QDomElement &parent, const qxDocumentGroup &group);
void append(QDomElement &parent, const qxDocumentSet &set);
void append(QDomElement &parent, const qxDocumentVariant &variant);
///@}

} // namespace qxDocumentElements
