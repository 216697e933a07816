#include "qxSetsModel.h"

#include "qxVariantGroup.h"
#include "qxVariantKinds.h"
#include "qxVariantSet.h"
#include "qxVariants.h"

#include "Undo/qxSetEdits.h"
#include "qxKeyText.h"
#include "qxPanelEvents.h"
#include "qxPreviewAge.h"
#include "qxSetHotkeys.h"
#include "qxStateWords.h"
#include "qxTakenKeys.h"

#include <QTextDocument>

#include <algorithm>

namespace {

int stateCount(const qxVariantSet &set)
{
    std::size_t count = 0;
    for (const qxVariantKind *kind : qxVariantKinds::all())
        count += (set.*kind->states).size();
    return int(count);
}

/// Whether the set has references that could be of use.
bool refersToAnything(const qxVariantSet &set)
{
    const auto refersTo = [&](const qxVariantKind *kind) {
        return kind->makesUsed && !(set.*kind->states).empty();
    };
    const qxVariantKinds::List &kinds = qxVariantKinds::all();
    return std::any_of(kinds.begin(), kinds.end(), refersTo) || !set.geometries.empty()
        || !set.viewpoints.empty() || !set.animations.empty();
}

/// Keeps a tool tip from taking names for markup.
QString plain(const QString &text)
{
    return text.isEmpty() ? text : Qt::convertFromPlainText(text, Qt::WhiteSpaceNormal);
}

bool isUnused(qxVariantSet &set)
{
    return refersToAnything(set) && !set.isUsed();
}

} // namespace

qxSetsModel::qxSetsModel(Shape shape, qxPanelEvents *events, qxSetEdits *edits, QObject *parent)
    : QAbstractItemModel(parent), m_shape(shape), m_edits(edits)
{
    connect(events, &qxPanelEvents::setsChanged, this, &qxSetsModel::refresh);
    connect(events, &qxPanelEvents::statesChanged, this, &qxSetsModel::refreshStates);
    refresh();
}

void qxSetsModel::setTakenKeys(const qxTakenKeys *taken)
{
    m_taken = taken;
    connect(taken, &qxTakenKeys::changed, this, &qxSetsModel::rowsShowAnew);
}

qxVariantSet *qxSetsModel::setAt(const QModelIndex &index) const
{
    const Row *const row = rowAt(index);
    return row && !row->isGroup ? qxVariants::findVariantSet(row->name) : nullptr;
}

qxVariantGroup *qxSetsModel::groupAt(const QModelIndex &index) const
{
    const Row *const row = rowAt(index);
    return row && row->isGroup ? qxVariants::findVariantGroup(row->name) : nullptr;
}

QModelIndex qxSetsModel::indexOfSet(const QString &name) const
{
    return indexOfRow(m_sets.value(name, -1));
}

QModelIndex qxSetsModel::indexOfGroup(const QString &name) const
{
    return indexOfRow(m_groups.value(name, -1));
}

QModelIndex qxSetsModel::index(int row, int column, const QModelIndex &parent) const
{
    if (!hasIndex(row, column, parent))
        return QModelIndex();
    const Row *const above = rowAt(parent);
    const int place = (above ? above->children : m_top)[std::size_t(row)];
    return createIndex(row, column, quintptr(place));
}

QModelIndex qxSetsModel::parent(const QModelIndex &index) const
{
    const Row *const row = rowAt(index);
    return row ? indexOfRow(row->parent) : QModelIndex();
}

int qxSetsModel::rowCount(const QModelIndex &parent) const
{
    if (!parent.isValid())
        return int(m_top.size());
    return int(rowAt(parent)->children.size());
}

