#pragma once

#include "qxDocumentPlaces.h"
#include "qxSceneOutline.h"

/// Something that may be meant by a name that leads nowhere any more.
struct qxRepairCandidate {
    QString name; ///< to put in the place of the old one
    double score; ///< from 0 to 1, how much speaks for it
    QString reason; ///< what does, in words
};

/// A name of a document that no longer works in the scene, with all places that have it.
struct qxBreak {
    /// A short text for users to name it by, such as `node:Roof`; the same as long as the file is.
    QString key() const;
    /// The candidate that is meant beyond doubt; null when none is.
    const qxRepairCandidate *clear() const;

    qxNamed named; ///< what the name means
    const qxVariantKind *kind = nullptr; ///< of a variant, or of the one whose state it is
    QString variant; ///< of a state, its variant
    QString name; ///< that leads nowhere
    bool isDefault = false; ///< of a state: it is the default without being an option
    QStringList places; ///< where it stands, in words, in the order of the document
    std::vector<qxRepairCandidate> candidates; ///< the best first
};

/// An earlier version of the same file.
struct qxRepairHistory {
    qxDocument document; ///< settled
    qxSceneOutline scene; ///< what was in the scene then
};

/// Finds what no longer works in the host's scene and what it may have become. It changes neither
/// document nor scene.
class qxDocumentRepair {
public:
    /// Looks at a settled document beside the present scene. The history, which may be null, must
    /// live as long as this.
    explicit qxDocumentRepair(const qxDocument &document, const qxRepairHistory *history = nullptr);

    /// What does not work, in the order of the document. Every name comes once. States of variants
    /// whose scene object is missing come up once that is repaired.
    const std::vector<qxBreak> &breaks() const { return m_breaks; }

    /// Puts the name in all places of the break; the document stays settled.
    static void apply(qxDocument &document, const qxBreak &broken, const QString &name);
    /// Repairs what is clear, and what comes up by it, until nothing more is. Answers what was
    /// repaired, each with the candidate that was taken as its only one.
    static std::vector<qxBreak> applyClear(qxDocument &document,
                                           const qxRepairHistory *history = nullptr);

private:
    std::vector<qxBreak> m_breaks;
};
