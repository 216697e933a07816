#pragma once

#include "Cameras/qxMainView.h"
#include "Scene/qxClipping.h"
#include "qxSceneState.h"

#include <OpenSG/OSGComponentTransform.h>

/// Records the states of scene, camera and clipping, so that sets can be selected temporarily.
class qxSceneSnapshot {
public:
    qxSceneSnapshot();

    /// Restores what variants and sets change. Other effects of scripts stay.
    void restore() const;
    /// Whether nothing of that has changed.
    bool isStillSo() const;

private:
    /// How a transform switch, or a node with named transform states, stands.
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
