#pragma once

#include <QList>
#include <QPair>
#include <QString>

/// One variant that a scene file states for its materials (KHR_materials_variants).
struct qxSceneVariant {
    QString name; ///< unique among those of the file, never empty
    /// Every switch material that the variants of the file choose from, and the material that this
    /// one chooses there; both by name.
    QList<QPair<QString, QString>> materials;
};
