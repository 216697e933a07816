#pragma once

#include <QObject>

/// What panel and window change without a notification of the module.
///
/// Every qxPanelEvents passes it on; other parts of a host connect to it themselves.
class qxPanelChanges : public QObject {
    Q_OBJECT

public:
    static qxPanelChanges &the();

signals:
    /// The user has edited, created or moved sets or groups, or undone that.
    void setsEdited();
    /// Undo or redo of a capture has created, edited or removed variants.
    void variantsEdited();
    /// The scene was put back into an earlier state.
    void sceneRestored();
};
