#include "Internal/Capture/qxPreview.h"

#include "Internal/Registry/qxDeferredDeletion.h"
#include "qxVariantSet.h"

#include "qxCameraService.h"
#include "qxImageRenderWidget.h"
#include "qxImageWriter.h"
#include "qxOSGWidget.h"
#include "qxRaytracingManager.h"
#include "qxText.h"

#include <OpenSG/OSGImage.h>

#include <QBuffer>
#include <QImage>

namespace {

constexpr int Width = 264;
constexpr int Height = 256;
constexpr int BestQuality = -1;

/// Puts the quality of ray tracing back at the end of a scope.
class qxQualityScope {
public:
    qxQualityScope()
        : m_utils(qxRaytracingManager::getRaytracingUtils()), m_quality(m_utils->getImageQuality())
    {
    }
    qxQualityScope(const qxQualityScope &) = delete;
    ~qxQualityScope() { m_utils->setImageQuality(m_quality); }

    void useBest() { m_utils->setImageQuality(BestQuality); }

private:
    qxRaytracingUtils *const m_utils;
    const int m_quality;
};

/// Has a fast export prepared for one scope.
class qxFastExport {
public:
    explicit qxFastExport(qxImageWriter &writer) : m_writer(writer)
    {
        m_writer.exportImageFastInit(Width, Height, 0);
    }
    qxFastExport(const qxFastExport &) = delete;
    ~qxFastExport() { m_writer.exportImageFastTerminate(); }

private:
    qxImageWriter &m_writer;
};

QImage frameOf(qxOSGWidget &view)
{
    const osg::ImageRefPtr frame(osg::Image::create());
    int width = 0;
    int height = 0;
    view.captureImage(frame.get(), width, height);
    QImage image;
    qxImageRenderWidget::convertToQImage(image, frame.get());
    return image;
}

} // namespace

QByteArray qxPreview::fromScene(bool showProgress, bool fullQuality)
{
    const bool isRaytracing = qxOSGWidget::getRaytracing();
    qxQualityScope quality;
    if (isRaytracing && fullQuality)
        quality.useBest();
    qxImageWriter writer;
    if (!showProgress)
        writer.setNoProgress(true);
    writer.setNoOverwriteMessage(true);
    const qxFastExport prepared(writer);
    return QByteArray::fromStdString(writer.exportImageFast());
}

QByteArray qxPreview::fromFrameBuffer()
{
    qxOSGWidget *const view = qxOSGWidget::getMGLW(-1);
    if (!view)
        return QByteArray();
    const QImage frame = frameOf(*view);
    if (frame.isNull())
        return QByteArray();
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    fromFrame(frame).save(&buffer, "PNG");
    return buffer.data();
}

void qxPreview::render(qxVariantSet &set, bool fromView, bool showProgress, bool fullQuality)
{
    const qxDeferredDeletion deferred; // a progress display lets events through
    set.setPreview(fromView ? fromFrameBuffer() : fromScene(showProgress, fullQuality));
    const auto camera = qxKernelServiceFactory::the()->getService<qxCameraService>();
    if (camera)
        camera->setHomeViewpoint(camera->findViewpoint(qxText::toUtf8(set.defaultViewpoint)), 1);
}

QImage qxPreview::fromFrame(const QImage &frame)
{
    const int side = qMin(frame.width(), frame.height());
    const int left = (frame.width() - side) / 2;
    const int top = (frame.height() - side) / 2;
    // An image gives the pixels that a pixmap would, and needs no application object.
    return frame.copy(left, top, side, side)
        .scaled(Width, Height, Qt::IgnoreAspectRatio, Qt::FastTransformation);
}
