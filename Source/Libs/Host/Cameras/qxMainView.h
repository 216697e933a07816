#pragma once

#include "qxUberCameraPool.h"

/// From where the main view shows the scene. It changes when the camera service moves it; a window
/// may move it as well and then sets `viewpoint` to -1.
struct qxMainView {
    static qxMainView &the();

    qxUberCamera camera; ///< a nameless camera in the origin at start
    int viewpoint = -1; ///< id of the viewpoint that the camera was put to, -1 for none
    qxUberCamera home; ///< where "home" leads
    bool hasHome = false;
};
