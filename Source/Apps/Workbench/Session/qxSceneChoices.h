#pragma once

#include <OpenSG/OSGMaterial.h>
#include <OpenSG/OSGNodePtr.h>
#include <OpenSG/OSGRefPtr.h>

#include <QJsonObject>

#include <vector>

/// What edits of variants change in the materials of a scene: new switch materials, what switch
/// materials choose from, and the materials of nodes. Objects are told by their places.
class qxSceneChoices {
public:
    typedef std::vector<osg::NodeRefPtr> Nodes;
    typedef std::vector<osg::MaterialRefPtr> Materials;

    /// Of no scene.
    qxSceneChoices() = default;
    /// The present ones of these nodes and materials.
    qxSceneChoices(const Nodes &nodes, const Materials &materials);

    /// What is other now; empty for nothing.
    QJsonObject changes() const;
    /// Makes such changes. Places that there are not are passed over.
    void apply(const QJsonObject &changes) const;

private:
    Nodes m_nodes;
    Materials m_materials;
    Materials m_worn; ///< by the nodes
    std::vector<Materials> m_parts; ///< of the materials that are switch materials
};
