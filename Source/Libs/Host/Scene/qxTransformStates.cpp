#include "Scene/qxTransformStates.h"

#include "Scene/qxPoseParts.h"

#include <OpenSG/OSGRefPtr.h>

#include <algorithm>
#include <cmath>

namespace {

/// The matrix of a plain transform, or the components of one that has them; false for other cores.
bool moveTo(const osg::NodeCorePtr &core, const osg::Matrix &pose)
{
    const osg::ComponentTransformPtr components = osg::ComponentTransformPtr::dcast(core);
    if (components != osg::NullFC) {
        qxTransformStates::setPose(components, pose);
        return true;
    }
    const osg::TransformPtr transform = osg::TransformPtr::dcast(core);
    if (transform == osg::NullFC)
        return false;
    const osg::CPEditor edit(transform, osg::Transform::MatrixFieldMask);
    transform->setMatrix(pose);
    return true;
}

/// Whether the numbers differ by no more than taking a pose apart and putting it together does.
bool isSamePose(const osg::Matrix &one, const osg::Matrix &other)
{
    const osg::Real32 *const a = one.getValues();
    const osg::Real32 *const b = other.getValues();
    for (int i = 0; i < 16; ++i) {
        if (std::fabs(a[i] - b[i]) > 1e-4f * std::max(1.0f, std::fabs(b[i])))
            return false;
    }
    return true;
}

} // namespace

osg::TransformStatesPtr qxTransformStates::of(const osg::NodePtr &node)
{
    if (node == osg::NullFC)
        return osg::TransformStatesPtr();
    return osg::TransformStatesPtr::dcast(
        node->findAttachment(osg::TransformStates::getClassType()));
}

void qxTransformStates::set(const osg::NodePtr &node, const std::vector<qxTransformState> &states,
                            int selected)
{
    const osg::TransformStatesPtr attachment = osg::TransformStates::create();
    {
        const osg::CPEditor edit(attachment);
        for (const qxTransformState &state : states) {
            attachment->getNames().push_back(state.name);
            attachment->getPoses().push_back(state.pose);
        }
        attachment->setSelected(selected);
    }
    const osg::CPEditor edit(node, osg::Node::AttachmentsFieldMask);
    node->addAttachment(attachment);
}

bool qxTransformStates::select(const osg::NodePtr &node, int index)
{
    const osg::TransformStatesPtr states = of(node);
    if (states == osg::NullFC || index < 0 || osg::UInt32(index) >= states->getPoses().size())
        return false;
    if (!moveTo(node->getCore(), states->getPoses()[osg::UInt32(index)]))
        return false;
    const osg::CPEditor edit(states, osg::TransformStates::SelectedFieldMask);
    states->setSelected(index);
    return true;
}

bool qxTransformStates::isInSelected(const osg::NodePtr &node)
{
    const osg::TransformStatesPtr states = of(node);
    if (states == osg::NullFC || states->getSelected() < 0
        || osg::UInt32(states->getSelected()) >= states->getPoses().size())
        return false;
    const osg::TransformPtr transform = osg::TransformPtr::dcast(node->getCore());
    return transform != osg::NullFC
        && isSamePose(transform->getMatrix(),
                      states->getPoses()[osg::UInt32(states->getSelected())]);
}

void qxTransformStates::setPose(const osg::ComponentTransformPtr &transform,
                                const osg::Matrix &pose)
{
    const qxPoseParts parts(pose);
    if (!parts.isFinite())
        return;

    typedef osg::ComponentTransform Fields;
    const osg::CPEditor edit(transform,
                             Fields::TranslationFieldMask | Fields::RotationFieldMask
                                 | Fields::ScaleFieldMask | Fields::ScaleOrientationFieldMask
                                 | Fields::CenterFieldMask);
    transform->setTranslation(parts.translation);
    transform->setRotation(parts.rotation);
    transform->setScale(parts.scale);
    transform->setScaleOrientation(parts.scaleOrientation);
    transform->setCenter(osg::Vec3f(0, 0, 0));
}

osg::Matrix qxTransformStates::shown(const osg::Matrix &pose)
{
    const osg::ComponentTransformPtr transform = osg::ComponentTransform::create();
    const osg::RefPtr<osg::ComponentTransformPtr> kept(transform);
    setPose(transform, pose);
    return transform->getMatrix();
}
