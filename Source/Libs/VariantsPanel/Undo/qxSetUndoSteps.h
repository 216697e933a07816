#pragma once

#include "qxEditStep.h"
#include "qxSetMemento.h"
#include "qxSetPlace.h"

#include <functional>

/// Adds or removes sets.
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

/// Edits a set.
class qxSetEdit : public qxEditStep {
public:
    /// Consecutive steps with the same `field` of a set are merged; an empty field never is.
    qxSetEdit(const QString &text, const qxSetMemento &before, const qxSetMemento &after,
              const QString &field);
    /// Lets `change` edit the set now. Whoever pushes the step announces that.
    qxSetEdit(qxVariantSet &set, const std::function<void(qxVariantSet &)> &change);
    int id() const override;
    bool mergeWith(const QUndoCommand *next) override;

protected:
    bool perform(bool forward) override;

private:
    qxSetMemento m_before;
    qxSetMemento m_after;
    QString m_field;
};

/// Gives sets other previews.
class qxPreviewsEdit : public qxEditStep {
public:
    typedef QMap<QString, QByteArray> Previews; ///< by the names of sets

    /// Consecutive steps of one `run` are merged; 0 never is.
    qxPreviewsEdit(const Previews &before, const Previews &after, int run);
    int id() const override;
    bool mergeWith(const QUndoCommand *next) override;

protected:
    bool perform(bool forward) override;

private:
    static QString textOf(const Previews &previews);

    Previews m_before;
    Previews m_after;
    int m_run;
};

/// Moves sets.
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

/// Adds or removes a group without sets; a group that has sets is not removed.
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

/// Changes name, comment or visibility of a group.
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

/// Moves groups in the registry.
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
