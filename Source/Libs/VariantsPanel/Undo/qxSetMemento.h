#pragma once

#include "qxVariantSet.h"

/// Everything that a set holds, as a value: to bring a set back, to copy it, to undo an edit.
struct qxSetMemento : private qxVariantReferences {
    /// What `set` holds now.
    static qxSetMemento of(const qxVariantSet &set);
    /// Gives `set` these contents; its name only when it differs. The group stays.
    void applyTo(qxVariantSet &set) const;

    /// Whether an edit from `before` to `after` changes anything. What only the scene changes does
    /// not count: which animation is next.
    static bool differ(const qxSetMemento &before, const qxSetMemento &after);
    /// Makes that edit in `set`: only what differs is touched. False, and nothing is touched, when
    /// somebody else has changed just that since.
    static bool edit(qxVariantSet &set, const qxSetMemento &before, const qxSetMemento &after);

    QString name;
    QString hotkey;
    QString comment;
    QString script;
    QString defaultViewpoint;
    QMap<QString, QString> values;
    QByteArray preview;

private:
    template <class Visit>
    static void visitFields(const Visit &visit);

    qxUniqueNames m_viewpoints;
    qxUniqueNames m_animations;
    qxUniqueNames m_geometries;
    qxUniqueNames m_targets;
    QMap<QString, QString> m_snapshots;
    bool m_isSequential = false;
    bool m_includesNodes = false;
    bool m_includesMaterials = false;
    bool m_includesLights = false;
    bool m_includesEnvironment = false;
    bool m_includesView = false;
    qxAnalyzerVariant m_clipping; ///< no edit changes it
    unsigned int m_animationIndex = 0;
};
