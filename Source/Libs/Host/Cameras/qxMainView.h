#pragma once

#include "qxUberCameraPool.h"

#include <string>

/// The camera of the main view. The camera service moves it; a window may move it, too, and then
/// sets `viewpoint` to -1.
struct qxMainView {
    /// The one of the process.
    static qxMainView &the();

    qxUberCamera camera; ///< a nameless camera in the origin at start
    int viewpoint = -1; ///< id of the viewpoint that the camera was put to, -1 for none
    std::string viewpointName() const; ///< empty for none
    qxUberCamera home; ///< where "home" leads
    bool hasHome = false; ///< whether `home` counts
};
