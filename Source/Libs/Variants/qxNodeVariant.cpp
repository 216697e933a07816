#include "qxNodeVariant.h"

#include "Internal/Options/qxOptionAppender.h"
#include "Internal/Options/qxOptionRebuild.h"
#include "Internal/Options/qxSwitchOptions.h"
#include "Internal/Options/qxSwitchStepping.h"
#include "Internal/Registry/qxNotify.h"
#include "Internal/Registry/qxOperation.h"
#include "Internal/Scene/qxNodeVisibility.h"
#include "Internal/Scene/qxNodesChange.h"
#include "Internal/Scene/qxSceneEdits.h"
#include "qxVariantKind.h"
#include "qxVariantLists.h"

#include "OSGSwitchComponentTransform.h"
#include "qxLog.h"
#include "qxMessage.h"
#include "qxNodeUtils.h"
#include "qxScenegraph.h"
#include "qxText.h"

#include <OpenSG/OSGSwitch.h>

#include <cstdio>
#include <set>

namespace {

constexpr char TransformName[] = "Transform %u";

std::vector<qxNodePtr> findNodes(const QString &name)
{
    return qxScenegraph::findNodes(qxText::toUtf8(name).c_str());
}

/// Null when the scene has no node of that name.
qxNodePtr firstNode(const QString &name)
{
    const std::vector<qxNodePtr> nodes = findNodes(name);
    return nodes.empty() ? qxNodePtr() : nodes.front();
}

void enable(const osg::NodePtr &node)
{
    if (!qxVariantLists::_recurse)
        return;
    qxNodeVisibility::pushEnable(node);
    qxNodeVisibility::enableAncestors(node);
}

void announce(const osg::NodePtr &node, qxMessage &message)
{
    qxNotify::variantsNodesChanged(message, qxNodesChange::of(node));
}

/// The nodes of one name while one state is applied to them.
class Selection {
public:
    Selection(const qxNodeVariant &variant, const QString &state);
    void apply(const osg::NodePtr &node);

private:
    void applyVisibility(const osg::NodePtr &node, qxMessage &message);
    void applyTransformSwitch(const osg::SwitchComponentTransformPtr &core);
    void applySwitch(const osg::NodePtr &node, const osg::SwitchPtr &core, qxMessage &message);
    /// The switch's choice that the state asks for; none when no child has that name.
    std::optional<osg::Int32> choiceFor(const osg::NodePtr &node, const osg::SwitchPtr &core) const;
    /// False when the core was met before: clones share one core.
    bool isFirstVisit(const osg::NodeCorePtr &core);

    const QString m_state;
    const std::string m_stateUtf8;
    const std::string m_variantName;
    const std::optional<qxStep> m_step;
    std::set<osg::NodeCorePtr> m_handled;
};

Selection::Selection(const qxNodeVariant &variant, const QString &state)
    : m_state(state), m_stateUtf8(qxText::toUtf8(state)),
      m_variantName(qxText::toUtf8(variant.name)), m_step(qxSwitchStepping::stepOf(state))
{
}

void Selection::apply(const osg::NodePtr &node)
{
    qxMessage message = qxNotify::changeBy(m_variantName);
    applyVisibility(node, message);

    const osg::NodeCorePtr core = node->getCore();
    const auto transformSwitch = osg::SwitchComponentTransformPtr::dcast(core);
    if (transformSwitch != osg::NullFC)
        return applyTransformSwitch(transformSwitch);
    const auto switchCore = osg::SwitchPtr::dcast(core);
    if (switchCore != osg::NullFC)
        applySwitch(node, switchCore, message);
}

bool Selection::isFirstVisit(const osg::NodeCorePtr &core)
{
    const bool shared = core->getParents().size() > 1;
    return !shared || m_handled.insert(core).second;
}

void Selection::applyVisibility(const osg::NodePtr &node, qxMessage &message)
{
    const bool toggle = m_state == variantToggle;
    if (!toggle && m_state != variantEnable && m_state != variantDisable)
        return;

    const bool show =
        toggle ? node->getTravMask() != qxSceneEdits::Visible : m_state == variantEnable;
    if (show) {
        qxSceneEdits::setTraversalMask(node, qxSceneEdits::Visible);
        enable(node);
    } else {
        qxSceneEdits::setTraversalMask(node, qxSceneEdits::Hidden);
        qxNotify::setHidden(message);
    }
    announce(node, message);
}

void Selection::applyTransformSwitch(const osg::SwitchComponentTransformPtr &core)
{
    if (!isFirstVisit(core))
        return;
    osg::UInt32 choice = 0;
    if (m_step)
        choice =
            qxSwitchStepping::stepTransformSwitch(*m_step, core->getChoice(), core->getCount());
    else
        std::sscanf(m_stateUtf8.c_str(), TransformName, &choice);
    qxSceneEdits::setChoice(core, choice);
}

void Selection::applySwitch(const osg::NodePtr &node, const osg::SwitchPtr &core,
                            qxMessage &message)
{
    const bool first = isFirstVisit(core);
    const std::optional<osg::Int32> choice = choiceFor(node, core);
    if (!choice) {
        qxLog::error("Nodevariant %s does not have a child called %s\n", m_variantName.c_str(),
                     m_stateUtf8.c_str());
        return;
    }
    if (first)
        qxSceneEdits::setChoice(core, *choice);
    if (m_state != variantNone)
        enable(node);
    announce(node, message);
}

std::optional<osg::Int32> Selection::choiceFor(const osg::NodePtr &node,
                                               const osg::SwitchPtr &core) const
{
    const osg::UInt32 count = node->getNChildren();
    if (m_step)
        return qxSwitchStepping::stepSwitch(*m_step, core->getChoice(), count);
    if (m_state == variantAll)
        return osg::Switch::ALL;
    if (m_state == variantNone)
        return osg::Switch::NONE;
    for (osg::UInt32 i = 0; i < count; ++i) {
        if (qxNodeUtils::getName(node->getChild(i)) == m_stateUtf8)
            return osg::Int32(i);
    }
    return std::nullopt;
}

void addTransformStates(qxVariant &variant, const osg::SwitchComponentTransformPtr &core)
{
    qxOptionAppender options(variant);
    for (osg::UInt32 i = 0; i < core->getCount(); ++i)
        options.add(false, QString::asprintf(TransformName, i), QString());
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
    nodeName = qxText::fromUtf8(qxNodeUtils::getName(node));
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
    const qxOperation operation;
    Selection selection(*this, state);
    for (const qxNodePtr &node : findNodes(nodeName))
        selection.apply(node);
    qxNotify::variantSelected(notifications, this);
}

QString qxNodeVariant::onCurrent() const
{
    const qxNodePtr node = firstNode(nodeName);
    return node == osg::NullFC ? QString() : qxSwitchOptions::currentState(node);
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
    for (const qxNodePtr &node : findNodes(nodeName))
        pushEnable(node);
}

void qxNodeVariant::hideGeometry()
{
    for (const qxNodePtr &node : findNodes(nodeName))
        pushDisable(node);
}

void qxNodeVariant::recurseEnable(osg::NodePtr node)
{
    enable(node);
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
        announce(node, message);
}

QString qxNodeVariant::getNodePath(const osg::NodePtr &node)
{
    return qxText::fromUtf8(qxNodeVisibility::nodePath(node));
}
