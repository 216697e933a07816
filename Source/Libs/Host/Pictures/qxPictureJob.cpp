#include "Pictures/qxPictureJob.h"

#include "Pictures/qxScenePicture.h"
#include "qxLog.h"

#include <chrono>
#include <new>
#include <system_error>

qxPictureJob::qxPictureJob(const qxPictureSettings &settings, qxMovingPicture *moving)
    : m_renderer(qxScenePicture::takeRenderer())
{
    const qxRenderer::Drawing drawing =
        moving ? moving->whole(*m_renderer, settings) : m_renderer->prepared(settings);
    if (!drawing)
        return;
    const auto draw = [this, drawing] {
        return drawing([this](int done, int total) {
            m_share = float(done) / float(total);
            return !m_isCancelled;
        });
    };
    try {
        m_picture = std::async(std::launch::async, draw);
    } catch (const std::system_error &) { // no more threads
        m_picture = std::async(std::launch::deferred, draw);
    }
}

qxPictureJob::~qxPictureJob()
{
    m_isCancelled = true;
    if (m_picture.valid())
        m_picture.wait();
    m_picture = std::future<qxPicture>(); // with what it holds of the renderer
    qxScenePicture::giveBack(std::move(m_renderer));
}

bool qxPictureJob::isDone() const
{
    return !m_picture.valid()
        || m_picture.wait_for(std::chrono::seconds(0)) != std::future_status::timeout;
}

qxPicture qxPictureJob::take()
{
    try {
        return m_picture.valid() ? m_picture.get() : qxPicture();
    } catch (const std::bad_alloc &) {
        qxLog::error("Rendering failed: not enough memory");
        return qxPicture();
    }
}
