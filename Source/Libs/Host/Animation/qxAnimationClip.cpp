#include "Animation/qxAnimationClip.h"

#include "Scene/qxPoseParts.h"
#include "qxNodeWalk.h"

#include <OpenSG/OSGComponentTransform.h>

#include <algorithm>

namespace {

/// Where a node stands, in parts of which clips move some.
struct Place {
    explicit Place(const osg::NodePtr &node)
    {
        const auto components = osg::ComponentTransformPtr::dcast(node->getCore());
        const auto transform = osg::TransformPtr::dcast(node->getCore());
        if (components != osg::NullFC) {
            translation = components->getTranslation();
            rotation = components->getRotation();
            scale = components->getScale();
            scaleOrientation = components->getScaleOrientation();
            centre = components->getCenter();
        } else if (transform != osg::NullFC) {
            const qxPoseParts parts(transform->getMatrix());
            translation = parts.translation;
            rotation = parts.rotation;
            scale = parts.scale;
            scaleOrientation = parts.scaleOrientation;
        }
    }

    void move(qxAnimationClip::Channel::Path path, const std::vector<float> &value)
    {
        if (path == qxAnimationClip::Channel::Rotation)
            rotation.setValueAsQuat(value[0], value[1], value[2], value[3]);
        else if (path == qxAnimationClip::Channel::Scale)
            scale = osg::Vec3f(value[0], value[1], value[2]);
        else
            translation = osg::Vec3f(value[0], value[1], value[2]);
    }

    osg::Matrix matrix() const
    {
        osg::Matrix result;
        result.setTransform(translation, rotation, scale, scaleOrientation, centre);
        return result;
    }

    osg::Vec3f translation;
    osg::Quaternion rotation;
    osg::Vec3f scale = osg::Vec3f(1, 1, 1);
    osg::Quaternion scaleOrientation;
    osg::Vec3f centre;
};

} // namespace

float qxAnimationClip::duration() const
{
    float end = 0.0f;
    for (const Channel &channel : channels)
        end = std::max(end, channel.curve.end());
    return end;
}

qxPose qxPoseOf(const std::vector<qxClipTime> &clips)
{
    qxPose pose;
    std::unordered_map<qxPose::Id, Place> places;
    for (const qxClipTime &clip : clips) {
        for (const qxAnimationClip::Channel &channel : clip.clip->channels) {
            const osg::NodePtr node = qxNodeWithId(channel.node);
            if (node == osg::NullFC)
                continue;
            std::vector<float> value = channel.curve.at(clip.time);
            if (channel.path == qxAnimationClip::Channel::Weights)
                pose.weights[channel.node] = std::move(value);
            else
                places.emplace(channel.node, node).first->second.move(channel.path, value);
        }
    }
    for (const auto &place : places)
        pose.matrices.emplace(place.first, place.second.matrix());
    return pose;
}
