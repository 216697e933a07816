#pragma once

#include "Files/qxDocumentFile.h"
#include "Merge/qxDocumentMerge.h"

/// The three-way merge of files, each a scene or a variants document alone.
class qxFileMerge {
public:
    /// What is merged, by the names of the files.
    struct Files {
        QString base; ///< may be empty, when both sides added the file
        QString ours; ///< a scene if and only if theirs is one
        QString theirs; ///< likewise
        QString label =
            QString(); ///< what messages call them in front of the side; empty for their names
    };

    /// Merges them. False when one cannot be read, or they are of two sorts; why, and what flaws
    /// the documents have, goes to standard error.
    bool merge(const Files &files, qxMergePreference preference);
    /// Writes the result; ours keeps its form where the suffix says nothing. False with the reason
    /// on standard error, and the old file as it was.
    bool save(const QString &path);

    /// Whether both sides could be had, be it that some was decided by the preference.
    bool isClean() const { return variants.conflicts.isEmpty() && scene.isEmpty(); }

    qxDocumentMerge variants; ///< the documents
    QVector<qxSceneConflict> scene; ///< of all else
    qxMergePreference preference = qxMergePreference::Both; ///< as it was given

private:
    qxDocumentFile m_ours;
    QByteArray m_document;
};
