#pragma once

#include <QObject>

/// Signals for changes by panel and window that the module does not announce.
///
/// Every qxPanelEvents forwards them; other parts of a host may connect to them.
class qxPanelChanges : public QObject {
    Q_OBJECT

public:
    /// The one of the process. To announce a change, emit one of its signals.
    static qxPanelChanges &the();

Q_SIGNALS:
    /// The user has edited, created or moved sets or groups, or undone that.
    void setsEdited();
    /// Undo or redo of a capture has created, edited or removed variants.
    void variantsEdited();
    /// The scene was put back into an earlier state, or nodes were hidden or shown.
    void sceneRestored();
};
