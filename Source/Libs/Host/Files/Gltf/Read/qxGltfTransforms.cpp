#include "Files/Gltf/Read/qxGltfTransforms.h"

#include "Files/Gltf/Common/qxGltfExtras.h"
#include "Files/Gltf/Common/qxTinyGltf.h"

#include <OpenSG/OSGTransform.h>

#include <algorithm>

namespace {

osg::Vec3f vectorOf(const std::vector<double> &values, float fallback)
{
    if (values.size() != 3)
        return osg::Vec3f(fallback, fallback, fallback);
    return osg::Vec3f(float(values[0]), float(values[1]), float(values[2]));
}

/// Four zeros are no rotation; some tools write them for none.
osg::Quaternion rotationOf(const std::vector<double> &values)
{
    osg::Quaternion rotation;
    const auto isZero = [](double value) { return float(value) == 0.0f; };
    if (values.size() == 4 && !std::all_of(values.begin(), values.end(), isZero))
        rotation = qxGltfRotation(std::vector<float>(values.begin(), values.end()).data());
    return rotation;
}

} // namespace

void qxGltfSetComponents(const osg::ComponentTransformPtr &transform, const tinygltf::Node &node)
{
    const osg::CPEditor edit(transform,
                             osg::ComponentTransform::TranslationFieldMask
                                 | osg::ComponentTransform::RotationFieldMask
                                 | osg::ComponentTransform::ScaleFieldMask);
    transform->setTranslation(vectorOf(node.translation, 0));
    transform->setRotation(rotationOf(node.rotation));
    transform->setScale(vectorOf(node.scale, 1));
}

bool qxGltfHasTransform(const tinygltf::Node &node)
{
    return !(node.matrix.empty() && node.translation.empty() && node.rotation.empty()
             && node.scale.empty());
}

osg::NodeCorePtr qxGltfTransform(const tinygltf::Node &node)
{
    if (node.matrix.size() == 16) {
        const std::vector<float> values(node.matrix.begin(), node.matrix.end());
        osg::Matrix matrix;
        matrix.setValue(values.data());
        const osg::TransformPtr transform = osg::Transform::create();
        const osg::CPEditor edit(transform, osg::Transform::MatrixFieldMask);
        transform->setMatrix(matrix);
        return transform;
    }
    if (!qxGltfHasTransform(node))
        return osg::NodeCorePtr();
    const osg::ComponentTransformPtr transform = osg::ComponentTransform::create();
    qxGltfSetComponents(transform, node);
    return transform;
}

osg::SwitchComponentTransformPtr qxGltfTransformSwitch(const tinygltf::Node &node,
                                                       const std::vector<osg::Matrix> &states,
                                                       osg::UInt32 choice)
{
    const osg::SwitchComponentTransformPtr transform = osg::SwitchComponentTransform::create();
    qxGltfSetComponents(transform, node);
    const osg::CPEditor edit(transform,
                             osg::SwitchComponentTransform::ChoiceFieldMask
                                 | osg::SwitchComponentTransform::StatesFieldMask);
    for (const osg::Matrix &state : states)
        transform->getStates().push_back(state);
    transform->setChoice(choice);
    return transform;
}
