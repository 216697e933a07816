#include "Internal/Scene/qxNodeVisibility.h"

#include "Internal/Scene/qxSceneEdits.h"

#include "qxNodeUtils.h"
#include "qxScenegraph.h"

#include <OpenSG/OSGGeometry.h>

#include <vector>

using qxSceneEdits::setTraversalMask;

namespace {

/// Calls `visit` for the node and everything below it: a node before its children, in order.
template <class Visit>
void walkDown(const osg::NodePtr &top, Visit visit)
{
    if (top == osg::NullFC)
        return;
    std::vector<osg::NodePtr> open{top}; // not the call stack: scenes may be deep
    while (!open.empty()) {
        const osg::NodePtr node = open.back();
        open.pop_back();
        visit(node);
        for (osg::UInt32 i = node->getNChildren(); i > 0; --i)
            open.push_back(node->getChild(i - 1));
    }
}

} // namespace

void qxNodeVisibility::pushEnable(const osg::NodePtr &node)
{
    walkDown(node, [](const osg::NodePtr &each) { setTraversalMask(each, qxSceneEdits::Visible); });
}

void qxNodeVisibility::pushDisable(const osg::NodePtr &node)
{
    walkDown(node, [](const osg::NodePtr &each) {
        if (osg::GeometryPtr::dcast(each->getCore()) != osg::NullFC)
            setTraversalMask(each, qxSceneEdits::Hidden);
    });
}

std::string qxNodeVisibility::nodePath(const osg::NodePtr &node)
{
    const osg::NodePtr root = qxScenegraph::getRoot();
    std::vector<std::string> names;
    std::size_t length = 0;
    for (osg::NodePtr each = node; each != osg::NullFC && each != root; each = each->getParent()) {
        std::string name = qxNodeUtils::getName(each);
        if (name == "Root")
            break;
        length += name.size() + 1;
        names.push_back(std::move(name));
    }

    std::string path;
    path.reserve(length);
    for (auto name = names.rbegin(); name != names.rend(); ++name)
        path.append(*name).push_back('|');
    return path;
}
