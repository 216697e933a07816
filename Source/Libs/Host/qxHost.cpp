#include "qxHost.h"

#include "Animation/qxAnimationPlayer.h"
#include "Cameras/qxMainCameraService.h"
#include "Cameras/qxMainView.h"
#include "Cameras/qxRunningClips.h"
#include "Core/qxRenderRequests.h"
#include "Materials/qxMaterialNameService.h"
#include "Pictures/qxScenePicture.h"
#include "Scene/qxClipping.h"
#include "Scene/qxOverlayService.h"
#include "Scene/qxScene.h"
#include "Scene/qxSceneTransformService.h"
#include "Script/qxScriptSession.h"
#include "qxAnimManager.h"
#include "qxController.h"
#include "qxMessage.h"
#include "qxScenegraph.h"
#include "qxUberCameraPool.h"

#include <OpenSG/OSGBaseFunctions.h>
#include <OpenSG/OSGChangeList.h>
#include <OpenSG/OSGThread.h>

namespace {

/// Once in a process: the scene graph cannot be started again after it ended.
void startSceneGraph()
{
    static const bool started = [] {
        osg::ChangeList::setReadWriteDefault();
        return osg::osgInit(0, nullptr);
    }();
    if (started)
        osg::Thread::getCurrentChangeList()->setReadOnly(false);
}

/// A long session must not fill the memory with edits that every reader has seen: the picture that
/// was just asked for shows them.
void forgetManyEdits()
{
    const long many = 100000;
    osg::ChangeList *const edits = osg::Thread::getCurrentChangeList();
    if (edits->endChanged() - edits->beginChanged() > many)
        edits->clearAll();
}

} // namespace

/// What lives as long as the host, from the scene upwards.
struct qxHost::Services {
    Services()
    {
        qxKernelServiceFactory::the()->registerService<qxCameraService>(&camera);
        qxKernelServiceFactory::the()->registerService<qxTransformService>(&transform);
        renderListener = qxRenderRequests::addListener([](bool) { forgetManyEdits(); });
    }
    ~Services()
    {
        qxScenegraph::clearFindCache();
        qxRenderRequests::removeListener(renderListener);
        qxKernelServiceFactory::the()->unregisterService<qxTransformService>();
        qxKernelServiceFactory::the()->unregisterService<qxCameraService>();
    }

    qxScene scene;
    qxMainCameraService camera;
    qxSceneTransformService transform;
    qxOverlayService overlays;
    qxMaterialNameService materialNames;
    qxRunningClips clips;
    int renderListener = 0;
};

qxHost::qxHost()
{
    startSceneGraph();
    m_services = std::make_unique<Services>();
    osg::Thread::getCurrentChangeList()->clearAll();
}

qxHost::~qxHost()
{
    clearScene();
    qxScriptSession::end();
    m_services.reset();
    osg::Thread::getCurrentChangeList()->clearAll();
}

void qxHost::clearScene()
{
    qxMessage message;
    qxController::call("clearAllVariants", message, 1);
    qxScenePicture::forget();
    qxScenegraph::clearFindCache();
    m_services->scene.clear();
    qxUberCameraPool::the()->clear();
    qxAnimManager::the()->setClips({});
    qxAnimationPlayer::the().setClips({});
    qxRunningClips::clear();
    qxMainView::the() = qxMainView();
    qxClipping::the() = qxClipping();
}
