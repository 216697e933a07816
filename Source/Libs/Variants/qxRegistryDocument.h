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
/// The same without the preview, which takes the most time and room.
qxDocumentSet withoutPreview(const qxVariantSet &set);

} // namespace qxRegistryDocument
