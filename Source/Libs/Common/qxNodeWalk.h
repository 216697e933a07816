#pragma once

#include "qxScenegraph.h"

#include <OpenSG/OSGFieldContainerFactory.h>
#include <OpenSG/OSGNode.h>

#include <algorithm>
#include <vector>

/// Walks a tree in order: each item before what is below it. It needs no call stack, because scenes
/// may be deeper than that.
///
/// An item is a node, or stands for one, and has with it what comes down from the nodes above.
/// `visit(item, below)` looks at one item and appends to `below` the children that are to be
/// visited, in order. When it returns false the walk ends. Says whether all were visited.
template <class Item, class Visit>
bool qxWalkTree(std::vector<Item> tops, const Visit &visit)
{
    std::vector<Item> &open = tops;
    std::reverse(open.begin(), open.end());
    while (!open.empty()) {
        const Item item = std::move(open.back());
        open.pop_back();
        const auto known = std::ptrdiff_t(open.size());
        if (!visit(item, open))
            return false;
        std::reverse(open.begin() + known, open.end());
    }
    return true;
}

/// Calls `visit(node)` for `top`, which may be null, and everything below it in scene order, until
/// it returns false. Nothing may be added or removed meanwhile. Says whether all were visited.
template <class Visit>
bool qxWalkNodes(const osg::NodePtr &top, const Visit &visit)
{
    typedef std::vector<osg::NodePtr> Nodes;
    const auto visitOne = [&visit](const osg::NodePtr &node, Nodes &below) {
        if (!visit(node))
            return false;
        const osg::MFNodePtr &children = *node->getMFChildren();
        below.insert(below.end(), children.begin(), children.end());
        return true;
    };
    return qxWalkTree(top == osg::NullFC ? Nodes() : Nodes{top}, visitOne);
}

/// The same for the whole scene: the root and what is below it, then the environment.
template <class Visit>
void qxWalkScene(const Visit &visit)
{
    if (qxWalkNodes(qxScenegraph::getRoot(), visit))
        qxWalkNodes(qxScenegraph::environmentGeometrySwitch(), visit);
}

/// Like qxWalkNodes where `visit` may change the scene, and so may listeners that hear of what it
/// does: nodes live until their turn has passed, and what has no parent any more is passed over.
/// `visit` says whether to go on below the node.
template <class Visit>
void qxWalkChangingNodes(const osg::NodePtr top, const Visit &visit)
{
    typedef std::vector<osg::NodeRefPtr> Nodes;
    const auto isInPlace = [&top](const osg::NodePtr &node) {
        return node != osg::NullFC && (node == top || node->getParent() != osg::NullFC);
    };
    qxWalkTree(Nodes{osg::NodeRefPtr(top)}, [&](const osg::NodeRefPtr &held, Nodes &below) {
        const osg::NodePtr node = held.get();
        if (isInPlace(node) && visit(node) && isInPlace(node)) {
            for (const osg::NodePtr &child : *node->getMFChildren())
                below.emplace_back(child);
        }
        return true;
    });
}

/// The living node with that id, or null.
inline osg::NodePtr qxNodeWithId(osg::UInt32 id)
{
    const osg::FieldContainerPtr object = osg::FieldContainerFactory::the()->getContainer(id);
    return object == osg::NullFC ? osg::NodePtr() : osg::NodePtr::dcast(object);
}
