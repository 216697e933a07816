#pragma once

#include <OpenSG/OSGImageFields.h>

/// A view of the scene, and what is common to all views.
class qxOSGWidget {
public:
    qxOSGWidget(const qxOSGWidget &) = delete;
    virtual ~qxOSGWidget();

    /// The view of that number, counted from 0; -1 is the default one. Null when there is none.
    static qxOSGWidget *getMGLW(int number);

    /// Copies what the view shows into `image`, bottom row first, and tells how many pixels that
    /// are. When the view shows nothing, that is 0 by 0, and `image` stays as it is.
    virtual void captureImage(osg::ImagePtr image, int &width, int &height) = 0;

    /// Whether pictures are made by ray tracing.
    static bool getRaytracing();
    static void setRaytracing(bool on);

    /// Ends the refining of a still picture when one is in progress. The picture stays as fine as
    /// it is until a new one is asked for.
    static void cancelAntialiasing();

protected:
    qxOSGWidget() = default;
};
