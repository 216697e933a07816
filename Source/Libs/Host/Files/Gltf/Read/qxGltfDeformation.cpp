#include "Files/Gltf/Read/qxGltfDeformation.h"

#include "Animation/OSGDeformation.h"
#include "Files/Gltf/Read/qxGltfPrimitive.h"
#include "Files/qxMemoryBudget.h"

#include <algorithm>
#include <cmath>

namespace {

/// While values are read they are there twice.
const qint64 _bytesPerNumber = 8;

/// Joints and weights come in sets of four.
struct JointSet {
    const char *joints;
    const char *weights;
};

const JointSet _jointSets[] = {{"JOINTS_0", "WEIGHTS_0"}, {"JOINTS_1", "WEIGHTS_1"}};

/// What is no number moves nothing.
void append(const std::vector<float> &values, osg::MFReal32 &to)
{
    for (const float value : values)
        to.push_back(std::isfinite(value) ? value : 0.0f);
}

void setTargets(const osg::DeformationPtr &deformation, const qxGltfPrimitive &primitive,
                qxMemoryBudget &budget)
{
    const int targets = primitive.targets();
    bool isMoved = false;
    for (int i = 0; i < targets; ++i)
        isMoved = isMoved || primitive.hasTarget(i, "NORMAL");
    isMoved = isMoved && primitive.has("NORMAL");
    deformation->getNormals() = isMoved ? osg::Deformation::Moved
        : primitive.has("NORMAL")       ? osg::Deformation::Kept
                                        : osg::Deformation::Computed;
    budget.take(targets * primitive.vertices(), (isMoved ? 6 : 3) * _bytesPerNumber);
    for (int i = 0; i < targets; ++i) {
        append(primitive.targetValues(i, "POSITION"), deformation->getTargets());
        if (isMoved)
            append(primitive.targetValues(i, "NORMAL"), deformation->getTargets());
    }
}

void setJoints(const osg::DeformationPtr &deformation, const qxGltfPrimitive &primitive,
               qxMemoryBudget &budget)
{
    std::vector<std::vector<float>> joints;
    std::vector<std::vector<float>> weights;
    for (const JointSet &set : _jointSets) {
        if (!primitive.has(set.joints) || !primitive.has(set.weights))
            break;
        budget.take(primitive.vertices(), 16 * _bytesPerNumber);
        joints.push_back(primitive.values(set.joints, 4));
        weights.push_back(primitive.values(set.weights, 4));
    }
    const std::size_t vertices = joints.empty() ? 0 : std::size_t(primitive.vertices());
    for (std::size_t i = 0; i < 4 * vertices; i += 4) {
        for (std::size_t set = 0; set < joints.size(); ++set) {
            for (std::size_t k = i; k < i + 4; ++k) {
                deformation->getJoints().push_back(osg::UInt32(std::max(0.0f, joints[set][k])));
                const float weight = weights[set][k];
                deformation->getWeights().push_back(std::isfinite(weight) ? weight : 0.0f);
            }
        }
    }
}

} // namespace

void qxGltfSetDeformation(const osg::GeometryPtr &geometry, const qxGltfPrimitive &primitive,
                          qxMemoryBudget &budget)
{
    const bool isSkinned = primitive.has("JOINTS_0") && primitive.has("WEIGHTS_0");
    if (!isSkinned && primitive.targets() == 0)
        return;
    const osg::DeformationPtr deformation = osg::Deformation::create();
    {
        const osg::CPEditor edit(geometry, osg::Geometry::AttachmentsFieldMask);
        geometry->addAttachment(deformation);
    }
    const osg::CPEditor edit(deformation);
    setTargets(deformation, primitive, budget);
    setJoints(deformation, primitive, budget);
}
