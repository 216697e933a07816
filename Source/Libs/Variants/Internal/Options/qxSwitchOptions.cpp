#include "Internal/Options/qxSwitchOptions.h"

#include "Internal/Options/qxOptionAppender.h"
#include "Internal/Options/qxOptionRebuild.h"
#include "qxVariant.h"

#include "qxNames.h"
#include "qxStateRules.h"
#include "qxText.h"

#include <OpenSG/OSGSwitch.h>

namespace {

QString childName(const osg::NodePtr &node, osg::UInt32 index)
{
    return qxNames::nameOf(node->getChild(index));
}

void buildSwitch(qxVariant &variant, const osg::NodePtr &node, const osg::SwitchPtr &core)
{
    variant.add(variantAll, QString());
    variant.add(variantNone, QString());
    qxSwitchOptions::addSteps(variant);
    const osg::UInt32 count = node->getNChildren();
    qxOptionAppender options(variant);
    for (osg::UInt32 i = 0; i < count; ++i)
        options.add(false, childName(node, i), QString());

    const osg::Int32 shown = qxSwitchStepping::shownChild(core->getChoice(), count);
    variant.defaultState = shown < 0 ? variantNone : childName(node, osg::UInt32(shown));
}

void rebuildSwitch(qxVariant &variant, qxOptionRebuild &options, const osg::NodePtr &node,
                   const osg::SwitchPtr &core)
{
    options.add(variantAll);
    options.add(variantNone);
    options.addSteps();
    const osg::UInt32 count = node->getNChildren();
    for (osg::UInt32 i = 0; i < count; ++i)
        options.add(childName(node, i));

    const osg::Int32 shown = qxSwitchStepping::shownChild(core->getChoice(), count);
    if (shown < 0) {
        variant.defaultState = variantNone;
        return;
    }
    // The position does not count the four stepping actions, so the first four children stand for
    // one of them: documents in use rely on it. Twins among the children can make the list too
    // short.
    const std::size_t position = std::size_t(shown) + 2;
    variant.defaultState = position < variant.options.size() ? variant.options[position].name
                                                             : childName(node, osg::UInt32(shown));
}

} // namespace

void qxSwitchOptions::addSteps(qxVariant &variant)
{
    for (const QString &name : qxSwitchStepping::actions())
        variant.add(true, name, QString());
}

void qxSwitchOptions::build(qxVariant &variant, const osg::NodePtr &node)
{
    const osg::SwitchPtr core = osg::SwitchPtr::dcast(node->getCore());
    if (core != osg::NullFC)
        return buildSwitch(variant, node, core);

    variant.add(variantEnable, QString());
    variant.add(variantDisable, QString());
    variant.add(true, variantToggle, QString());
    variant.defaultState = visibility(node);
}

void qxSwitchOptions::rebuild(qxVariant &variant, qxOptionRebuild &options,
                              const osg::NodePtr &node)
{
    const osg::SwitchPtr core = osg::SwitchPtr::dcast(node->getCore());
    if (core != osg::NullFC)
        return rebuildSwitch(variant, options, node, core);

    options.add(variantEnable);
    options.add(variantDisable);
    options.addAction(variantToggle);
    variant.defaultState = visibility(node);
}

QString qxSwitchOptions::currentState(const osg::NodePtr &node)
{
    const bool isSwitch = osg::SwitchPtr::dcast(node->getCore()) != osg::NullFC;
    return isSwitch ? qxStateRules::stateOf(qxSceneObject(node), qxAspect::Choice)
                    : visibility(node);
}

QString qxSwitchOptions::visibility(const osg::NodePtr &node)
{
    return qxStateRules::stateOf(qxSceneObject(node), qxAspect::Visibility);
}
