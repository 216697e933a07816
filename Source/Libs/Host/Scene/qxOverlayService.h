#pragma once

#include <string>

/// Applies states to overlays: listens to "activateOverlays" (text fields "name" and
/// "variantState") while it lives.
class qxOverlayService {
public:
    qxOverlayService();
    qxOverlayService(const qxOverlayService &) = delete;
    ~qxOverlayService();

    /// Puts every overlay of that name into the state. "!Enable", "!Disable" and "!Toggle" show and
    /// hide the node. A switch takes the child of that name, "!All", "!None", and the four steps
    /// "!Next", "!Next (Loop)", "!Previous", "!Previous (Loop)"; switches that share one core are
    /// stepped once. Anything else changes nothing.
    static void activate(const std::string &name, const std::string &state);
};
