#include "qxPreviewRun.h"

#include "Animation/qxAnimationPlayer.h"
#include "Core/qxBusy.h"
#include "Pictures/qxMainGlView.h"
#include "Pictures/qxPictureJob.h"
#include "Pictures/qxPicturePng.h"
#include "Pictures/qxScenePicture.h"
#include "Script/qxScriptNesting.h"
#include "Session/qxPreviewStamp.h"
#include "Session/qxSetPreviews.h"

#include <QApplication>
#include <QTimer>

qxPreviewRun::qxPreviewRun(const Quietly &quietly, QObject *parent)
    : QObject(parent), m_quietly(quietly)
{
}

qxPreviewRun::~qxPreviewRun()
{
    if (isRunning() && qxMainGlView::the())
        qxMainGlView::the()->cancelOrder();
}

void qxPreviewRun::start(const QStringList &sets)
{
    const bool wasRunning = isRunning();
    for (const QString &set : sets) {
        if (!m_waiting.contains(set))
            m_waiting << set;
    }
    if (wasRunning || m_waiting.isEmpty())
        return;
    m_done = 0;
    m_rest = std::make_unique<qxAnimationRest>();
    placeOrder();
}

void qxPreviewRun::cancel()
{
    if (!isRunning())
        return;
    m_waiting.clear();
    qxMainGlView::the()->cancelOrder();
    finish();
}

void qxPreviewRun::placeOrder()
{
    Q_EMIT progressed(m_done, m_done + m_waiting.size());
    if (!isRunning()) // Whoever heard that has cancelled it.
        return;
    qxMainGlView::the()->setOrder(
        {[this] { return begin(); }, [this](const qxPicture &picture) { take(picture); }});
}

/// Whatever goes through sets or scene just now goes on first.
std::unique_ptr<qxPictureJob> qxPreviewRun::begin()
{
    std::unique_ptr<qxPictureJob> job;
    if (qxBusy::isBusy() || qxScriptNesting::isRunning() || QApplication::activeModalWidget())
        return job;
    m_quietly([this, &job] {
        const qxStartView view;
        qxSetPreviews::visit(m_waiting.first(), [this, &job](qxVariantSet &) {
            const qxPictureSettings settings = qxSetPreviews::settings();
            m_fingerprint = qxScenePicture::fingerprint(settings);
            job = std::make_unique<qxPictureJob>(settings);
            return true;
        });
    });
    if (!job && isRunning()) // The set is gone.
        QTimer::singleShot(0, this, [this] { take(qxPicture()); });
    return job;
}

/// Without a picture the set was removed meanwhile, or the log says why.
void qxPreviewRun::take(const qxPicture &picture)
{
    if (!isRunning())
        return;
    const QString set = m_waiting.takeFirst();
    ++m_done;
    const bool isOpaque = qxViewSettings::the().background != qxViewSettings::None;
    if (!picture.isEmpty())
        Q_EMIT made(set,
                    qxPreviewStamp::stamped(qxPicturePng::bytes(picture, isOpaque), m_fingerprint));
    if (isRunning())
        placeOrder();
    else if (m_rest)
        finish();
}

void qxPreviewRun::finish()
{
    m_rest.reset();
    Q_EMIT ended();
}
