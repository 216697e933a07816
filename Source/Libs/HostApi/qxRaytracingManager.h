#pragma once

/// Settings of ray tracing.
class qxRaytracingUtils {
public:
    /// Samples per pixel, -1 for the best quality. 16 at start.
    int getImageQuality() const { return m_quality; }
    /// A number below -1, and 0, count as 1.
    void setImageQuality(int quality) { m_quality = quality == -1 || quality > 0 ? quality : 1; }

private:
    int m_quality = 16;
};

/// Access to the settings of ray tracing.
class qxRaytracingManager {
public:
    /// Never null.
    static qxRaytracingUtils *getRaytracingUtils();
};
