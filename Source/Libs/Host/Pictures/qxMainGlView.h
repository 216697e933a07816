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
/// On a request (qxController::updateRender) it shows a quick picture at once, for a camera that
/// moves one that is nearly like it. After a pause it
/// refines the picture step by step in the background, by the settings of ray tracing. There is one
/// main view at a time, the latest one.
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
    /// What that picture shows; Shown for a picture set by show().
    qxPicture::Content content() const { return m_content; }
    /// Pictures have that size in pixels from now on.
    void resize(int width, int height);
    /// Whether the first picture after a request is made in the time that a fluent movement allows
    /// (qxMovingPicture), and the quick picture follows.
    void setFluent(bool on) { m_isFluent = on; }
    /// Is called whenever what it shows has changed. One at a time; an empty one for none.
    void setListener(const std::function<void()> &listener) { m_listener = listener; }
    /// Receives the share of the refinement that is done, from 0 to 1; 1 is the last call.
    typedef std::function<void(float share)> Progress;
    /// One listener at a time; an empty one for none.
    void setProgressListener(const Progress &listener) { m_progress = listener; }

    /// A picture of something else, to be made beside the view's own.
    struct Order {
        /// Shows what is to be seen, reads it and puts the scene back as it was; the view does not
        /// follow that. Called whenever the picture is begun, which may be several times; null for
        /// later.
        std::function<std::unique_ptr<qxPictureJob>()> begin;
        /// Gets the picture; an empty one if it could not be made.
        std::function<void(const qxPicture &picture)> end;
    };
    /// Makes that picture in the background while nothing moves in the view; the view's own
    /// refinement waits for it. One at a time: an order before it is forgotten.
    void setOrder(const Order &order);
    /// Forgets the order; its picture is not finished.
    void cancelOrder();

    /// Whether the picture will become finer.
    bool isRefining() const { return m_isStale || m_job || !m_steps.empty(); }
    /// Refines the picture by one step at once; the view does so itself while events are processed.
    void refine();
    /// Leaves the picture as it is until a new one is requested.
    void cancelRefining();
    /// Cancels the current step, which starts again when the program is idle.
    void interruptRefining();

private:
    void ask();
    void work();
    bool isCoarseYet() const;
    void beginOrder();
    void endOrder();
    void drawMoving();
    void drawQuick();
    void planSteps();
    void begin();
    void end();
    void take(const qxPicture &picture);
    void tell() const;
    qxPictureSettings settings(int quality) const;

    int m_width;
    int m_height;
    osg::ImageRefPtr m_picture;
    qxPicture::Content m_content = qxPicture::Shown;
    bool m_isFluent = false;
    bool m_isCoarse = false; ///< the picture is not yet the quick one
    qxMovingPicture m_moving;
    Order m_order; ///< empty for none
    std::unique_ptr<qxPictureJob> m_orderJob; ///< while it is being made
    bool m_isBeginningOrder = false;
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
