// Nodes: names, look-ups, lights, overlays, clones and materials.
#include "OSGUberLight.h"
#include "Services/services.h"
#include "qxLights.h"
#include "qxMessage.h"
#include "qxModuleBase.h"
#include "qxNames.h"
#include "qxNodeWalk.h"
#include "qxOpenSGUtils.h"
#include "scene.h"

#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGMaterialGroup.h>
#include <OpenSG/OSGSimpleAttachments.h>

#include <optional>
#include <set>
#include <unordered_map>

namespace {

typedef std::vector<qxNodePtr> Nodes;
/// The ids of the nodes of each name; scripts may remove some while the cache is on.
typedef std::unordered_map<std::string, std::vector<osg::UInt32>> Names;
std::optional<Names> cachedNodes, cachedOverlays;

/// Those of the tree that pass, in scene order.
template <class Passes>
Nodes filter(const osg::NodePtr &top, const Passes &passes)
{
    Nodes nodes;
    qxWalkNodes(top, [&](const osg::NodePtr &node) {
        if (passes(node))
            nodes.push_back(node);
    });
    return nodes;
}

Names namesOf(const osg::NodePtr &top)
{
    Names names;
    for (const qxNodePtr &node : filter(top, qxNodeUtils::isFoundByName))
        names[qxNodeUtils::getName(node)].push_back(node.getID());
    return names;
}

bool isIn(osg::NodePtr node, const osg::NodePtr &top)
{
    while (node != osg::NullFC && node != top)
        node = node->getParent();
    return node != osg::NullFC;
}

Nodes find(const char *name, const osg::NodePtr &top, std::optional<Names> &cached)
{
    const std::string wanted = name ? name : "";
    if (!cached) {
        return filter(top, [&wanted](const osg::NodePtr &node) {
            return qxNodeUtils::getName(node) == wanted && qxNodeUtils::isFoundByName(node);
        });
    }
    Nodes nodes;
    for (const osg::UInt32 id : (*cached)[wanted]) {
        if (isIn(qxNodeWithId(id), top))
            nodes.push_back(qxNodeWithId(id));
    }
    return nodes;
}

qxNodePtr firstOf(const Nodes &nodes) { return nodes.empty() ? qxNodePtr() : nodes.front(); }

/// Edits one field of a container.
template <class Container, class Edit>
void edit(Container container, osg::BitVector field, const Edit &change)
{
    beginEditCP(container, field);
    change(container);
    endEditCP(container, field);
}

} // namespace

osg::NodePtr qxOpenSGUtils::getRoot() { return Scene::the().root; }
osg::NodePtr qxScenegraph::getRoot() { return Scene::the().root; }
qxNodePtr qxScenegraph::getRootNode() { return Scene::the().root; }
osg::MaterialPoolPtr qxScenegraph::getMaterialPool() { return Scene::the().materials; }
osg::NodePtr qxOverlays::getPoolRoot() { return Scene::the().overlays; }
void qxScenegraph::update(int) {} // nothing is derived from the scene

// The boat sails in no environment.
osg::NodePtr qxScenegraph::environmentGeometrySwitch() { return osg::NullFC; }
bool qxNodeUtils::isEnvironmentGeometrySwitch(const osg::NodePtr &) { return false; }

bool qxScenegraph::hasFindCache() { return cachedNodes.has_value(); }
void qxScenegraph::clearFindCache()
{
    cachedNodes.reset();
    cachedOverlays.reset();
}
void qxScenegraph::initFindCache()
{
    cachedNodes = namesOf(Scene::the().root);
    cachedOverlays = namesOf(Scene::the().overlays);
}

qxNodePtr qxScenegraph::findNode(const char *name) { return firstOf(findNodes(name)); }
std::vector<qxNodePtr> qxScenegraph::findNodes(const char *name)
{
    return find(name, Scene::the().root, cachedNodes);
}

qxNodePtr qxOverlays::findOverlay(const char *name) { return firstOf(findOverlays(name)); }
std::vector<qxNodePtr> qxOverlays::findOverlays(const char *name)
{
    return find(name, Scene::the().overlays, cachedOverlays);
}

void qxScenegraph::showNodes(const std::vector<qxNodePtr> &nodes)
{
    for (osg::NodePtr node : nodes) {
        for (; node != osg::NullFC; node = node->getParent()) {
            edit(node, osg::Node::TravMaskFieldMask,
                 [](const osg::NodePtr &shown) { shown->setTravMask(0xFFFFFFFF); });
        }
    }
}

