#pragma once

#include "Files/Gltf/Common/qxGltfDocument.h"
#include "Files/qxSceneConflict.h"

#include <QVector>

/// The three-way merge of scene files, without their variants documents.
///
/// Objects are merged member by member. Lists of objects are merged entry by entry as long as all
/// entries keep their numbers: at most one side may have added some at the end. A side that
/// removed, inserted or reordered entries of lists that others refer to by number goes only with a
/// side that changed nothing. Buffers, their views, accessors and the BIN chunk are one: only one
/// side may have changed them.
struct qxGltfMerge {
    /// Merges the JSON that is given without documents. Where the sides do not go together as a
    /// whole, one conflict says why, and the preferred side is taken. `base` is null when both
    /// sides added the file.
    static qxGltfMerge of(const qxGltfDocument *base, const qxGltfDocument &ours,
                          const qxGltfDocument &theirs, bool prefersTheirs);

    qxJson json; ///< of the merged file
    bool takesData = false; ///< whether its buffers are those of theirs
    QVector<qxSceneConflict> conflicts;
};
