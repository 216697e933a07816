#pragma once

#include "qxVariantsChange.h"

#include "qxEditStep.h"
#include "qxSceneUndo.h"

#include <QMap>

#include <memory>

class qxVariantSet;

/// Takes down what a capture does beside filling its set, so that it can be undone: what it changes
/// in the scene, which variants it makes or extends, and which references and material snapshots of
/// other sets it rewrites.
///
/// It stands before everything that belongs to the capture. What scripts of listeners do meanwhile
/// beyond these things is not taken down. Materials that came keep their contents while they are
/// out of the scene.
class qxCaptureRecord {
public:
    qxCaptureRecord();
    /// Ends the record as a step that is done. `ofSet` is the step of the set `captured` itself,
    /// not pushed; where it is not possible any more, the whole step is not. Null when the set is
    /// gone.
    std::unique_ptr<qxEditStep> finish(const QString &text, const QString &captured,
                                       std::unique_ptr<qxEditStep> ofSet);

    /// One changed entry of another set; no text for an entry that is not there.
    struct Entry {
        QString set;
        bool isSnapshot;
        QString key; ///< a path or the name of a material variant
        std::optional<QString> before;
        std::optional<QString> after;
    };

private:
    /// What capture may rewrite in a set.
    struct Contents {
        QMap<QString, QString> snapshots;
        QMap<QString, QString> materials;
    };

    static Contents contentsOf(const qxVariantSet &set);

    qxSceneUndo m_scene;
    qxVariantsChange m_variants;
    QHash<QString, Contents> m_sets;
};
