// Sets and groups dragged in the views of qxSetsModel.

#include "qxVariantGroup.h"
#include "qxVariantSet.h"
#include "qxVariants.h"

#include "Undo/qxSetEdits.h"
#include "qxSetsModel.h"

#include <QDataStream>
#include <QMimeData>

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

} // namespace

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
    const bool isBesideCards = m_shape == Flat && row < 0 && !parent.isValid();
    return QAbstractItemModel::canDropMimeData(data, action, row, column, parent)
        && !(isGroup && parent.isValid()) && !isBesideCards;
}

bool qxSetsModel::dropMimeData(const QMimeData *data, Qt::DropAction action, int row, int column,
                               const QModelIndex &parent)
{
    if (!canDropMimeData(data, action, row, column, parent))
        return false;
    if (data->hasFormat(groupNamesType)) {
        m_edits->moveGroups(namesIn(*data, groupNamesType),
                            row < m_firstAlone ? nameIn(m_top, row) : QString());
        return false;
    }
    const Target target = targetOf(row, parent);
    m_edits->moveSets(namesIn(*data, setNamesType), target.group, target.before);
    return false; // The move is done: the view must not remove the rows.
}

/// What a drop before that row means, or one on the set `parent`. Between groups it means behind
/// the sets of the upper one.
qxSetsModel::Target qxSetsModel::targetOf(int row, const QModelIndex &parent) const
{
    const Row *const above = rowAt(parent);
    if (above && above->isGroup)
        return {above->name, nameIn(above->children, row)};
    const int place = above ? above->row : row;
    if (place < 0 || place >= int(m_top.size()))
        return Target();
    const Row &next = m_rows[std::size_t(m_top[std::size_t(place)])];
    if (next.isGroup && place > 0)
        return {nameIn(m_top, place - 1), QString()};
    if (next.isGroup)
        return {next.name, nameIn(next.children, 0)};
    const qxVariantSet *const set = qxVariants::findVariantSet(next.name);
    return {set && set->group ? QString(set->group->name) : QString(), next.name};
}

/// The name of that row; empty past the end.
QString qxSetsModel::nameIn(const std::vector<int> &places, int row) const
{
    const bool isThere = row >= 0 && row < int(places.size());
    return isThere ? m_rows[std::size_t(places[std::size_t(row)])].name : QString();
}
