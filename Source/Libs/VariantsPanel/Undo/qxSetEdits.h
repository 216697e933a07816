#pragma once

#include <QMap>
#include <QObject>
#include <QUndoStack>

#include <functional>

class qxCaptureRecord;
class qxVariantSet;

/// The user's edits of sets and groups in the panel, each of them one undo step.
///
/// Sets and groups are identified by their unique names; unknown ones are ignored. A new name that
/// is taken gets a number. Changes by others (scripts, a file that is read) stay: undoing a step
/// that would overwrite them drops the step, and a restored set gets a number if its name is taken.
/// An edit that changes nothing is no step. qxPanelChanges signals every edit.
class qxSetEdits : public QObject {
    Q_OBJECT

public:
    explicit qxSetEdits(QObject *parent = nullptr);

    QUndoStack *stack() { return &m_stack; }

    /// Adds an empty set at the end of `group`, or without a group for an empty name, and returns
    /// its name.
    QString addSet(const QString &group);
    /// Adds a copy behind each of the sets and returns the names of the copies.
    QStringList duplicateSets(const QStringList &sets);
    void removeSets(const QStringList &sets);
    /// Gives the set that name, with a number if it is taken.
    void renameSet(const QString &set, const QString &name);
    /// Lets `change` edit the set and makes the difference one step with the text `what`.
    /// Consecutive steps with the same `field` are merged, unless it is empty.
    void editSet(const QString &set, const QString &what,
                 const std::function<void(qxVariantSet &)> &change,
                 const QString &field = QString());
    /// Gives sets these previews, by their names, in one step; consecutive ones of the same `run`
    /// are one step together, 0 is a run of its own each time.
    void setPreviews(const QMap<QString, QByteArray> &previews, int run = 0);
    /// Moves the sets, in this order, before the set `before` of the group, or among the sets in no
    /// group for an empty name; without `before` to the end.
    void moveSets(const QStringList &sets, const QString &group, const QString &before);
    /// Moves the sets by one row each, up or down, within their groups; those at the end stay.
    void shiftSets(const QStringList &sets, bool down);

    QString addGroup();
    void renameGroup(const QString &group, const QString &name);
    void commentGroup(const QString &group, const QString &comment);
    /// Whether the group is to be shown.
    void setGroupVisible(const QString &group, bool isVisible);
    /// The sets of the group stay, without a group, unless they are removed as well.
    void removeGroup(const QString &group, bool withSets);
    /// Removes sets and groups in one step.
    void remove(const QStringList &sets, const QStringList &groups, bool withSets);
    /// Moves the groups, in this order, before the group `before`; without it to the end.
    void moveGroups(const QStringList &groups, const QString &before);
    void shiftGroup(const QString &group, bool down);

    /// Creates a set of that name in the group, which is created if it does not exist, and lets
    /// `capture` fill it. Undo also reverts what qxCaptureRecord records of scene, variants and
    /// other sets. Returns the name of the set; empty if the name is taken or listeners have
    /// removed the set.
    QString captureSet(const QString &name, const QString &group, qxCaptureRecord &record,
                       const std::function<void(qxVariantSet &)> &capture);
    /// The same for an existing set, whose contents are replaced.
    void captureAgain(const QString &set, qxCaptureRecord &record,
                      const std::function<void(qxVariantSet &)> &capture);

private:
    void leaveGroup(const QStringList &sets);

    QUndoStack m_stack;
};
