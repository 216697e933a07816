#pragma once

#include <embree3/rtcore.h>

#include <memory>

/// Releases what the ray tracing library hands out.
struct qxEmbreeRelease {
    void operator()(RTCDevice device) const { rtcReleaseDevice(device); }
    void operator()(RTCScene scene) const { rtcReleaseScene(scene); }
    void operator()(RTCGeometry geometry) const { rtcReleaseGeometry(geometry); }
};

/// Owners of one reference each.
typedef std::unique_ptr<RTCDeviceTy, qxEmbreeRelease> qxEmbreeDevice;
typedef std::unique_ptr<RTCSceneTy, qxEmbreeRelease> qxEmbreeScene;
typedef std::unique_ptr<RTCGeometryTy, qxEmbreeRelease> qxEmbreeGeometry;
