#include "qxLights.h"

#include "OSGUberLight.h"
#include "qxNodeWalk.h"

namespace {

/// Looks at the type first, because a cast that fails is slow and most nodes are no lights.
osg::UberLightPtr lightOf(const osg::NodePtr &node)
{
    const osg::NodeCorePtr core = node == osg::NullFC ? osg::NodeCorePtr() : node->getCore();
    const bool isLight =
        core != osg::NullFC && core->getType().isDerivedFrom(osg::UberLight::getClassType());
    return isLight ? osg::UberLightPtr::dcast(core) : osg::UberLightPtr();
}

} // namespace

bool qxLights::isLight(const osg::NodePtr &node)
{
    return lightOf(node) != osg::NullFC;
}

bool qxLights::getOn(const osg::NodePtr &node)
{
    const osg::UberLightPtr light = lightOf(node);
    return light != osg::NullFC && light->getOn();
}

void qxLights::setOn(const osg::NodePtr &node, bool on)
{
    const osg::UberLightPtr light = lightOf(node);
    if (light == osg::NullFC)
        return;
    const osg::CPEditor edit(light, osg::UberLight::OnFieldMask);
    light->setOn(on);
}

std::vector<qxNodePtr> qxLights::getLights()
{
    std::vector<qxNodePtr> lights;
    qxWalkScene([&lights](const osg::NodePtr &node) {
        if (isLight(node))
            lights.push_back(node);
        return true;
    });
    return lights;
}
