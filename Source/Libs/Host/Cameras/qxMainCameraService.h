#pragma once

#include "qxCameraService.h"

/// Moves the camera of the main view (qxMainView) to viewpoints of the pool at once: a duration is
/// only an upper limit.
class qxMainCameraService : public qxCameraService {
public:
    int findViewpoint(const std::string &name) const override;
    void moveToViewpoint(int id, int duration, int home, int redraw) override;
    int getActiveCamera() const override;
    int getCopyOf(int camera) const override;
    int getSourceOf(int camera) const override;
    int createViewpoint(const std::string &name, int source) override;
    void setHomeViewpoint(int id, int home) override;
};
