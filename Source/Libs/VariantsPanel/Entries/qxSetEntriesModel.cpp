#include "qxSetEntriesModel.h"

#include "qxVariant.h"
#include "qxVariantKinds.h"
#include "qxVariants.h"

#include "Problems/qxProblems.h"
#include "Undo/qxSetEdits.h"
#include "qxEntryEdits.h"
#include "qxFindCache.h"
#include "qxPanelEvents.h"
#include "qxStateWords.h"

#include <QApplication>
#include <QFont>
#include <QPalette>
#include <QStyle>
#include <QTextDocument>

#include <algorithm>

namespace {

const int block = 32; ///< rows that are looked up together: one walk over the scene serves them all

/// The entry of a set that a finding belongs to; of no kind and name for other findings.
qxSetEntry entryOf(const qxFindingPlace &place)
{
    static const QHash<int, qxSetEntry::Sort> sorts{
        {qxFindingPlace::Reference, qxSetEntry::Variant},
        {qxFindingPlace::Viewpoint, qxSetEntry::Viewpoint},
        {qxFindingPlace::Animation, qxSetEntry::Animation},
        {qxFindingPlace::Geometry, qxSetEntry::Geometry},
        {qxFindingPlace::Target, qxSetEntry::Target},
        {qxFindingPlace::Snapshot, qxSetEntry::Snapshot}};
    return {sorts.value(place.sort), place.kind, place.name, place.state};
}

/// A tool tip would take names for markup.
QString plain(const QString &text)
{
    return Qt::convertFromPlainText(text, Qt::WhiteSpaceNormal);
}

qxSeverity worstOf(const qxFindings &findings)
{
    qxSeverity worst = qxSeverity::Hint;
    for (const qxFinding &each : findings)
        worst = std::min(worst, each.severity());
    return worst;
}

QStyle::StandardPixmap signOf(qxSeverity severity)
{
    if (severity == qxSeverity::Error)
        return QStyle::SP_MessageBoxCritical;
    return severity == qxSeverity::Warning ? QStyle::SP_MessageBoxWarning
                                           : QStyle::SP_MessageBoxInformation;
}

} // namespace

qxSetEntriesModel::qxSetEntriesModel(qxPanelEvents *events, qxSetEdits *edits, QObject *parent)
    : QAbstractTableModel(parent), m_edits(edits)
{
    connect(events, &qxPanelEvents::variantsChanged, this, &qxSetEntriesModel::forgetSeen);
    connect(events, &qxPanelEvents::statesChanged, this, &qxSetEntriesModel::forgetSeen);
}

void qxSetEntriesModel::showSet(const QString &name)
{
    const qxVariantSet *const set = qxVariants::findVariantSet(name);
    const std::vector<qxSetEntry> entries =
        set ? qxSetEntries::of(*set) : std::vector<qxSetEntry>();
    if (name == m_set)
        return takeRows(entries);
    beginResetModel();
    m_set = name;
    fill(entries);
    endResetModel();
    readFindings();
}

void qxSetEntriesModel::takeRows(const std::vector<qxSetEntry> &entries)
{
    const bool isSame = std::equal(
        entries.begin(), entries.end(), m_rows.begin(), m_rows.end(),
        [](const qxSetEntry &entry, const Row &row) { return entry.isOfSame(row.entry); });
    if (!isSame)
        return takeOtherRows(entries);
    for (std::size_t row = 0; row < entries.size(); ++row)
        m_rows[row].entry = entries[row];
    forgetSeen();
}

/// In one go, however many come and go: views follow each of their places.
void qxSetEntriesModel::takeOtherRows(const std::vector<qxSetEntry> &entries)
{
    Q_EMIT layoutAboutToBeChanged();
    const QModelIndexList kept = persistentIndexList();
    std::vector<qxSetEntry> keptEntries;
    for (const QModelIndex &each : kept)
        keptEntries.push_back(entryAt(each.row()));
    fill(entries);
    const std::vector<int> rows = rowsOf(keptEntries);
    QModelIndexList moved;
    for (int i = 0; i < kept.size(); ++i)
        moved << index(rows[std::size_t(i)], kept[i].column());
    changePersistentIndexList(kept, moved);
    Q_EMIT layoutChanged();
}

