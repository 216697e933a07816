#pragma once

#include "qxSetMemento.h"

#include <QUndoCommand>

/// Where a set stands: the place in a group, or in none for an empty name.
struct qxSetPlace {
    QString group;
    int row = -1; ///< -1 is the end

    static qxSetPlace of(const qxVariantSet &set);
    /// Takes the set out of its group and puts it here; a group that is gone is no group.
    void take(qxVariantSet &set) const;
};

/// A set comes or goes.
class qxSetPresence : public QUndoCommand {
public:
    enum Way { Comes, Goes, IsThere /**< it came already */ };

    qxSetPresence(const QString &text, Way way, const qxSetMemento &contents,
                  const qxSetPlace &place);
    void redo() override;
    void undo() override;

private:
    void appear();
    void vanish();

    Way m_way;
    qxSetMemento m_contents;
    qxSetPlace m_place;
};

/// The contents of a set are others than before.
class qxSetEdit : public QUndoCommand {
public:
    qxSetEdit(const QString &text, const qxSetMemento &before, const qxSetMemento &after);
    void redo() override { change(m_before, m_after); }
    void undo() override { change(m_after, m_before); }

private:
    void change(const qxSetMemento &from, const qxSetMemento &to);

    qxSetMemento m_before;
    qxSetMemento m_after;
};

/// A set stands elsewhere.
class qxSetMove : public QUndoCommand {
public:
    qxSetMove(const QString &text, const QString &set, const qxSetPlace &from,
              const qxSetPlace &to);
    void redo() override { move(m_to); }
    void undo() override { move(m_from); }

private:
    void move(const qxSetPlace &place);

    QString m_set;
    qxSetPlace m_from;
    qxSetPlace m_to;
};

/// A group comes or goes, without sets.
class qxGroupPresence : public QUndoCommand {
public:
    qxGroupPresence(const QString &text, bool comes, const QString &name, const QString &comment);
    void redo() override { m_comes ? appear() : vanish(); }
    void undo() override { m_comes ? vanish() : appear(); }

private:
    void appear();
    void vanish();

    bool m_comes;
    QString m_name;
    QString m_comment;
};

/// Name and comment of a group are others than before.
class qxGroupEdit : public QUndoCommand {
public:
    struct Texts {
        QString name;
        QString comment;
    };

    qxGroupEdit(const QString &text, const Texts &before, const Texts &after);
    void redo() override { change(m_before, m_after); }
    void undo() override { change(m_after, m_before); }

private:
    void change(const Texts &from, const Texts &to);

    Texts m_before;
    Texts m_after;
};
