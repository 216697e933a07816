#include "qxPreviewMaker.h"

#include "Core/qxRenderRequests.h"
#include "Render/qxViewSettings.h"
#include "Sets/qxGalleryBar.h"
#include "Sets/qxPreviewAge.h"
#include "Sets/qxVariantSetsDock.h"
#include "qxPanelEvents.h"
#include "qxUberCameraPool.h"

#include <QDataStream>

namespace {

void write(QDataStream &stream, const osg::Color3f &colour)
{
    stream << colour[0] << colour[1] << colour[2];
}

void write(QDataStream &stream, const qxUberCamera &camera)
{
    for (osg::UInt32 i = 0; i < 16; ++i)
        stream << camera.toWorld[i / 4][i % 4];
    stream << QByteArray::fromStdString(camera.name) << camera.fieldOfView << camera.height
           << camera.nearPlane << camera.farPlane;
}

} // namespace

qxPreviewMaker::qxPreviewMaker(qxVariantSetsDock *sets, qxPanelEvents *events, QObject *parent)
    : QObject(parent), m_sets(sets),
      m_run([sets](const std::function<void()> &work) { sets->keepCursor(work); })
{
    connect(sets, &qxVariantSetsDock::previewsWanted, this, [this](const QStringList &names) {
        m_number += m_run.isRunning() ? 0 : 1;
        m_run.start(names);
    });
    connect(sets, &qxVariantSetsDock::previewsCancelled, &m_run, &qxPreviewRun::cancel);
    connect(events, &qxPanelEvents::aboutToForget, &m_run, &qxPreviewRun::cancel);
    connect(&m_run, &qxPreviewRun::progressed, sets->galleryBar(), &qxGalleryBar::showProgress);
    connect(&m_run, &qxPreviewRun::ended, sets->galleryBar(), &qxGalleryBar::endProgress);
    connect(&m_run, &qxPreviewRun::made, this, [this](const QString &set, const QByteArray &png) {
        m_sets->setPreviews({{set, png}}, m_number);
    });
    qxPreviewAge *const age = sets->previewAge();
    age->setSurroundings([this] { return surroundings(); });
    m_look.setSingleShot(true);
    m_look.callOnTimeout(age, &qxPreviewAge::look);
    m_requests = qxRenderRequests::addListener([this](bool everything) {
        if (everything)
            m_look.start(0);
    });
}

qxPreviewMaker::~qxPreviewMaker()
{
    qxRenderRequests::removeListener(m_requests);
    m_sets->previewAge()->setSurroundings({});
}

void qxPreviewMaker::noteEdit()
{
    ++m_edits;
    m_look.start(0);
}

/// Light, background, viewpoints, and how often the scene was edited.
QByteArray qxPreviewMaker::surroundings() const
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    const qxViewSettings &view = qxViewSettings::the();
    stream << m_edits << quint64(quintptr(view.environment.get())) << view.environmentRotation
           << view.exposure << int(view.background) << int(view.ground);
    write(stream, view.plainColour);
    write(stream, view.gradientTop);
    write(stream, view.gradientBottom);
    const qxUberCameraPool &pool = *qxUberCameraPool::the();
    for (int id = 0; id < pool.count(); ++id)
        write(stream, *pool.get(id));
    return bytes;
}
