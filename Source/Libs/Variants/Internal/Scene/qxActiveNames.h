#pragma once

#include <optional>
#include <string>
#include <unordered_set>

/// The names of all active nodes of the scene, kept for one scope in which no node is shown,
/// hidden or renamed. Scopes within a scope share what the outermost one found out.
class qxActiveNames {
public:
    qxActiveNames();
    ~qxActiveNames();
    qxActiveNames(const qxActiveNames &) = delete;
    qxActiveNames &operator=(const qxActiveNames &) = delete;

    /// Whether an active node has that name (UTF-8). Outside of every scope this goes through the
    /// scene on each call.
    static bool contain(const std::string &name);

private:
    const std::unordered_set<std::string> &names();

    std::optional<std::unordered_set<std::string>> m_names; ///< none until they are needed
    static qxActiveNames *_outermost;
};
