#pragma once

/// What scripts can say in this program about variants documents: about that of the session and
/// about those in files.
namespace qxDocumentBindings {

/// Defines the functions for a new interpreter.
void define();

} // namespace qxDocumentBindings
