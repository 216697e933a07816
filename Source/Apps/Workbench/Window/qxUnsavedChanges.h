#pragma once

#include "Session/qxSceneState.h"

#include <QByteArray>
#include <QObject>
#include <QTimer>

class QUndoStack;
class qxPanelEvents;

/// Whether a save would write something else than was opened or saved last: edited sets and
/// variants, or a scene that stands another way.
///
/// It compares, so what is taken back is no change.
class qxUnsavedChanges : public QObject {
    Q_OBJECT

public:
    qxUnsavedChanges(const QUndoStack *edits, qxPanelEvents *events, QObject *parent);

    /// What is there now is in the file.
    void forget();
    /// Looks again soon; for what nobody announces.
    void look();
    /// Looks at once.
    bool areThere();

signals:
    void looked(bool areThere);

private:
    void lookSoon();

    const QUndoStack *m_edits;
    QTimer m_idle; ///< comparing takes long with many sets, so not each change is a reason
    QByteArray m_document; ///< its hash
    qxSceneState m_scene;
    bool m_mayDocumentDiffer = false;
    bool m_maySceneDiffer = false;
    bool m_doesDocumentDiffer = false;
    bool m_doesSceneDiffer = false;
};
