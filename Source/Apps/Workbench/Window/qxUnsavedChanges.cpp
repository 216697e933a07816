#include "qxUnsavedChanges.h"

#include "qxPanelEvents.h"

#include <QUndoStack>

namespace {

const int idleTime = 300; ///< milliseconds without a change

} // namespace

qxUnsavedChanges::qxUnsavedChanges(const QUndoStack *edits, qxPanelEvents *events, QObject *parent)
    : QObject(parent), m_edits(edits)
{
    m_idle.setSingleShot(true);
    m_idle.setInterval(idleTime);
    connect(&m_idle, &QTimer::timeout, this, &qxUnsavedChanges::sort);
    for (const auto changed : {&qxPanelEvents::setsChanged, &qxPanelEvents::variantsChanged}) {
        connect(events, changed, this, [this] {
            m_mayRegistryDiffer = true;
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
    m_registry = qxRegistryRecord();
    m_registry.update(m_registry.changes());
    m_scene = qxSceneState::take();
    m_mayRegistryDiffer = m_maySceneDiffer = false;
    m_doesRegistryDiffer = m_doesSceneDiffer = false;
    m_idle.stop();
    Q_EMIT looked(None);
}

void qxUnsavedChanges::look()
{
    m_mayRegistryDiffer = m_maySceneDiffer = true;
    lookSoon();
}

/// While edits can be undone nothing needs to be compared.
void qxUnsavedChanges::lookSoon()
{
    if (m_edits->isClean())
        m_idle.start();
    else
        Q_EMIT looked(Edits);
}

qxUnsavedChanges::Sort qxUnsavedChanges::sort()
{
    m_idle.stop();
    if (!m_edits->isClean())
        return Edits;
    if (m_mayRegistryDiffer)
        m_doesRegistryDiffer = !m_registry.changes().isEmpty();
    if (m_maySceneDiffer)
        m_doesSceneDiffer = !qxSceneState::take().isLike(m_scene);
    m_mayRegistryDiffer = m_maySceneDiffer = false;
    const Sort sort = m_doesRegistryDiffer ? Edits : m_doesSceneDiffer ? ShownState : None;
    Q_EMIT looked(sort);
    return sort;
}
