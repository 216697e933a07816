#pragma once

class QDomElement;
class qxVariant;
struct qxVariantKind;

/// The document's elements of variants.
namespace qxVariantElements {

/// Reads a variant of that kind, see qxVariantReader::readNodeVariant.
qxVariant *read(const qxVariantKind &kind, const QDomElement &element);

} // namespace qxVariantElements
