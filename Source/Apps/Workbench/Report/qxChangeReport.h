#pragma once

#include "Session/qxSceneState.h"

#include <QStringList>

class QJsonObject;

/// Records the changes of the scene from its construction to finish(), and reports them.
class qxChangeReport {
public:
    qxChangeReport();
    qxChangeReport(const qxChangeReport &) = delete;
    ~qxChangeReport();

    /// Ends the recording. `title` names what was selected, `skipped` lists missing objects that it
    /// refers to.
    void finish(const QString &title, const QStringList &skipped);

    /// A heading and a line for each change.
    void print() const;
    /// Keys "name", "changes" (objects with "object", "clones", "from", "to"), "viewpoint",
    /// "animations", "scripts" and "skipped".
    QJsonObject toJson() const;

private:
    const qxSceneState m_before;
    const int m_viewpointBefore;
    int m_notificationListener;
    int m_scriptListener;

    QString m_title;
    QList<qxSceneChange> m_changes;
    QString m_viewpoint; ///< where the camera moved to; empty when it stayed
    QStringList m_animations;
    QStringList m_scripts;
    QStringList m_skipped;
};
