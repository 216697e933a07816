#pragma once

#include "qxSceneChoices.h"

#include <QJsonArray>

#include <string>

/// What edits of variants change in the scene that is no state of a variant: names of nodes, of
/// their transform states and of materials, what switch materials choose from, and viewpoints.
/// Objects are told by their places, so that it fits a scene that was read from the same file.
class qxSceneNames {
public:
    /// Of no scene.
    qxSceneNames() = default;
    /// Those of the present scene.
    static qxSceneNames take();

    /// What is other now; empty for nothing.
    QJsonObject changes() const;
    /// Makes such changes in the scene, whose names these are. Places that there are not are passed
    /// over. False, without any change, when they are those of another scene.
    bool apply(const QJsonObject &changes) const;

private:
    QString fingerprint() const;

    qxSceneChoices::Nodes m_nodes; ///< in the order of the scene, then those of overlays
    qxSceneChoices::Materials m_materials;
    std::vector<std::string> m_nodeNames;
    std::vector<std::string> m_materialNames;
    std::vector<QJsonArray> m_stateNames; ///< of the nodes' transforms
    qxSceneChoices m_choices;
    QJsonArray m_viewpoints;
};
