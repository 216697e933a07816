#include "qxNodeUtils.h"

#include "Scene/qxNodeName.h"
#include "Scene/qxSceneWalk.h"
#include "Scene/qxTransformStates.h"

#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGNodeCore.h>
#include <OpenSG/OSGSimpleAttachments.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>

namespace {

/// The number behind `base` and a blank in `name`, 0 when there is none or it is written oddly.
std::size_t numberBehind(const std::string &base, const std::string &name)
{
    const std::size_t length = base.size() + 1;
    if (name.size() <= length || name.size() > length + 9 || name[base.size()] != ' '
        || name[length] == '0' || name.compare(0, base.size(), base) != 0
        || name.find_first_not_of("0123456789", length) != std::string::npos)
        return 0;
    return std::strtoul(name.c_str() + length, nullptr, 10);
}

} // namespace

const char *qxNodeName(const osg::NodePtr &node)
{
    if (node == osg::NullFC)
        return "";
    if (const osg::Char8 *name = osg::getName(node))
        return name;
    const osg::NodeCorePtr core = node->getCore();
    if (core == osg::NullFC)
        return "";
    const osg::Char8 *name = osg::getName(core);
    return name ? name : core->getTypeName();
}

bool qxIsPart(const osg::NodePtr &node)
{
    return !osg::getName(node) && node->getNChildren() == 0
        && osg::GeometryPtr::dcast(node->getCore()) != osg::NullFC;
}

bool qxIsFoundBy(const osg::NodePtr &node, const char *name)
{
    return std::strcmp(qxNodeName(node), name) == 0 && qxNodeUtils::isFoundByName(node);
}

std::string qxNodeUtils::getName(const osg::NodePtr &node)
{
    return qxNodeName(node);
}

bool qxNodeUtils::isFoundByName(const osg::NodePtr &node)
{
    const char *const name = qxNodeName(node);
    if (!*name)
        return false;
    const osg::NodePtr parent = node->getParent();
    return parent == osg::NullFC || std::strcmp(qxNodeName(parent), name) != 0 || !qxIsPart(node);
}

std::string qxNodeUtils::getUniqueName(const std::string &base,
                                       const std::vector<std::string> &existing)
{
    if (std::find(existing.begin(), existing.end(), base) == existing.end())
        return base;
    // Of the numbers 2 to n + 2 at least one is free among n names.
    std::vector<bool> taken(existing.size() + 3);
    for (const std::string &name : existing) {
        const std::size_t number = numberBehind(base, name);
        if (number < taken.size())
            taken[number] = true;
    }
    std::size_t free = 2;
    while (taken[free])
        ++free;
    return base + " " + std::to_string(free);
}

std::vector<qxNodePtr> qxNodeUtils::getSceneNodes()
{
    std::vector<qxNodePtr> nodes;
    qxWalkScene([&nodes](const osg::NodePtr &found) { nodes.push_back(found); });
    return nodes;
}

std::vector<qxNodePtr> qxNodeUtils::getSubTreeNodes(const osg::NodePtr &node)
{
    std::vector<qxNodePtr> nodes;
    qxWalkNodes(node, [&nodes](const osg::NodePtr &found) { nodes.push_back(found); });
    return nodes;
}

bool qxNodeUtils::hasTransformVariants(const osg::NodePtr &node)
{
    return qxTransformStates::of(node) != osg::NullFC;
}

int qxNodeUtils::getTransformVariantCount(const osg::NodePtr &node)
{
    const osg::TransformStatesPtr states = qxTransformStates::of(node);
    return states == osg::NullFC ? 0 : int(states->getNames().size());
}

std::string qxNodeUtils::getTransformVariantName(const osg::NodePtr &node, int index)
{
    if (index < 0 || index >= getTransformVariantCount(node))
        return std::string();
    return qxTransformStates::of(node)->getNames()[osg::UInt32(index)];
}

void qxNodeUtils::setTransformVariantName(const osg::NodePtr &node, int index,
                                          const std::string &name)
{
    if (index < 0 || index >= getTransformVariantCount(node))
        return;
    const osg::TransformStatesPtr states = qxTransformStates::of(node);
    const osg::CPEditor edit(states, osg::TransformStates::NamesFieldMask);
    states->getNames()[osg::UInt32(index)] = name;
}

int qxNodeUtils::getTransformVariantIndex(const osg::NodePtr &node, const std::string &name)
{
    const osg::TransformStatesPtr states = qxTransformStates::of(node);
    if (states == osg::NullFC)
        return -1;
    osg::MFString &names = states->getNames();
    const auto found = std::find(names.begin(), names.end(), name);
    return found == names.end() ? -1 : int(found - names.begin());
}

int qxNodeUtils::getTransformVariantCurrentIndex(const osg::NodePtr &node)
{
    const osg::TransformStatesPtr states = qxTransformStates::of(node);
    return states == osg::NullFC ? -1 : states->getSelected();
}

std::string qxNodeUtils::getSelectedTransformVariantName(const osg::NodePtr &node)
{
    return getTransformVariantName(node, getTransformVariantCurrentIndex(node));
}

bool qxNodeUtils::isTransformVariantInState(const osg::NodePtr &node)
{
    return qxTransformStates::isInSelected(node);
}
