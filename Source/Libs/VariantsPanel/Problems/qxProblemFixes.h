#pragma once

#include "qxFinding.h"

#include <QCoreApplication>

#include <functional>

class qxSetEdits;

/// What can be done about problems without asking anything, each a step of undo.
class qxProblemFixes {
    Q_DECLARE_TR_FUNCTIONS(qxProblemFixes)

public:
    /// Something to do.
    struct Fix {
        QString text; ///< such as "Remove 2 entries"
        std::function<void()> run; ///< does it as one step
    };

    /// Edits through `edits`, which must outlive this and all fixes.
    explicit qxProblemFixes(qxSetEdits *edits) : m_edits(edits) {}

    /// Those that fit to one of the problems at least, each for all that it fits to.
    QList<Fix> of(const qxFindings &findings) const;

private:
    enum Sort {
        RemoveEntry,
        RemoveDefaultViewpoint,
        RemoveHotkey,
        AddOption,
        RemoveOption,
        ClearDefault,
        RemoveSet,
        RemoveGroup,
        RemoveVariant,
        SortCount
    };
    struct Row;

    static const std::vector<Row> &rows();
    static QString textOf(Sort sort, int count);
    void run(Sort sort, const qxFindings &findings) const;
    void editSets(const QString &text, const qxFindings &findings) const;
    void editVariants(Sort sort, const QString &text, const qxFindings &findings) const;
    void remove(Sort sort, const qxFindings &findings) const;

    qxSetEdits *m_edits;
};
