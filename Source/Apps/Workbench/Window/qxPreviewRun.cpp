#include "qxPreviewRun.h"

#include "Animation/qxAnimationPlayer.h"
#include "Pictures/qxMainGlView.h"
#include "Pictures/qxPicturePng.h"
#include "Session/qxSetPreviews.h"

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
    const QString set = m_waiting.first();
    const auto begin = [this, set] {
        std::unique_ptr<qxPictureJob> job;
        m_quietly([&] {
            const qxStartView view;
            qxSetPreviews::visit(set, [&job](qxVariantSet &) {
                job = std::make_unique<qxPictureJob>(qxSetPreviews::settings());
                return true;
            });
        });
        return job;
    };
    qxMainGlView::the()->setOrder({begin, [this](const qxPicture &picture) { take(picture); }});
}

/// Without a picture the set was removed meanwhile, or the log says why.
void qxPreviewRun::take(const qxPicture &picture)
{
    const QString set = m_waiting.takeFirst();
    ++m_done;
    const bool isOpaque = qxViewSettings::the().background != qxViewSettings::None;
    if (!picture.isEmpty())
        Q_EMIT made(set, qxPicturePng::bytes(picture, isOpaque));
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
