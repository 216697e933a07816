#include "Internal/Capture/qxPreview.h"
#include "Internal/Registry/qxSetUse.h"
#include "qxVariantSet.h"
#include "qxVariants.h"

#include "qxCameraService.h"
#include "qxText.h"

QByteArray qxVariants::createPreviewImage(bool showProgress, bool fullRaytracingQuality)
{
    return qxPreview::fromScene(showProgress, fullRaytracingQuality);
}

QByteArray qxVariants::getPreviewImageFromFrameBuffer(qxVariantSet *)
{
    return qxPreview::fromFrameBuffer();
}

void qxVariants::renderVariantSetPreview(qxVariantSet *set, bool fromFrameBuffer, bool showProgress,
                                         bool fullRaytracingQuality)
{
    if (!set)
        return;
    const qxSetUse use(*set); // A progress display lets events through.
    set->setPreview(fromFrameBuffer ? getPreviewImageFromFrameBuffer(set)
                                    : createPreviewImage(showProgress, fullRaytracingQuality));
    const auto camera = qxKernelServiceFactory::the()->getService<qxCameraService>();
    if (camera)
        camera->setHomeViewpoint(camera->findViewpoint(qxText::toUtf8(set->defaultViewpoint)), 1);
}
