#pragma once

#include "qxVariantSet.h"

/// The contents of a set as a value, to restore a set, to copy it, to undo an edit.
struct qxSetMemento : private qxVariantReferences {
    /// The present contents of `set`.
    static qxSetMemento of(const qxVariantSet &set);
    /// Gives `set` these contents, but leaves it in its group.
    void applyTo(qxVariantSet &set) const;
    /// Whether `set` has these contents still. The index of the next animation does not count.
    bool isOf(const qxVariantSet &set) const;

    /// Whether an edit from `before` to `after` changes anything. The index of the next animation
    /// does not count.
    static bool differ(const qxSetMemento &before, const qxSetMemento &after);
    /// Makes that edit in `set`, only in the fields that differ. False, without any change, if
    /// others have changed one of these fields since.
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
    qxAnalyzerVariant m_clipping;
    unsigned int m_animationIndex = 0;
};
