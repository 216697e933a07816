#include "qxSceneUndo.h"

#include "qxVariants.h"

#include "qxMaterialParts.h"
#include "qxMessage.h"
#include "qxModuleBase.h"
#include "qxNodeUtils.h"
#include "qxScenegraph.h"
#include "qxViewpointEdits.h"

#include <OpenSG/OSGSimpleAttachments.h>
#include <OpenSG/OSGSwitchMaterial.h>

#include <algorithm>
#include <set>

namespace {

typedef std::vector<osg::MaterialRefPtr> Materials;

std::optional<std::string> nameOf(const osg::AttachmentContainerPtr &object)
{
    const osg::Char8 *const name = osg::getName(object);
    return name ? std::optional<std::string>(name) : std::nullopt;
}

void setName(const osg::AttachmentContainerPtr &object, const std::optional<std::string> &name)
{
    if (name)
        return osg::setName(object, *name);
    const osg::CPEditor edit(object);
    osg::setName(object, nullptr);
}

/// What a material is made of.
Materials partsOf(const osg::MaterialPtr &material)
{
    const std::vector<osg::MaterialPtr> parts = qxMaterialParts::of(material);
    return Materials(parts.begin(), parts.end());
}

Materials poolNow()
{
    std::vector<osg::MaterialPtr> materials;
    qxScenegraph::getMaterialPool()->get(materials);
    return Materials(materials.begin(), materials.end());
}

void setParts(const osg::SwitchMaterialPtr &choices, const Materials &parts)
{
    const Materials held = partsOf(choices); // beyond the moment in which nothing else holds them
    const osg::CPEditor edit(choices, osg::SwitchMaterialBase::MaterialsFieldMask);
    for (const osg::MaterialPtr part : held)
        choices->subMaterial(part);
    for (const osg::MaterialPtr part : parts)
        choices->addMaterial(part);
}

void setChoice(const osg::SwitchMaterialPtr &choices, osg::UInt32 choice)
{
    const osg::CPEditor edit(choices, osg::SwitchMaterialBase::ChoiceFieldMask);
    choices->setChoice(choice);
}

/// Takes what is in `known` out of `all`.
void subtract(Materials &all, const Materials &known)
{
    std::set<osg::UInt32> ids;
    for (const osg::MaterialRefPtr &each : known)
        ids.insert(each.get().getFieldContainerId());
    Materials rest;
    for (const osg::MaterialRefPtr &each : all) {
        if (!ids.count(each.get().getFieldContainerId()))
            rest.push_back(each);
    }
    all.swap(rest);
}

} // namespace

qxSceneUndo::qxSceneUndo() : m_pool(poolNow()), m_viewpoints(qxViewpointEdits::all())
{
    std::set<osg::UInt32> known;
    Materials open = m_pool;
    for (const qxNodePtr &node : qxNodeUtils::getSceneNodes()) {
        m_nodes.push_back({osg::NodeRefPtr(node), stateOf(node), {}});
        if (m_nodes.back().before.material != osg::NullFC)
            open.push_back(m_nodes.back().before.material);
    }
    while (!open.empty()) {
        const osg::MaterialRefPtr material = open.back();
        open.pop_back();
        if (!known.insert(material.get().getFieldContainerId()).second)
            continue;
        m_materials.push_back({material, stateOf(material.get()), {}});
        const Materials parts = partsOf(material);
        open.insert(open.end(), parts.begin(), parts.end());
    }
}

