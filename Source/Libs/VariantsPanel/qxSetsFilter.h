#pragma once

#include <QSortFilterProxyModel>

/// The sets that the search box asks for, with their groups. Every word must occur in the name, the
/// comment, the key or the name of the group, in any case.
class qxSetsFilter : public QSortFilterProxyModel {
    Q_OBJECT

public:
    explicit qxSetsFilter(QObject *parent = nullptr);
    void setSearch(const QString &text);

protected:
    bool filterAcceptsRow(int row, const QModelIndex &parent) const override;

private:
    QStringList m_words;
};
