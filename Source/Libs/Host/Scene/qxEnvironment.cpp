#include "Materials/qxSurface.h"
#include "Scene/qxScene.h"
#include "qxMaterials.h"
#include "qxNodeUtils.h"
#include "qxScenegraph.h"

#include <OpenSG/OSGMultiPassMaterial.h>
#include <OpenSG/OSGSwitchMaterial.h>

#include <algorithm>

osg::NodePtr qxScenegraph::environmentGeometrySwitch()
{
    const qxScene *scene = qxScene::current();
    return scene ? scene->environment() : osg::NodePtr();
}

bool qxNodeUtils::isEnvironmentGeometrySwitch(const osg::NodePtr &node)
{
    return node != osg::NullFC && node == qxScenegraph::environmentGeometrySwitch();
}

bool qxMaterials::isEnvironmentMaterial(const osg::MaterialPtr &material)
{
    const auto choices = osg::SwitchMaterialPtr::dcast(material);
    const auto passes = osg::MultiPassMaterialPtr::dcast(material);
    if (choices == osg::NullFC && passes == osg::NullFC)
        return qxSurface::of(material).environment;
    const osg::MFMaterialPtr &contents =
        choices != osg::NullFC ? *choices->getMFMaterials() : *passes->getMFMaterials();
    return std::any_of(contents.begin(), contents.end(), &qxMaterials::isEnvironmentMaterial);
}
