#include "Internal/Scene/qxNodesChange.h"

#include "Internal/Scene/qxNodeVisibility.h"
#include "Internal/Scene/qxSceneEdits.h"

#include "qxNodeUtils.h"
#include "qxSwitchStepping.h"

#include <OpenSG/OSGSwitch.h>

#include <cstdio>

namespace {

std::vector<std::string> childNames(const osg::NodePtr &node)
{
    const osg::UInt32 count = node->getNChildren();
    std::vector<std::string> names;
    names.reserve(count);
    for (osg::UInt32 i = 0; i < count; ++i)
        names.push_back(qxNodeUtils::getName(node->getChild(i)));
    return names;
}

} // namespace

qxNodesChange qxNodesChange::of(const osg::NodePtr &node)
{
    qxNodesChange change;
    change.path = qxNodeVisibility::nodePath(node);
    const osg::SwitchPtr core = osg::SwitchPtr::dcast(node->getCore());
    if (core != osg::NullFC) {
        change.parent = qxNodeUtils::getName(node);
        change.sortChildren(qxSwitchStepping::shownChild(core->getChoice(), node->getNChildren()),
                            childNames(node));
        return change;
    }

    change.parent = qxNodeUtils::getName(node->getParent());
    const bool shown = node->getTravMask() == qxSceneEdits::Visible;
    (shown ? change.visible : change.invisible).push_back(qxNodeUtils::getName(node));
    return change;
}

void qxNodesChange::sortChildren(osg::Int32 choice, std::vector<std::string> names)
{
    if (choice == osg::Switch::ALL) {
        visible = std::move(names);
        return;
    }
    if (choice == osg::Switch::NONE) {
        invisible = std::move(names);
        return;
    }
    if (choice < 0 || std::size_t(choice) >= names.size()) {
        std::fprintf(stderr, "qxNodeVariant::callVariantsNodesChanged: choice (%d) out of range!\n",
                     choice);
        return;
    }
    visible.push_back(std::move(names[std::size_t(choice)]));
    names.erase(names.begin() + choice);
    invisible = std::move(names);
}
