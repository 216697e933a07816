#pragma once

#include "qxKernelServiceFactory.h"

#include <string>

/// Moves the camera of the main view.
class qxCameraService : public qxBaseService {
public:
    ~qxCameraService() override;

    /// The id of the viewpoint of that name (UTF-8), -1 when there is none.
    virtual int findViewpoint(const std::string &name) const = 0;
    /// Moves to a viewpoint within `duration` milliseconds (0 jumps). With `home` 1 the view
    /// returns here on "home"; with `redraw` 1 a new picture is asked for. An unknown id is
    /// ignored.
    virtual void moveToViewpoint(int id, int duration, int home, int redraw) = 0;
};
