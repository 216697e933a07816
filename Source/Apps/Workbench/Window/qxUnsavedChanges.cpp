#include "qxUnsavedChanges.h"

#include "qxVariantWriter.h"

#include "qxPanelEvents.h"

#include <QCryptographicHash>
#include <QUndoStack>

namespace {

const int idleTime = 300; ///< milliseconds without a change

QByteArray documentHash()
{
    return QCryptographicHash::hash(qxVariantWriter().writeToCompare(), QCryptographicHash::Sha1);
}

} // namespace

qxUnsavedChanges::qxUnsavedChanges(const QUndoStack *edits, qxPanelEvents *events, QObject *parent)
    : QObject(parent), m_edits(edits)
{
    m_idle.setSingleShot(true);
    m_idle.setInterval(idleTime);
    connect(&m_idle, &QTimer::timeout, this, &qxUnsavedChanges::areThere);
    for (const auto changed : {&qxPanelEvents::setsChanged, &qxPanelEvents::variantsChanged}) {
        connect(events, changed, this, [this] {
            m_mayDocumentDiffer = true;
            lookSoon();
        });
    }
    connect(events, &qxPanelEvents::statesChanged, this, [this] {
        m_maySceneDiffer = true;
        lookSoon();
    });
    connect(events, &qxPanelEvents::aboutToForget, this, [this] { m_scene = qxSceneState(); });
    connect(edits, &QUndoStack::cleanChanged, this, &qxUnsavedChanges::lookSoon);
    forget();
}

void qxUnsavedChanges::forget()
{
    m_document = documentHash();
    m_scene = qxSceneState::take();
    m_mayDocumentDiffer = m_maySceneDiffer = false;
    m_doesDocumentDiffer = m_doesSceneDiffer = false;
    m_idle.stop();
    Q_EMIT looked(false);
}

void qxUnsavedChanges::look()
{
    m_mayDocumentDiffer = m_maySceneDiffer = true;
    lookSoon();
}

/// While edits can be undone nothing needs to be compared.
void qxUnsavedChanges::lookSoon()
{
    if (m_edits->isClean())
        m_idle.start();
    else
        Q_EMIT looked(true);
}

bool qxUnsavedChanges::areThere()
{
    m_idle.stop();
    if (!m_edits->isClean())
        return true;
    if (m_mayDocumentDiffer)
        m_doesDocumentDiffer = documentHash() != m_document;
    if (m_maySceneDiffer)
        m_doesSceneDiffer = !qxSceneState::take().isLike(m_scene);
    m_mayDocumentDiffer = m_maySceneDiffer = false;
    const bool areSome = m_doesDocumentDiffer || m_doesSceneDiffer;
    Q_EMIT looked(areSome);
    return areSome;
}
