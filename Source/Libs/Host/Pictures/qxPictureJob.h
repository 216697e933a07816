#pragma once

#include "Pictures/qxMovingPicture.h"

#include <atomic>
#include <future>

/// A picture of the running host's scene, rendered in the background. It shows the scene as it was
/// at the start.
class qxPictureJob {
public:
    /// Reads the scene, then renders in threads of its own. The scene may change afterwards. With
    /// `moving`, which must outlive the job, the whole picture is made that the next ones follow.
    explicit qxPictureJob(const qxPictureSettings &settings, qxMovingPicture *moving = nullptr);
    qxPictureJob(const qxPictureJob &) = delete;
    /// Waits for the threads, which start no further tiles.
    ~qxPictureJob();

    /// Whether take would not wait.
    bool isDone() const;
    /// How much of the picture is done, from 0 to 1.
    float share() const { return m_share; }
    /// Waits for the picture; empty if it cannot be made, with the reason in the log. Call it once.
    qxPicture take();

private:
    std::unique_ptr<qxRenderer> m_renderer; ///< serves nobody else meanwhile
    std::atomic<float> m_share{0.0f};
    std::atomic<bool> m_isCancelled{false};
    std::future<qxPicture> m_picture; ///< none when there can be no picture
};
