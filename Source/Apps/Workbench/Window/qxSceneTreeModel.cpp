#include "qxSceneTreeModel.h"

#include "qxDragData.h"
#include "qxNames.h"
#include "qxNodeKind.h"

#include <QMimeData>
#include <QTextDocument>

#include <algorithm>

namespace {

const osg::UInt32 everything = 0xFFFFFFFF;

QString folded(const QString &text)
{
    return text.toCaseFolded();
}

} // namespace

qxSceneTreeModel::qxSceneTreeModel(QObject *parent) : QAbstractItemModel(parent)
{
    take(readScene());
}

void qxSceneTreeModel::append(Rows &rows, const osg::NodePtr &node, int parent)
{
    const int place = int(rows.size());
    rows.push_back({osg::NodeRefPtr(node), qxNames::nameOf(node), parent, 0, 0, {}, {}});
    if (parent >= 0)
        rows[std::size_t(parent)].children.push_back(place);
}

/// Breadth first, because a scene may be deeper than the stack.
qxSceneTreeModel::Rows qxSceneTreeModel::readScene()
{
    Rows rows;
    append(rows, qxScenegraph::getRoot(), -1);
    for (std::size_t place = 0; place < rows.size(); ++place) {
        const osg::NodePtr node = rows[place].node.get();
        for (osg::UInt32 child = 0; child < node->getNChildren(); ++child)
            append(rows, node->getChild(child), int(place));
    }
    order(rows);
    return rows;
}

void qxSceneTreeModel::order(Rows &rows)
{
    std::vector<int> open = {0};
    for (int number = 0; !open.empty(); ++number) {
        Row &row = rows[std::size_t(open.back())];
        open.pop_back();
        row.order = number;
        open.insert(open.end(), row.children.rbegin(), row.children.rend());
    }
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
        return rearrange([&] { take(std::move(rows)); });
    for (const Row &row : m_rows) {
        if (!row.shown.empty())
            Q_EMIT dataChanged(indexAt(row.shown.front()), indexAt(row.shown.back()));
    }
}

void qxSceneTreeModel::take(Rows rows)
{
    m_rows = std::move(rows);
    m_texts.clear();
    m_places.clear();
    for (std::size_t place = 1; place < m_rows.size(); ++place)
        m_places[m_rows[place].node.get().getFieldContainerId()] = int(place);
    m_matches.clear();
    if (isFiltered())
        match(m_filter, false);
    showMatches();
}

void qxSceneTreeModel::setFilter(const QString &text)
{
    const QString wanted = folded(text.simplified());
    if (wanted == m_filter)
        return;
    const bool goesOn = isFiltered() && wanted.startsWith(m_filter);
    m_filter = wanted;
    rearrange([&] {
        match(wanted, goesOn);
        showMatches();
    });
}

/// Views know rows by indexes, which stand for other rows afterwards.
template <class Change>
void qxSceneTreeModel::rearrange(const Change &change)
{
    Q_EMIT layoutAboutToBeChanged();
    const QModelIndexList before = persistentIndexList();
    std::vector<osg::NodeRefPtr> nodes;
    for (const QModelIndex &index : before)
        nodes.emplace_back(nodeAt(index));
    change();
    QModelIndexList after;
    for (int i = 0; i < before.size(); ++i)
        after << indexOf(nodes[std::size_t(i)].get(), before[i].column());
    changePersistentIndexList(before, after);
    Q_EMIT layoutChanged();
}

/// What is typed comes letter by letter, so the texts are made once.
void qxSceneTreeModel::readTexts()
{
    if (!m_texts.empty())
        return;
    m_texts.reserve(m_rows.size());
    for (const Row &row : m_rows)
        m_texts.push_back(
            folded(row.name + QLatin1Char('\n') + qxNodeKind::word(row.node->getCore())));
}

void qxSceneTreeModel::match(const QString &text, bool goesOn)
{
    const QStringList words = text.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    if (words.isEmpty())
        return m_matches.clear();
    readTexts();
    const auto isMatch = [&](int place) {
        return std::all_of(words.begin(), words.end(), [&](const QString &word) {
            return m_texts[std::size_t(place)].contains(word);
        });
    };
    std::vector<int> found;
    if (goesOn) {
        std::copy_if(m_matches.begin(), m_matches.end(), std::back_inserter(found), isMatch);
    } else {
        for (int place = 1; place < int(m_rows.size()); ++place) {
            if (isMatch(place))
                found.push_back(place);
        }
        std::sort(found.begin(), found.end(),
                  [this](int one, int other) { return orderOf(one) < orderOf(other); });
    }
    m_matches = std::move(found);
}

