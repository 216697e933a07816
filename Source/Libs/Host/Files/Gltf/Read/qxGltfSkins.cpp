#include "Files/Gltf/Read/qxGltfSkins.h"

#include "Animation/OSGDeformation.h"
#include "Files/Gltf/Read/qxGltfAccessors.h"
#include "Files/Gltf/Read/qxGltfElements.h"
#include "Files/Gltf/Read/qxGltfModel.h"
#include "Files/Gltf/Read/qxGltfNodes.h"

#include <map>

namespace {

/// Of a joint of a node: its id and its matrix.
const qint64 _bytesPerJoint = 80;

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

void qxGltfSetSkins(qxGltfModel &model, const qxGltfNodes &nodes)
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
