#include "Files/Gltf/Common/qxGltfSwitchMaterialState.h"

#include "Files/Gltf/Common/qxGltfState.h"
#include "qxMaterials.h"
#include "qxScenegraph.h"

#include <tuple>

namespace {

/// Looks at the type first, because a cast that fails is slow.
osg::SwitchMaterialPtr switchOf(const osg::MaterialPtr &material)
{
    const bool isSwitch = material != osg::NullFC
        && material->getType().isDerivedFrom(osg::SwitchMaterial::getClassType());
    return isSwitch ? osg::SwitchMaterialPtr::dcast(material) : osg::SwitchMaterialPtr();
}

} // namespace

osg::MaterialPtr qxGltfShownMaterial(osg::MaterialPtr material)
{
    for (auto choices = switchOf(material); choices != osg::NullFC; choices = switchOf(material)) {
        const bool isChosen = choices->getChoice() < choices->getMFMaterials()->size();
        material = isChosen ? choices->getMaterial(choices->getChoice()) : osg::MaterialPtr();
    }
    return material;
}

qxGltfSwitchMaterialState qxGltfSwitchMaterialState::of(const osg::SwitchMaterialPtr &material)
{
    const osg::MFMaterialPtr &contents = *material->getMFMaterials();
    return {material,
            material.getFieldContainerId(),
            qxMaterials::getName(material),
            {contents.begin(), contents.end()},
            material->getChoice()};
}

bool qxGltfSwitchMaterialState::operator==(const qxGltfSwitchMaterialState &other) const
{
    const auto values = [](const qxGltfSwitchMaterialState &s) {
        return std::tie(s.name, s.contents, s.choice);
    };
    return values(*this) == values(other);
}

void qxGltfSwitchMaterialUse::add(const osg::SwitchMaterialPtr &material)
{
    if (m_known.emplace(material.getFieldContainerId(), int(states.size())).second)
        states.push_back(qxGltfSwitchMaterialState::of(material));
}

void qxGltfSwitchMaterialUse::addGeometry(osg::UInt32 geometry, const osg::MaterialPtr &material)
{
    const osg::SwitchMaterialPtr choices = switchOf(material);
    if (choices == osg::NullFC)
        return;
    add(choices);
    shownBy[geometry] = m_known[choices.getFieldContainerId()];
}

bool qxGltfSwitchMaterialUse::operator==(const qxGltfSwitchMaterialUse &other) const
{
    return states == other.states && shownBy == other.shownBy;
}

qxGltfSwitchMaterialUse qxGltfSwitchMaterialUse::of(const qxGltfState &state,
                                                    const qxGltfOrigin &origin)
{
    qxGltfSwitchMaterialUse use;
    std::vector<osg::MaterialPtr> pool;
    qxScenegraph::getMaterialPool()->get(pool);
    for (const osg::MaterialPtr &material : pool) {
        const osg::SwitchMaterialPtr choices = switchOf(material);
        if (choices != osg::NullFC && !qxMaterials::getName(material).empty())
            use.add(choices);
    }
    for (const qxGltfNodeState &node : state.nodes) {
        for (const osg::UInt32 part : node.mesh)
            use.addGeometry(part, state.geometries.at(part)->getMaterial());
    }
    for (std::size_t i = 0; i < use.states.size(); ++i) { // which grows
        const std::vector<osg::MaterialPtr> contents = use.states[i].contents;
        for (const osg::MaterialPtr &each : contents) {
            const osg::SwitchMaterialPtr choices = switchOf(each);
            if (choices != osg::NullFC)
                use.add(choices);
        }
    }
    for (const osg::MaterialPtr &material : pool) {
        const osg::UInt32 id = material.getFieldContainerId();
        if (switchOf(material) == osg::NullFC || use.m_known.count(id) > 0)
            use.pool.push_back(id);
    }
    for (const auto &part : origin.geometries) {
        const auto known = use.m_known.find(part.second.switchMaterial);
        if (known != use.m_known.end() && state.geometries.count(part.first) == 0)
            use.shownBy[part.first] = known->second;
    }
    return use;
}