QVariant qxSetsModel::data(const QModelIndex &index, int role) const
{
    const Row *const row = rowAt(index);
    if (!row)
        return QVariant();
    if (role == Qt::DisplayRole)
        return row->name.isEmpty() ? tr("In No Group") : row->name;
    if (role == Qt::EditRole)
        return row->name;
    if (role == IsGroupRole)
        return row->isGroup;
    if (row->isGroup)
        return groupData(*row, groupAt(index), role);
    if (qxVariantSet *const set = setAt(index))
        return setDataOf(*set, role);
    return QVariant();
}

/// `group` is null for the sets in no group, and for one that is gone.
QVariant qxSetsModel::groupData(const Row &row, const qxVariantGroup *group, int role) const
{
    const int count = group ? int(group->sets.size()) : row.found;
    const QString counted =
        row.found == count ? QString::number(count) : tr("%1 of %2").arg(row.found).arg(count);
    switch (role) {
    case CommentRole:
        return group ? QString(group->comment) : QString();
    case Qt::ToolTipRole:
        return group ? plain(group->comment) : QString();
    case HiddenRole:
        return group && !group->visible;
    case CountRole:
        return counted;
    case Qt::AccessibleTextRole:
        return tr("Group %1, %n sets", nullptr, row.found)
            .arg(row.name.isEmpty() ? tr("In No Group") : row.name);
    case EmptyRole:
        return count == 0;
    case ClosedRole:
        return m_words.isEmpty() && m_closed.contains(row.name);
    default:
        return QVariant();
    }
}

// A list, not a procedure.
QVariant qxSetsModel::setDataOf(qxVariantSet &set, int role) const
{
    switch (role) {
    case GroupRole:
        return set.group ? QString(set.group->name) : QString();
    case HotkeyRole:
        return qxKeyText::shown(set.hotkey);
    case KeyTakenRole:
        return !keyFlaw(set).isEmpty();
    case CommentRole:
        return set.comment;
    case PreviewRole:
        return set.preview;
    case StaleRole:
        return isStale(set);
    case Qt::AccessibleTextRole:
        return spokenText(set);
    case CountRole:
        return stateCount(set);
    case EmptyRole:
        return set.isEmpty();
    case UnusedRole:
        return isUnused(set);
    case CurrentRole:
        return m_match.matches(set);
    case Qt::ToolTipRole:
        return toolTip(set);
    default:
        return QVariant();
    }
}

/// The first states of the set in words, each in a line of its own.
static QString statesOf(const qxVariantSet &set)
{
    const int limit = 8; // A tool tip is to be taken in at a glance.
    QString lines;
    int count = 0;
    for (const qxVariantKind *kind : qxVariantKinds::all()) {
        for (const qxVariantState &each : set.*kind->states) {
            if (++count > limit)
                return lines + QStringLiteral("\n\u2026");
            lines += QStringLiteral("\n\u2022 %1: %2")
                         .arg(each.variant,
                              qxStateWords::shown(*kind, kind->find(each.variant), each.state));
        }
    }
    return lines;
}

/// Explains what the row shows by marks, too.
QString qxSetsModel::toolTip(qxVariantSet &set) const
{
    QStringList lines(set.name);
    if (!set.comment.isEmpty())
        lines << set.comment;
    lines << tr("%n states", nullptr, stateCount(set)) + statesOf(set);
    if (!set.hotkey.isEmpty())
        lines << tr("Key: %1").arg(qxKeyText::shown(set.hotkey));
    if (!keyFlaw(set).isEmpty())
        lines << keyFlaw(set);
    if (m_match.matches(set))
        lines << tr("The scene shows it now.");
    if (set.isEmpty())
        lines << tr("It is empty: selecting it changes nothing.");
    else if (isUnused(set))
        lines << tr("Nothing of what it refers to is in the scene.");
    if (isStale(set))
        lines << tr("The set, the scene or the light has changed since the preview was made.");
    return plain(lines.join('\n'));
}

