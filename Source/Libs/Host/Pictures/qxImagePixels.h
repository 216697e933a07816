#pragma once

#include <OpenSG/OSGImage.h>

#include <QImage>

/// The pixels that the image holds: red, green, blue and alpha, the rows in the image's order.
/// A null one when it holds none. In place of osg::Image::reformat(), which converts only some
/// formats.
QImage qxImagePixels(const osg::ImagePtr &image);
