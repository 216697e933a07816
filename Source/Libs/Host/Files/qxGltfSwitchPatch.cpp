#include "Files/qxGltfSwitchPatch.h"

#include "Files/qxGltfState.h"
#include "qxMaterials.h"
#include "qxScenegraph.h"

#include <tuple>
#include <unordered_set>

qxGltfSwitchState qxGltfSwitchState::of(const osg::SwitchMaterialPtr &material)
{
    const osg::MFMaterialPtr &contents = *material->getMFMaterials();
    return {material,
            material.getFieldContainerId(),
            qxMaterials::getName(material),
            {contents.begin(), contents.end()},
            material->getChoice()};
}

bool qxGltfSwitchState::operator==(const qxGltfSwitchState &other) const
{
    const auto values = [](const qxGltfSwitchState &s) {
        return std::tie(s.id, s.name, s.contents, s.choice);
    };
    return values(*this) == values(other);
}

qxGltfSwitchStates qxGltfSwitchesOfScene(const qxGltfState &state)
{
    qxGltfSwitchStates states;
    std::unordered_set<osg::UInt32> known;
    const auto add = [&states, &known](const osg::MaterialPtr &material) {
        if (material == osg::NullFC
            || !material->getType().isDerivedFrom(osg::SwitchMaterial::getClassType()))
            return;
        const osg::SwitchMaterialPtr choices = osg::SwitchMaterialPtr::dcast(material);
        if (!choices->getMFMaterials()->empty()
            && known.insert(choices.getFieldContainerId()).second)
            states.push_back(qxGltfSwitchState::of(choices));
    };
    std::vector<osg::MaterialPtr> pool;
    qxScenegraph::getMaterialPool()->get(pool);
    for (const osg::MaterialPtr &material : pool)
        add(material);
    for (const qxGltfNodeState &node : state.nodes) {
        for (const osg::UInt32 part : node.mesh)
            add(state.geometries.at(part)->getMaterial());
    }
    return states;
}
