#include "Script/qxScriptScene.h"

#include "Scene/qxNodeWalk.h"
#include "qxController.h"
#include "qxLog.h"
#include "qxMaterials.h"
#include "qxScenegraph.h"

#include <vector>

namespace {

const osg::UInt32 shown = 0xFFFFFFFF;

/// A node to look at, and where in the path its own name would begin.
struct Candidate {
    osg::NodePtr node;
    std::size_t begin;
};

void addChildren(std::vector<Candidate> &open, const osg::NodePtr &node, std::size_t begin)
{
    const osg::MFNodePtr &children = *node->getMFChildren();
    for (auto child = children.rbegin(); child != children.rend(); ++child)
        open.push_back({*child, begin});
}

/// Follows only nodes whose path begins the path that is sought. Names may hold "/" themselves, so
/// the path cannot be split beforehand.
osg::NodePtr nodeOfPath(const std::string &path)
{
    std::vector<Candidate> open;
    const osg::NodePtr root = qxScenegraph::getRoot();
    if (root != osg::NullFC && !path.empty())
        addChildren(open, root, 0);
    while (!open.empty()) {
        const Candidate candidate = open.back();
        open.pop_back();
        const std::string name = qxNodeName(candidate.node);
        if (path.compare(candidate.begin, name.size(), name) != 0)
            continue;
        const std::size_t end = candidate.begin + name.size();
        if (end == path.size())
            return candidate.node;
        if (path[end] == '/')
            addChildren(open, candidate.node, end + 1);
    }
    return osg::NullFC;
}

std::string textOf(const char *text)
{
    return text ? text : std::string();
}

} // namespace

qxScriptNode qxScriptScene::findNode(const char *name)
{
    return qxScriptNode(qxScenegraph::findNode(name), textOf(name));
}

qxScriptNode qxScriptScene::findNodePath(const char *path)
{
    return qxScriptNode(nodeOfPath(textOf(path)), textOf(path));
}

qxScriptMaterial qxScriptScene::findMaterial(const char *name)
{
    return qxScriptMaterial(qxMaterials::findMaterial(name), textOf(name));
}

std::string qxScriptScene::nameOf(const qxScriptNode &node)
{
    return qxNodeName(node.get());
}

std::string qxScriptScene::nameOf(const qxScriptMaterial &material)
{
    return qxMaterials::getName(material.get());
}

bool qxScriptScene::isActive(const qxScriptNode &node)
{
    const osg::NodePtr found = node.get();
    return found != osg::NullFC && found->getTravMask() == shown;
}

void qxScriptScene::setActive(const qxScriptNode &node, bool active)
{
    const osg::NodePtr found = node.get();
    if (found == osg::NullFC) {
        qxLog::warning("setActive: there is no node \"%s\"", node.sought().c_str());
        return;
    }
    {
        const osg::CPEditor edit(found, osg::Node::TravMaskFieldMask);
        found->setTravMask(active ? shown : 0);
    }
    qxController::updateRender(false);
}

void qxScriptScene::setIgnoreMaterialGroup(const char *path, bool ignore)
{
    if (qxMaterials::setIgnoreMaterialGroup(nodeOfPath(textOf(path)), ignore))
        qxController::updateRender(false);
    else
        qxLog::warning("setIgnoreMaterialGroup: there is no material group \"%s\"",
                       textOf(path).c_str());
}
