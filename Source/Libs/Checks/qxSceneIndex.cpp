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

} // namespace

qxSceneIndex::qxSceneIndex()
    : m_nodes(nodesBelow(qxScenegraph::getRoot(), true)),
      m_overlays(nodesBelow(qxOverlays::getPoolRoot(), false))
{
    qxAnimManager::the()->getBlockAndClipNames(m_clips);
}

qxSceneIndex::Nodes qxSceneIndex::nodesBelow(const osg::NodePtr &root, bool withRoot)
{
    Nodes nodes;
    for (const qxNodePtr &node : qxNodeUtils::getSubTreeNodes(root)) {
        const QString name = nameOf(node);
        if (!name.isEmpty() && (withRoot || node != root))
            nodes[name].push_back(node);
    }
    return nodes;
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

bool qxSceneIndex::hasViewpoint(const QString &name) const
{
    return qxUberCameraPool::the()->findViewpoint(name.toStdString()) >= 0;
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
    if (m_paths.isEmpty())
        addPaths(qxScenegraph::getRoot(), QString());
    return m_paths.contains(path);
}

void qxSceneIndex::addPaths(const osg::NodePtr &parent, const QString &prefix) const
{
    for (osg::UInt32 i = 0; i < parent->getNChildren(); ++i) {
        const osg::NodePtr child = parent->getChild(i);
        const QString path = prefix + nameOf(child);
        m_paths.insert(path);
        addPaths(child, path + QLatin1Char('/'));
    }
}
