#include "Pictures/qxMainGlView.h"

#include "Core/qxRenderRequests.h"
#include "Pictures/qxScenePicture.h"

#include <QCoreApplication>

namespace {

const int _stillTime = 150; ///< milliseconds without a request before refining begins
const int _pollTime = 15;
const int _bestWork = 12; ///< samples that the best quality takes on average

qxMainGlView *&currentView()
{
    static qxMainGlView *view = nullptr;
    return view;
}

/// Its picture may be in the making just now.
void interruptCurrent()
{
    if (currentView())
        currentView()->interruptRefining();
}

/// From the last step to the first: each takes four times the samples of the one before. Fewer than
/// four would leave more noise than a quick picture has faults.
std::vector<int> stepsTo(int quality)
{
    if (quality == qxPictureSettings::Quick)
        return {};
    const int most = quality == qxPictureSettings::Best ? 4 : quality - 1;
    std::vector<int> steps;
    for (int samples = 4; samples <= most; samples *= 4)
        steps.insert(steps.begin(), samples);
    steps.insert(steps.begin(), quality);
    return steps;
}

/// In samples.
int workOf(int quality)
{
    return quality == qxPictureSettings::Best ? _bestWork : std::max(quality, 1);
}

} // namespace

qxMainGlView::qxMainGlView(int width, int height)
    : m_width(width), m_height(height), m_picture(osg::Image::create())
{
    currentView() = this;
    qxScenePicture::setBorrower(interruptCurrent);
    QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { work(); });
    m_requests = qxRenderRequests::addListener([this](bool everything) {
        if (m_isBeginningOrder)
            return; // Afterwards the scene is as it was.
        if (everything) {
            m_job.reset(); // It may use what is to be forgotten.
            m_orderJob.reset();
            m_moving.forget();
        }
        ask();
    });
    ask();
}

qxMainGlView::~qxMainGlView()
{
    qxRenderRequests::removeListener(m_requests);
    if (currentView() == this)
        currentView() = nullptr;
}

qxMainGlView *qxMainGlView::the()
{
    return currentView();
}

qxOSGWidget *qxOSGWidget::getMGLW(int number)
{
    return number == -1 || number == 0 ? qxMainGlView::the() : nullptr;
}

void qxOSGWidget::cancelAntialiasing()
{
    if (qxMainGlView *view = qxMainGlView::the())
        view->cancelRefining();
}

void qxMainGlView::ask()
{
    m_isStale = true;
    m_steps = stepsTo(qxScenePicture::quality());
    if (QCoreApplication::instance())
        m_timer.start(0);
}

void qxMainGlView::resize(int width, int height)
{
    if (width == m_width && height == m_height)
        return;
    m_width = width;
    m_height = height;
    ask();
}

void qxMainGlView::captureImage(osg::ImagePtr image, int &width, int &height)
{
    if (m_isStale || m_isCoarse)
        drawQuick();
    width = m_picture->isValid() ? m_picture->getWidth() : 0;
    height = m_picture->isValid() ? m_picture->getHeight() : 0;
    if (!m_picture->isValid())
        return;
    const osg::CPEditor edit(image);
    image->set(m_picture.get());
}

void qxMainGlView::show(const osg::ImagePtr &picture)
{
    cancelRefining();
    m_isStale = false;
    m_isCoarse = false;
    m_content = qxPicture::Shown;
    {
        const osg::CPEditor edit(m_picture.get());
        m_picture->set(picture);
    }
    if (m_listener)
        m_listener();
}

void qxMainGlView::cancelRefining()
{
    m_job.reset();
    m_steps.clear();
    tell();
}

void qxMainGlView::interruptRefining()
{
    if (m_orderJob) {
        m_orderJob.reset();
        m_timer.start(_stillTime);
    }
    if (!m_job)
        return;
    m_job.reset();
    m_steps.push_back(m_jobQuality);
    m_timer.start(_stillTime);
    tell();
}

void qxMainGlView::setOrder(const Order &order)
{
    cancelOrder();
    m_order = order;
    m_timer.start(_pollTime);
}

void qxMainGlView::cancelOrder()
{
    m_orderJob.reset();
    m_order = Order();
}

