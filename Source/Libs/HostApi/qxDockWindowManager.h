#pragma once

class QDockWidget;
class QString;

/// The dock windows around the host's main window.
class qxDockWindowManager {
public:
    /// The dock window of that title, shown or not; null when there is none or no main window.
    QDockWidget *getDockWidget(const QString &title) const;
};
