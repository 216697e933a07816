#pragma once

#include "qxVariantSet.h"

/// Everything that a set holds, as a value: to bring a set back, to copy it, to undo an edit.
struct qxSetMemento {
    /// What `set` holds now.
    static qxSetMemento of(const qxVariantSet &set);
    /// Gives `set` these contents; its name only when it differs. The group stays.
    void applyTo(qxVariantSet &set) const;

    QString name;
    QString hotkey;
    QString comment;
    QString script;
    QString defaultViewpoint;
    QMap<QString, QString> values;
    QByteArray preview;

private:
    qxStateList m_states[5];
    qxUniqueNames m_viewpoints;
    qxUniqueNames m_animations;
    qxUniqueNames m_geometries;
    qxUniqueNames m_targets;
    QMap<QString, QString> m_snapshots;
    qxAnalyzerVariant m_clipping;
    unsigned int m_animationIndex = 0;
    bool m_sequential = false;
    bool m_inclusion[5] = {};
};
