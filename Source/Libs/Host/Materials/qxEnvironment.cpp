#include "Materials/qxSurface.h"
#include "Scene/qxScene.h"
#include "qxMaterials.h"
#include "qxNodeUtils.h"
#include "qxScenegraph.h"

#include <OpenSG/OSGMultiPassMaterial.h>
#include <OpenSG/OSGSwitchMaterial.h>

#include <algorithm>
#include <unordered_set>

osg::NodePtr qxScenegraph::environmentGeometrySwitch()
{
    const qxScene *scene = qxScene::current();
    return scene ? scene->environment() : osg::NodePtr();
}

bool qxNodeUtils::isEnvironmentGeometrySwitch(const osg::NodePtr &node)
{
    return node != osg::NullFC && node == qxScenegraph::environmentGeometrySwitch();
}

namespace {

/// `visited` ends the walk where materials hold each other.
bool isEnvironment(const osg::MaterialPtr &material, std::unordered_set<osg::UInt32> &visited)
{
    const auto choices = osg::SwitchMaterialPtr::dcast(material);
    const auto passes = osg::MultiPassMaterialPtr::dcast(material);
    if (choices == osg::NullFC && passes == osg::NullFC)
        return qxSurface::of(material).environment;
    if (!visited.insert(material.getFieldContainerId()).second)
        return false;
    const osg::MFMaterialPtr &contents =
        choices != osg::NullFC ? *choices->getMFMaterials() : *passes->getMFMaterials();
    return std::any_of(contents.begin(), contents.end(), [&visited](const osg::MaterialPtr &each) {
        return isEnvironment(each, visited);
    });
}

} // namespace

bool qxMaterials::isEnvironmentMaterial(const osg::MaterialPtr &material)
{
    std::unordered_set<osg::UInt32> visited;
    return isEnvironment(material, visited);
}
