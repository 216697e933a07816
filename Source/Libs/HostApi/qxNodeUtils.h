#pragma once

#include "qxNodePtr.h"

#include <OpenSG/OSGMaterialFields.h>

#include <string>
#include <vector>

/// Operations on single nodes: names, sub-trees, clones, materials and named transform states.
class qxNodeUtils {
public:
    /// The node's name as UTF-8: its own name attachment, else that of its core, else the name of
    /// the core's type. Empty for a null node and for a node with neither name nor core.
    static std::string getName(const osg::NodePtr &node);
    /// Whether look-ups by the node's name find it (qxScenegraph, qxOverlays). An empty name finds
    /// nothing. A geometry without children that is named by its core is not found by a name that
    /// its parent has, too: the name means the parent alone. Otherwise "!Toggle" could flip the two
    /// against each other.
    static bool isFoundByName(const osg::NodePtr &node);

    /// `base` if `existing` does not contain it, else `base`, a blank and the smallest free number
    /// from 2 on. A number at the end of `base` is part of the name: "RAL 9010" becomes "RAL 9010
    /// 2".
    static std::string getUniqueName(const std::string &base,
                                     const std::vector<std::string> &existing);

    /// Names the node. With `makeUnique` the name is made unique among the nodes at and below
    /// `root` (see getUniqueName), and the node's clones of the same name are renamed with it. Null
    /// nodes are ignored.
    static void setName(const osg::NodePtr &node, const std::string &name, bool makeUnique,
                        const osg::NodePtr &root);

    /// Whether the node is qxScenegraph::environmentGeometrySwitch(); false for a null node.
    static bool isEnvironmentGeometrySwitch(const osg::NodePtr &node);

    /// The node and everything below it, in scene order; empty for a null node.
    static std::vector<qxNodePtr> getSubTreeNodes(const osg::NodePtr &node);
    /// Every node of the scene, the root first; those of the environment come last.
    static std::vector<qxNodePtr> getSceneNodes();

    /// Whether one of the nodes is a clone of the other: both show the same core.
    static bool isCloneOf(const osg::NodePtr &node, const osg::NodePtr &other);
    /// Appends every node of the scene that shares the node's core, the node itself included when
    /// it is part of the scene.
    static void getInstancesInScenegraph(const osg::NodePtr &node, std::vector<qxNodePtr> &nodes);

    /// The material of a material group or of a geometry; null for other nodes.
    static osg::MaterialPtr getMaterial(const osg::NodePtr &node);
    /// Sets the material of a material group or a geometry; with `subTree` also of all of them
    /// below the node. With `announce` it sends qxModuleBase::MaterialsChanged.
    static void setMaterial(const osg::NodePtr &node, const osg::MaterialPtr &material,
                            bool subTree, bool announce);

    /// Whether the node has named transform states. The operations below return 0, -1, false or an
    /// empty text for a null node and for one without them.
    static bool hasTransformVariants(const osg::NodePtr &node);
    /// How many the node has.
    static int getTransformVariantCount(const osg::NodePtr &node);
    /// The name of state `index`; empty when out of range.
    static std::string getTransformVariantName(const osg::NodePtr &node, int index);
    /// Gives state `index` another name; one out of range is ignored.
    static void setTransformVariantName(const osg::NodePtr &node, int index,
                                        const std::string &name);
    /// The index of the first state of that name, -1 when there is none.
    static int getTransformVariantIndex(const osg::NodePtr &node, const std::string &name);
    /// The state that was selected last, -1 when none was.
    static int getTransformVariantCurrentIndex(const osg::NodePtr &node);
    /// The name of that state; empty when none was selected.
    static std::string getSelectedTransformVariantName(const osg::NodePtr &node);
    /// Whether the node still has the transform of the state that was selected last.
    static bool isTransformVariantInState(const osg::NodePtr &node);
};
