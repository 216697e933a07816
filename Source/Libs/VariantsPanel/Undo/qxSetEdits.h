#pragma once

#include <QMap>
#include <QObject>
#include <QUndoStack>

#include <functional>

class qxCaptureRecord;
class qxVariantSet;

/// The edits of sets and groups that a user makes in the panel, each of them one step to undo.
///
/// Sets and groups are named by their names, which are unique among each; unknown ones are passed
/// over. Names that are wanted but taken get a number. What others (scripts, a file that is read)
/// change meanwhile stays: a step that touches just that is dropped when it is undone, and a set
/// that comes back while its name is taken gets a number. An edit that would change nothing is no
/// step. qxPanelChanges tells of every edit.
class qxSetEdits : public QObject {
    Q_OBJECT

public:
    explicit qxSetEdits(QObject *parent = nullptr);

    QUndoStack *stack() { return &m_stack; }

    /// The name of the new, empty set; at the end of `group`, or in none for an empty name.
    QString addSet(const QString &group);
    /// The names of the copies, each of which stands behind its original.
    QStringList duplicateSets(const QStringList &sets);
    void removeSets(const QStringList &sets);
    /// Gives the set that name, or one like it when it is taken.
    void renameSet(const QString &set, const QString &name);
    /// Lets `change` edit the set and takes the difference as one step called `what`. Steps that
    /// follow each other in one `field` are one; an empty name is no field.
    void editSet(const QString &set, const QString &what,
                 const std::function<void(qxVariantSet &)> &change,
                 const QString &field = QString());
    /// Gives sets these previews, by their names, in one step.
    void setPreviews(const QMap<QString, QByteArray> &previews);
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

    /// Makes a set of that name in the group, which is made when there is none, and lets `capture`
    /// fill it; undo takes back what the capture did to scene, variants and other sets, as far as
    /// qxCaptureRecord does. The name of the set; empty when the name is taken, and when listeners
    /// have removed the set meanwhile.
    QString captureSet(const QString &name, const QString &group, qxCaptureRecord &record,
                       const std::function<void(qxVariantSet &)> &capture);
    /// The same for a set that exists, in the place of what it held.
    void captureAgain(const QString &set, qxCaptureRecord &record,
                      const std::function<void(qxVariantSet &)> &capture);

private:
    void leaveGroup(const QStringList &sets);

    QUndoStack m_stack;
};
