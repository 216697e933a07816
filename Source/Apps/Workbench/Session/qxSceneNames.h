#pragma once

#include <OpenSG/OSGMaterial.h>
#include <OpenSG/OSGNodePtr.h>
#include <OpenSG/OSGRefPtr.h>

#include <QJsonArray>
#include <QJsonObject>

#include <string>
#include <vector>

/// What edits of variants change in the scene that is no state of a variant: names of nodes and of
/// materials, and viewpoints. Objects are told by their places, so that it fits a scene that was
/// read from the same file.
class qxSceneNames {
public:
    /// Of no scene.
    qxSceneNames() = default;
    /// Those of the present scene.
    static qxSceneNames take();

    /// What is other now; empty for nothing.
    QJsonObject changes() const;
    /// Makes such changes in the scene, whose names these are. Places that there are not are passed
    /// over.
    void apply(const QJsonObject &changes) const;

private:
    std::vector<osg::NodeRefPtr> m_nodes; ///< in the order of the scene
    std::vector<osg::MaterialRefPtr> m_materials;
    std::vector<std::string> m_nodeNames;
    std::vector<std::string> m_materialNames;
    QJsonArray m_viewpoints;
};