void qxSceneUndo::finish()
{
    std::vector<Node> nodes;
    for (Node &each : m_nodes) {
        each.after = stateOf(each.object.get());
        if (each.before.name != each.after.name || each.before.material != each.after.material)
            nodes.push_back(each);
    }
    m_nodes.swap(nodes);
    std::vector<Material> materials;
    for (Material &each : m_materials) {
        each.after = stateOf(each.object.get());
        if (each.before.name != each.after.name || each.before.parts != each.after.parts
            || each.before.choice != each.after.choice)
            materials.push_back(each);
    }
    m_materials.swap(materials);
    Materials pool = poolNow();
    subtract(pool, m_pool);
    m_pool.swap(pool);
    std::vector<qxUberCamera> viewpoints = qxViewpointEdits::all();
    viewpoints.erase(viewpoints.begin(),
                     viewpoints.begin()
                         + std::ptrdiff_t(std::min(viewpoints.size(), m_viewpoints.size())));
    m_viewpoints.swap(viewpoints);
}

void qxSceneUndo::apply(bool forward) const
{
    if (forward)
        applyPool(forward); // Nodes take what the pool holds.
    const bool haveNodes = applyNodes(forward);
    const bool haveMaterials = applyMaterials(forward);
    if (!forward)
        applyPool(forward);
    applyViewpoints(forward);
    if (!haveNodes && !haveMaterials && m_pool.empty())
        return;
    qxMessage message(qxModuleBase::MaterialsChanged);
    qxModuleBase::sendMessage(message, false);
    qxScenegraph::update(0);
}

bool qxSceneUndo::applyNodes(bool forward) const
{
    for (const Node &each : m_nodes) {
        const NodeState &from = forward ? each.before : each.after;
        const NodeState &to = forward ? each.after : each.before;
        const NodeState now = stateOf(each.object.get());
        if (from.name != to.name && now.name == from.name)
            setName(each.object.get(), to.name);
        if (from.material != to.material && now.material == from.material)
            qxVariants::changeMaterial(each.object, to.material);
    }
    return !m_nodes.empty();
}

bool qxSceneUndo::applyMaterials(bool forward) const
{
    for (const Material &each : m_materials) {
        const MaterialState &from = forward ? each.before : each.after;
        const MaterialState &to = forward ? each.after : each.before;
        const MaterialState now = stateOf(each.object.get());
        if (from.name != to.name && now.name == from.name)
            setName(each.object.get(), to.name);
        const auto choices = osg::SwitchMaterialPtr::dcast(each.object.get());
        if (choices == osg::NullFC)
            continue;
        if (from.parts != to.parts && now.parts == from.parts)
            setParts(choices, to.parts);
        // A choice of somebody else stays as long as it is one.
        if (now.choice == from.choice || now.choice >= choices->getMaterials().size())
            setChoice(choices, to.choice);
    }
    return !m_materials.empty();
}

void qxSceneUndo::applyPool(bool forward) const
{
    const osg::MaterialPoolPtr pool = qxScenegraph::getMaterialPool();
    const osg::CPEditor edit(pool);
    for (const osg::MaterialPtr material : m_pool) {
        const bool isThere = pool->find(material) >= 0;
        if (forward && !isThere)
            pool->add(material);
        else if (!forward && isThere)
            pool->sub(material);
    }
}

void qxSceneUndo::applyViewpoints(bool forward) const
{
    if (m_viewpoints.empty())
        return;
    std::vector<qxUberCamera> all = qxViewpointEdits::all();
    for (const qxUberCamera &each : m_viewpoints) {
        const auto found = std::find_if(all.begin(), all.end(), [&](const qxUberCamera &other) {
            return other.name == each.name;
        });
        if (forward && found == all.end())
            all.push_back(each);
        else if (!forward && found != all.end())
            all.erase(found);
    }
    qxViewpointEdits::setAll(all);
}

qxSceneUndo::NodeState qxSceneUndo::stateOf(const osg::NodePtr &node)
{
    return {nameOf(node), osg::MaterialRefPtr(qxNodeUtils::getMaterial(node))};
}

qxSceneUndo::MaterialState qxSceneUndo::stateOf(const osg::MaterialPtr &material)
{
    const auto choices = osg::SwitchMaterialPtr::dcast(material);
    return {nameOf(material), partsOf(material), choices == osg::NullFC ? 0 : choices->getChoice()};
}
