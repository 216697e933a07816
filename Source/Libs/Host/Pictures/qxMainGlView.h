#pragma once

#include "Pictures/qxPictureJob.h"
#include "qxOSGWidget.h"

#include <OpenSG/OSGImage.h>

#include <QTimer>

#include <functional>
#include <memory>
#include <vector>

/// The main view, with or without a window: a picture of the scene that follows its changes.
///
/// Asked for a new picture (qxRenderRequests), it shows a quick one at once. When nothing was asked
/// for a while it refines the picture step by step, in the background, as the settings of ray
/// tracing say. There is one main view at a time, the one made last.
class qxMainGlView : public qxOSGWidget {
public:
    /// A view of that size in pixels.
    qxMainGlView(int width, int height);
    ~qxMainGlView() override;

    /// The main view, or null.
    static qxMainGlView *the();

    void captureImage(osg::ImagePtr image, int &width, int &height) override;
    /// Shows a copy of this picture, whatever its size, until a new one is asked for.
    void show(const osg::ImagePtr &picture);
    /// What it shows now; without pixels before the first picture.
    osg::ImagePtr picture() const { return m_picture.get(); }
    /// What that picture shows; a picture of others shows the scene.
    qxPicture::Content content() const { return m_content; }
    /// Pictures have that size in pixels from now on.
    void resize(int width, int height);
    /// Quick pictures have fewer pixels where this machine would take longer than a hand that moves
    /// the camera allows. They are the first to be refined.
    void setFluent(bool on) { m_isFluent = on; }
    /// Is called whenever what it shows has changed.
    void setListener(const std::function<void()> &listener) { m_listener = listener; }
    /// Hears how much of the refining is done, from 0 to 1, which ends it.
    typedef std::function<void(float share)> Progress;
    void setProgressListener(const Progress &listener) { m_progress = listener; }

    /// Whether the picture will become finer.
    bool isRefining() const { return m_isStale || m_job || !m_steps.empty(); }
    /// Makes the picture finer by one step at once; the view does so on its own while events are
    /// processed.
    void refine();
    void cancelRefining();
    /// Ends the step that is being made, which begins again once the program is idle.
    void interruptRefining();

private:
    void ask();
    void work();
    void drawQuick(int pixelSize);
    int quickPixelSize() const;
    void begin();
    void end();
    void take(const qxPicture &picture);
    void tell() const;
    qxPictureSettings settings(int pixelSize, int quality) const;

    int m_width;
    int m_height;
    osg::ImageRefPtr m_picture;
    qxPicture::Content m_content = qxPicture::Shown;
    bool m_isFluent = false;
    bool m_isCoarse = false; ///< what is shown has fewer pixels than the view
    float m_pixelTime = 1e-3f; ///< of a quick picture on this machine, in milliseconds
    bool m_isStale = true; ///< the picture is older than the scene
    std::vector<int> m_steps; ///< the qualities still to come, the next one last
    int m_total = 0; ///< work of all steps, in samples
    std::unique_ptr<qxPictureJob> m_job; ///< the step that is being made
    int m_jobQuality = 0;
    QTimer m_timer;
    int m_requests;
    std::function<void()> m_listener;
    Progress m_progress;
};
