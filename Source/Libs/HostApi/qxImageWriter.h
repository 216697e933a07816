#pragma once

#include <string>

/// Renders pictures of the scene as the main view's camera sees it.
class qxImageWriter {
public:
    /// Whether the progress of a rendering is hidden.
    void setNoProgress(bool off) { m_isSilent = off; }
    /// Whether files are overwritten without a question. The fast export writes no file and never
    /// asks.
    void setNoOverwriteMessage(bool) {}

    /// Prepares fast exports of that size in pixels by the camera of view `view`, 0 for the main
    /// one.
    void exportImageFastInit(int width, int height, int view);
    /// Renders a picture with the settings of ray tracing and returns it as PNG, the same bytes for
    /// the same scene. Empty, with an error line in the log, without preparation and for an invalid
    /// size or view; empty when the rendering was cancelled.
    std::string exportImageFast();
    /// Releases what exportImageFastInit prepared.
    void exportImageFastTerminate();

private:
    bool m_isSilent = false;
    int m_width = 0;
    int m_height = 0;
    int m_view = -1;
};
