#include "Scene/qxScene.h"

#include "qxScenegraph.h"

#include <OpenSG/OSGGroup.h>
#include <OpenSG/OSGSimpleAttachments.h>

namespace {

qxScene *currentScene = nullptr;

osg::NodePtr makeRoot(const char *name)
{
    const osg::NodePtr node = osg::makeCoredNode<osg::Group>();
    osg::addRefCP(node);
    osg::setName(node, name);
    return node;
}

void removeChildren(const osg::NodePtr &node)
{
    const osg::CPEditor edit(node, osg::Node::ChildrenFieldMask);
    while (node->getNChildren() > 0)
        node->subChild(node->getNChildren() - 1);
}

} // namespace

qxScene::qxScene()
    : m_root(makeRoot("Root")), m_overlayRoot(makeRoot("Overlays")),
      m_materialPool(osg::MaterialPool::create())
{
    osg::addRefCP(m_materialPool);
    currentScene = this;
}

qxScene::~qxScene()
{
    clear();
    currentScene = nullptr;
    osg::subRefCP(m_materialPool);
    osg::subRefCP(m_overlayRoot);
    osg::subRefCP(m_root);
}

qxScene *qxScene::current()
{
    return currentScene;
}

void qxScene::clear()
{
    qxScenegraph::clearFindCache();
    removeChildren(m_root);
    removeChildren(m_overlayRoot);
    const osg::CPEditor edit(m_materialPool, osg::MaterialPool::MaterialsFieldMask);
    m_materialPool->clear();
}
