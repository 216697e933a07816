#pragma once

#include <OpenSG/OSGImageFields.h>

class QImage;

/// Converts images of the scene graph to images of Qt.
class qxImageRenderWidget {
public:
    /// Makes `target` show `image`, top row first. It becomes a null image when `image` has no
    /// pixels or anything but one byte per channel.
    static void convertToQImage(QImage &target, osg::ImagePtr image);
};
