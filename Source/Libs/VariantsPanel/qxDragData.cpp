#include "qxDragData.h"

#include "qxVariantKinds.h"

#include "qxNodeWalk.h"

#include <QCoreApplication>
#include <QDataStream>
#include <QMimeData>

namespace {

const QString statesFormat = QStringLiteral("application/x-qxvariants-states");
const QString nodesFormat = QStringLiteral("application/x-qxvariants-nodes");

/// What stands before the contents: another process has other nodes and variants.
qint64 here()
{
    return QCoreApplication::applicationPid();
}

template <class Contents>
void give(QMimeData &data, const QString &format, const Contents &contents)
{
    QByteArray bytes;
    QDataStream(&bytes, QIODevice::WriteOnly) << here() << contents;
    data.setData(format, bytes);
}

/// Empty when the data has nothing of that format.
template <class Contents>
Contents take(const QMimeData &data, const QString &format)
{
    qint64 process = 0;
    Contents contents;
    QDataStream(data.data(format)) >> process >> contents;
    return process == here() ? contents : Contents();
}

} // namespace

void qxDragData::setStates(QMimeData &data, const std::vector<qxDraggedState> &states)
{
    QList<QStringList> texts;
    for (const qxDraggedState &each : states)
        texts << QStringList{each.kind->word, each.variant, each.state};
    give(data, statesFormat, texts);
}

std::vector<qxDraggedState> qxDragData::statesOf(const QMimeData &data)
{
    std::vector<qxDraggedState> states;
    for (const QStringList &texts : take<QList<QStringList>>(data, statesFormat))
        states.push_back({qxVariantKinds::by(&qxVariantKind::word, texts[0]), texts[1], texts[2]});
    return states;
}

void qxDragData::setNodes(QMimeData &data, const std::vector<qxNodePtr> &nodes)
{
    QList<quint32> ids;
    for (const qxNodePtr &node : nodes)
        ids << node.getID();
    give(data, nodesFormat, ids);
}

std::vector<qxNodePtr> qxDragData::nodesOf(const QMimeData &data)
{
    std::vector<qxNodePtr> nodes;
    for (const quint32 id : take<QList<quint32>>(data, nodesFormat)) {
        const osg::NodePtr node = qxNodeWithId(id);
        if (node != osg::NullFC)
            nodes.push_back(node);
    }
    return nodes;
}

bool qxDragData::isKnown(const QMimeData &data)
{
    return data.hasFormat(statesFormat) || data.hasFormat(nodesFormat);
}
