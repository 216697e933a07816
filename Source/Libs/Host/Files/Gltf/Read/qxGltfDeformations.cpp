#include "Files/Gltf/Read/qxGltfDeformations.h"

#include "Animation/OSGDeformation.h"
#include "Files/Gltf/Read/qxGltfAccessors.h"
#include "Files/Gltf/Read/qxGltfElements.h"
#include "Files/Gltf/Read/qxGltfModel.h"
#include "Files/Gltf/Read/qxGltfNodes.h"
#include "Files/Gltf/Read/qxGltfPrimitive.h"

#include <algorithm>
#include <cmath>
#include <map>

namespace {

/// While values are read they are there twice.
const qint64 _bytesPerNumber = 8;

/// Of a joint of a node: its id and its matrix.
const qint64 _bytesPerJoint = 80;

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

/// The bind matrices of the skins, each read once.
class Skins {
public:
    explicit Skins(qxGltfModel &model) : m_model(model) {}

    /// Empty when the joints have unit matrices.
    const std::vector<float> &matrices(int skin)
    {
        const auto [known, isNew] = m_matrices.try_emplace(skin);
        const qxJson &document = m_model.document.json;
        const int accessor =
            qxGltfIndex(document["skins"][std::size_t(skin)], "inverseBindMatrices");
        if (!isNew || accessor < 0)
            return known->second;
        m_model.budget.take(qxGltfAccessor::of(document, accessor).elements.count,
                            16 * sizeof(float));
        return known->second = qxGltfFloats(m_model, accessor);
    }

private:
    qxGltfModel &m_model;
    std::map<int, std::vector<float>> m_matrices;
};

void setSkin(const osg::DeformationPtr &deformation, const qxJson &joints,
             const std::vector<float> &matrices, const qxGltfNodes &nodes)
{
    std::size_t begin = 0;
    for (const qxJson &joint : joints) {
        const osg::NodePtr node = nodes.node(joint.get<int>());
        osg::Matrix matrix;
        if (begin < matrices.size())
            matrix.setValue(&matrices[begin]);
        deformation->getJoints().push_back(node == osg::NullFC ? 0 : node.getFieldContainerId());
        deformation->getBindMatrices().push_back(matrix);
        begin += 16;
    }
}

/// The weights that the node states, else those of its mesh.
const qxJson &weightsOf(const qxJson &node, const qxJson &document)
{
    const qxJson &own = qxGltfMember(node, "weights");
    const std::size_t mesh = node["mesh"].get<std::size_t>();
    return own.is_null() ? qxGltfMember(document["meshes"][mesh], "weights") : own;
}

} // namespace

void qxGltfSetDeformation(const osg::GeometryPtr &geometry, const qxGltfPrimitive &primitive,
                          qxGltfModel &model)
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
    setTargets(deformation, primitive, model.budget);
    setJoints(deformation, primitive, model.budget);
}

void qxGltfSetDeformations(qxGltfModel &model, const qxGltfNodes &nodes)
{
    Skins skins(model);
    for (const int index : nodes.order()) {
        const qxJson &json = model.node(index);
        const int skin = qxGltfIndex(json, "skin");
        if (qxGltfIndex(json, "mesh") < 0)
            continue;
        const qxJson &weights = weightsOf(json, model.document.json);
        if (skin < 0 && weights.empty())
            continue;
        const osg::DeformationPtr deformation = osg::Deformation::create();
        const osg::NodePtr node = nodes.node(index);
        {
            const osg::CPEditor edit(node, osg::Node::AttachmentsFieldMask);
            node->addAttachment(deformation);
        }
        const osg::CPEditor edit(deformation);
        for (const qxJson &weight : weights)
            deformation->getWeights().push_back(weight.get<float>());
        if (skin < 0)
            continue;
        const qxJson &joints = model.document.json["skins"][std::size_t(skin)]["joints"];
        model.budget.take(qxGltfLabel("node", index, json), qint64(joints.size()), _bytesPerJoint);
        setSkin(deformation, joints, skins.matrices(skin), nodes);
    }
}
