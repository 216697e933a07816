#pragma once

#include "Compare/qxDocumentDiff.h"
#include "Compare/qxSceneDiff.h"

/// What differs between two files, each a scene or a variants document alone.
struct qxFileComparison {
    /// Compares them. False when one cannot be read; why, and what flaws the documents have, goes
    /// to standard error.
    bool compare(const QString &fileBefore, const QString &fileAfter);
    /// Whether anything differs, be it in the scenes alone.
    bool isDifferent() const { return !variants.isEmpty() || !scene.isEmpty(); }

    QString nameBefore; ///< of the files, for people
    QString nameAfter;
    qxDocument before; ///< settled
    qxDocument after;
    qxDocumentDiff variants; ///< what differs of the documents
    QVector<qxSceneDifference> scene; ///< of all else; empty unless both are scenes
};
