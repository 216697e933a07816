#pragma once

#include "Cameras/qxMainView.h"
#include "Report/qxSceneState.h"
#include "Scene/qxClipping.h"

#include <OpenSG/OSGComponentTransform.h>

/// Remembers how scene, camera and clipping stand, so that sets can be selected just to be looked
/// at.
class qxSceneSnapshot {
public:
    qxSceneSnapshot();

    /// Puts back what variants and sets change. What scripts do beyond that stays.
    void restore() const;
    /// Whether all that still stands like this.
    bool isStillSo() const;

private:
    /// How a node with named transform states stands.
    struct Pose {
        osg::NodeRefPtr node;
        int selected;
        osg::Matrix matrix; ///< for a plain transform
        osg::Vec3f translation, scale, center;
        osg::Quaternion rotation, scaleOrientation;
    };

    static Pose poseOf(const osg::NodePtr &node);
    static void restorePose(const Pose &pose);

    qxSceneState m_state;
    qxMainView m_view;
    qxClipping m_clipping;
    std::vector<Pose> m_poses;
};
