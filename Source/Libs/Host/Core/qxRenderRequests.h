#pragma once

#include <functional>

/// Requests for a new picture: qxController::updateRender sends them, a view receives them.
class qxRenderRequests {
public:
    /// `everything` also rebuilds what is cached between frames.
    typedef std::function<void(bool everything)> Listener;

    /// `listener` receives every request until removeListener gets the returned id.
    static int addListener(const Listener &listener);
    static void removeListener(int id);
    static void request(bool everything);

    /// How many requests came since the process began.
    static int count();
};
