#pragma once

#include "qxNodePtr.h"

#include <string>
#include <vector>

/// What the host knows about single nodes: names, sub-trees and named transform states.
class qxNodeUtils {
public:
    /// The node's name as UTF-8: its own name attachment, else that of its core, else the name of
    /// the core's type. Empty for a null node and for a node with neither name nor core.
    static std::string getName(const osg::NodePtr &node);

    /// `base` when `existing` does not hold it, else `base`, a blank and the smallest free number
    /// from 2 on. A number at the end of `base` belongs to the name: "RAL 9010" gives "RAL 9010 2".
    static std::string getUniqueName(const std::string &base,
                                     const std::vector<std::string> &existing);

    /// Whether the node is qxScenegraph::environmentGeometrySwitch(); false for a null node.
    static bool isEnvironmentGeometrySwitch(const osg::NodePtr &node);

    /// The node and everything below it, in scene order; empty for a null node.
    static std::vector<qxNodePtr> getSubTreeNodes(const osg::NodePtr &node);

    /// Whether the host keeps named transform states for the node. The operations below answer 0,
    /// -1 or an empty text for a node without them.
    static bool hasTransformVariants(const osg::NodePtr &node);
    static int getTransformVariantCount(const osg::NodePtr &node);
    /// The name of state `index`; empty when out of range.
    static std::string getTransformVariantName(const osg::NodePtr &node, int index);
    /// The index of the first state of that name, -1 when there is none.
    static int getTransformVariantIndex(const osg::NodePtr &node, const std::string &name);
    /// The state that was selected last, -1 when none was.
    static int getTransformVariantCurrentIndex(const osg::NodePtr &node);
    static std::string getSelectedTransformVariantName(const osg::NodePtr &node);
};
