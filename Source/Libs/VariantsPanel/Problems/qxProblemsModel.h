#pragma once

#include "qxFinding.h"

#include <QAbstractTableModel>
#include <QIcon>
#include <QSet>
#include <QSortFilterProxyModel>

/// Problems as rows: what was found, where, and its code.
class qxProblemsModel : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column { TextColumn, PlaceColumn, CodeColumn, ColumnCount };

    explicit qxProblemsModel(QObject *parent = nullptr) : QAbstractTableModel(parent) {}

    /// Shows these instead.
    void set(const qxFindings &findings);
    const qxFinding &findingAt(int row) const { return m_findings[row]; }
    /// How many there are of that severity, those that are not listed included.
    int count(qxSeverity severity) const;
    /// Call it after a change of language or theme: views update all texts and icons.
    void refresh();
    /// A picture that goes with every theme.
    static QIcon iconOf(qxSeverity severity);

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &) const override { return ColumnCount; }
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    qxFindings m_findings;
};

/// Those that users want to see, sorted by a column; what is equal there by severity and place.
class qxProblemsFilter : public QSortFilterProxyModel {
    Q_OBJECT

public:
    /// Shows what `source`, which must outlive this, has.
    explicit qxProblemsFilter(qxProblemsModel *source, QObject *parent = nullptr);

    void setShown(qxSeverity severity, bool isShown);
    bool isShown(qxSeverity severity) const { return !m_hidden.contains(int(severity)); }
    /// Shows only what has the text in one of its columns; all of it for an empty one.
    void setSearch(const QString &text);
    const qxFinding &findingAt(const QModelIndex &index) const;

protected:
    bool filterAcceptsRow(int row, const QModelIndex &parent) const override;
    bool lessThan(const QModelIndex &left, const QModelIndex &right) const override;

private:
    qxProblemsModel *m_source;
    QSet<int> m_hidden; ///< severities
    QString m_search;
};
