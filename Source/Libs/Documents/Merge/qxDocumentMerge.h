#pragma once

#include "Merge/qxMergeConflict.h"
#include "qxDocument.h"

#include <QStringList>
#include <QVector>

/// The three-way merge of settled documents, by name.
///
/// What one side changed is taken: things and entries that it added, removed, renamed, moved or
/// changed. Renamed things are found as qxDocumentPairs does it, and what the other side has that
/// names them follows. What both sides changed alike is no conflict, nor is any order: see
/// qxMergeOrder. Of conflicts the preferred version is taken. Without a preference nothing is lost:
/// what one side removed and the other changed stays, and a thing with two versions of a field
/// becomes two, ours under its name and theirs behind it as "NAME (theirs)". In all else the two
/// are the same, but for a key, which only the first one keeps; a second set refers to the second
/// versions of variants. A second group is empty.
///
/// Exchanging ours and theirs only exchanges the names of such versions, and of two things that got
/// one name. Takes n log n.
struct qxDocumentMerge {
    /// Merges the documents.
    static qxDocumentMerge of(const qxDocument &base, const qxDocument &ours,
                              const qxDocument &theirs,
                              qxMergePreference preference = qxMergePreference::Both);

    qxDocument document; ///< settled
    QVector<qxMergeConflict> conflicts; ///< of groups, sets, then variants
    QStringList notes; ///< keys that select several things only in the merged document, in English
};
