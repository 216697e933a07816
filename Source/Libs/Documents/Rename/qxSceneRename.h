#pragma once

#include "Rename/qxDocumentRename.h"
#include "qxNodePtr.h"

#include <OpenSG/OSGMaterial.h>
#include <OpenSG/OSGNodePtr.h>
#include <OpenSG/OSGRefPtr.h>

#include <QHash>

/// Renames something of the host's scene. It looks at the scene when it is made; until it is
/// applied the scene must not change. It keeps what it renames alive.
class qxSceneRename {
public:
    /// Finds what the request means. An option means what the variant has in the scene for it: a
    /// child of a switch, a material of a switch material, or a transform state.
    qxSceneRename(const qxRenameRequest &request, const qxDocument &document);

    /// The request as it concerns document and scene.
    const qxRenameRequest &request() const { return m_request; }
    /// What the scene knows about it; refers to this.
    qxRenameScope scope() const;
    /// Why the scene cannot have the new name; empty when it can, also when there is nothing to
    /// rename.
    QString flaw() const;
    /// How many objects get the new name.
    int count() const { return int(m_nodes.size() + m_materials.size() + m_places.size()); }
    /// Renames them. Clones and all others of the name are renamed together.
    void apply() const { rename(m_request.before, m_request.after); }
    /// Takes it back, later on, as far as they still have the new name.
    void takeBack() const { rename(m_request.after, m_request.before); }

private:
    /// A transform state of a node, or a viewpoint, which has no node.
    struct Place {
        osg::NodeRefPtr node;
        int index;
    };

    void takeOption(const qxDocument &document);
    void takeNodes(const std::vector<qxNodePtr> &nodes);
    void takeMaterials(const std::vector<osg::MaterialPtr> &materials);
    void takeViewpoints();
    void takeStates();
    bool isStateOf(const qxDocumentVariant &variant) const;
    bool isTaken(const osg::NodePtr &node) const;
    QStringList pathsAfter(const QString &path) const;
    void notePaths() const;
    void rename(const QString &from, const QString &to) const;
    static int placeOfViewpoint(int index, const std::string &name);
    bool isPartial() const;

    qxRenameRequest m_request;
    QStringList m_names; ///< of all of the sort
    std::vector<osg::NodeRefPtr> m_nodes;
    std::vector<osg::MaterialRefPtr> m_materials;
    std::vector<Place> m_places;
    QSet<osg::UInt32> m_ids; ///< of nodes and materials
    mutable QHash<quint64, std::vector<osg::NodePtr>> m_paths; ///< by hash; made when needed
};
