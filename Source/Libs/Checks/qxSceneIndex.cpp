#include "qxSceneIndex.h"

#include "qxAnimManager.h"
#include "qxMaterials.h"
#include "qxNodeUtils.h"
#include "qxOverlays.h"
#include "qxScenegraph.h"
#include "qxUberCameraPool.h"

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

/// Everything of the overlay tree but its root, which no overlay variant reaches.
std::vector<qxNodePtr> overlayNodes()
{
    std::vector<qxNodePtr> nodes = qxNodeUtils::getSubTreeNodes(qxOverlays::getPoolRoot());
    if (!nodes.empty())
        nodes.erase(nodes.begin());
    return nodes;
}

} // namespace

qxSceneIndex::qxSceneIndex()
    : m_nodes(byName(qxNodeUtils::getSceneNodes())), m_overlays(byName(overlayNodes()))
{
    qxAnimManager::the()->getBlockAndClipNames(m_clips);
    const qxUberCameraPool &pool = *qxUberCameraPool::the();
    for (int id = 0; id < pool.count(); ++id)
        m_viewpoints.insert(QString::fromStdString(qxUberCameraUtils::getName(pool.get(id))));
    m_viewpoints.remove(QString()); // no viewpoint at all is found by it
}

qxSceneIndex::Nodes qxSceneIndex::byName(const std::vector<qxNodePtr> &nodes)
{
    Nodes result;
    for (const qxNodePtr &node : nodes) {
        const QString name = nameOf(node);
        if (!name.isEmpty())
            result[name].push_back(node);
    }
    return result;
}

std::vector<qxSceneObject> qxSceneIndex::objects(qxVariantKind kind, const QString &base) const
{
    std::vector<qxSceneObject> found;
    if (kind == qxVariantKind::Material) {
        for (const osg::MaterialPtr &each : qxMaterials::findMaterials(base.toUtf8().constData()))
            found.push_back({kind, osg::NullFC, each});
        return found;
    }
    const Nodes &nodes = kind == qxVariantKind::Overlay ? m_overlays : m_nodes;
    for (const osg::NodePtr &each : nodes.value(base))
        found.push_back({kind, each, osg::NullFC});
    return found;
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
