#include "qxPictureScope.h"

#include "Render/qxPicture.h"
#include "qxOSGWidget.h"
#include "qxRaytracingManager.h"

qxPictureScope::qxPictureScope(int quality, bool isTransparent)
    : m_rayTracing(qxOSGWidget::getRaytracing()),
      m_quality(qxRaytracingManager::getRaytracingUtils()->getImageQuality()),
      m_background(qxViewSettings::the().background)
{
    qxOSGWidget::setRaytracing(quality != qxPictureSettings::Quick);
    if (quality != qxPictureSettings::Quick)
        qxRaytracingManager::getRaytracingUtils()->setImageQuality(quality);
    if (isTransparent)
        qxViewSettings::the().background = qxViewSettings::None;
}

qxPictureScope::~qxPictureScope()
{
    qxOSGWidget::setRaytracing(m_rayTracing);
    qxRaytracingManager::getRaytracingUtils()->setImageQuality(m_quality);
    qxViewSettings::the().background = m_background;
}
