#pragma once

#include "Session/qxSceneState.h"

#include <QByteArray>
#include <QObject>
#include <QTimer>

class QUndoStack;
class qxPanelEvents;

/// Whether sets, variants or scene differ from what was last opened or saved.
///
/// It compares contents, so a change that was reverted does not count.
class qxUnsavedChanges : public QObject {
    Q_OBJECT

public:
    qxUnsavedChanges(const QUndoStack *edits, qxPanelEvents *events, QObject *parent);

    /// The file was just opened or saved: there are no changes.
    void forget();
    /// Compares soon; for changes without a notification.
    void look();
    /// Compares now.
    bool areThere();

Q_SIGNALS:
    void looked(bool areThere);

private:
    void lookSoon();

    const QUndoStack *m_edits;
    QTimer m_idle; ///< comparing many sets is slow, so it waits for a pause
    QByteArray m_document; ///< its hash
    qxSceneState m_scene;
    bool m_mayDocumentDiffer = false;
    bool m_maySceneDiffer = false;
    bool m_doesDocumentDiffer = false;
    bool m_doesSceneDiffer = false;
};
