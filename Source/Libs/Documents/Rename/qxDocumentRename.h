#pragma once

#include "Rename/qxRenames.h"

#include <QStringList>

/// What is to get another name.
struct qxRenameRequest {
    /// What it is. A light is a node.
    enum Thing {
        Group,
        Set,
        Variant,
        Option, ///< of a variant, as long as the scene has nothing of that name for it
        Node,
        Overlay,
        Material,
        Viewpoint,
        TransformState ///< of the nodes that `owner` names, or of all
    };

    Thing thing; ///< what it is
    const qxVariantKind *kind = nullptr; ///< of a variant or of the one that has the option
    QString owner; ///< the variant that has the option, the node of a transform state
    QString before; ///< its name now
    QString after; ///< its name to be
};

/// What only the scene knows about a request. What is empty is decided by the names alone.
struct qxRenameScope {
    QStringList names; ///< of all things of that sort in the scene
    /// Whether the old name, as a state of this variant, means the thing.
    std::function<bool(const qxDocumentVariant &variant)> isStateOf;
    /// The paths that the nodes of a path have afterwards; none when no node has it.
    std::function<QStringList(const QString &path)> pathsAfter;
    /// Whether other things of the sort keep the old name: then nothing may refer to it alone.
    bool isPartial = false;
};

/// One line of what a rename does.
struct qxRenameNote {
    QString place; ///< in words
    QString before; ///< what stands there
    QString after; ///< what takes its place; the same where nothing is changed
};

/// What a rename does to a document.
struct qxRenameImpact {
    std::vector<qxRenameNote> changed; ///< in the order of the document
    /// Where the old name stands in a script without anybody knowing what it means there, and what
    /// is called like the thing without being it.
    std::vector<qxRenameNote> left;
    qxRenames renames; ///< for the registry
};

/// Renames a thing and every place of a document that names it.
namespace qxDocumentRename {

/// The names of all things of that sort that the document names, each once, in its order.
QStringList namesOf(const qxDocument &document, const qxRenameRequest &request);
/// Whether the old name is that of something in document or scene.
bool isKnown(const qxDocument &document, const qxRenameRequest &request,
             const qxRenameScope &scope = {});
/// Why the thing, which is known, cannot get the name; empty when it can.
QString flawOf(const qxDocument &document, const qxRenameRequest &request,
               const qxRenameScope &scope = {});
/// Renames it in a settled document, which stays settled. The request must be without flaw.
qxRenameImpact apply(qxDocument &document, const qxRenameRequest &request,
                     const qxRenameScope &scope = {});

} // namespace qxDocumentRename