void qxSceneTreeModel::showMatches()
{
    m_isShown.assign(m_rows.size(), !isFiltered());
    for (const int match : m_matches) {
        for (int place = match; place >= 0 && !m_isShown[std::size_t(place)];
             place = m_rows[std::size_t(place)].parent)
            m_isShown[std::size_t(place)] = true;
    }
    m_shownCount = 0;
    for (std::size_t place = 0; place < m_rows.size(); ++place) {
        Row &row = m_rows[place];
        row.shown.clear();
        if (place == 0 || !m_isShown[place])
            continue;
        std::vector<int> &siblings = m_rows[std::size_t(row.parent)].shown;
        row.row = int(siblings.size());
        siblings.push_back(int(place));
        ++m_shownCount;
    }
}

QModelIndex qxSceneTreeModel::matchBeside(const QModelIndex &index, bool isBelow) const
{
    if (m_matches.empty())
        return QModelIndex();
    if (!index.isValid())
        return indexAt(isBelow ? m_matches.front() : m_matches.back());
    const int here = orderOf(int(index.internalId()));
    if (isBelow) {
        const auto next =
            std::upper_bound(m_matches.begin(), m_matches.end(), here,
                             [this](int order, int place) { return order < orderOf(place); });
        return indexAt(next == m_matches.end() ? m_matches.front() : *next);
    }
    const auto next =
        std::lower_bound(m_matches.begin(), m_matches.end(), here,
                         [this](int place, int order) { return orderOf(place) < order; });
    return indexAt(next == m_matches.begin() ? m_matches.back() : *std::prev(next));
}

void qxSceneTreeModel::retranslate()
{
    m_texts.clear(); // with the words for kinds
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, ColumnCount - 1);
}

QModelIndex qxSceneTreeModel::indexAt(int place, int column) const
{
    return createIndex(m_rows[std::size_t(place)].row, column, quintptr(place));
}

const qxSceneTreeModel::Row &qxSceneTreeModel::rowAt(const QModelIndex &index) const
{
    return m_rows[index.isValid() ? std::size_t(index.internalId()) : 0];
}

osg::NodePtr qxSceneTreeModel::nodeAt(const QModelIndex &index) const
{
    return index.isValid() ? rowAt(index).node.get() : osg::NodePtr(osg::NullFC);
}

QModelIndex qxSceneTreeModel::indexOf(const osg::NodePtr &node, int column) const
{
    const int place = node == osg::NullFC ? 0 : m_places.value(node.getFieldContainerId());
    return place > 0 && m_isShown[std::size_t(place)] ? indexAt(place, column) : QModelIndex();
}

QModelIndex qxSceneTreeModel::index(int row, int column, const QModelIndex &parent) const
{
    if (!hasIndex(row, column, parent))
        return QModelIndex();
    return createIndex(row, column, quintptr(rowAt(parent).shown[std::size_t(row)]));
}

QModelIndex qxSceneTreeModel::parent(const QModelIndex &index) const
{
    const int above = rowAt(index).parent;
    return above <= 0 ? QModelIndex() : indexAt(above);
}

int qxSceneTreeModel::rowCount(const QModelIndex &parent) const
{
    return parent.column() > 0 ? 0 : int(rowAt(parent).shown.size());
}

QVariant qxSceneTreeModel::data(const QModelIndex &index, int role) const
{
    const Row &row = rowAt(index);
    if (index.column() == KindColumn) {
        const osg::NodeCorePtr core = row.node->getCore();
        return role == Qt::DisplayRole ? QVariant(qxNodeKind::word(core))
            : role == Qt::ToolTipRole  ? QVariant(qxNodeKind::typeName(core))
                                       : QVariant();
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
    Q_EMIT visibilityTicked(index, value.toInt() != Qt::Unchecked);
    Q_EMIT dataChanged(index, index);
    return true;
}

Qt::ItemFlags qxSceneTreeModel::flags(const QModelIndex &index) const
{
    const Qt::ItemFlags common = QAbstractItemModel::flags(index) | Qt::ItemIsDragEnabled;
    return index.column() == NameColumn ? common | Qt::ItemIsUserCheckable : common;
}

QVariant qxSceneTreeModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QVariant();
    return section == NameColumn ? tr("Node") : tr("Kind");
}

QMimeData *qxSceneTreeModel::mimeData(const QModelIndexList &indexes) const
{
    std::vector<qxNodePtr> nodes;
    for (const QModelIndex &index : indexes) {
        if (index.column() == NameColumn)
            nodes.push_back(nodeAt(index));
    }
    auto *const data = new QMimeData;
    qxDragData::setNodes(*data, nodes);
    return data;
}
