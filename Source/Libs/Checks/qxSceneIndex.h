#pragma once

#include "qxNodePtr.h"
#include "qxSyntaxTree.h"

#include <OpenSG/OSGMaterial.h>

#include <QHash>
#include <QSet>

#include <set>
#include <string>
#include <vector>

/// Something that a variant of some kind drives, or would if it were of the right sort.
struct qxSceneObject {
    const qxVariantKind *kind = &qxVariantKinds::node;
    osg::NodePtr node = osg::NullFC; ///< null for a material
    osg::MaterialPtr material = osg::NullFC;
};

/// Everything in the scene that a variants document can name, looked up in the same time in every
/// scene. It is a snapshot: whoever adds, removes or renames something outdates it.
class qxSceneIndex {
public:
    qxSceneIndex();

    /// What bears the name `base` among the objects of that kind, in scene order: nodes of any sort
    /// for node, light and transform variants, nodes of the overlay tree, materials of any sort.
    std::vector<qxSceneObject> objects(const qxVariantKind *kind, const QString &base) const;

    /// Whether one of the nodes of that name, which show and hide what is below them, stands below
    /// another one. Never for variants that neither show nor hide nodes.
    bool areNested(const qxVariantKind *kind, const QString &base) const;

    bool hasNode(const QString &name) const { return m_nodes.byName.contains(name); }
    bool hasViewpoint(const QString &name) const { return m_viewpoints.contains(name); }
    bool hasAnimation(const QString &name) const;
    bool hasMaterial(const QString &name) const;
    /// Whether the names of some node and of all above it, the root left out, make up that path.
    bool hasPath(const QString &path) const;

private:
    struct Nodes {
        explicit Nodes(const std::vector<qxNodePtr> &nodes);

        QHash<QString, std::vector<osg::NodePtr>> byName;
        QSet<QString> nested; ///< names of nodes that stand below one of the same name
    };

    void addPaths(const osg::NodePtr &top) const;

    const Nodes m_nodes;
    const Nodes m_overlays;
    std::set<std::string> m_clips;
    QSet<QString> m_viewpoints;
    /// Hashes of all paths, filled when the first is asked for: the texts would take the square of
    /// the depth.
    mutable QSet<quint64> m_paths;
};
