#pragma once

#include "qxOSGWidget.h"

#include <OpenSG/OSGImage.h>

#include <QTimer>

#include <functional>
#include <vector>

/// The main view, with or without a window: a picture of the scene that follows its changes.
///
/// Asked for a new picture (qxRenderRequests), it shows a quick one first. With ray tracing it then
/// refines the picture step by step while the program is idle. There is one main view at a time,
/// the one made last.
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
    /// Pictures have that size in pixels from now on.
    void resize(int width, int height);
    /// Is called whenever what it shows has changed.
    void setListener(const std::function<void()> &listener) { m_listener = listener; }

    /// Whether the picture will become finer.
    bool isRefining() const { return m_isStale || !m_steps.empty(); }
    /// Makes the picture finer by one step; the view does so on its own while events are processed.
    /// It processes events itself, and gives up the step when one of them asks for a new picture.
    void refine();
    void cancelRefining();

private:
    void ask();
    /// With `mayWait` events are processed meanwhile, and one of them may make it give up.
    void draw(int quality, bool mayWait);

    int m_width;
    int m_height;
    osg::ImageRefPtr m_picture;
    bool m_isStale = true; ///< the picture is older than the scene
    std::vector<int> m_steps; ///< the qualities still to come, the next one last
    bool m_isDrawing = false;
    bool m_isCancelled = false;
    QTimer m_idle;
    int m_requests;
    std::function<void()> m_listener;
};
