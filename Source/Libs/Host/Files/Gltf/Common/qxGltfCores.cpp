#include "Files/Gltf/Common/qxGltfCores.h"

#include "Files/Gltf/Common/qxGltfJson.h"
#include "OSGOverlayCore.h"
#include "OSGSwitchComponentTransform.h"
#include "Scene/qxPoseParts.h"
#include "Scene/qxTransformStates.h"
#include "qxNames.h"

#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGMaterialGroup.h>
#include <OpenSG/OSGSwitch.h>

namespace {

std::vector<float> numbersOf(const osg::Vec3f &translation, const osg::Quaternion &rotation,
                             const osg::Vec3f &scale)
{
    return {translation[0], translation[1], translation[2], rotation.x(), rotation.y(),
            rotation.z(),   rotation.w(),   scale[0],       scale[1],     scale[2]};
}

std::vector<float> numbersOf(const osg::Matrix &matrix)
{
    const qxPoseParts parts(matrix);
    return numbersOf(parts.translation, parts.rotation, parts.scale);
}

std::vector<float> allNumbers(const osg::MFMatrix &matrices)
{
    std::vector<float> numbers;
    for (const osg::Matrix &matrix : matrices) {
        const std::vector<float> ten = numbersOf(matrix);
        numbers.insert(numbers.end(), ten.begin(), ten.end());
    }
    return numbers;
}

/// A centre and a scale along other axes have no place in translation, rotation and scale.
bool fitsComponents(const osg::ComponentTransformPtr &transform)
{
    return transform->getCenter() == osg::Vec3f(0, 0, 0)
        && transform->getScaleOrientation() == osg::Quaternion();
}

qxGltfPose matrixPose(const osg::Matrix &matrix)
{
    const float *values = matrix.getValues();
    return {qxGltfPose::Matrix, std::vector<float>(values, values + 16)};
}

bool isPlainGroup(const osg::NodeCorePtr &core)
{
    const osg::MaterialGroupPtr group = osg::MaterialGroupPtr::dcast(core);
    if (group != osg::NullFC)
        return group->getMaterial() == osg::NullFC;
    return core->getType() == osg::Group::getClassType();
}

} // namespace

QString qxGltfLabel(const osg::NodePtr &node)
{
    return qxFileText::tr("node \"%1\"").arg(qxNames::nameOf(node));
}

bool qxGltfIsSwitch(const osg::NodeCorePtr &core)
{
    return osg::SwitchPtr::dcast(core) != osg::NullFC;
}

bool qxGltfNeedsPose(const osg::NodeCorePtr &core)
{
    return qxGltfIsSwitch(core) || osg::UberLightPtr::dcast(core) != osg::NullFC;
}

bool qxGltfIsPlainTransform(const osg::NodeCorePtr &core)
{
    return osg::TransformPtr::dcast(core) != osg::NullFC
        && osg::SwitchComponentTransformPtr::dcast(core) == osg::NullFC;
}

qxGltfPose qxGltfPoseOf(const osg::NodeCorePtr &core)
{
    const osg::TransformPtr transform = osg::TransformPtr::dcast(core);
    if (transform == osg::NullFC)
        return qxGltfPose();
    const osg::ComponentTransformPtr components = osg::ComponentTransformPtr::dcast(core);
    if (components == osg::NullFC || !fitsComponents(components))
        return matrixPose(transform->getMatrix());
    return {
        qxGltfPose::Components,
        numbersOf(components->getTranslation(), components->getRotation(), components->getScale())};
}

void qxGltfDescribeCore(const osg::NodePtr &node, qxGltfNodeState &state)
{
    const osg::NodeCorePtr core = node->getCore();
    if (core == osg::NullFC)
        return;
    const osg::SwitchComponentTransformPtr states = osg::SwitchComponentTransformPtr::dcast(core);
    const osg::SwitchPtr choice = osg::SwitchPtr::dcast(core);
    const osg::UberLightPtr light = osg::UberLightPtr::dcast(core);
    const osg::OverlayCorePtr overlay = osg::OverlayCorePtr::dcast(core);
    state.pose = qxGltfPoseOf(core);
    if (choice != osg::NullFC) {
        state.switchChoice = choice->getChoice();
    } else if (states != osg::NullFC) {
        state.transformChoice = int(states->getChoice());
        state.switchTransforms = allNumbers(states->getStates());
    } else if (light != osg::NullFC) {
        state.light = qxGltfLight::of(light);
        state.lightOn = light->getOn();
    } else if (overlay != osg::NullFC) {
        state.overlayLayer = overlay->getLayer();
    } else if (state.pose.kind == qxGltfPose::None && !isPlainGroup(core)
               && osg::GeometryPtr::dcast(core) == osg::NullFC) {
        throw qxGltfError(qxFileText::tr("%1 cannot be written: scene files have no form for a %2")
                              .arg(qxGltfLabel(node), core->getTypeName()));
    }
}

void qxGltfDescribeTransformStates(const osg::NodePtr &node, qxGltfTransformStates &result)
{
    const osg::TransformStatesPtr states =
        osg::TransformStatesPtr::dcast(node->findAttachment(osg::TransformStates::getClassType()));
    if (states == osg::NullFC)
        return;
    result.names.assign(states->getNames().begin(), states->getNames().end());
    result.numbers = allNumbers(states->getPoses());
    result.selected = states->getSelected();
    const auto choices = osg::SwitchComponentTransformPtr::dcast(node->getCore());
    const osg::MFMatrix &all = states->getPoses();
    if (choices == osg::NullFC || choices->getChoice() >= choices->getCount()
        || std::size_t(result.selected) >= all.size())
        return;
    const osg::Matrix matrix = choices->getMatrix();
    result.isShown = matrix == qxTransformStates::shown(all[std::size_t(result.selected)])
        && matrix != qxTransformStates::shown(choices->getStates()[choices->getChoice()]);
}
