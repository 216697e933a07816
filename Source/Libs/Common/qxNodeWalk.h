#pragma once

#include <OpenSG/OSGFieldContainerFactory.h>
#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGNodePtr.h>

#include <algorithm>
#include <type_traits>
#include <vector>

/// Whether a walk goes on after a visit, which may end it by returning false, or returns nothing.
template <class Visit, class... Args>
bool qxGoesOnAfter(const Visit &visit, Args &&...args)
{
    if constexpr (std::is_void_v<std::invoke_result_t<Visit, Args...>>)
        return visit(args...), true;
    else
        return visit(args...);
}

/// Walks a tree in order: each item before what is below it. It needs no call stack, because scenes
/// may be deeper than that.
///
/// An item is a node, or stands for one, and has with it what comes down from the nodes above.
/// `visit(item, below)` looks at one item and appends to `below` the children that are to be
/// visited, in order; it ends the walk by returning false. Says whether all were visited.
template <class Item, class Visit>
bool qxWalkTree(std::vector<Item> tops, const Visit &visit)
{
    std::vector<Item> &open = tops;
    std::reverse(open.begin(), open.end());
    while (!open.empty()) {
        const Item item = std::move(open.back());
        open.pop_back();
        const auto known = std::ptrdiff_t(open.size());
        if (!qxGoesOnAfter(visit, item, open))
            return false;
        std::reverse(open.begin() + known, open.end());
    }
    return true;
}

/// The same for `top`, which may be null, and everything below it: calls `visit(node)`. Nothing may
/// be added or removed meanwhile.
template <class Visit>
bool qxWalkNodes(const osg::NodePtr &top, const Visit &visit)
{
    typedef std::vector<osg::NodePtr> Nodes;
    const auto visitOne = [&visit](const osg::NodePtr &node, Nodes &below) {
        if (!qxGoesOnAfter(visit, node))
            return false;
        const osg::MFNodePtr &children = *node->getMFChildren();
        below.insert(below.end(), children.begin(), children.end());
        return true;
    };
    return qxWalkTree(top == osg::NullFC ? Nodes() : Nodes{top}, visitOne);
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
    });
}

/// The living node with that id, or null.
inline osg::NodePtr qxNodeWithId(osg::UInt32 id)
{
    const osg::FieldContainerPtr object = osg::FieldContainerFactory::the()->getContainer(id);
    return object == osg::NullFC ? osg::NodePtr() : osg::NodePtr::dcast(object);
}
