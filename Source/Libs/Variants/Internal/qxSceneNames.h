#pragma once

#include <QSet>
#include <QString>

#include <optional>

/// The lights and clips of the scene by name, which the host lists as a whole: each sort is
/// gathered when it is first asked for. It is a snapshot: whoever adds, removes or renames
/// something outdates it.
class qxSceneNames {
public:
    bool hasLight(const QString &name);
    bool hasClip(const QString &name);

private:
    typedef QSet<QString> Names;

    std::optional<Names> m_lights;
    std::optional<Names> m_clips;
};
