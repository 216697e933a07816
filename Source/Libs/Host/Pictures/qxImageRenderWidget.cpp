#include "qxImageRenderWidget.h"

#include "Pictures/qxImagePixels.h"

#include <algorithm>

namespace {

QImage topRowFirst(const osg::ImagePtr &image)
{
    const int rowBytes = image->getWidth() * image->getBpp();
    QImage turned(image->getWidth(), image->getHeight(), QImage::Format_RGB888);
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
    target = image->getPixelFormat() == osg::Image::OSG_RGB_PF ? topRowFirst(image)
                                                               : qxImagePixels(image).mirrored();
}
