#pragma once

#include "qxMaterials.h"
#include "qxNodeUtils.h"
#include "qxScenegraph.h"
#include "qxText.h"

/// Names of scene objects, and the paths that are made of them.
namespace qxNames {

/// By the rule of qxNodeUtils::getName.
inline QString nameOf(const osg::NodePtr &node)
{
    return qxText::fromUtf8(qxNodeUtils::getName(node));
}

inline QString nameOf(const osg::MaterialPtr &material)
{
    return qxText::fromUtf8(qxMaterials::getName(material));
}

/// The names (UTF-8) from below the top down to the node, each followed by `separator`: empty for
/// the top itself. The nearest node at or above it that passes `isTop(node, name)` is the top.
template <class IsTop>
std::string stepsTo(const osg::NodePtr &node, char separator, const IsTop &isTop)
{
    std::vector<std::string> names;
    std::size_t length = 0;
    for (osg::NodePtr each = node; each != osg::NullFC; each = each->getParent()) {
        std::string name = qxNodeUtils::getName(each);
        if (isTop(each, name))
            break;
        length += name.size() + 1;
        names.push_back(std::move(name));
    }
    std::string steps;
    steps.reserve(length);
    for (auto name = names.rbegin(); name != names.rend(); ++name)
        steps.append(*name).push_back(separator);
    return steps;
}

/// The names (UTF-8) from below the scene root down to the node, joined by "/"; empty for the root
/// and for a null node. Nothing is escaped.
inline std::string pathOf(const osg::NodePtr &node)
{
    const osg::NodePtr root = qxScenegraph::getRoot();
    std::string path = stepsTo(
        node, '/', [&root](const osg::NodePtr &each, const std::string &) { return each == root; });
    if (!path.empty())
        path.pop_back();
    return path;
}

} // namespace qxNames
