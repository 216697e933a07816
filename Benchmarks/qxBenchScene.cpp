#include "qxBenchScene.h"

#include "qxLightVariant.h"
#include "qxOverlayVariant.h"
#include "qxVariants.h"

#include "OSGOverlayCore.h"
#include "OSGUberLight.h"
#include "qxMessage.h"
#include "qxOverlays.h"
#include "qxScenegraph.h"
#include "qxUberCameraPool.h"

#include <OpenSG/OSGGroup.h>
#include <OpenSG/OSGSimpleAttachments.h>
#include <OpenSG/OSGSwitch.h>

static osg::NodePtr addNode(const osg::NodePtr &parent, const osg::NodeCorePtr &core,
                            const QString &name)
{
    osg::NodePtr node = osg::Node::create();
    osg::beginEditCP(node);
    node->setCore(core);
    osg::setName(node, name.toStdString());
    osg::endEditCP(node);
    osg::beginEditCP(parent, osg::Node::ChildrenFieldMask);
    parent->addChild(node);
    osg::endEditCP(parent, osg::Node::ChildrenFieldMask);
    return node;
}

qxBenchScene::qxBenchScene(int switches, int variants)
{
    const osg::NodePtr root = qxScenegraph::getRoot();
    for (int i = 0; i < switches; ++i) {
        const osg::NodePtr node = addNode(root, osg::Switch::create(), switchName(i));
        for (int child = 0; child < 4; ++child)
            addNode(node, osg::Group::create(), childName(child));
        if (i < variants)
            qxVariants::createNodeVariant(node, false);
    }
}

qxBenchScene::~qxBenchScene()
{
    qxMessage none;
    qxVariants::clearAll(none);
}

void qxBenchScene::addLight(const QString &name)
{
    addNode(qxScenegraph::getRoot(), osg::UberLight::create(), name);
    qxVariants::createLightVariant(name, false)->lightName = name;
}

void qxBenchScene::addOverlay(const QString &name)
{
    addNode(qxOverlays::getPoolRoot(), osg::OverlayCore::create(), name);
    qxVariants::createOverlayVariant(name, false)->overlayName = name;
}

void qxBenchScene::addViewpoint(const QString &name)
{
    qxUberCamera camera;
    camera.name = name.toStdString();
    qxUberCameraPool::the()->add(camera);
}
