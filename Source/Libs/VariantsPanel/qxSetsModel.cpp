#include "qxSetsModel.h"

#include "qxVariantGroup.h"
#include "qxVariantSet.h"
#include "qxVariants.h"

#include "qxKeyText.h"
#include "qxPanelEvents.h"
#include "qxSetEdits.h"
#include "qxSetPlace.h"

#include <QDataStream>
#include <QMimeData>
#include <QPixmapCache>

namespace {

const char *const setNamesType = "application/x-qx-variant-sets";
const char *const groupNamesType = "application/x-qx-variant-groups";

QStringList namesIn(const QMimeData &data, const char *type)
{
    QDataStream stream(data.data(type));
    QStringList names;
    stream >> names;
    return names;
}

int stateCount(const qxVariantSet &set)
{
    return int(set.nodeVariants.size() + set.materialVariants.size() + set.lightVariants.size()
               + set.overlayVariants.size() + set.transformVariants.size());
}

/// Whether the set has references that could be of use.
bool refersToAnything(const qxVariantSet &set)
{
    return !set.nodeVariants.empty() || !set.materialVariants.empty() || !set.lightVariants.empty()
        || !set.overlayVariants.empty() || !set.geometries.empty() || !set.viewpoints.empty()
        || !set.animations.empty();
}

QString toolTip(const qxVariantSet &set)
{
    QStringList lines(set.name);
    if (!set.comment.isEmpty())
        lines << set.comment;
    lines << qxSetsModel::tr("%n states", nullptr, stateCount(set));
    if (!set.hotkey.isEmpty())
        lines << qxSetsModel::tr("Key: %1").arg(qxKeyText::shown(set.hotkey));
    return lines.join('\n');
}

} // namespace

qxSetsModel::qxSetsModel(Shape shape, qxPanelEvents *events, qxSetEdits *edits, QObject *parent)
    : QAbstractItemModel(parent), m_shape(shape), m_edits(edits)
{
    connect(events, &qxPanelEvents::setsChanged, this, &qxSetsModel::refresh);
    connect(events, &qxPanelEvents::statesChanged, this, &qxSetsModel::refreshStates);
    refresh();
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
    if (role == Qt::DisplayRole || role == Qt::EditRole)
        return row->name;
    if (role == IsGroupRole)
        return row->isGroup;
    if (const qxVariantGroup *const group = groupAt(index))
        return groupData(*row, *group, role);
    if (qxVariantSet *const set = setAt(index))
        return setDataOf(*row, *set, role);
    return QVariant();
}

QVariant qxSetsModel::groupData(const Row &row, const qxVariantGroup &group, int role) const
{
    switch (role) {
    case CommentRole:
    case Qt::ToolTipRole:
        return group.comment;
    case CountRole:
        return int(row.children.size());
    case EmptyRole:
        return row.children.empty();
    default:
        return QVariant();
    }
}

// A list, not a procedure.
QVariant qxSetsModel::setDataOf(const Row &row, qxVariantSet &set, int role) const
{
    switch (role) {
    case HotkeyRole:
        return qxKeyText::shown(set.hotkey);
    case CommentRole:
        return set.comment;
    case PreviewRole:
        return previewOf(set);
    case CountRole:
        return stateCount(set);
    case EmptyRole:
        return set.isEmpty();
    case UnusedRole:
        return refersToAnything(set) && !set.isUsed();
    case CurrentRole:
        return m_match.matches(set);
    case SearchRole:
        return QString(row.name + '\n' + set.comment + '\n' + qxKeyText::shown(set.hotkey) + '\n'
                       + (set.group ? QString(set.group->name) : QString()));
    case Qt::ToolTipRole:
        return toolTip(set);
    default:
        return QVariant();
    }
}

QPixmap qxSetsModel::previewOf(const qxVariantSet &set) const
{
    if (set.preview.isEmpty())
        return QPixmap();
    // The same bytes give the same picture, whichever set has them.
    const QString key =
        QStringLiteral("qxPreview%1-%2").arg(set.preview.size()).arg(qHash(set.preview));
    QPixmap picture;
    if (!QPixmapCache::find(key, &picture) && picture.loadFromData(set.preview))
        QPixmapCache::insert(key, picture);
    return picture;
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
    const Qt::ItemFlags common =
        Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsEditable | Qt::ItemIsDragEnabled;
    // A set in the gallery takes others before it.
    return row->isGroup || m_shape == Flat ? common | Qt::ItemIsDropEnabled : common;
}

QStringList qxSetsModel::mimeTypes() const
{
    return {setNamesType, groupNamesType};
}

