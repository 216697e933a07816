#include "qxNodeVariant.h"

#include "Internal/Options/qxOptionAppender.h"
#include "Internal/Options/qxOptionRebuild.h"
#include "Internal/Options/qxStateWriter.h"
#include "Internal/Options/qxSwitchOptions.h"
#include "Internal/Registry/qxDeferredDeletion.h"
#include "Internal/Registry/qxNotify.h"
#include "Internal/Scene/qxNodeVisibility.h"
#include "Internal/Scene/qxNodesChange.h"
#include "qxVariantKind.h"
#include "qxVariantLists.h"

#include "OSGSwitchComponentTransform.h"
#include "qxLog.h"
#include "qxMessage.h"
#include "qxNames.h"

namespace {

/// Null when the scene has no node of that name.
qxNodePtr firstNode(const QString &name)
{
    const std::vector<qxNodePtr> nodes = qxNames::findNodes(name);
    return nodes.empty() ? qxNodePtr() : nodes.front();
}

void announceNode(const osg::NodePtr &node, qxMessage &message)
{
    qxNotify::variantsNodesChanged(message, qxNodesChange::of(node));
}

/// Puts the nodes of one name into a state and announces them.
class NodeChanges : public qxStateWriter {
public:
    NodeChanges(const qxNodeVariant &variant, const QString &state)
        : m_variantName(qxText::toUtf8(variant.name)), m_request(state)
    {
        m_request.recurses = qxVariantLists::_recurse;
    }
    void apply(const qxSceneObject &object)
    {
        m_message = qxNotify::changeBy(m_variantName);
        qxStateRules::node.decide(object, m_request, *this);
    }
    void take(const qxEffect &effect) override;
    void finish(const qxSceneObject &object) override { announceNode(object.node, m_message); }

private:
    const std::string m_variantName;
    qxStateRequest m_request;
    qxMessage m_message;
};

void NodeChanges::take(const qxEffect &effect)
{
    if (effect.reason == qxReason::NoSuchChild)
        qxLog::error("Nodevariant %s does not have a child called %s\n", m_variantName.c_str(),
                     m_request.name.c_str());
    qxStateWriter::take(effect);
    if (effect.aspect == qxAspect::Visibility && !effect.value)
        qxNotify::setHidden(m_message);
}

void addTransformStates(qxVariant &variant, const osg::SwitchComponentTransformPtr &core)
{
    qxOptionAppender options(variant);
    for (osg::UInt32 i = 0; i < core->getCount(); ++i)
        options.add(false, qxStateRules::transformName(i), QString());
    variant.defaultState = variantNextLoop;
}

} // namespace

const qxVariantNotifications qxNodeVariant::notifications{
    "nodeVariantAdded",    "nodeVariantRemoved", "nodeVariantChanged",
    "nodeVariantSelected", "selectNodeVariants", 1};

qxNodeVariant::qxNodeVariant(osg::NodePtr node)
{
    if (node == osg::NullFC)
        return;
    nodeName = qxNames::nameOf(node);
    name = nodeName;

    const auto core = osg::SwitchComponentTransformPtr::dcast(node->getCore());
    if (core == osg::NullFC) {
        qxSwitchOptions::build(*this, node);
    } else {
        qxSwitchOptions::addSteps(*this);
        addTransformStates(*this, core);
    }
}

void qxNodeVariant::onSelect(const QString &state)
{
    const qxDeferredDeletion deferred;
    NodeChanges changes(*this, state);
    qxStateRules::node.visit(qxText::toUtf8(nodeName),
                             [&](const qxSceneObject &each) { changes.apply(each); });
    qxNotify::variantSelected(notifications, this);
}

QString qxNodeVariant::onCurrent() const
{
    const qxNodePtr node = firstNode(nodeName);
    return node == osg::NullFC ? QString() : qxSwitchOptions::currentState(node);
}

qxShownState qxNodeVariant::shown() const
{
    const qxSceneObject object(firstNode(nodeName));
    if (object.node == osg::NullFC)
        return {};
    qxShownState shown{qxSwitchOptions::currentState(object.node), QString()};
    shown.isHidden = !qxStateRules::valueOf(object, qxAspect::Visibility);
    if (osg::SwitchComponentTransformPtr::dcast(object.node->getCore()) != osg::NullFC)
        shown.place = qxStateRules::stateOf(object, qxAspect::Choice);
    return shown;
}

void qxNodeVariant::updateVariants()
{
    qxOptionRebuild rebuild(*this);
    const qxNodePtr node = firstNode(nodeName);
    if (node == osg::NullFC)
        return;

    const auto core = osg::SwitchComponentTransformPtr::dcast(node->getCore());
    if (core == osg::NullFC) {
        qxSwitchOptions::rebuild(*this, rebuild, node);
    } else {
        rebuild.addSteps();
        addTransformStates(*this, core);
    }
    rebuild.restoreDefault();
}

void qxNodeVariant::showGeometry()
{
    for (const qxNodePtr &node : qxNames::findNodes(nodeName))
        pushEnable(node);
}

void qxNodeVariant::hideGeometry()
{
    for (const qxNodePtr &node : qxNames::findNodes(nodeName))
        pushDisable(node);
}

void qxNodeVariant::recurseEnable(osg::NodePtr node)
{
    qxStateWriter scene;
    if (qxVariantLists::_recurse)
        qxStateRules::recurse(node, scene);
}

void qxNodeVariant::pushEnable(osg::NodePtr node)
{
    qxNodeVisibility::pushEnable(node);
}

void qxNodeVariant::pushDisable(osg::NodePtr node)
{
    qxNodeVisibility::pushDisable(node);
}

void qxNodeVariant::callVariantsNodesChanged(const osg::NodePtr &node, qxMessage &message)
{
    if (node != osg::NullFC)
        announceNode(node, message);
}

QString qxNodeVariant::getNodePath(const osg::NodePtr &node)
{
    return qxText::fromUtf8(qxNodeVisibility::nodePath(node));
}
