#pragma once

#include "Render/qxRenderGeometry.h"

#include <OpenSG/OSGNode.h>

#include <unordered_map>

/// The form that morph targets and a skin give to a geometry of one node.
struct qxRenderShape {
    std::vector<float> weights; ///< of the morph targets
    /// What leads from the geometry to the world as each joint has it; empty without a skin.
    std::vector<osg::Matrix> joints;

    bool isSkinned() const { return !joints.empty(); }
    /// Whether the geometry keeps the form that it has.
    bool isRest() const;
    bool operator==(const qxRenderShape &other) const;
};

/// The shapes in the present pose: that of clips that play (qxPose), else that of the scene graph.
class qxRenderShapes {
public:
    /// That of a deformable geometry for the node that shows it.
    qxRenderShape of(const osg::NodePtr &node);

private:
    osg::Matrix toWorld(const osg::NodePtr &node);

    std::unordered_map<osg::UInt32, osg::Matrix> m_toWorld; ///< of the nodes asked for so far
};

/// A copy of the geometry, in world coordinates if it is skinned. `core` is what it was made of.
std::shared_ptr<const qxRenderGeometry>
qxShaped(const qxRenderGeometry &rest, const osg::GeometryPtr &core, const qxRenderShape &shape);