std::string qxNodeUtils::getName(const osg::NodePtr &node)
{
    const osg::NodeCorePtr core = node == osg::NullFC ? osg::NodeCorePtr() : node->getCore();
    if (const char *own = osg::getName(node))
        return own;
    if (const char *name = osg::getName(core))
        return name;
    return core == osg::NullFC ? "" : core->getTypeName();
}

bool qxNodeUtils::isFoundByName(const osg::NodePtr &node)
{
    const std::string name = getName(node);
    const bool isMesh = coreOf<osg::Geometry>(node) != osg::NullFC && node->getNChildren() == 0
        && !osg::getName(node);
    return !name.empty() && !(isMesh && getName(node->getParent()) == name);
}

std::string qxNodeUtils::getUniqueName(const std::string &base,
                                       const std::vector<std::string> &existing)
{
    const std::set<std::string> taken(existing.begin(), existing.end());
    return numbered(base, [&taken](auto &each) { return taken.count(each); });
}

void qxNodeUtils::setName(const osg::NodePtr &node, const std::string &name, bool makeUnique,
                          const osg::NodePtr &root)
{
    if (node == osg::NullFC)
        return;
    Nodes renamed{node};
    std::vector<std::string> taken;
    for (const qxNodePtr &each : makeUnique ? getSubTreeNodes(root) : Nodes()) {
        if (isCloneOf(each, node) && getName(each) == getName(node))
            renamed.push_back(each);
        else if (each != node)
            taken.push_back(getName(each));
    }
    const std::string unique = getUniqueName(name, taken);
    for (const qxNodePtr &each : renamed)
        osg::setName(each, unique);
}

std::vector<qxNodePtr> qxNodeUtils::getSceneNodes() { return getSubTreeNodes(Scene::the().root); }
std::vector<qxNodePtr> qxNodeUtils::getSubTreeNodes(const osg::NodePtr &node)
{
    return filter(node, [](const osg::NodePtr &) { return true; });
}

bool qxNodeUtils::isCloneOf(const osg::NodePtr &node, const osg::NodePtr &other)
{
    return node != osg::NullFC && other != osg::NullFC && node->getCore() != osg::NullFC
        && node->getCore() == other->getCore();
}

void qxNodeUtils::getInstancesInScenegraph(const osg::NodePtr &node, std::vector<qxNodePtr> &nodes)
{
    const auto clones =
        filter(Scene::the().root, [&](const auto &each) { return isCloneOf(each, node); });
    nodes.insert(nodes.end(), clones.begin(), clones.end());
}

osg::MaterialPtr qxNodeUtils::getMaterial(const osg::NodePtr &node)
{
    if (const auto group = coreOf<osg::MaterialGroup>(node))
        return group->getMaterial();
    const auto geometry = coreOf<osg::Geometry>(node);
    return geometry == osg::NullFC ? osg::MaterialPtr() : geometry->getMaterial();
}

void qxNodeUtils::setMaterial(const osg::NodePtr &node, const osg::MaterialPtr &material,
                              bool subTree, bool announce)
{
    const auto set = [&material](const auto &core) { core->setMaterial(material); };
    for (const qxNodePtr &each : subTree ? getSubTreeNodes(node) : Nodes{node}) {
        if (const auto group = coreOf<osg::MaterialGroup>(each))
            edit(group, osg::MaterialGroup::MaterialFieldMask, set);
        else if (const auto geometry = coreOf<osg::Geometry>(each))
            edit(geometry, osg::Geometry::MaterialFieldMask, set);
    }
    qxMessage message(qxModuleBase::MaterialsChanged);
    if (announce)
        qxModuleBase::sendMessage(message, false);
}

bool qxLights::isLight(const osg::NodePtr &node)
{
    return coreOf<osg::UberLight>(node) != osg::NullFC;
}
bool qxLights::getOn(const osg::NodePtr &node)
{
    return isLight(node) && coreOf<osg::UberLight>(node)->getOn();
}
void qxLights::setOn(const osg::NodePtr &node, bool on)
{
    if (const auto light = coreOf<osg::UberLight>(node))
        edit(light, osg::UberLight::OnFieldMask, [on](const auto &core) { core->setOn(on); });
}
std::vector<qxNodePtr> qxLights::getLights() { return filter(Scene::the().root, isLight); }
