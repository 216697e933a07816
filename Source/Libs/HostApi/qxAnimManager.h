#pragma once

#include <set>
#include <string>
#include <vector>

/// The animation clips of the scene. Notification "animationStart" with the text field
/// "animation-name" starts a clip.
class qxAnimManager {
public:
    /// The one of the process; never null.
    static qxAnimManager *the();

    /// Adds the names of all clips (UTF-8) to `names`; clips without a name are left out.
    void getBlockAndClipNames(std::set<std::string> &names) const;
    /// The clip names in the order of the scene file; unnamed clips have an empty name.
    const std::vector<std::string> &clips() const { return m_clips; }
    /// Replaces the clips: the host's, when a scene was loaded or cleared. Announces nothing.
    void setClips(const std::vector<std::string> &names);

private:
    std::vector<std::string> m_clips;
};