void qxSetEntriesModel::fill(const std::vector<qxSetEntry> &entries)
{
    m_rows.clear();
    for (const qxSetEntry &each : entries)
        m_rows.push_back({each, {}});
}

void qxSetEntriesModel::forgetSeen()
{
    for (const Row &row : m_rows)
        row.isSeen = false;
    if (!m_rows.empty())
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, ColumnCount - 1));
}

void qxSetEntriesModel::setProblems(const qxProblems *problems)
{
    m_problems = problems;
    connect(problems, &qxProblems::changed, this, [this] {
        readFindings();
        forgetSeen();
    });
    readFindings();
}

void qxSetEntriesModel::readFindings()
{
    m_findings.clear();
    for (const qxFinding &each : m_problems ? m_problems->ofSet(m_set) : qxFindings()) {
        if (each.place.isEntry())
            m_findings[entryOf(each.place).key()].append(each);
    }
    Q_EMIT problemsChanged();
}

/// An entry does nothing, either, when its variant has nothing to drive.
qxFindings qxSetEntriesModel::findingsAt(int row) const
{
    const qxSetEntry &entry = entryAt(row);
    qxFindings findings = m_findings.value(entry.key());
    if (!m_problems || !entry.kind)
        return findings;
    for (const qxFinding &each : m_problems->ofVariant(*entry.kind, entry.name)) {
        if (each.place.sort == qxFindingPlace::Variant && each.severity() == qxSeverity::Error)
            findings.append(each);
    }
    return findings;
}

int qxSetEntriesModel::rowOf(const qxSetEntry &entry) const
{
    const auto found = std::find_if(m_rows.begin(), m_rows.end(),
                                    [&](const Row &row) { return row.entry.isOfSame(entry); });
    return found == m_rows.end() ? -1 : int(found - m_rows.begin());
}

std::vector<int> qxSetEntriesModel::rowsOf(const std::vector<qxSetEntry> &entries) const
{
    if (entries.size() == 1)
        return {rowOf(entries.front())};
    QHash<QString, int> places;
    for (int row = 0; row < rowCount(); ++row)
        places.insert(entryAt(row).key(), row);
    std::vector<int> rows;
    for (const qxSetEntry &each : entries)
        rows.push_back(places.value(each.key(), -1));
    return rows;
}

void qxSetEntriesModel::retranslate()
{
    forgetSeen();
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, ColumnCount - 1);
}

int qxSetEntriesModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

QVariant qxSetEntriesModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return QVariant();
    const int row = index.row();
    const int column = index.column();
    if (role == Qt::DisplayRole)
        return textAt(row, column);
    if (role == Qt::EditRole)
        return entryAt(row).state;
    if (column == ProblemColumn || (column == NameColumn && role == Qt::DecorationRole))
        return problemData(row, column, role);
    if (role == Qt::ToolTipRole)
        return plain(toolTipAt(row, column));
    if (role == DiffersRole)
        return seenAt(row).differs;
    if (column == ShownColumn)
        return shownData(row, role);
    const qxSetEntry &entry = entryAt(row);
    if (role != Qt::FontRole || column != StateColumn || !entry.kind
        || !qxStateWords::isAction(*entry.kind, entry.state))
        return QVariant();
    QFont font = QApplication::font("QAbstractItemView");
    font.setItalic(true);
    return font;
}

QVariant qxSetEntriesModel::textAt(int row, int column) const
{
    switch (column) {
    case NameColumn:
        return qxSetEntries::nameOf(entryAt(row));
    case KindColumn:
        return qxSetEntries::sortOf(entryAt(row));
    case StateColumn:
        return seenAt(row).wanted;
    case ShownColumn:
        return seenAt(row).differs ? QStringLiteral("\u2260 ") + seenAt(row).shown
                                   : seenAt(row).shown;
    default:
        return problemData(row, column, Qt::DisplayRole);
    }
}