/// The name with what the marks of a row or a tile say.
QString qxSetsModel::spokenText(qxVariantSet &set) const
{
    QStringList parts(set.name);
    if (m_match.matches(set))
        parts << tr("shown now");
    if (!set.hotkey.isEmpty())
        parts << tr("key %1").arg(qxKeyText::shown(set.hotkey));
    if (set.isEmpty())
        parts << tr("empty");
    if (isStale(set))
        parts << tr("the preview is out of date");
    return parts.join(QStringLiteral(", "));
}

bool qxSetsModel::isStale(const qxVariantSet &set) const
{
    return m_age && m_age->isStale(set);
}

QString qxSetsModel::keyFlaw(const qxVariantSet &set) const
{
    return m_taken ? qxSetHotkeys::flawOf(set, *m_taken) : QString();
}

bool qxSetsModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    const Row *const row = rowAt(index);
    if (!row || role != Qt::EditRole)
        return false;
    const QString name = row->name;
    if (row->isGroup)
        m_edits->renameGroup(name, value.toString());
    else
        m_edits->renameSet(name, value.toString());
    return true;
}

Qt::ItemFlags qxSetsModel::flags(const QModelIndex &index) const
{
    const Row *const row = rowAt(index);
    if (!row)
        return Qt::ItemIsDropEnabled;
    Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    if (!row->name.isEmpty())
        flags |= Qt::ItemIsEditable | Qt::ItemIsDragEnabled;
    // A set in the gallery takes others before it.
    return row->isGroup || m_shape == Sections ? flags | Qt::ItemIsDropEnabled : flags;
}

void qxSetsModel::setSearch(const QString &text)
{
    const QStringList words = text.simplified().split(' ', Qt::SkipEmptyParts);
    if (words == m_words)
        return;
    m_words = words;
    refresh();
}

void qxSetsModel::setHiddenShown(bool shown)
{
    m_showsHidden = shown;
    refresh();
}

void qxSetsModel::setClosed(const QSet<QString> &groups)
{
    if (groups == m_closed)
        return;
    m_closed = groups;
    refresh();
}

void qxSetsModel::setPreviewAge(const qxPreviewAge *age)
{
    m_age = age;
    connect(age, &qxPreviewAge::changed, this, &qxSetsModel::rowsShowAnew);
}

bool qxSetsModel::isFound(const QString &text) const
{
    return std::all_of(m_words.begin(), m_words.end(), [&text](const QString &word) {
        return text.contains(word, Qt::CaseInsensitive);
    });
}

bool qxSetsModel::isFound(const qxVariantSet &set) const
{
    if (m_words.isEmpty())
        return true;
    const QChar end('\n'); // No word goes across.
    return isFound(set.name + end + set.comment + end + qxKeyText::shown(set.hotkey) + end
                   + (set.group ? QString(set.group->name) : QString()));
}

void qxSetsModel::refresh()
{
    Q_EMIT layoutAboutToBeChanged();
    const Rows before = std::move(m_rows);
    m_sets.clear();
    m_groups.clear();
    readRows();
    keepPersistentIndexes(before);
    Q_EMIT layoutChanged();
    refreshStates();
}

void qxSetsModel::refreshStates()
{
    m_match.reset();
    rowsShowAnew();
}

void qxSetsModel::rowsShowAnew()
{
    const auto tell = [this](const QModelIndex &parent) {
        if (const int count = rowCount(parent))
            Q_EMIT dataChanged(index(0, 0, parent), index(count - 1, 0, parent));
    };
    tell(QModelIndex());
    for (int row = 0; row < int(m_top.size()); ++row)
        tell(index(row, 0, QModelIndex()));
}

void qxSetsModel::readRows()
{
    m_rows.clear();
    m_top.clear();
    for (const qxVariantGroup *group : qxVariants::_variantGroups) {
        if (!isToBeShown(*group))
            continue;
        const Sets found = foundIn(*group);
        if (!found.empty() || isFound(group->name))
            readGroup(group, group->name, found);
    }
    const Sets alone = foundAlone();
    if (m_shape == Sections && !m_top.empty() && !alone.empty())
        return readGroup(nullptr, QString(), alone);
    for (const qxVariantSet *set : alone)
        appendRow({set, set->name, false, -1, {}, 0});
}

