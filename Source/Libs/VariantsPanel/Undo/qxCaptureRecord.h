#pragma once

#include "qxVariantsChange.h"

#include "qxEditStep.h"
#include "qxSceneUndo.h"

#include <QMap>

#include <memory>

class qxVariantSet;

/// Records the effects of a capture beyond its own set for undo: changes of the scene, new and
/// extended variants, and changed references and material snapshots of other sets.
///
/// Construct it before the capture begins. Other effects of listeners' scripts are not recorded.
/// New materials keep their contents while they are not in the scene.
class qxCaptureRecord {
public:
    qxCaptureRecord();
    /// Ends the record and returns a step that is already done. `ofSet` is the step of the set
    /// `captured` itself, which must not be pushed; null if the set is gone. If `ofSet` is no
    /// longer possible, the whole step is not.
    std::unique_ptr<qxEditStep> finish(const QString &text, const QString &captured,
                                       std::unique_ptr<qxEditStep> ofSet);

    /// One changed entry of another set; no text for a missing entry.
    struct Entry {
        QString set;
        bool isSnapshot;
        QString key; ///< a path or the name of a material variant
        std::optional<QString> before;
        std::optional<QString> after;
    };

private:
    /// The parts of a set that a capture may change.
    struct Contents {
        QMap<QString, QString> snapshots;
        QMap<QString, QString> materials;
    };

    static Contents contentsOf(const qxVariantSet &set);

    qxSceneUndo m_scene;
    qxVariantsChange m_variants;
    QHash<QString, Contents> m_sets;
};
