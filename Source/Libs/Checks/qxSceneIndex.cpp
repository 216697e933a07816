#include "qxSceneIndex.h"

#include "qxAnimManager.h"
#include "qxMaterials.h"
#include "qxNodeUtils.h"
#include "qxOverlays.h"
#include "qxScenegraph.h"
#include "qxUberCameraPool.h"

#include <algorithm>

namespace {

QString nameOf(const osg::NodePtr &node)
{
    return QString::fromStdString(qxNodeUtils::getName(node));
}

constexpr quint64 EmptyPath = 0xCBF29CE484222325;

/// The hash of a path (FNV-1a, 64 bits) that goes on with `text`.
quint64 hashOf(const std::string &text, quint64 hash)
{
    for (const char each : text)
        hash = (hash ^ quint64(static_cast<unsigned char>(each))) * 0x100000001B3;
    return hash;
}

/// For each of these nodes in scene order, the place behind it and everything below it.
std::vector<std::size_t> endsOf(const std::vector<qxNodePtr> &nodes)
{
    std::vector<std::size_t> ends(nodes.size());
    QHash<osg::UInt32, int> places;
    for (std::size_t i = 0; i < nodes.size(); ++i)
        places.insert(nodes[i].getFieldContainerId(), int(i));
    for (std::size_t i = nodes.size(); i-- > 0;) {
        ends[i] = std::max(ends[i], i + 1);
        const osg::NodePtr parent = nodes[i]->getParent();
        const int above =
            parent == osg::NullFC ? -1 : places.value(parent.getFieldContainerId(), -1);
        if (above >= 0)
            ends[std::size_t(above)] = std::max(ends[std::size_t(above)], ends[i]);
    }
    return ends;
}

/// Everything of the overlay tree but its root, which no overlay variant reaches.
std::vector<qxNodePtr> overlayNodes()
{
    std::vector<qxNodePtr> nodes = qxNodeUtils::getSubTreeNodes(qxOverlays::getPoolRoot());
    if (!nodes.empty())
        nodes.erase(nodes.begin());
    return nodes;
}

} // namespace

qxSceneIndex::qxSceneIndex() : m_nodes(qxNodeUtils::getSceneNodes()), m_overlays(overlayNodes())
{
    qxAnimManager::the()->getBlockAndClipNames(m_clips);
    const qxUberCameraPool &pool = *qxUberCameraPool::the();
    for (int id = 0; id < pool.count(); ++id)
        m_viewpoints.insert(QString::fromStdString(qxUberCameraUtils::getName(pool.get(id))));
    m_viewpoints.remove(QString()); // no viewpoint at all is found by it
}

qxSceneIndex::Nodes::Nodes(const std::vector<qxNodePtr> &nodes)
{
    const std::vector<std::size_t> ends = endsOf(nodes);
    QHash<QString, std::size_t> inside; // where the sub-trees of the nodes of a name end
    for (std::size_t i = 0; i < nodes.size(); ++i) {
        if (!qxNodeUtils::isFoundByName(nodes[i]))
            continue;
        const QString name = nameOf(nodes[i]);
        byName[name].push_back(nodes[i]);
        std::size_t &end = inside[name];
        if (i < end)
            nested.insert(name);
        end = std::max(end, ends[i]);
    }
}

std::vector<qxSceneObject> qxSceneIndex::objects(const qxVariantKind *kind,
                                                 const QString &base) const
{
    std::vector<qxSceneObject> found;
    if (kind == &qxVariantKinds::material) {
        for (const osg::MaterialPtr &each : qxMaterials::findMaterials(base.toUtf8().constData()))
            found.push_back({kind, osg::NullFC, each});
        return found;
    }
    const Nodes &nodes = kind == &qxVariantKinds::overlay ? m_overlays : m_nodes;
    for (const osg::NodePtr &each : nodes.byName.value(base))
        found.push_back({kind, each, osg::NullFC});
    return found;
}

bool qxSceneIndex::areNested(const qxVariantKind *kind, const QString &base) const
{
    return (kind == &qxVariantKinds::node && m_nodes.nested.contains(base))
        || (kind == &qxVariantKinds::overlay && m_overlays.nested.contains(base));
}

bool qxSceneIndex::hasAnimation(const QString &name) const
{
    return m_clips.count(name.toStdString()) > 0;
}

bool qxSceneIndex::hasMaterial(const QString &name) const
{
    return qxMaterials::findMaterial(name.toUtf8().constData()) != osg::NullFC;
}

bool qxSceneIndex::hasPath(const QString &path) const
{
    if (m_paths.isEmpty()) {
        const osg::NodePtr root = qxScenegraph::getRoot();
        for (osg::UInt32 i = 0; i < root->getNChildren(); ++i)
            addPaths(root->getChild(i));
        addPaths(qxScenegraph::environmentGeometrySwitch());
    }
    return m_paths.contains(hashOf(path.toStdString(), EmptyPath));
}

void qxSceneIndex::addPaths(const osg::NodePtr &top) const
{
    if (top == osg::NullFC)
        return;
    std::vector<std::pair<osg::NodePtr, quint64>> open{{top, EmptyPath}};
    while (!open.empty()) { // not the call stack: scenes may be deep
        const auto [node, prefix] = open.back();
        open.pop_back();
        const quint64 path = hashOf(qxNodeUtils::getName(node), prefix);
        m_paths.insert(path);
        for (osg::UInt32 i = 0; i < node->getNChildren(); ++i)
            open.push_back({node->getChild(i), hashOf("/", path)});
    }
}
