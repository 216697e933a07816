#pragma once

class QWidget;

/// The window of the application that runs on this host.
class qxMainWindow {
public:
    /// Makes `window`, which stays the caller's, the main window until it is destroyed or replaced;
    /// null for none.
    static void set(QWidget *window);
};
