#pragma once

#include "qxSlots.h"

#include <QJsonObject>

#include <map>

class qxLossReport;
class qxPlaces;
class qxSceneFile;

/// What the values of slots show: the members nodes, parts, wardrobes, overlays and environment of
/// published.ts, for a scene that is as it was opened.
class qxPublishedBindings {
public:
    /// Adds to the report what the scene shows and a page cannot. The slots must be finished.
    qxPublishedBindings(const qxSceneFile &file, const qxSlots &slots, const qxPlaces &places,
                        qxLossReport &losses);

    /// Adds the members.
    void writeTo(QJsonObject &json) const;

private:
    /// A node with the conditions of those above it that do not stand in the file.
    struct Place {
        osg::NodePtr node;
        QJsonArray shown;
    };

    void add(const osg::NodePtr &top);
    void visit(Place place, std::vector<Place> &below);
    void bindNode(const Place &place, int node);
    void bindPart(const Place &place, int node, int part);
    /// The matrices of a node that is moved, or that the GLB may have elsewhere.
    QJsonObject matricesOf(const osg::NodePtr &node) const;
    QJsonObject still(const osg::Matrix &matrix) const;
    int wardrobeOf(const osg::MaterialPtr &material);
    QJsonValue choiceOf(const osg::MaterialPtr &material);
    QJsonValue plainMaterial(const osg::MaterialPtr &material);

    const qxSceneFile &m_file;
    const qxSlots &m_slots;
    const qxPlaces &m_places;
    qxLossReport &m_losses;
    std::map<int, QJsonObject> m_nodes; ///< the bindings by node
    QJsonArray m_parts;
    QJsonArray m_wardrobes;
    QJsonArray m_overlays;
    QHash<osg::UInt32, int> m_wardrobePlaces; ///< by material
    QHash<osg::UInt32, QJsonValue> m_choices; ///< by material
};
