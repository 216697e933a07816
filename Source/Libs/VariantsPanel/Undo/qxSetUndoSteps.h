#pragma once

#include "qxEditStep.h"
#include "qxSetMemento.h"
#include "qxSetPlace.h"

/// Sets come or go.
class qxSetsPresence : public qxEditStep {
public:
    enum Way { Come, Go };
    struct Part {
        qxSetMemento contents;
        qxSetPlace place;
    };

    qxSetsPresence(const QString &text, Way way, std::vector<Part> parts);

protected:
    bool perform(bool forward) override;

private:
    bool appear();
    bool vanish();

    bool m_comes;
    std::vector<Part> m_parts;
};

/// The contents of a set are others than before.
class qxSetEdit : public qxEditStep {
public:
    /// Steps that follow each other in the same `field` of a set are one; empty for none.
    qxSetEdit(const QString &text, const qxSetMemento &before, const qxSetMemento &after,
              const QString &field);
    int id() const override;
    bool mergeWith(const QUndoCommand *next) override;

protected:
    bool perform(bool forward) override;

private:
    qxSetMemento m_before;
    qxSetMemento m_after;
    QString m_field;
};

/// Sets stand elsewhere.
class qxSetsMove : public qxEditStep {
public:
    struct Part {
        QString set;
        qxSetPlace from;
        qxSetPlace to;
    };

    qxSetsMove(const QString &text, std::vector<Part> parts);

protected:
    bool perform(bool forward) override;

private:
    std::vector<Part> m_parts;
};

/// A group comes or goes, without sets: one that has sets does not go.
class qxGroupPresence : public qxEditStep {
public:
    struct Contents {
        QString name;
        QString comment;
        int index = -1; ///< in the registry
        bool isVisible = true;
    };

    qxGroupPresence(const QString &text, bool comes, const Contents &contents);

protected:
    bool perform(bool forward) override;

private:
    bool m_comes;
    Contents m_contents;
};

/// What a group is like is other than before.
class qxGroupEdit : public qxEditStep {
public:
    struct Contents {
        QString name;
        QString comment;
        bool isVisible;
    };

    qxGroupEdit(const QString &text, const Contents &before, const Contents &after);

protected:
    bool perform(bool forward) override;

private:
    Contents m_before;
    Contents m_after;
};

/// Groups stand elsewhere in the registry.
class qxGroupsMove : public qxEditStep {
public:
    struct Part {
        QString group;
        int from;
        int to;
    };

    qxGroupsMove(const QString &text, std::vector<Part> parts);

protected:
    bool perform(bool forward) override;

private:
    std::vector<Part> m_parts;
};