/// Sets are dragged, or else groups.
QMimeData *qxSetsModel::mimeData(const QModelIndexList &indexes) const
{
    QStringList sets;
    QStringList groups;
    for (const QModelIndex &index : indexes) {
        if (const Row *const row = rowAt(index))
            (row->isGroup ? groups : sets).append(row->name);
    }
    QByteArray names;
    QDataStream stream(&names, QIODevice::WriteOnly);
    stream << (sets.isEmpty() ? groups : sets);
    auto *const data = new QMimeData;
    data->setData(sets.isEmpty() ? groupNamesType : setNamesType, names);
    return data;
}

bool qxSetsModel::canDropMimeData(const QMimeData *data, Qt::DropAction action, int row, int column,
                                  const QModelIndex &parent) const
{
    // Groups stand between groups, not in them.
    const bool isGroup = data->hasFormat(groupNamesType);
    return QAbstractItemModel::canDropMimeData(data, action, row, column, parent)
        && !(isGroup && parent.isValid());
}

bool qxSetsModel::dropMimeData(const QMimeData *data, Qt::DropAction action, int row, int column,
                               const QModelIndex &parent)
{
    if (!canDropMimeData(data, action, row, column, parent))
        return false;
    if (data->hasFormat(groupNamesType)) {
        m_edits->moveGroups(namesIn(*data, groupNamesType), row);
        return false;
    }
    const Target target = targetOf(row, parent);
    m_edits->moveSets(namesIn(*data, setNamesType), target.group, target.row);
    return false; // The move is done: the view must not remove the rows.
}

/// What a drop before that row means, or one on the set `parent`. Between groups it means behind
/// the sets of the upper one.
qxSetsModel::Target qxSetsModel::targetOf(int row, const QModelIndex &parent) const
{
    const Row *const above = rowAt(parent);
    if (above && above->isGroup)
        return {above->name, row};
    const int place = above ? above->row : row;
    if (place < 0 || place >= int(m_top.size()))
        return {QString(), -1};
    if (place >= m_firstAlone)
        return {QString(), place - m_firstAlone};
    const Row &next = m_rows[std::size_t(m_top[std::size_t(place)])];
    if (next.isGroup && place > 0)
        return {index(place - 1, 0, QModelIndex()).data().toString(), -1};
    if (next.isGroup)
        return {next.name, 0};
    const qxVariantSet *const set = qxVariants::findVariantSet(next.name);
    return set ? Target{qxSetPlace::of(*set).group, qxSetPlace::of(*set).row} : Target();
}

void qxSetsModel::refresh()
{
    emit layoutAboutToBeChanged();
    const Rows before = std::move(m_rows);
    m_sets.clear();
    m_groups.clear();
    readRows();
    keepPersistentIndexes(before);
    emit layoutChanged();
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
            emit dataChanged(index(0, 0, parent), index(count - 1, 0, parent));
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
        if (!group->visible)
            continue;
        const int place = m_shape == Tree ? appendRow(group, group->name, true, -1) : -1;
        for (const qxVariantSet *set : group->sets)
            appendRow(set, set->name, false, place);
    }
    m_firstAlone = int(m_top.size());
    for (const qxVariantSet *set : qxVariants::_variantSets) {
        if (!set->group)
            appendRow(set, set->name, false, -1);
    }
}

int qxSetsModel::appendRow(const void *object, const QString &name, bool isGroup, int parent)
{
    std::vector<int> &siblings = parent < 0 ? m_top : m_rows[std::size_t(parent)].children;
    const int row = int(siblings.size());
    const int place = int(m_rows.size());
    siblings.push_back(place);
    (isGroup ? m_groups : m_sets).insert(name, place);
    m_rows.push_back({object, name, isGroup, parent, {}, row});
    return place;
}

/// Finds what a view remembers in its new place: by identity, so that a rename keeps it, else by
/// name, so that a set that came back does.
void qxSetsModel::keepPersistentIndexes(const Rows &before)
{
    QHash<const void *, int> places;
    for (std::size_t place = 0; place < m_rows.size(); ++place)
        places.insert(m_rows[place].object, int(place));
    const QModelIndexList kept = persistentIndexList();
    QModelIndexList moved;
    for (const QModelIndex &index : kept) {
        const Row &row = before[std::size_t(index.internalId())];
        const QHash<QString, int> &byName = row.isGroup ? m_groups : m_sets;
        const int place = places.value(row.object, byName.value(row.name, -1));
        const bool same = place >= 0 && m_rows[std::size_t(place)].isGroup == row.isGroup;
        moved.append(same ? indexOfRow(place) : QModelIndex());
    }
    changePersistentIndexList(kept, moved);
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
