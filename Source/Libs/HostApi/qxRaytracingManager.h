#pragma once

/// How well ray-traced pictures are made.
class qxRaytracingUtils {
public:
    /// Samples per pixel, -1 for as many as the best picture takes. 16 at start.
    int getImageQuality() const { return m_quality; }
    /// A number below -1, and 0, count as 1.
    void setImageQuality(int quality) { m_quality = quality == -1 || quality > 0 ? quality : 1; }

private:
    int m_quality = 16;
};

/// Where the settings of ray tracing are found.
class qxRaytracingManager {
public:
    /// Never null.
    static qxRaytracingUtils *getRaytracingUtils();
};
