#pragma once

#include <OpenSG/OSGImageFields.h>

/// A view of the scene, and settings of all views.
class qxOSGWidget {
public:
    qxOSGWidget(const qxOSGWidget &) = delete;
    virtual ~qxOSGWidget();

    /// The view of that number, counted from 0; -1 is the default one. Null when there is none.
    static qxOSGWidget *getMGLW(int number);

    /// Copies the view's picture into `image`, bottom row first, and returns its size in pixels. If
    /// the view shows nothing, the size is 0 by 0, and `image` is not changed.
    virtual void captureImage(osg::ImagePtr image, int &width, int &height) = 0;

    ///@{
    /// Whether pictures are made by ray tracing.
    static bool getRaytracing();
    static void setRaytracing(bool on);
    ///@}

    /// Stops the refinement of a still picture, which then stays as it is until a new one is
    /// requested.
    static void cancelAntialiasing();

protected:
    qxOSGWidget() = default;
};
