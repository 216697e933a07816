#pragma once

#include "qxKernelServiceFactory.h"

#include <string>

/// Moves the camera of the main view and stores it as a viewpoint.
///
/// A host may have none: without it sets move no camera, and captures store no viewpoint.
class qxCameraService : public qxBaseService {
public:
    ~qxCameraService() override;

    /// The id of the viewpoint of that name (UTF-8), -1 when there is none.
    virtual int findViewpoint(const std::string &name) const = 0;
    /// Moves to a viewpoint within `duration` milliseconds (0 jumps). With `home` 1 "home" returns
    /// to it; with `redraw` 1 a new picture is requested. An unknown id is ignored.
    virtual void moveToViewpoint(int id, int duration, int home, int redraw) = 0;

    /// The id of the camera through which the main view looks; 0 when it has none yet. These ids
    /// are the service's own, not those of viewpoints.
    virtual int getActiveCamera() const = 0;
    ///@{
    /// The id of a copy of that camera, or of the camera itself (what it is a copy of), to be
    /// stored with createViewpoint; 0 for an unknown camera. Both may be `camera` where nothing
    /// moves it.
    virtual int getCopyOf(int camera) const = 0;
    virtual int getSourceOf(int camera) const = 0;
    ///@}
    /// Stores the camera with the id `source` as a new viewpoint and returns its id in the pool, -1
    /// for an unknown source. A name that is taken gets a number.
    virtual int createViewpoint(const std::string &name, int source) = 0;
    /// With `home` 1 that viewpoint becomes the target of "home", with 0 there is none. The camera
    /// does not move. An unknown id is ignored.
    virtual void setHomeViewpoint(int id, int home) = 0;
};
