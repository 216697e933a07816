#include "qxSceneState.h"

#include "OSGSwitchComponentTransform.h"
#include "OSGUberLight.h"
#include "qxForecast.h"
#include "qxNames.h"
#include "qxNodeUtils.h"
#include "qxOverlays.h"

#include <OpenSG/OSGSwitch.h>
#include <OpenSG/OSGSwitchMaterial.h>

#include <algorithm>
#include <map>

using qxNames::nameOf;

namespace {

/// What of the node there is to choose; visibility for a node that chooses nothing.
qxAspect choiceAspect(const osg::NodePtr &node)
{
    const osg::NodeCorePtr core = node->getCore();
    if (osg::UberLightPtr::dcast(core) != osg::NullFC)
        return qxAspect::Light;
    const bool isChoice = osg::SwitchPtr::dcast(core) != osg::NullFC
        || osg::SwitchComponentTransformPtr::dcast(core) != osg::NullFC;
    return isChoice ? qxAspect::Choice : qxAspect::Visibility;
}

const osg::UInt32 shown = 0xFFFFFFFF;

osg::Int64 choiceOf(const osg::NodePtr &node)
{
    const qxAspect aspect = choiceAspect(node);
    return aspect == qxAspect::Visibility ? 0 : qxStateRules::valueOf(qxSceneObject(node), aspect);
}

QString choiceText(const osg::NodePtr &node, osg::Int64 choice)
{
    if (osg::UberLightPtr::dcast(node->getCore()) != osg::NullFC)
        return choice ? QStringLiteral("on") : QStringLiteral("off");
    if (osg::SwitchPtr::dcast(node->getCore()) == osg::NullFC)
        return qxStateRules::transformName(osg::UInt32(choice));
    if (choice >= 0 && choice < osg::Int64(node->getNChildren()))
        return nameOf(node->getChild(osg::UInt32(choice)));
    return choice == osg::Switch::ALL ? QStringLiteral("all") : QStringLiteral("none");
}

void setMask(const osg::NodePtr &node, osg::UInt32 mask)
{
    const osg::CPEditor edit(node, osg::Node::TravMaskFieldMask);
    node->setTravMask(mask);
}

QString maskText(osg::UInt32 mask)
{
    return mask == 0 ? QStringLiteral("hidden") : QStringLiteral("shown");
}

QString materialText(const osg::SwitchMaterialPtr &material, osg::UInt32 choice)
{
    if (choice >= material->getMaterials().size())
        return QStringLiteral("none");
    return nameOf(material->getMaterials()[choice]);
}

} // namespace

qxSceneState qxSceneState::take()
{
    qxSceneState state;
    for (const osg::NodePtr &root : {qxScenegraph::getRoot(), qxOverlays::getPoolRoot(),
                                     qxScenegraph::environmentGeometrySwitch()}) {
        for (const qxNodePtr &node : qxNodeUtils::getSubTreeNodes(root)) {
            state.m_nodes.push_back({osg::NodeRefPtr(node), node->getTravMask(), choiceOf(node),
                                     qxNodeUtils::getSelectedTransformVariantName(node)});
        }
    }
    std::vector<osg::MaterialPtr> materials;
    qxScenegraph::getMaterialPool()->get(materials);
    for (const osg::MaterialPtr &material : materials) {
        const auto choice = osg::SwitchMaterialPtr::dcast(material);
        if (choice != osg::NullFC)
            state.m_materials.push_back({osg::MaterialRefPtr(material), choice->getChoice(),
                                         choice->getMaterials().size()});
    }
    return state;
}

qxSceneState qxSceneState::after(const qxForecast &forecast) const
{
    qxSceneState state = *this;
    for (NodeState &each : state.m_nodes) {
        const qxSceneObject object(each.node.get());
        const bool isShown = each.mask == shown;
        const bool isToBeShown = forecast.value(object, qxAspect::Visibility) != 0;
        if (isShown != isToBeShown)
            each.mask = isToBeShown ? shown : 0;
        const qxAspect aspect = choiceAspect(object.node);
        if (aspect != qxAspect::Visibility)
            each.choice = forecast.value(object, aspect);
        each.pose =
            qxStateRules::nameAt(object, qxAspect::Pose, forecast.value(object, qxAspect::Pose));
    }
    for (MaterialState &each : state.m_materials)
        each.choice =
            osg::UInt32(forecast.value(qxSceneObject(each.material.get()), qxAspect::Choice));
    return state;
}

