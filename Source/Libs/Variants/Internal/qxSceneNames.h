#pragma once

#include "qxNodePtr.h"

#include <QHash>
#include <QSet>

#include <optional>
#include <vector>

/// The lights, overlays, clips and viewpoints of the scene by name, each gathered when the first of
/// its sort is asked for. It is a snapshot: whoever adds, removes or renames something outdates it.
class qxSceneNames {
public:
    bool hasLight(const QString &name);
    bool hasClip(const QString &name);
    bool hasViewpoint(const QString &name);
    /// The nodes of that name in the overlay tree, depth first, without the root.
    std::vector<qxNodePtr> overlays(const QString &name);

private:
    typedef QSet<QString> Names;

    std::optional<Names> m_lights;
    std::optional<Names> m_clips;
    std::optional<Names> m_viewpoints;
    std::optional<QHash<QString, std::vector<qxNodePtr>>> m_overlays;
};
