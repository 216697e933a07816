#include "qxNodeVisibility.h"

#include "qxController.h"
#include "qxNodeWalk.h"
#include "qxScenegraph.h"

#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGLight.h>

#include <algorithm>
#include <map>
#include <set>

namespace {

const osg::UInt32 allShown = 0xFFFFFFFF;

/// What there is at and below a node.
struct Contents {
    bool hasSurface = false;
    bool hasLight = false;
};
typedef std::map<osg::NodePtr, Contents> AllContents;

AllContents contentsBelow(const osg::NodePtr &top)
{
    std::vector<osg::NodePtr> nodes;
    qxWalkNodes(top, [&nodes](const osg::NodePtr &node) { nodes.push_back(node); });
    AllContents all;
    for (auto node = nodes.rbegin(); node != nodes.rend(); ++node) {
        const osg::NodeCorePtr core = (*node)->getCore();
        Contents &own = all[*node];
        own.hasSurface |= osg::GeometryPtr::dcast(core) != osg::NullFC;
        own.hasLight |= osg::LightPtr::dcast(core) != osg::NullFC;
        if (*node == top)
            break;
        Contents &above = all[(*node)->getParent()];
        above.hasSurface |= own.hasSurface;
        above.hasLight |= own.hasLight;
    }
    return all;
}

} // namespace

void qxNodeVisibility::set(const osg::NodePtr &node, osg::UInt32 mask, Changes &changes)
{
    const osg::UInt32 before = node->getTravMask();
    if (before == mask)
        return;
    const osg::CPEditor edit(node, osg::Node::TravMaskFieldMask);
    node->setTravMask(mask);
    changes.push_back({osg::NodeRefPtr(node), before, mask});
}

/// A node may have changed more than once.
void qxNodeVisibility::revert(Changes &changes)
{
    for (auto change = changes.rbegin(); change != changes.rend(); ++change) {
        const osg::NodePtr node = change->node.get();
        if (node->getTravMask() != change->after)
            continue;
        const osg::CPEditor edit(node, osg::Node::TravMaskFieldMask);
        node->setTravMask(change->before);
    }
    changes.clear();
}

void qxNodeVisibility::finish()
{
    Q_EMIT changed();
    qxController::updateRender(false);
}

void qxNodeVisibility::hide(const Nodes &nodes)
{
    Q_EMIT aboutToChange();
    for (const osg::NodePtr &node : nodes)
        set(node, 0, m_hidden);
    finish();
}

void qxNodeVisibility::show(const Nodes &nodes)
{
    Q_EMIT aboutToChange();
    qxScenegraph::showNodes(std::vector<qxNodePtr>(nodes.begin(), nodes.end()));
    finish();
}

void qxNodeVisibility::tick(const osg::NodePtr &node, bool isShown)
{
    Q_EMIT aboutToChange();
    Changes ofTick;
    set(node, isShown ? allShown : 0, isShown ? ofTick : m_hidden);
    finish();
}

void qxNodeVisibility::isolate(const Nodes &nodes)
{
    if (nodes.empty())
        return;
    Q_EMIT aboutToChange();
    revert(m_isolation);
    isolate(nodes, m_isolation);
    finish();
}

void qxNodeVisibility::isolate(const Nodes &nodes, Changes &changes)
{
    const std::set<osg::NodePtr> picked(nodes.begin(), nodes.end());
    std::set<osg::NodePtr> above;
    for (const osg::NodePtr &node : nodes) {
        set(node, allShown, changes);
        for (osg::NodePtr each = node->getParent(); each != osg::NullFC; each = each->getParent()) {
            if (above.insert(each).second)
                set(each, allShown, changes);
        }
    }
    const osg::NodePtr root = qxScenegraph::getRoot();
    const AllContents contents = contentsBelow(root);
    qxWalkTree(Nodes{root}, [&](const osg::NodePtr &node, Nodes &below) {
        const Contents &own = contents.at(node);
        if (!own.hasSurface || picked.count(node) > 0)
            return;
        if (above.count(node) == 0 && !own.hasLight)
            return set(node, 0, changes);
        const osg::MFNodePtr &children = *node->getMFChildren();
        below.insert(below.end(), children.begin(), children.end());
    });
}

void qxNodeVisibility::endIsolation()
{
    Q_EMIT aboutToChange();
    revert(m_isolation);
    finish();
}

void qxNodeVisibility::showAll()
{
    Q_EMIT aboutToChange();
    revert(m_isolation);
    revert(m_hidden);
    finish();
}

void qxNodeVisibility::follow()
{
    const std::size_t before = m_isolation.size() + m_hidden.size();
    for (Changes *const changes : {&m_isolation, &m_hidden}) {
        const auto isOther = [](const Change &change) {
            return change.node->getTravMask() != change.after;
        };
        changes->erase(std::remove_if(changes->begin(), changes->end(), isOther), changes->end());
    }
    if (m_isolation.size() + m_hidden.size() != before)
        Q_EMIT changed();
}

void qxNodeVisibility::forget()
{
    m_isolation.clear();
    m_hidden.clear();
}
