#pragma once

#include "Rename/qxDocumentRename.h"
#include "Rename/qxSceneRename.h"

#include <memory>

/// What users call the things that can be renamed.
namespace qxRenameWords {

/// All words, such as "node", "node-variant" and "node-option".
QStringList all();
/// Takes the thing, and its kind, from a word; false for an unknown one.
bool take(const QString &word, qxRenameRequest &request);
/// Finds the one variant with the option that the request is about, as far as it leaves that open;
/// does nothing for other things. Says why there is not exactly one; empty when there is.
QString completeOwner(const qxDocument &document, qxRenameRequest &request);
/// Why the request cannot be fulfilled, in a sentence with the word; empty when it can.
QString refusal(const qxDocument &document, const qxRenameRequest &request,
                const qxRenameScope &scope, const QString &word);

} // namespace qxRenameWords

/// Renames something of the host's scene and of the registry.
namespace qxRegistryRename {

/// What came of it.
struct Outcome {
    QString refusal; ///< why nothing was renamed; empty when it was
    qxRenameImpact impact; ///< what changed in the registry
    std::shared_ptr<const qxSceneRename> scene; ///< what changed in the scene; null for nothing
};

/// Renames in scene and registry, see qxDocumentRename and qxRegistryEdit. With `isDry` it only
/// tells what would change.
Outcome apply(const QString &word, qxRenameRequest request, bool isDry);

} // namespace qxRegistryRename
