#include "qxNodeSelection.h"

#include "qxScenegraph.h"

#include <algorithm>

namespace {

bool isAtOrBelow(const osg::NodePtr &node, const osg::NodePtr &top)
{
    osg::NodePtr each = node;
    while (each != osg::NullFC && each != top)
        each = each->getParent();
    return each != osg::NullFC;
}

} // namespace

qxNodeSelection::Nodes qxNodeSelection::nodes() const
{
    Nodes there;
    for (const osg::NodeRefPtr &node : m_nodes) {
        if (isAtOrBelow(node.get(), qxScenegraph::getRoot()))
            there.push_back(node.get());
    }
    return there;
}

osg::NodePtr qxNodeSelection::current() const
{
    const Nodes there = nodes();
    return there.empty() ? osg::NodePtr(osg::NullFC) : there.back();
}

bool qxNodeSelection::hasAtOrAbove(const osg::NodePtr &node) const
{
    return std::any_of(m_nodes.begin(), m_nodes.end(), [&node](const osg::NodeRefPtr &each) {
        return isAtOrBelow(node, each.get());
    });
}

void qxNodeSelection::select(const Nodes &nodes)
{
    const std::vector<osg::NodeRefPtr> held(nodes.begin(), nodes.end());
    const auto isSame = [](const osg::NodeRefPtr &one, const osg::NodeRefPtr &other) {
        return one.get() == other.get();
    };
    if (std::equal(held.begin(), held.end(), m_nodes.begin(), m_nodes.end(), isSame))
        return;
    m_nodes = held;
    Q_EMIT changed();
}

void qxNodeSelection::pick(const osg::NodePtr &node, Way way)
{
    if (node == osg::NullFC)
        return way == Besides ? void() : clear();
    Nodes all = nodes();
    if (way == Besides) {
        const auto found = std::find(all.begin(), all.end(), node);
        if (found == all.end())
            all.push_back(node);
        else
            all.erase(found);
        return select(all);
    }
    if (way == Alone || all.size() != 1 || !isAtOrBelow(node, all.front()))
        return select({node});
    const osg::NodePtr above = all.front()->getParent();
    select({above == qxScenegraph::getRoot() ? node : above});
}
