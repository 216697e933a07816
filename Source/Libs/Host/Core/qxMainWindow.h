#pragma once

class QWidget;

/// The window of the application that runs on this host.
class qxMainWindow {
public:
    /// Makes `window` the main window until it is destroyed or replaced.
    static void set(QWidget *window);
};
