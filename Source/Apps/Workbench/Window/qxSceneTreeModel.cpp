#include "qxSceneTreeModel.h"

#include "qxController.h"
#include "qxNames.h"

#include <QHash>
#include <QTextDocument>

#include <algorithm>

namespace {

const osg::UInt32 everything = 0xFFFFFFFF;

} // namespace

qxSceneTreeModel::qxSceneTreeModel(QObject *parent) : QAbstractItemModel(parent)
{
    m_rows = readScene();
}

void qxSceneTreeModel::append(Rows &rows, const osg::NodePtr &node, int parent, int row)
{
    const int place = int(rows.size());
    rows.push_back({osg::NodeRefPtr(node), qxNames::nameOf(node), parent, row, {}});
    if (parent >= 0)
        rows[std::size_t(parent)].children.push_back(place);
}

/// Breadth first, because a scene may be deeper than the stack.
qxSceneTreeModel::Rows qxSceneTreeModel::readScene()
{
    Rows rows;
    append(rows, qxScenegraph::getRoot(), -1, 0);
    for (std::size_t place = 0; place < rows.size(); ++place) {
        const osg::NodePtr node = rows[place].node.get();
        for (osg::UInt32 child = 0; child < node->getNChildren(); ++child)
            append(rows, node->getChild(child), int(place), int(child));
    }
    return rows;
}

bool qxSceneTreeModel::isSame(const Rows &one, const Rows &other)
{
    const auto isSameRow = [](const Row &row, const Row &otherRow) {
        return row.node.get() == otherRow.node.get() && row.parent == otherRow.parent
            && row.name == otherRow.name;
    };
    return one.size() == other.size()
        && std::equal(one.begin(), one.end(), other.begin(), isSameRow);
}

void qxSceneTreeModel::refresh()
{
    Rows rows = readScene();
    if (!isSame(rows, m_rows))
        return exchange(std::move(rows));
    for (const Row &row : m_rows) {
        if (row.children.empty())
            continue;
        const auto child = [this](int place) {
            return createIndex(m_rows[std::size_t(place)].row, NameColumn, quintptr(place));
        };
        Q_EMIT dataChanged(child(row.children.front()), child(row.children.back()));
    }
}

void qxSceneTreeModel::exchange(Rows rows)
{
    Q_EMIT layoutAboutToBeChanged();
    QHash<osg::UInt32, int> places;
    for (std::size_t place = 1; place < rows.size(); ++place)
        places[rows[place].node.get().getFieldContainerId()] = int(place);
    const QModelIndexList before = persistentIndexList();
    QModelIndexList after;
    for (const QModelIndex &index : before) {
        const int place = places.value(nodeAt(index).getFieldContainerId());
        after << (place == 0
                      ? QModelIndex()
                      : createIndex(rows[std::size_t(place)].row, index.column(), quintptr(place)));
    }
    m_rows = std::move(rows);
    changePersistentIndexList(before, after);
    Q_EMIT layoutChanged();
}

void qxSceneTreeModel::retranslate()
{
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, ColumnCount - 1);
}

const qxSceneTreeModel::Row *qxSceneTreeModel::rowAt(const QModelIndex &index) const
{
    return &m_rows[index.isValid() ? std::size_t(index.internalId()) : 0];
}

osg::NodePtr qxSceneTreeModel::nodeAt(const QModelIndex &index) const
{
    return index.isValid() ? rowAt(index)->node.get() : osg::NodePtr(osg::NullFC);
}

QModelIndex qxSceneTreeModel::indexOf(const osg::NodePtr &node) const
{
    for (std::size_t place = 1; place < m_rows.size(); ++place) {
        if (m_rows[place].node.get() == node)
            return createIndex(m_rows[place].row, NameColumn, quintptr(place));
    }
    return QModelIndex();
}

QModelIndex qxSceneTreeModel::index(int row, int column, const QModelIndex &parent) const
{
    if (!hasIndex(row, column, parent))
        return QModelIndex();
    return createIndex(row, column, quintptr(rowAt(parent)->children[std::size_t(row)]));
}

QModelIndex qxSceneTreeModel::parent(const QModelIndex &index) const
{
    const int above = rowAt(index)->parent;
    if (above <= 0)
        return QModelIndex();
    return createIndex(m_rows[std::size_t(above)].row, 0, quintptr(above));
}

int qxSceneTreeModel::rowCount(const QModelIndex &parent) const
{
    return parent.column() > 0 ? 0 : int(rowAt(parent)->children.size());
}

QVariant qxSceneTreeModel::data(const QModelIndex &index, int role) const
{
    const Row &row = *rowAt(index);
    if (index.column() == CoreColumn) {
        const osg::NodeCorePtr core = row.node->getCore();
        const bool isAsked = role == Qt::DisplayRole && core != osg::NullFC;
        return isAsked ? QVariant(QString(core->getType().getCName())) : QVariant();
    }
    if (role == Qt::DisplayRole)
        return row.name;
    if (role == Qt::ToolTipRole) // It would take names for markup.
        return Qt::convertFromPlainText(row.name, Qt::WhiteSpaceNormal);
    if (role == Qt::CheckStateRole)
        return row.node->getTravMask() == 0         ? Qt::Unchecked
            : row.node->getTravMask() == everything ? Qt::Checked
                                                    : Qt::PartiallyChecked;
    return QVariant();
}

bool qxSceneTreeModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (!index.isValid() || role != Qt::CheckStateRole)
        return false;
    const osg::NodePtr node = nodeAt(index);
    {
        const osg::CPEditor edit(node, osg::Node::TravMaskFieldMask);
        node->setTravMask(value.toInt() == Qt::Unchecked ? 0 : everything);
    }
    Q_EMIT dataChanged(index, index);
    Q_EMIT visibilityTicked(index);
    qxController::updateRender(false);
    return true;
}

Qt::ItemFlags qxSceneTreeModel::flags(const QModelIndex &index) const
{
    const Qt::ItemFlags common = QAbstractItemModel::flags(index);
    return index.column() == NameColumn ? common | Qt::ItemIsUserCheckable : common;
}

QVariant qxSceneTreeModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QVariant();
    return section == NameColumn ? tr("Node") : tr("Kind");
}
