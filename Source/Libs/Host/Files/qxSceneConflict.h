#pragma once

#include <QString>

/// Something of scene files, their variants documents aside, that two sides of a merge changed
/// differently.
struct qxSceneConflict {
    QString place; ///< such as nodes[3] "Wheel"/translation; empty for the whole scene
    QString reason; ///< of the whole scene: why it cannot be merged
    QString base; ///< the JSON in base; null for what is not there
    QString ours; ///< the same in ours
    QString theirs; ///< the same in theirs
};
