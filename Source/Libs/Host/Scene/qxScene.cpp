#include "Scene/qxScene.h"

#include "qxNodeWalk.h"

#include <OpenSG/OSGGroup.h>
#include <OpenSG/OSGSimpleAttachments.h>

#include <utility>

namespace {

qxScene *currentScene = nullptr;

osg::NodePtr makeRoot(const char *name)
{
    const osg::NodePtr node = osg::makeCoredNode<osg::Group>();
    osg::addRefCP(node);
    osg::setName(node, name);
    return node;
}

/// Takes a tree apart wherever it is another thousand levels deep: a node destroys its children
/// within its own destruction, and a scene may be deeper than the stack.
void cutDeepTree(const osg::NodePtr &top)
{
    constexpr int levels = 1000;
    typedef std::vector<std::pair<osg::NodePtr, int>> Places; // each node with its level
    std::vector<osg::NodePtr> cuts;
    qxWalkTree(Places{{top, 0}}, [&cuts](const Places::value_type &place, Places &below) {
        const auto &[node, level] = place;
        if (level > 0 && level % levels == 0)
            cuts.push_back(node);
        for (const osg::NodePtr &child : *node->getMFChildren())
            below.push_back({child, level + 1});
    });
    for (auto cut = cuts.rbegin(); cut != cuts.rend(); ++cut) { // deeper ones were found later
        const osg::NodePtr parent = (*cut)->getParent();
        const osg::CPEditor edit(parent, osg::Node::ChildrenFieldMask);
        parent->subChild(*cut);
    }
}

void removeChildren(const osg::NodePtr &node)
{
    cutDeepTree(node);
    const osg::CPEditor edit(node, osg::Node::ChildrenFieldMask);
    while (node->getNChildren() > 0)
        node->subChild(node->getNChildren() - 1);
}

/// Records an edit that changes nothing: what is derived from the scene reads the edits.
void noteMove(const osg::NodePtr &node)
{
    if (node == osg::NullFC)
        return;
    const osg::CPEditor edit(node, osg::Node::ParentFieldMask);
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

void qxScene::setEnvironment(const osg::NodePtr &node)
{
    noteMove(m_environment.get());
    m_environment = node;
    noteMove(node);
}

void qxScene::clear()
{
    if (m_environment != osg::NullFC)
        removeChildren(m_environment.get());
    setEnvironment(osg::NullFC);
    removeChildren(m_root);
    removeChildren(m_overlayRoot);
    const osg::CPEditor edit(m_materialPool, osg::MaterialPool::MaterialsFieldMask);
    m_materialPool->clear();
}
