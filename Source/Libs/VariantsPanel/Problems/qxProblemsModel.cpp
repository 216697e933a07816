#include "qxProblemsModel.h"

#include "qxProblemWords.h"

#include <QApplication>
#include <QStyle>

#include <algorithm>

void qxProblemsModel::set(const qxFindings &findings)
{
    beginResetModel();
    m_findings = findings;
    endResetModel();
}

int qxProblemsModel::count(qxSeverity severity) const
{
    int count = 0;
    for (const qxFinding &each : m_findings)
        count += each.severity() == severity ? 1 + each.more : 0;
    return count;
}

void qxProblemsModel::refresh()
{
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, ColumnCount - 1);
    if (!m_findings.isEmpty())
        Q_EMIT dataChanged(index(0, 0), index(m_findings.size() - 1, ColumnCount - 1));
}

QIcon qxProblemsModel::iconOf(qxSeverity severity)
{
    const QStyle *const style = QApplication::style();
    switch (severity) {
    case qxSeverity::Error:
        return style->standardIcon(QStyle::SP_MessageBoxCritical);
    case qxSeverity::Warning:
        return style->standardIcon(QStyle::SP_MessageBoxWarning);
    default:
        return style->standardIcon(QStyle::SP_MessageBoxInformation);
    }
}

int qxProblemsModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_findings.size();
}

QVariant qxProblemsModel::data(const QModelIndex &index, int role) const
{
    const qxFinding &finding = m_findings[index.row()];
    const auto text = [&] {
        const QString found = qxProblemWords::text(finding);
        return finding.more == 0 ? found : tr("%1 (and %n more)", nullptr, finding.more).arg(found);
    };
    if (role == Qt::ToolTipRole)
        return qxProblemWords::toolTip(finding);
    if (role == Qt::DecorationRole && index.column() == TextColumn)
        return iconOf(finding.severity());
    // The picture says it to those who see it.
    if (role == Qt::AccessibleTextRole && index.column() == TextColumn)
        return QStringLiteral("%1: %2").arg(qxProblemWords::severity(finding.severity()), text());
    if (role != Qt::DisplayRole)
        return QVariant();
    if (index.column() == PlaceColumn)
        return qxProblemWords::place(finding.place);
    return index.column() == TextColumn ? text() : qxCheckCodes::id(finding.code);
}

QVariant qxProblemsModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QVariant();
    return section == TextColumn ? tr("Problem")
        : section == PlaceColumn ? tr("Place")
                                 : tr("Code");
}

qxProblemsFilter::qxProblemsFilter(qxProblemsModel *source, QObject *parent)
    : QSortFilterProxyModel(parent), m_source(source)
{
    setSourceModel(source);
}

void qxProblemsFilter::setShown(qxSeverity severity, bool isShown)
{
    if (isShown)
        m_hidden.remove(int(severity));
    else
        m_hidden.insert(int(severity));
    invalidateFilter();
}

void qxProblemsFilter::setSearch(const QString &text)
{
    m_search = text;
    invalidateFilter();
}

const qxFinding &qxProblemsFilter::findingAt(const QModelIndex &index) const
{
    return m_source->findingAt(mapToSource(index).row());
}

bool qxProblemsFilter::filterAcceptsRow(int row, const QModelIndex &parent) const
{
    if (!isShown(m_source->findingAt(row).severity()))
        return false;
    for (int column = 0; column < qxProblemsModel::ColumnCount; ++column) {
        const QString text = m_source->index(row, column, parent).data().toString();
        if (text.contains(m_search, Qt::CaseInsensitive))
            return true;
    }
    return false;
}

bool qxProblemsFilter::lessThan(const QModelIndex &left, const QModelIndex &right) const
{
    const qxFinding &one = m_source->findingAt(left.row());
    const qxFinding &other = m_source->findingAt(right.row());
    const auto places = [&] {
        return QString::localeAwareCompare(qxProblemWords::place(one.place),
                                           qxProblemWords::place(other.place));
    };
    const auto weights = [&] { return int(one.severity()) - int(other.severity()); };
    int order = 0;
    if (left.column() == qxProblemsModel::PlaceColumn)
        order = places();
    else if (left.column() == qxProblemsModel::TextColumn)
        order = weights();
    if (order == 0)
        order = int(one.code) - int(other.code);
    if (order == 0)
        order = places();
    return order != 0 ? order < 0 : left.row() < right.row();
}
