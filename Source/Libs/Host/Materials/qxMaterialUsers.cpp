#include "Materials/qxMaterialUsers.h"

#include "qxNodeWalk.h"

#include <OpenSG/OSGFieldContainerFactory.h>
#include <OpenSG/OSGMaterialDrawable.h>
#include <OpenSG/OSGMaterialGroup.h>

#include <algorithm>

namespace {

/// Whether the core is of a class whose objects have a material, and which; it may be null.
bool readMaterial(const osg::NodeCorePtr &core, osg::MaterialPtr &material)
{
    if (core == osg::NullFC)
        return false;
    const osg::FieldContainerType &type = core->getType();
    if (type.isDerivedFrom(osg::MaterialDrawable::getClassType()))
        material = osg::MaterialDrawablePtr::dcast(core)->getMaterial();
    else if (type.isDerivedFrom(osg::MaterialGroup::getClassType()))
        material = osg::MaterialGroupPtr::dcast(core)->getMaterial();
    else
        return false;
    return true;
}

} // namespace

void qxMaterialUsers::edited(osg::UInt32 id, osg::BitVector mask)
{
    if (m_outdated)
        return;
    const osg::FieldContainerPtr object = osg::FieldContainerFactory::the()->getContainer(id);
    const osg::BitVector structure =
        osg::Node::ParentFieldMask | osg::Node::ChildrenFieldMask | osg::Node::CoreFieldMask;
    if (object == osg::NullFC)
        return;
    if (object->getType().isNode() && (mask & structure))
        m_outdated = true;
    else if (object->getType().isNodeCore())
        coreEdited(osg::NodeCorePtr::dcast(object));
}

void qxMaterialUsers::destroyed(osg::UInt32 id)
{
    if (m_placeOf.count(id) > 0)
        m_outdated = true;
}

void qxMaterialUsers::coreEdited(const osg::NodeCorePtr &core)
{
    osg::MaterialPtr material;
    if (!readMaterial(core, material) || material == osg::NullFC)
        return;
    Places &places = m_users[material.getFieldContainerId()];
    for (const osg::NodePtr &node : core->getParents()) {
        const auto known = m_placeOf.find(node.getFieldContainerId());
        if (known == m_placeOf.end()) // not in the scene
            continue;
        const auto at = std::lower_bound(places.begin(), places.end(), known->second);
        if (at == places.end() || *at != known->second)
            places.insert(at, known->second);
    }
}

void qxMaterialUsers::find(std::vector<qxNodePtr> &nodes, const osg::MaterialPtr &material)
{
    if (material == osg::NullFC)
        return;
    if (m_outdated)
        read();
    const auto users = m_users.find(material.getFieldContainerId());
    if (users == m_users.end())
        return;
    Places &places = users->second;
    const auto left = [&](std::uint32_t place) {
        osg::MaterialPtr now;
        return !readMaterial(m_nodes[place]->getCore(), now) || now != material;
    };
    places.erase(std::remove_if(places.begin(), places.end(), left), places.end());
    for (const std::uint32_t place : places)
        nodes.push_back(m_nodes[place]);
}

void qxMaterialUsers::read()
{
    m_nodes.clear();
    m_placeOf.clear();
    m_users.clear();
    qxWalkScene([this](const osg::NodePtr &node) {
        osg::MaterialPtr material;
        if (!readMaterial(node->getCore(), material))
            return true;
        const std::uint32_t place = std::uint32_t(m_nodes.size());
        m_nodes.push_back(node);
        m_placeOf.emplace(node.getFieldContainerId(), place);
        if (material != osg::NullFC)
            m_users[material.getFieldContainerId()].push_back(place);
        return true;
    });
    m_outdated = false;
}
