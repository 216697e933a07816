#pragma once

#include "Render/qxViewSettings.h"

/// Settings of all pictures as long as it lives; then they are as before.
class qxPictureScope {
public:
    /// The quality of qxPictureSettings; with `isTransparent` there is nothing behind the scene.
    explicit qxPictureScope(int quality, bool isTransparent = false);
    qxPictureScope(const qxPictureScope &) = delete;
    ~qxPictureScope();

private:
    bool m_rayTracing;
    int m_quality;
    qxViewSettings::Background m_background;
};
