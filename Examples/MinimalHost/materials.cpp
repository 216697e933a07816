// The materials of the scene: those of the pool and what they contain.
#include "qxMaterials.h"
#include "qxNodeUtils.h"
#include "scene.h"
#include "services.h"

#include <OpenSG/OSGMaterialGroup.h>
#include <OpenSG/OSGMultiPassMaterial.h>
#include <OpenSG/OSGSimpleAttachments.h>
#include <OpenSG/OSGSwitchMaterial.h>

#include <algorithm>
#include <set>

namespace {

typedef std::vector<osg::MaterialPtr> Materials;

/// The flag of material groups that OpenSG does not have: the ids of those that have it.
std::set<osg::UInt32> ignoredGroups;

template <class Container>
void append(const Container &container, Materials &materials)
{
    if (container != osg::NullFC)
        materials.insert(materials.end(), container->getMaterials().begin(),
                         container->getMaterials().end());
}

void appendWithContents(const osg::MaterialPtr &material, Materials &found)
{
    if (material == osg::NullFC || std::count(found.begin(), found.end(), material))
        return;
    found.push_back(material);
    Materials contents;
    append(osg::SwitchMaterialPtr::dcast(material), contents);
    append(osg::MultiPassMaterialPtr::dcast(material), contents);
    for (const osg::MaterialPtr &each : contents)
        appendWithContents(each, found);
}

/// Nothing is kept between two calls, so each sees every change.
Materials all()
{
    Materials tops, found;
    Scene::the().materials->get(tops);
    for (const osg::MaterialPtr &material : tops)
        appendWithContents(material, found);
    return found;
}

osg::MaterialGroupPtr groupOf(const osg::NodePtr &node)
{
    return node == osg::NullFC ? osg::MaterialGroupPtr()
                               : osg::MaterialGroupPtr::dcast(node->getCore());
}

} // namespace

std::string uniqueMaterialName(const std::string &name)
{
    std::vector<std::string> taken;
    for (const osg::MaterialPtr &each : all())
        taken.push_back(qxMaterials::getName(each));
    return qxNodeUtils::getUniqueName(name, taken);
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
    const auto group = groupOf(node);
    return group != osg::NullFC && ignoredGroups.count(group.getFieldContainerId());
}

bool qxMaterials::setIgnoreMaterialGroup(const osg::NodePtr &node, bool ignore)
{
    const auto group = groupOf(node);
    if (group == osg::NullFC)
        return false;
    ignoredGroups.erase(group.getFieldContainerId());
    if (ignore)
        ignoredGroups.insert(group.getFieldContainerId());
    return true;
}