/// Texts that a narrow dock cuts off, and states as the document holds them.
QString qxSetEntriesModel::toolTipAt(int row, int column) const
{
    const qxSetEntry &entry = entryAt(row);
    const Seen &seen = seenAt(row);
    if (column == StateColumn)
        return entry.kind && seen.wanted != entry.state ? seen.wanted + '\n' + entry.state
                                                        : seen.wanted;
    if (column == ShownColumn && !entry.kind)
        return QString();
    if (column == ShownColumn) {
        QStringList lines(seen.shown);
        if (!seen.shownState.isEmpty() && seen.shownState != seen.shown)
            lines << seen.shownState;
        if (seen.differs)
            lines << tr("The scene shows something else than the set wants.");
        return lines.join('\n');
    }
    return QStringLiteral("%1\n%2: %3")
        .arg(qxSetEntries::nameOf(entry), qxSetEntries::sortOf(entry), seen.wanted);
}

/// What is as it is wanted stands back.
QVariant qxSetEntriesModel::shownData(int row, int role) const
{
    const Seen &seen = seenAt(row);
    if (role == Qt::AccessibleTextRole)
        return seen.differs ? tr("differs: %1").arg(seen.shown) : seen.shown;
    if (role == Qt::ForegroundRole && !seen.differs)
        return QApplication::palette().brush(QPalette::PlaceholderText);
    if (role != Qt::FontRole || !seen.differs)
        return QVariant();
    QFont font = QApplication::font("QAbstractItemView");
    font.setBold(true);
    return font;
}

QVariant qxSetEntriesModel::problemData(int row, int column, int role) const
{
    const qxFindings findings = findingsAt(row);
    if (findings.isEmpty())
        return QVariant();
    QStringList lines;
    for (const qxFinding &each : findings)
        lines << (role == Qt::DisplayRole
                      ? qxCheckCodes::id(each.code)
                      : QStringLiteral("%1: %2").arg(qxCheckCodes::id(each.code),
                                                     qxProblems::textOf(each)));
    lines.removeDuplicates();
    switch (role) {
    case Qt::DisplayRole:
        return lines.join(QStringLiteral(", "));
    case Qt::ToolTipRole:
        return plain(lines.join('\n'));
    case Qt::AccessibleTextRole:
        return lines.join('\n');
    case Qt::DecorationRole: // The sign stands before the name, the code in its own column.
        return column == NameColumn
            ? QVariant(QApplication::style()->standardIcon(signOf(worstOf(findings))))
            : QVariant();
    default:
        return QVariant();
    }
}

const qxSetEntriesModel::Seen &qxSetEntriesModel::seenAt(int row) const
{
    const Row &asked = m_rows[std::size_t(row)];
    if (asked.isSeen)
        return asked.seen;
    const qxFindCache cache(true);
    const int first = row / block * block;
    for (int each = first; each < std::min(first + block, rowCount()); ++each) {
        const Row &read = m_rows[std::size_t(each)];
        read.seen = look(read.entry);
        read.isSeen = true;
    }
    return asked.seen;
}

qxSetEntriesModel::Seen qxSetEntriesModel::look(const qxSetEntry &entry)
{
    Seen seen;
    seen.wanted = qxSetEntries::wordOf(entry, entry.state);
    if (!entry.kind)
        return seen;
    const qxVariant *const variant = entry.kind->find(entry.name);
    const qxShownState shown = variant ? variant->shown() : qxShownState();
    seen.shownState = shown.visibleState();
    if (!variant)
        seen.shown = tr("(no such variant)");
    else if (seen.shownState.isEmpty())
        seen.shown = tr("(nothing)");
    else
        seen.shown = qxStateWords::shown(*entry.kind, variant, seen.shownState);
    seen.differs = !qxStateWords::isAction(*entry.kind, entry.state) && !shown.is(entry.state);
    return seen;
}

QVariant qxSetEntriesModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QVariant();
    switch (section) {
    case NameColumn:
        return tr("Variant");
    case KindColumn:
        return tr("Kind");
    case StateColumn:
        return tr("State");
    case ShownColumn:
        return tr("Shown Now");
    default:
        return tr("Problem");
    }
}

Qt::ItemFlags qxSetEntriesModel::flags(const QModelIndex &index) const
{
    const Qt::ItemFlags flags = QAbstractTableModel::flags(index) | Qt::ItemNeverHasChildren;
    return index.isValid() && index.column() == StateColumn ? flags | Qt::ItemIsEditable : flags;
}

bool qxSetEntriesModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (!index.isValid() || role != Qt::EditRole)
        return false;
    qxEntryEdits::setState(*m_edits, m_set, {entryAt(index.row())}, value.toString());
    return true;
}
