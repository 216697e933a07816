#pragma once

#include <functional>

/// Where requests for a new picture arrive: qxController::updateRender sends them, a view obeys.
class qxRenderRequests {
public:
    /// `everything` also redoes what a picture keeps between frames.
    typedef std::function<void(bool everything)> Listener;

    /// Hears every request until removeListener is called with the returned id.
    static int addListener(const Listener &listener);
    static void removeListener(int id);
    static void request(bool everything);

    /// How many requests came since the process began.
    static int count();
};
