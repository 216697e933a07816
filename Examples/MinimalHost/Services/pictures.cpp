// Pictures for previews: a plan of the scene. No window, no ray tracing.
#include "Services/services.h"
#include "qxImageRenderWidget.h"
#include "qxImageWriter.h"
#include "qxLog.h"
#include "qxNodeUtils.h"
#include "qxOSGWidget.h"
#include "qxRaytracingManager.h"
#include "scene.h"

#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGSimpleMaterial.h>
#include <OpenSG/OSGSwitch.h>
#include <OpenSG/OSGSwitchMaterial.h>

#include <QBuffer>
#include <QImage>
#include <QPainter>

namespace {

QColor colorOf(osg::MaterialPtr material)
{
    if (const auto choices = osg::SwitchMaterialPtr::dcast(material))
        material = choices->getCurrentMaterial();
    const auto simple = osg::SimpleMaterialPtr::dcast(material);
    const osg::Color3f color = simple == osg::NullFC ? osg::Color3f() : simple->getDiffuse();
    return QColor::fromRgbF(double(color[0]), double(color[1]), double(color[2]));
}

/// Paints the outlines of what is shown at and below the node, seen from above.
void paint(QPainter &painter, const osg::NodePtr &node)
{
    if (coreOf<osg::Geometry>(node) != osg::NullFC) {
        osg::Pnt3f low, high, worldLow, worldHigh;
        node->updateVolume();
        node->getVolume().getBounds(low, high);
        node->getParent()->getToWorld().multMatrixPnt(low, worldLow);
        node->getParent()->getToWorld().multMatrixPnt(high, worldHigh);
        const QPointF from{double(worldLow[0]), double(worldLow[1])};
        const QPointF to{double(worldHigh[0]), double(worldHigh[1])};
        painter.fillRect(QRectF(from, to), colorOf(qxNodeUtils::getMaterial(node)));
    }
    const auto choices = coreOf<osg::Switch>(node);
    for (osg::UInt32 i = 0; i < node->getNChildren(); ++i) {
        const bool isChosen = choices == osg::NullFC || choices->getChoice() == osg::Switch::ALL
            || choices->getChoice() == osg::Int32(i);
        if (isChosen && node->getChild(i)->getTravMask())
            paint(painter, node->getChild(i));
    }
}

} // namespace

void qxImageWriter::exportImageFastInit(int width, int height, int view)
{
    m_width = width;
    m_height = height;
    m_view = view;
}

std::string qxImageWriter::exportImageFast()
{
    if (m_width <= 0 || m_height <= 0 || m_view != 0) {
        qxLog::error("There is no picture of %d by %d pixels.", m_width, m_height);
        return std::string();
    }
    QImage image(m_width, m_height, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    const qxUberCamera &camera = Scene::the().camera;
    const double scale = m_height / double(camera.height);
    painter.translate(m_width / 2.0, m_height / 2.0);
    painter.scale(scale, -scale);
    painter.translate(-double(camera.toWorld[3][0]), -double(camera.toWorld[3][1]));
    paint(painter, Scene::the().root);
    QBuffer buffer;
    image.save(&buffer, "PNG");
    return buffer.data().toStdString();
}

void qxImageWriter::exportImageFastTerminate() { exportImageFastInit(0, 0, -1); }

// There is no view, so there is nothing that is copied from one, traced or refined.
qxOSGWidget::~qxOSGWidget() = default; // with it comes the class's type, which sanitizers ask for
qxOSGWidget *qxOSGWidget::getMGLW(int) { return nullptr; }
bool qxOSGWidget::getRaytracing() { return false; }
void qxOSGWidget::cancelAntialiasing() {}
void qxImageRenderWidget::convertToQImage(QImage &target, osg::ImagePtr) { target = QImage(); }

qxRaytracingUtils *qxRaytracingManager::getRaytracingUtils() { return single<qxRaytracingUtils>(); }