QList<qxSceneChange> qxSceneState::nodeChanges(const NodeState &before, const NodeState &after)
{
    QList<qxSceneChange> changes;
    const auto add = [&](const QString &from, const QString &to) {
        if (from != to)
            changes +=
                qxSceneChange{qxText::fromUtf8(qxNames::pathOf(after.node.get())), 0, from, to};
    };
    if (before.mask != after.mask)
        add(maskText(before.mask), maskText(after.mask));
    if (before.choice != after.choice)
        add(choiceText(after.node.get(), before.choice),
            choiceText(after.node.get(), after.choice));
    add(qxText::fromUtf8(before.pose), qxText::fromUtf8(after.pose));
    return changes;
}

QList<qxSceneChange> qxSceneState::changesTo(const qxSceneState &later) const
{
    std::map<osg::NodePtr, const NodeState *> earlier;
    for (const NodeState &state : m_nodes)
        earlier[state.node.get()] = &state;
    std::map<osg::MaterialPtr, osg::UInt32> choices;
    for (const MaterialState &state : m_materials)
        choices[state.material.get()] = state.choice;

    QList<qxSceneChange> changes;
    std::map<osg::NodeCorePtr, int> firstOfClones;
    for (const NodeState &after : later.m_nodes) {
        const auto before = earlier.find(after.node.get());
        if (before == earlier.end())
            continue;
        if (before->second->choice != after.choice) {
            const auto inserted = firstOfClones.insert({after.node->getCore(), changes.size()});
            if (!inserted.second) {
                ++changes[inserted.first->second].others;
                continue;
            }
        }
        changes += nodeChanges(*before->second, after);
    }
    for (const MaterialState &after : later.m_materials) {
        const auto before = choices.find(after.material.get());
        if (before == choices.end() || before->second == after.choice)
            continue;
        const auto material = osg::SwitchMaterialPtr::dcast(after.material.get());
        changes += qxSceneChange{nameOf(material), 0, materialText(material, before->second),
                                 materialText(material, after.choice)};
    }
    return changes;
}

bool qxSceneState::isLike(const qxSceneState &other) const
{
    const auto isSameNode = [](const NodeState &one, const NodeState &two) {
        return one.node.get() == two.node.get() && one.mask == two.mask && one.choice == two.choice
            && one.pose == two.pose;
    };
    const auto isSameMaterial = [](const MaterialState &one, const MaterialState &two) {
        return one.material.get() == two.material.get() && one.choice == two.choice;
    };
    return std::equal(m_nodes.begin(), m_nodes.end(), other.m_nodes.begin(), other.m_nodes.end(),
                      isSameNode)
        && std::equal(m_materials.begin(), m_materials.end(), other.m_materials.begin(),
                      other.m_materials.end(), isSameMaterial);
}

void qxSceneState::restore() const
{
    for (const NodeState &state : m_nodes) {
        if (state.node->getTravMask() != state.mask)
            setMask(state.node.get(), state.mask);
        if (choiceOf(state.node.get()) != state.choice)
            qxStateRules::setValue(qxSceneObject(state.node.get()), choiceAspect(state.node.get()),
                                   state.choice);
    }
    for (const MaterialState &state : m_materials) {
        const auto material = osg::SwitchMaterialPtr::dcast(state.material.get());
        const std::size_t count = material->getMaterials().size();
        const bool isGone = count < state.count && state.choice >= count;
        if (isGone || material->getChoice() == state.choice)
            continue;
        const osg::CPEditor edit(material, osg::SwitchMaterial::ChoiceFieldMask);
        material->setChoice(state.choice);
    }
}
