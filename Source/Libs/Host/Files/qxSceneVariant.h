#pragma once

#include <QList>
#include <QPair>
#include <QString>

/// One material variant of a scene file (KHR_materials_variants).
struct qxSceneVariant {
    QString name; ///< unique among those of the file, never empty
    /// Every switch material of the file's variants, with the material that this one chooses; both
    /// by name.
    QList<QPair<QString, QString>> materials;
};
