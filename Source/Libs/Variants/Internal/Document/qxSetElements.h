#pragma once

class QDomElement;
class qxVariantGroup;
class qxVariantSet;

/// The document's elements of sets and groups; see the operations of qxVariantReader.
namespace qxSetElements {

qxVariantSet *readSet(const QDomElement &element, bool replace);
qxVariantGroup *readGroup(const QDomElement &element);

} // namespace qxSetElements
