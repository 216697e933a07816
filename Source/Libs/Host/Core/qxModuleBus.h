#pragma once

#include <functional>

class qxMessage;

/// The receiving side of the bus between modules (see qxModuleBase).
class qxModuleBus {
public:
    typedef std::function<void(qxMessage &message)> Listener;

    /// Receives every message until removeListener is called with the returned id.
    static int addListener(const Listener &listener);
    static void removeListener(int id);
};
