#pragma once

#include "qxDocument.h"

class qxVariantGroup;
class qxVariantSet;

/// What the registry holds, as data. It has no twins, unless somebody gave two things one name.
namespace qxRegistryDocument {

/// All of it, in the order of a document.
qxDocument current();

///@{
/// One thing of it. A group comes without its sets, and a set without its group.
qxDocumentGroup of(const qxVariantGroup &group);
qxDocumentSet of(const qxVariantSet &set);
qxDocumentVariant of(const qxVariantKind &kind, const qxVariant &variant);
///@}
///@{
/// What takes the most time and room of a set by itself, and the rest: neither references nor the
/// preview.
qxDocumentSet headOf(const qxVariantSet &set);
std::vector<qxDocumentReference> referencesOf(const qxVariantSet &set);
///@}
/// Whether the set has the references that referencesOf has said before.
bool hasStill(const qxVariantSet &set, const std::vector<qxDocumentReference> &references);

} // namespace qxRegistryDocument
