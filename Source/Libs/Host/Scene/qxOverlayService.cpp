#include "Scene/qxOverlayService.h"

#include "Scene/qxNodeName.h"
#include "Scene/qxScene.h"
#include "qxController.h"
#include "qxMessage.h"
#include "qxOverlays.h"

#include <OpenSG/OSGSwitch.h>

#include <algorithm>
#include <set>

namespace {

void setMask(const osg::NodePtr &node, osg::UInt32 mask)
{
    const osg::CPEditor edit(node, osg::Node::TravMaskFieldMask);
    node->setTravMask(mask);
}

void show(const osg::NodePtr &node, const std::string &state)
{
    if (state == "!Enable")
        setMask(node, qxShownMask);
    else if (state == "!Disable")
        setMask(node, 0);
    else if (state == "!Toggle")
        setMask(node, node->getTravMask() == qxShownMask ? 0 : qxShownMask);
}

/// The child of that name, or `choice` when there is none.
int childNamed(const osg::NodePtr &node, const std::string &name, int choice)
{
    for (osg::UInt32 i = 0; i < node->getNChildren(); ++i) {
        if (name == qxNodeName(node->getChild(i)))
            return int(i);
    }
    return choice;
}

/// The choice after `state`. None and all (-1 and -2) count as standing before the first child, but
/// a single step forward from all ends at the last one.
int chosen(const osg::NodePtr &node, const std::string &state, int choice)
{
    const int count = int(node->getNChildren());
    if (state == "!All")
        return osg::Switch::ALL;
    if (state == "!None")
        return osg::Switch::NONE;
    if (state == "!Next")
        return choice < -1 || choice >= count - 1 ? std::max(count - 1, 0) : choice + 1;
    if (state == "!Next (Loop)")
        return choice < -1 || choice >= count - 1 ? 0 : choice + 1;
    if (state == "!Previous")
        return std::min(std::max(choice, 1), count) - 1;
    if (state == "!Previous (Loop)")
        return (choice < 1 || choice > count ? count : choice) - 1;
    return childNamed(node, state, choice);
}

void activateOverlays(qxMessage &message)
{
    const std::string *state = message.get<std::string>("variantState");
    const std::string *name = message.get<std::string>("name");
    if (state && name)
        qxOverlayService::activate(*name, *state);
}

} // namespace

qxOverlayService::qxOverlayService()
{
    qxController::addCB("activateOverlays", &activateOverlays);
}

qxOverlayService::~qxOverlayService()
{
    qxController::subCB("activateOverlays", &activateOverlays);
}

void qxOverlayService::activate(const std::string &name, const std::string &state)
{
    std::set<osg::SwitchPtr> stepped;
    for (const qxNodePtr &node : qxOverlays::findOverlays(name.c_str())) {
        show(node, state);
        const osg::SwitchPtr core = osg::SwitchPtr::dcast(node->getCore());
        if (core == osg::NullFC || !stepped.insert(core).second)
            continue;
        const osg::CPEditor edit(core, osg::Switch::ChoiceFieldMask);
        core->setChoice(chosen(node, state, core->getChoice()));
    }
}
