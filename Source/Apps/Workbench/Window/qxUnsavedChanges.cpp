#include "qxUnsavedChanges.h"

#include "qxVariantWriter.h"

#include "qxPanelEvents.h"

#include <QCryptographicHash>
#include <QUndoStack>

namespace {

QByteArray documentHash()
{
    return QCryptographicHash::hash(qxVariantWriter().write(), QCryptographicHash::Sha1);
}

} // namespace

qxUnsavedChanges::qxUnsavedChanges(const QUndoStack *edits, qxPanelEvents *events, QObject *parent)
    : QObject(parent), m_edits(edits)
{
    const auto tell = [this] { emit looked(areThere()); };
    for (const auto changed : {&qxPanelEvents::setsChanged, &qxPanelEvents::variantsChanged}) {
        connect(events, changed, this, [this, tell] {
            m_mayDocumentDiffer = true;
            tell();
        });
    }
    connect(events, &qxPanelEvents::statesChanged, this, [this, tell] {
        m_maySceneDiffer = true;
        tell();
    });
    connect(edits, &QUndoStack::cleanChanged, this, tell);
    forget();
}

void qxUnsavedChanges::forget()
{
    m_document = documentHash();
    m_scene = qxSceneState::take();
    m_mayDocumentDiffer = m_maySceneDiffer = false;
    m_doesDocumentDiffer = m_doesSceneDiffer = false;
    emit looked(false);
}

void qxUnsavedChanges::look()
{
    m_mayDocumentDiffer = m_maySceneDiffer = true;
    emit looked(areThere());
}

/// While edits can be undone nothing needs to be compared, which takes long with many sets.
bool qxUnsavedChanges::areThere()
{
    if (!m_edits->isClean())
        return true;
    if (m_mayDocumentDiffer)
        m_doesDocumentDiffer = documentHash() != m_document;
    if (m_maySceneDiffer)
        m_doesSceneDiffer = !qxSceneState::take().isLike(m_scene);
    m_mayDocumentDiffer = m_maySceneDiffer = false;
    return m_doesDocumentDiffer || m_doesSceneDiffer;
}
