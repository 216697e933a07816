#include "qxImageRenderWidget.h"

#include <OpenSG/OSGImage.h>

#include <QImage>

#include <algorithm>

namespace {

QImage topRowFirst(const osg::ImagePtr &image, QImage::Format format)
{
    const int rowBytes = image->getWidth() * image->getBpp();
    QImage turned(image->getWidth(), image->getHeight(), format);
    for (int y = 0; y < turned.height(); ++y) {
        const osg::UInt8 *row = image->getData() + std::size_t(y) * std::size_t(rowBytes);
        std::copy(row, row + rowBytes, turned.scanLine(turned.height() - 1 - y));
    }
    return turned;
}

} // namespace

void qxImageRenderWidget::convertToQImage(QImage &target, osg::ImagePtr image)
{
    target = QImage();
    if (image == osg::NullFC || !image->isValid()
        || image->getDataType() != osg::Image::OSG_UINT8_IMAGEDATA)
        return;
    if (image->getPixelFormat() == osg::Image::OSG_RGB_PF) {
        target = topRowFirst(image, QImage::Format_RGB888);
        return;
    }
    const osg::ImageRefPtr rgba(osg::Image::create());
    if (image->reformat(osg::Image::OSG_RGBA_PF, rgba.get()))
        target = topRowFirst(rgba.get(), QImage::Format_RGBA8888);
}
