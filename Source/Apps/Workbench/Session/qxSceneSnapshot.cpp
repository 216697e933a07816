#include "qxSceneSnapshot.h"

#include "OSGSwitchComponentTransform.h"
#include "Scene/qxTransformStates.h"
#include "qxNodeUtils.h"
#include "qxNodeWalk.h"
#include "qxOverlays.h"
#include "qxScenegraph.h"

namespace {

/// Whether a variant can put the node elsewhere.
bool isMovable(const osg::NodePtr &node)
{
    return qxTransformStates::of(node) != osg::NullFC
        || osg::SwitchComponentTransformPtr::dcast(node->getCore()) != osg::NullFC;
}

} // namespace

qxSceneSnapshot::qxSceneSnapshot()
    : m_state(qxSceneState::take()), m_view(qxMainView::the()), m_clipping(qxClipping::the())
{
    for (const osg::NodePtr &top : {qxScenegraph::getRoot(), qxOverlays::getPoolRoot(),
                                    qxScenegraph::environmentGeometrySwitch()}) {
        qxWalkNodes(top, [this](const osg::NodePtr &node) {
            if (isMovable(node))
                m_poses.push_back(poseOf(node));
        });
    }
}

void qxSceneSnapshot::restore() const
{
    m_state.restore();
    for (const Pose &pose : m_poses)
        restorePose(pose);
    qxMainView::the() = m_view;
    qxClipping::the() = m_clipping;
}

bool qxSceneSnapshot::isStillSo() const
{
    const qxClipping &clipping = qxClipping::the();
    return m_view.camera.toWorld == qxMainView::the().camera.toWorld
        && m_clipping.enabled == clipping.enabled && m_clipping.position == clipping.position
        && m_clipping.normal == clipping.normal && m_state.isLike(qxSceneState::take());
}

qxSceneSnapshot::Pose qxSceneSnapshot::poseOf(const osg::NodePtr &node)
{
    Pose pose;
    pose.node = node;
    pose.selected = qxNodeUtils::getTransformVariantCurrentIndex(node);
    const auto components = osg::ComponentTransformPtr::dcast(node->getCore());
    const auto transform = osg::TransformPtr::dcast(node->getCore());
    if (components != osg::NullFC) {
        pose.translation = components->getTranslation();
        pose.rotation = components->getRotation();
        pose.scale = components->getScale();
        pose.scaleOrientation = components->getScaleOrientation();
        pose.center = components->getCenter();
    } else if (transform != osg::NullFC) {
        pose.matrix = transform->getMatrix();
    }
    return pose;
}

// Part by part: a matrix taken apart again would move the node by a rounding error. And nothing but
// these parts: an edit of its choice would put a transform switch where that leads.
void qxSceneSnapshot::restorePose(const Pose &pose)
{
    const osg::NodePtr node = pose.node.get();
    const auto components = osg::ComponentTransformPtr::dcast(node->getCore());
    const auto transform = osg::TransformPtr::dcast(node->getCore());
    if (components != osg::NullFC) {
        typedef osg::ComponentTransform Fields;
        const osg::CPEditor edit(components,
                                 Fields::TranslationFieldMask | Fields::RotationFieldMask
                                     | Fields::ScaleFieldMask | Fields::ScaleOrientationFieldMask
                                     | Fields::CenterFieldMask);
        components->setTranslation(pose.translation);
        components->setRotation(pose.rotation);
        components->setScale(pose.scale);
        components->setScaleOrientation(pose.scaleOrientation);
        components->setCenter(pose.center);
    } else if (transform != osg::NullFC) {
        const osg::CPEditor edit(transform, osg::Transform::MatrixFieldMask);
        transform->setMatrix(pose.matrix);
    }
    const osg::TransformStatesPtr states = qxTransformStates::of(node);
    if (states == osg::NullFC)
        return;
    const osg::CPEditor edit(states, osg::TransformStates::SelectedFieldMask);
    states->setSelected(pose.selected);
}
