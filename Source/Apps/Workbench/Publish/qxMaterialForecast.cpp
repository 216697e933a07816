#include "qxMaterialForecast.h"

#include "qxNodeWalk.h"
#include "qxScenegraph.h"

#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGSwitchMaterial.h>

namespace {

/// What the material shows when switch materials choose what `choiceOf` says.
template <class ChoiceOf>
osg::MaterialPtr shownIn(osg::MaterialPtr material, const ChoiceOf &choiceOf)
{
    for (auto choices = osg::SwitchMaterialPtr::dcast(material); choices != osg::NullFC;
         choices = osg::SwitchMaterialPtr::dcast(material)) {
        const auto &contents = choices->getMaterials();
        const auto choice = std::size_t(choiceOf(choices));
        material = choice < contents.size() ? contents[osg::UInt32(choice)] : osg::MaterialPtr();
    }
    return material;
}

} // namespace

qxMaterialForecast::qxMaterialForecast()
{
    std::unordered_map<osg::UInt32, std::size_t> places;
    std::unordered_set<osg::UInt32> seen; // cores may be shared
    qxWalkNodes(qxScenegraph::getRoot(), [&](const osg::NodePtr &node) {
        const osg::GeometryPtr geometry = osg::GeometryPtr::dcast(node->getCore());
        if (geometry == osg::NullFC || !seen.insert(geometry.getFieldContainerId()).second)
            return;
        const auto material = osg::SwitchMaterialPtr::dcast(geometry->getMaterial());
        if (material == osg::NullFC)
            return;
        const auto [place, isNew] =
            places.try_emplace(material.getFieldContainerId(), m_worn.size());
        if (isNew)
            m_worn.push_back({material, {}});
        m_worn[place->second].geometries.push_back(geometry.getFieldContainerId());
    });
}

std::unordered_map<osg::UInt32, osg::MaterialPtr>
qxMaterialForecast::changes(const qxForecast &forecast) const
{
    std::unordered_map<osg::UInt32, osg::MaterialPtr> changes;
    for (const Worn &worn : m_worn) {
        const osg::MaterialPtr now =
            shownIn(worn.material, [](const osg::SwitchMaterialPtr &m) { return m->getChoice(); });
        const osg::MaterialPtr then =
            shownIn(worn.material, [&forecast](const osg::SwitchMaterialPtr &m) {
                return forecast.value(qxSceneObject(osg::MaterialPtr(m)), qxAspect::Choice);
            });
        if (now == then)
            continue;
        for (const osg::UInt32 geometry : worn.geometries)
            changes[geometry] = then;
    }
    return changes;
}

std::unordered_set<osg::UInt32>
qxMaterialForecast::wornBy(const std::unordered_set<osg::UInt32> &geometries) const
{
    std::unordered_set<osg::UInt32> ids;
    std::vector<osg::SwitchMaterialPtr> open;
    for (const Worn &worn : m_worn) {
        for (const osg::UInt32 geometry : worn.geometries) {
            if (geometries.count(geometry) > 0) {
                open.push_back(worn.material);
                break;
            }
        }
    }
    while (!open.empty()) {
        const osg::SwitchMaterialPtr material = open.back();
        open.pop_back();
        if (!ids.insert(material.getFieldContainerId()).second)
            continue;
        for (const osg::MaterialPtr &each : material->getMaterials()) {
            const auto inner = osg::SwitchMaterialPtr::dcast(each);
            if (inner != osg::NullFC)
                open.push_back(inner);
        }
    }
    return ids;
}
