#pragma once

#include "Session/qxSceneState.h"

#include <QJsonObject>
#include <QStringList>

class qxExplanation;
class qxVariantSet;

/// Records the changes of the scene from its construction to finish(), and reports them.
class qxChangeReport {
public:
    /// Watches from now on, or from where `before` stands.
    explicit qxChangeReport(const qxSceneState &before = qxSceneState::take());
    qxChangeReport(const qxChangeReport &) = delete;
    ~qxChangeReport();

    /// Adds every clip that starts, until qxController::removeListener() with this id.
    static int listenForClips(QStringList &clips);

    /// Ends the recording. `title` names what was selected, `skipped` lists missing objects that it
    /// refers to.
    void finish(const QString &title, const QStringList &skipped);

    /// The same for a selection that is only foreseen: `after` is where the scene would stand.
    /// `viewpoint` is where the camera would go, empty when it would stay.
    void foresee(const qxVariantSet &set, const qxExplanation &explanation,
                 const qxSceneState &after, const QString &viewpoint, const QStringList &skipped);

    /// Has toJson tell all that the scene shows as well, see qxSceneRecord.
    void setRecord(const QJsonObject &record) { m_record = record; }

    /// A heading and a line for each change.
    void print() const;
    /// Keys "name", "changes" (objects with "object", "clones", "from", "to"), "viewpoint",
    /// "animations", "scripts", "skipped" and, if there is one, "record".
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
    QJsonObject m_record;
};
