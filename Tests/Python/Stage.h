#pragma once

#include <functional>
#include <string>

class NotificationLog;
class qxHost;

/// What Python tests reach through the module `stage` while they run: the scene and the
/// registry, beside the words that every script has.
struct Stage {
    qxHost *host;
    NotificationLog *notifications;
    /// Hears the outcome of each test: its name, and the traceback of a failure.
    std::function<void(const std::string &name, const std::string &failure)> report;

    /// The running test's; null while none runs.
    static Stage *current;
};