void qxMainGlView::beginOrder()
{
    interruptRefining(); // It has the renderer.
    m_isBeginningOrder = true;
    const auto begin = m_order.begin; // It may cancel itself.
    std::unique_ptr<qxPictureJob> job = begin();
    m_isBeginningOrder = false;
    if (m_order.begin)
        m_orderJob = std::move(job);
    m_timer.start(m_orderJob ? _pollTime : _stillTime);
}

/// Its end may place the next one.
void qxMainGlView::endOrder()
{
    const qxPicture picture = m_orderJob->take();
    const auto end = m_order.end;
    cancelOrder();
    m_timer.start(_pollTime);
    end(picture);
}

/// The next thing to do while the program is idle.
void qxMainGlView::work()
{
    if (qxScenePicture::isRendering()) {
        m_timer.start(_stillTime); // That picture has the processors, and the renderer.
    } else if (m_isStale) {
        m_isFluent ? drawMoving() : drawQuick();
        m_timer.start(_stillTime);
    } else if (m_orderJob) {
        if (m_orderJob->isDone())
            endOrder();
    } else if (m_order.begin && !isCoarseYet()) {
        beginOrder();
    } else if (m_job && m_job->isDone()) {
        end();
    } else if (!m_job && !m_steps.empty()) {
        begin();
        m_timer.start(_pollTime);
    } else if (!m_job) {
        m_timer.stop();
    }
    tell();
}

/// A picture that was made while something moved is worse than quick, and does not stay so.
bool qxMainGlView::isCoarseYet() const
{
    return m_isCoarse && (m_job || !m_steps.empty());
}

void qxMainGlView::refine()
{
    if (m_isStale)
        return drawQuick();
    if (!m_job && !m_steps.empty())
        begin();
    if (m_job)
        end();
}

void qxMainGlView::drawMoving()
{
    m_job.reset();
    m_isStale = false;
    const qxPicture picture = qxScenePicture::render(settings(qxPictureSettings::Quick), m_moving);
    m_isCoarse = m_moving.share() < 1.0f;
    planSteps();
    take(picture);
}

void qxMainGlView::drawQuick()
{
    m_job.reset();
    m_isStale = false;
    m_isCoarse = false;
    planSteps();
    take(qxScenePicture::render(settings(qxPictureSettings::Quick)));
}

/// A coarse picture becomes the quick one first.
void qxMainGlView::planSteps()
{
    if (!m_steps.empty() && m_steps.back() == qxPictureSettings::Quick)
        m_steps.pop_back();
    if (m_isCoarse)
        m_steps.push_back(qxPictureSettings::Quick);
    m_total = 0;
    for (const int step : m_steps)
        m_total += workOf(step);
}

void qxMainGlView::begin()
{
    m_jobQuality = m_steps.back();
    m_steps.pop_back();
    const bool isQuick = m_jobQuality == qxPictureSettings::Quick;
    m_job = std::make_unique<qxPictureJob>(settings(m_jobQuality), isQuick ? &m_moving : nullptr);
}

void qxMainGlView::end()
{
    const qxPicture picture = m_job->take();
    m_job.reset();
    m_isCoarse = m_isCoarse && picture.isEmpty();
    take(picture);
}

qxPictureSettings qxMainGlView::settings(int quality) const
{
    qxPictureSettings result;
    result.width = m_width;
    result.height = m_height;
    result.quality = quality;
    return result;
}

void qxMainGlView::take(const qxPicture &picture)
{
    if (picture.isEmpty())
        return;
    // A coarse picture may have missed what is to be seen.
    if (!m_isCoarse || picture.content == qxPicture::Shown)
        m_content = picture.content;
    {
        const osg::CPEditor edit(m_picture.get());
        m_picture->set(osg::Image::OSG_RGBA_PF, picture.width, picture.height, 1, 1, 1, 0,
                       picture.rgba.data());
        m_picture->reformat(osg::Image::OSG_RGB_PF);
    }
    if (m_listener)
        m_listener();
}

void qxMainGlView::tell() const
{
    if (!m_progress)
        return;
    float left = m_job ? float(workOf(m_jobQuality)) * (1.0f - m_job->share()) : 0.0f;
    for (const int step : m_steps)
        left += float(workOf(step));
    m_progress(left > 0.0f && m_total > 0 ? 1.0f - left / float(m_total) : 1.0f);
}
