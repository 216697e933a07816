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
    const bool isBesideCards = m_shape == Sections && row < 0 && !parent.isValid();
    return QAbstractItemModel::canDropMimeData(data, action, row, column, parent)
        && !(isGroup && parent.isValid()) && !isBesideCards;
}

bool qxSetsModel::dropMimeData(const QMimeData *data, Qt::DropAction action, int row, int column,
                               const QModelIndex &parent)
{
    if (!canDropMimeData(data, action, row, column, parent))
        return false;
    if (data->hasFormat(groupNamesType)) {
        m_edits->moveGroups(namesIn(*data, groupNamesType), groupBehind(row));
        return false;
    }
    const Target target = targetOf(row, parent);
    m_edits->moveSets(namesIn(*data, setNamesType), target.group, target.before);
    return false; // The move is done: the view must not remove the rows.
}

/// The first group at that row of the top or below it; empty for none.
QString qxSetsModel::groupBehind(int row) const
{
    for (int each = row; each >= 0 && each < int(m_top.size()); ++each) {
        const Row &below = m_rows[std::size_t(m_top[std::size_t(each)])];
        if (below.isGroup)
            return below.name;
    }
    return QString();
}

/// What a drop before that row means, or one on `parent`. Between groups it means behind the sets
/// of the upper one.
qxSetsModel::Target qxSetsModel::targetOf(int row, const QModelIndex &parent) const
{
    const Row *const above = rowAt(parent);
    if (above && above->isGroup)
        return {above->name, nameIn(above->children, row)};
    const int place = above ? above->row : row;
    const auto isThere = [this](int each) { return each >= 0 && each < int(m_top.size()); };
    if (!isThere(place) && !(m_shape == Sections && isThere(place - 1)))
        return Target();
    const Row *const next =
        isThere(place) ? &m_rows[std::size_t(m_top[std::size_t(place)])] : nullptr;
    if (next && !next->isGroup)
        return {next->group, next->name};
    if (place > 0)
        return {m_rows[std::size_t(m_top[std::size_t(place - 1)])].group, QString()};
    return {next->name, nameIn(next->children, 0)};
}

/// The name of that row; empty past the end.
QString qxSetsModel::nameIn(const std::vector<int> &places, int row) const
{
    const bool isThere = row >= 0 && row < int(places.size());
    return isThere ? m_rows[std::size_t(places[std::size_t(row)])].name : QString();
}