/// Null and an empty name stand for the sets in no group.
void qxSetsModel::readGroup(const void *object, const QString &name, const Sets &found)
{
    const int place = appendRow({object, name, true, -1, {}, 0, name, int(found.size())});
    if (m_shape == Sections && m_words.isEmpty() && m_closed.contains(name))
        return;
    for (const qxVariantSet *set : found)
        appendRow({set, set->name, false, m_shape == Tree ? place : -1, {}, 0, name});
}

bool qxSetsModel::isToBeShown(const qxVariantGroup &group) const
{
    return group.visible || m_showsHidden;
}

qxSetsModel::Sets qxSetsModel::foundIn(const qxVariantGroup &group) const
{
    Sets found;
    std::copy_if(group.sets.begin(), group.sets.end(), std::back_inserter(found),
                 [this](const qxVariantSet *set) { return isFound(*set); });
    return found;
}

qxSetsModel::Sets qxSetsModel::foundAlone() const
{
    Sets found;
    std::copy_if(qxVariants::_variantSets.begin(), qxVariants::_variantSets.end(),
                 std::back_inserter(found),
                 [this](const qxVariantSet *set) { return !set->group && isFound(*set); });
    return found;
}

QStringList qxSetsModel::setsInOrder() const
{
    QStringList names;
    const auto append = [&names](const Sets &sets) {
        for (const qxVariantSet *set : sets)
            names << set->name;
    };
    for (const qxVariantGroup *group : qxVariants::_variantGroups) {
        if (isToBeShown(*group))
            append(foundIn(*group));
    }
    append(foundAlone());
    return names;
}

int qxSetsModel::appendRow(const Row &row)
{
    std::vector<int> &siblings = row.parent < 0 ? m_top : m_rows[std::size_t(row.parent)].children;
    const int place = int(m_rows.size());
    const int number = int(siblings.size());
    siblings.push_back(place);
    (row.isGroup ? m_groups : m_sets).insert(row.name, place);
    m_rows.push_back(row);
    m_rows.back().row = number;
    return place;
}

/// Finds what a view remembers in its new place: by name, so that a set that came back is found,
/// else by identity if a new name stands there, which is a rename. Identity comes second because
/// an object that is made after another one went often has its address.
void qxSetsModel::keepPersistentIndexes(const Rows &before)
{
    QHash<const void *, int> renamed;
    for (std::size_t place = 0; place < m_rows.size(); ++place)
        renamed.insert(m_rows[place].object, int(place));
    for (const Row &row : before) {
        const int place = placeOf(row);
        if (place >= 0)
            renamed.remove(m_rows[std::size_t(place)].object);
    }
    const QModelIndexList kept = persistentIndexList();
    QModelIndexList moved;
    for (const QModelIndex &index : kept) {
        const Row &row = before[std::size_t(index.internalId())];
        int place = placeOf(row);
        if (place < 0)
            place = renamed.value(row.object, -1);
        const bool same = place >= 0 && m_rows[std::size_t(place)].isGroup == row.isGroup;
        moved.append(same ? indexOfRow(place) : QModelIndex());
    }
    changePersistentIndexList(kept, moved);
}

/// Where the set or group of that name is now; -1 if it is gone.
int qxSetsModel::placeOf(const Row &row) const
{
    return (row.isGroup ? m_groups : m_sets).value(row.name, -1);
}

const qxSetsModel::Row *qxSetsModel::rowAt(const QModelIndex &index) const
{
    return index.isValid() ? &m_rows[std::size_t(index.internalId())] : nullptr;
}

QModelIndex qxSetsModel::indexOfRow(int place) const
{
    if (place < 0)
        return QModelIndex();
    return createIndex(m_rows[std::size_t(place)].row, 0, quintptr(place));
}
