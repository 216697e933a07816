#pragma once

#include "Session/qxSceneState.h"
#include "Undo/qxRegistryRecord.h"

#include <QObject>
#include <QTimer>

class QUndoStack;
class qxPanelEvents;

/// Whether sets, variants or scene differ from what was last opened or saved.
///
/// It compares contents, so a change that was reverted does not count. What the scene shows, as
/// after selecting a set, is told apart from edits, which are work.
class qxUnsavedChanges : public QObject {
    Q_OBJECT

public:
    qxUnsavedChanges(const QUndoStack *edits, qxPanelEvents *events, QObject *parent);

    /// The file was just opened or saved: there are no changes.
    void forget();
    /// Compares soon; for changes without a notification.
    void look();
    enum Sort { None, ShownState, Edits };
    /// Compares now.
    Sort sort();

Q_SIGNALS:
    void looked(qxUnsavedChanges::Sort sort);

private:
    void lookSoon();

    const QUndoStack *m_edits;
    QTimer m_idle; ///< comparing takes its time, so it waits for a pause
    qxRegistryRecord m_registry;
    qxSceneState m_scene;
    bool m_mayRegistryDiffer = false;
    bool m_maySceneDiffer = false;
    bool m_doesRegistryDiffer = false;
    bool m_doesSceneDiffer = false;
};
