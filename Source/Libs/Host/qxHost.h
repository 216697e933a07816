#pragma once

#include <memory>

/// The running host. Exactly one exists while a scene is shown; another may follow when it ended.
///
/// Starts the scene graph with a recording change list (once in a process), makes an empty scene
/// and registers the services and callbacks of the host. The destructor ends everything in reverse.
class qxHost {
public:
    qxHost();
    qxHost(const qxHost &) = delete;
    ~qxHost();

    /// Raises "clearAllVariants" with an empty message, then empties scene, pools, viewpoints,
    /// clips and overlays. The scene's root and the root of the overlays stay the same nodes.
    void clearScene();

private:
    struct Services;
    std::unique_ptr<Services> m_services;
};
