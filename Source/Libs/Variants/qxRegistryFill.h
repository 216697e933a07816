#pragma once

#include "qxDocument.h"

class qxVariant;
class qxVariantGroup;
class qxVariantSet;

/// Gives things of the registry what a document holds of them, without their names and places.
/// Nothing is announced. Each tells whether anything differed.
namespace qxRegistryFill {

///@{
/// Gives the thing all that is not a name or a place.
bool fill(qxVariantGroup &group, const qxDocumentGroup &wanted);
bool fill(qxVariantSet &set, const qxDocumentSet &wanted);
bool fill(qxVariant &variant, const qxDocumentVariant &wanted);
///@}

} // namespace qxRegistryFill
