#pragma once

#include "Rename/qxDocumentPlaces.h"
#include "Repair/qxSceneOutline.h"

/// Something that may be meant by a name that leads nowhere any more.
struct qxRepairCandidate {
    QString name; ///< to put in the place of the old one
    double score; ///< from 0 to 1, how much speaks for it
    QString reason; ///< what does, in words
};

/// A name of a document that no longer works in the scene, with all places that have it.
struct qxBreak {
    /// How much better than the next one a candidate must be to be clear.
    static constexpr double Ahead = 0.15;

    /// What users call the sort of name, such as "node".
    static QString wordOf(qxNamed named);
    /// A short text for users to name it by, such as `node:Roof`; the same as long as the file is.
    QString key() const;
    /// The candidate that is meant beyond doubt; null when none is.
    const qxRepairCandidate *clear() const;

    qxNamed named; ///< what the name means
    const qxVariantKind *kind = nullptr; ///< of a variant, or of the one whose state it is
    QString variant; ///< of a state, its variant
    QString name; ///< that leads nowhere
    bool isDefault = false; ///< of a state: it is the default without being an option
    bool isContested = false; ///< the first candidate may be meant by another name, too
    QStringList places; ///< where it stands, in words, in the order of the document
    std::vector<qxRepairCandidate> candidates; ///< the best first
};

/// An earlier version of the same file.
struct qxRepairHistory {
    qxDocument document; ///< settled
    qxSceneOutline scene; ///< what was in the scene then
};
