#pragma once

#include <OpenSG/OSGImageFields.h>

class QImage;

/// Pictures of the scene graph as those of the user interface.
class qxImageRenderWidget {
public:
    /// Makes `target` show `image`, top row first. It becomes a null image when `image` has no
    /// pixels or anything but one byte per channel.
    static void convertToQImage(QImage &target, osg::ImagePtr image);
};
