#pragma once

#include <string>
#include <vector>

/// Starts clips (qxAnimationPlayer) and remembers which were started: listens to "animationStart"
/// while it lives. A clip that the scene does not have is ignored.
class qxRunningClips {
public:
    qxRunningClips();
    qxRunningClips(const qxRunningClips &) = delete;
    ~qxRunningClips();

    /// The names in the order of their last start; each once.
    static const std::vector<std::string> &names();
    static void clear();
};
