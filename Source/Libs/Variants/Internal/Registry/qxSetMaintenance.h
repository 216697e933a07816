#pragma once

struct qxVariantSetContents;

/// Whether a set means anything to registry and scene; see the operations of qxVariantSet.
namespace qxSetMaintenance {

bool isEmpty(const qxVariantSetContents &set);
bool isUsed(const qxVariantSetContents &set);
void highlightVariants(const qxVariantSetContents &set);
void optimize(qxVariantSetContents &set);

} // namespace qxSetMaintenance
