#include "Script/qxScriptScene.h"

#include "Scene/qxNodeName.h"
#include "Scene/qxPathIndex.h"
#include "Scene/qxScene.h"
#include "qxController.h"
#include "qxLog.h"
#include "qxMaterials.h"
#include "qxScenegraph.h"

namespace {

qxPathIndex &paths()
{
    static qxPathIndex paths;
    return paths;
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
    return qxScriptNode(paths().first(textOf(path)), textOf(path));
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
    return found != osg::NullFC && found->getTravMask() == qxShownMask;
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
        found->setTravMask(active ? qxShownMask : 0);
    }
    qxController::updateRender(false);
}

void qxScriptScene::setIgnoreMaterialGroup(const char *path, bool ignore)
{
    if (qxMaterials::setIgnoreMaterialGroup(paths().first(textOf(path)), ignore))
        qxController::updateRender(false);
    else
        qxLog::warning("setIgnoreMaterialGroup: there is no material group \"%s\"",
                       textOf(path).c_str());
}

void qxScriptScene::forgetPaths()
{
    paths() = qxPathIndex();
}
