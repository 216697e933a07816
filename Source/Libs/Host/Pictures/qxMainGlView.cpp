#include "Pictures/qxMainGlView.h"

#include "Core/qxRenderRequests.h"
#include "Pictures/qxScenePicture.h"

#include <QCoreApplication>
#include <QPointer>

namespace {

qxMainGlView *&current()
{
    static qxMainGlView *view = nullptr;
    return view;
}

/// From the last step to the first: each takes four times the samples of the one before.
std::vector<int> stepsTo(int quality)
{
    if (quality == qxPictureSettings::Quick)
        return {};
    const int most = quality == qxPictureSettings::Best ? 16 : quality - 1;
    std::vector<int> steps;
    for (int samples = 1; samples <= most; samples *= 4)
        steps.insert(steps.begin(), samples);
    steps.insert(steps.begin(), quality);
    return steps;
}

} // namespace

qxMainGlView::qxMainGlView(int width, int height)
    : m_width(width), m_height(height), m_picture(osg::Image::create())
{
    current() = this;
    m_idle.setInterval(0);
    QObject::connect(&m_idle, &QTimer::timeout, &m_idle, [this] { refine(); });
    m_requests = qxRenderRequests::addListener([this](bool) { ask(); });
    ask();
}

qxMainGlView::~qxMainGlView()
{
    qxRenderRequests::removeListener(m_requests);
    if (current() == this)
        current() = nullptr;
}

qxMainGlView *qxMainGlView::the()
{
    return current();
}

void qxMainGlView::ask()
{
    m_isStale = true;
    m_steps = stepsTo(qxScenePicture::quality());
    if (QCoreApplication::instance())
        m_idle.start();
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
    if (m_isStale)
        draw(qxPictureSettings::Quick, false);
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
    {
        const osg::CPEditor edit(m_picture.get());
        m_picture->set(picture);
    }
    if (m_listener)
        m_listener();
}

void qxMainGlView::refine()
{
    if (m_isDrawing)
        return;
    const QPointer<QTimer> alive(&m_idle);
    if (m_isStale) {
        draw(qxPictureSettings::Quick, false);
    } else if (!m_steps.empty()) {
        const int quality = m_steps.back();
        m_steps.pop_back();
        draw(quality, true);
    }
    if (alive && !isRefining())
        m_idle.stop();
}

void qxMainGlView::cancelRefining()
{
    m_steps.clear();
    m_isCancelled = true;
}

void qxMainGlView::draw(int quality, bool mayWait)
{
    m_isStale = false;
    m_isCancelled = false;
    qxPictureSettings settings;
    settings.width = m_width;
    settings.height = m_height;
    settings.quality = quality;
    const QPointer<QTimer> alive(&m_idle);
    const auto goOn = [this, &alive](int, int) {
        QCoreApplication::processEvents();
        return alive && !m_isStale && !m_isCancelled;
    };
    m_isDrawing = true;
    const qxPicture picture =
        qxScenePicture::render(settings, mayWait ? goOn : qxRenderer::Progress());
    if (!alive)
        return;
    m_isDrawing = false;
    if (picture.isEmpty())
        return;
    {
        const osg::CPEditor edit(m_picture.get());
        m_picture->set(osg::Image::OSG_RGBA_PF, picture.width, picture.height, 1, 1, 1, 0,
                       picture.rgba.data());
        m_picture->reformat(osg::Image::OSG_RGB_PF);
    }
    if (m_listener)
        m_listener();
}
