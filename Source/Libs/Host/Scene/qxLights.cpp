#include "qxLights.h"

#include "OSGUberLight.h"
#include "Scene/qxNodeWalk.h"
#include "qxScenegraph.h"

namespace {

osg::UberLightPtr lightOf(const osg::NodePtr &node)
{
    return node == osg::NullFC ? osg::UberLightPtr() : osg::UberLightPtr::dcast(node->getCore());
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
    qxWalkNodes(qxScenegraph::getRoot(), [&lights](const osg::NodePtr &node) {
        if (isLight(node))
            lights.push_back(node);
        return true;
    });
    return lights;
}
