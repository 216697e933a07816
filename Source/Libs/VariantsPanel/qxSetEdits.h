#pragma once

#include <QObject>
#include <QUndoStack>

#include <functional>
#include <vector>

class qxVariantSet;
struct qxSetMemento;

/// The edits of sets and groups that a user makes in the panel, each of them to undo.
///
/// Sets and groups are named by their names, which are unique among each. Names that are wanted but
/// taken get a number. An edit whose set or group a script took away meanwhile is dropped from the
/// stack when it is undone. Every edit is announced through the host.
class qxSetEdits : public QObject {
    Q_OBJECT

public:
    explicit qxSetEdits(QObject *parent = nullptr);

    QUndoStack *stack() { return &m_stack; }

    /// The name of the new, empty set; at the end of `group`, or in none for an empty name.
    QString addSet(const QString &group);
    /// Takes a set that exists already, by a capture say, as added.
    void tookSet(const QString &set);
    /// The name of the copy, which stands behind its original.
    QString duplicateSet(const QString &set);
    void removeSets(const QStringList &sets);
    /// Gives the set that name, or one like it when it is taken.
    void renameSet(const QString &set, const QString &name);
    /// Lets `change` edit the set and takes the difference as one edit called `what`.
    void editSet(const QString &set, const QString &what,
                 const std::function<void(qxVariantSet &)> &change);
    /// Moves the sets, in this order, before place `row` of the group (-1 is the end), or out of
    /// all groups for an empty name.
    void moveSets(const QStringList &sets, const QString &group, int row);

    QString addGroup();
    void renameGroup(const QString &group, const QString &name);
    void commentGroup(const QString &group, const QString &comment);
    /// The sets of the group stay, without a group, unless they are removed as well.
    void removeGroup(const QString &group, bool withSets);

private:
    QUndoStack m_stack;
};
