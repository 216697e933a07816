#pragma once

#include "qxFinding.h"
#include "qxSetEntry.h"

#include <QAbstractTableModel>

class qxPanelEvents;
class qxProblems;
class qxSetEdits;

/// What one set holds: a row for each entry, with the state that is wanted beside what the scene
/// shows.
///
/// What the scene shows is looked up for the rows that are asked for it, and for their neighbours.
/// Views keep selection and scroll position when the set is edited.
class qxSetEntriesModel : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column { NameColumn, KindColumn, StateColumn, ShownColumn, ProblemColumn, ColumnCount };
    enum Role { DiffersRole = Qt::UserRole }; ///< bool: the scene shows another state

    qxSetEntriesModel(qxPanelEvents *events, qxSetEdits *edits, QObject *parent = nullptr);

    /// Shows the set of that name as it is now; nothing for an empty or unknown one.
    void showSet(const QString &name);
    const QString &set() const { return m_set; }
    /// Where to find what is wrong with entries; nothing is before this call.
    void setProblems(const qxProblems *problems);
    /// Whether something is wrong with one of the entries.
    bool hasProblems() const { return !m_findings.isEmpty(); }
    const qxSetEntry &entryAt(int row) const { return m_rows[std::size_t(row)].entry; }
    /// The row of the same thing; -1 for none.
    int rowOf(const qxSetEntry &entry) const;
    /// The same of each of them.
    std::vector<int> rowsOf(const std::vector<qxSetEntry> &entries) const;
    /// Call it after a change of language: views update all texts.
    void retranslate();

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &) const override { return ColumnCount; }
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    /// Gives the entry another state, as an undo step.
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;

Q_SIGNALS:
    /// Entries have problems now, or none any more.
    void problemsChanged();

private:
    /// What only a look at variant and scene tells.
    struct Seen {
        QString wanted; ///< the state, in words
        QString shown; ///< the same of what the scene shows
        QString shownState; ///< as a set would hold it
        bool differs = false;
    };
    struct Row {
        qxSetEntry entry;
        mutable Seen seen;
        mutable bool isSeen = false;
    };

    void takeRows(const std::vector<qxSetEntry> &entries);
    void takeOtherRows(const std::vector<qxSetEntry> &entries);
    void fill(const std::vector<qxSetEntry> &entries);
    void forgetSeen();
    void readFindings();
    const Seen &seenAt(int row) const;
    static Seen look(const qxSetEntry &entry);
    QVariant textAt(int row, int column) const;
    QString toolTipAt(int row, int column) const;
    QVariant shownData(int row, int role) const;
    QVariant problemData(int row, int column, int role) const;
    qxFindings findingsAt(int row) const;

    qxSetEdits *m_edits;
    const qxProblems *m_problems = nullptr;
    QString m_set;
    std::vector<Row> m_rows;
    QHash<QString, qxFindings> m_findings; ///< by the keys of entries
};
