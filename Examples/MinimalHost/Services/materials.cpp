// The materials of the scene: those of the pool and what they contain.
#include "Services/services.h"
#include "qxMaterials.h"
#include "qxNodeUtils.h"
#include "scene.h"

#include <OpenSG/OSGMaterialGroup.h>
#include <OpenSG/OSGMultiPassMaterial.h>
#include <OpenSG/OSGSimpleAttachments.h>
#include <OpenSG/OSGSwitchMaterial.h>

#include <algorithm>
#include <map>

namespace {

typedef std::vector<osg::MaterialPtr> Materials;

/// The flag of material groups that OpenSG does not have, by their ids.
std::map<osg::UInt32, bool> isIgnored;

void append(const osg::MaterialPtr &material, Materials &found)
{
    if (material == osg::NullFC || std::count(found.begin(), found.end(), material))
        return;
    found.push_back(material);
    const auto appendContents = [&found](const auto &container) {
        for (std::size_t i = 0; container != osg::NullFC && i < container->getMaterials().size();
             ++i)
            append(container->getMaterials(osg::UInt32(i)), found);
    };
    appendContents(osg::SwitchMaterialPtr::dcast(material));
    appendContents(osg::MultiPassMaterialPtr::dcast(material));
}

/// Nothing is kept between two calls, so each sees every change.
Materials all()
{
    Materials tops, found;
    Scene::the().materials->get(tops);
    for (const osg::MaterialPtr &material : tops)
        append(material, found);
    return found;
}

} // namespace

std::string uniqueMaterialName(const std::string &name)
{
    return numbered(name, [](auto &each) { return qxMaterials::findMaterial(each.c_str()); });
}

std::string qxMaterials::getName(const osg::MaterialPtr &material)
{
    const char *name = osg::getName(material);
    return name ? name : "";
}

void qxMaterials::setName(const osg::MaterialPtr &material, const char *name, bool exact)
{
    osg::setName(material, exact ? name : uniqueMaterialName(name));
}

osg::MaterialPtr qxMaterials::findMaterial(const char *name)
{
    const Materials found = findMaterials(name);
    return found.empty() ? osg::MaterialPtr() : found.front();
}

std::vector<osg::MaterialPtr> qxMaterials::findMaterials(const char *name)
{
    Materials found;
    for (const osg::MaterialPtr &material : all()) {
        if (name && *name && getName(material) == name)
            found.push_back(material);
    }
    return found;
}

// No material here is read-only or of an environment.
bool qxMaterials::isEditable(const osg::MaterialPtr &material) { return material != osg::NullFC; }
bool qxMaterials::isEnvironmentMaterial(const osg::MaterialPtr &) { return false; }

void qxMaterials::getNodesWithMaterial(std::vector<qxNodePtr> &nodes,
                                       const osg::MaterialPtr &material)
{
    for (const qxNodePtr &node : qxNodeUtils::getSceneNodes()) {
        if (material != osg::NullFC && qxNodeUtils::getMaterial(node) == material)
            nodes.push_back(node);
    }
}

bool qxMaterials::getIgnoreMaterialGroup(const osg::NodePtr &node)
{
    const auto group = coreOf<osg::MaterialGroup>(node);
    return group != osg::NullFC && isIgnored[group.getFieldContainerId()];
}

bool qxMaterials::setIgnoreMaterialGroup(const osg::NodePtr &node, bool ignore)
{
    const auto group = coreOf<osg::MaterialGroup>(node);
    if (group != osg::NullFC)
        isIgnored[group.getFieldContainerId()] = ignore;
    return group != osg::NullFC;
}
