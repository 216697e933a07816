#pragma once

struct qxVariantKind;

/// Announces what somebody changed in the things of the registry without an operation of it, as it
/// is announced after reading a document. Views look at everything again.
namespace qxRegistryNotice {

void variantsChanged(const qxVariantKind &kind); ///< variants of the kind came or changed
void setsChanged(); ///< sets came, changed or moved
void groupsChanged(); ///< groups came, changed or moved

} // namespace qxRegistryNotice
