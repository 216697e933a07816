#include "qxSetsFilter.h"

#include "qxSetsModel.h"

qxSetsFilter::qxSetsFilter(QObject *parent) : QSortFilterProxyModel(parent) {}

void qxSetsFilter::setSearch(const QString &text)
{
    m_words = text.simplified().split(' ', Qt::SkipEmptyParts);
    setRecursiveFilteringEnabled(!m_words.isEmpty()); // Without words a group without sets stays.
    invalidateFilter();
}

bool qxSetsFilter::filterAcceptsRow(int row, const QModelIndex &parent) const
{
    if (m_words.isEmpty())
        return true;
    const QModelIndex index = sourceModel()->index(row, 0, parent);
    const bool isGroup = index.data(qxSetsModel::IsGroupRole).toBool();
    const QString text =
        index.data(isGroup ? int(Qt::DisplayRole) : int(qxSetsModel::SearchRole)).toString();
    return std::all_of(m_words.begin(), m_words.end(), [&text](const QString &word) {
        return text.contains(word, Qt::CaseInsensitive);
    });
}
