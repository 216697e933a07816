#pragma once

/// The host's main view of the scene.
class qxOSGWidget {
public:
    /// Ends the refining of a still picture when one is in progress.
    static void cancelAntialiasing();
};
