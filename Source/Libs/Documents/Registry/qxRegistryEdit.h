#pragma once

#include "Rename/qxRenames.h"

/// Brings edits of a document into the registry.
namespace qxRegistryEdit {

/// Gives the registry what the settled document holds, and nothing else. Only what differs is
/// touched: a group, set or variant stays the object that it is as long as its name stays, or one
/// of the renames leads to its new name. Renames that fit neither registry nor document are passed
/// over. The scene gets what it would get with the document: switch materials for new material
/// variants.
///
/// Removals are announced one by one as the registry does it. Whatever else changed, also by
/// additions, is announced at the end, as after reading a document: once for each kind of
/// variants, for sets and for groups that it concerns. False when nothing had to change.
bool apply(const qxDocument &wanted, const qxRenames &renames = {});

} // namespace qxRegistryEdit
