#pragma once

#include "qxMaterials.h"
#include "qxNodeUtils.h"
#include "qxOverlays.h"
#include "qxScenegraph.h"
#include "qxText.h"

#include <cstdint>
#include <string_view>

/// Names of scene objects, finding objects by them, and the paths that are made of them.
namespace qxNames {

/// The node's name by the rule of qxNodeUtils::getName.
inline QString nameOf(const osg::NodePtr &node)
{
    return qxText::fromUtf8(qxNodeUtils::getName(node));
}

/// The material's name; empty for a null material and for one without a name.
inline QString nameOf(const osg::MaterialPtr &material)
{
    return qxText::fromUtf8(qxMaterials::getName(material));
}

/// The first node of that name, or null (see qxScenegraph).
inline qxNodePtr findNode(const QString &name)
{
    return qxScenegraph::findNode(qxText::toUtf8(name).c_str());
}
/// All nodes of that name, in scene order.
inline std::vector<qxNodePtr> findNodes(const QString &name)
{
    return qxScenegraph::findNodes(qxText::toUtf8(name).c_str());
}

/// The first node of that name in the overlay tree, or null (see qxOverlays).
inline qxNodePtr findOverlay(const QString &name)
{
    return qxOverlays::findOverlay(qxText::toUtf8(name).c_str());
}
/// All of them, depth first.
inline std::vector<qxNodePtr> findOverlays(const QString &name)
{
    return qxOverlays::findOverlays(qxText::toUtf8(name).c_str());
}

/// The first material of that name, or null (see qxMaterials).
inline osg::MaterialPtr findMaterial(const QString &name)
{
    return qxMaterials::findMaterial(qxText::toUtf8(name).c_str());
}
/// All of them, in the order of the pool.
inline std::vector<osg::MaterialPtr> findMaterials(const QString &name)
{
    return qxMaterials::findMaterials(qxText::toUtf8(name).c_str());
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

/// The hash of a path that has nothing in it yet.
constexpr std::uint64_t EmptyPath = 0xCBF29CE484222325;
/// The hash of the path that goes on with `text` (FNV-1a, 64 bits).
inline std::uint64_t hashOf(std::string_view text, std::uint64_t path)
{
    for (const char each : text)
        path = (path ^ static_cast<unsigned char>(each)) * 0x100000001B3;
    return path;
}

} // namespace qxNames
