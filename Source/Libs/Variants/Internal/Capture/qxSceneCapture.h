#pragma once

#include "Internal/Capture/qxCaptureWalk.h"

/// Captures of the whole scene, and what it takes to show again what was captured. See the
/// operations of qxVariants.
namespace qxSceneCapture {

struct Options {
    bool viewpoint; ///< store the active camera
    bool notify;
    bool plainViewpointName;
};

void createAndCapture(const char *name, const char *groupName);
void fromRoots(qxVariantSet &set, const std::vector<qxNodePtr> &roots, const qxCaptureKinds &kinds,
               const Options &options);
void restoreSwitches();
void activate(const char *name);

} // namespace qxSceneCapture
