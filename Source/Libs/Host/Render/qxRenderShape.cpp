#include "Render/qxRenderShape.h"

#include "Animation/OSGDeformation.h"
#include "Animation/qxPose.h"
#include "qxNodeWalk.h"

#include <algorithm>

namespace {

typedef std::vector<osg::Vec3f> Vectors;

void addTargets(Vectors &values, const float *changes, float weight)
{
    for (osg::Vec3f &value : values) {
        value += osg::Vec3f(changes[0], changes[1], changes[2]) * weight;
        changes += 3;
    }
}

/// Moves positions, and normals if they move, by the morph targets.
void morph(qxRenderGeometry::Form &form, osg::Deformation &deformation,
           const std::vector<float> &weights)
{
    const std::size_t size = 3 * form.positions.size();
    const bool movesNormals = deformation.getNormals() == osg::Deformation::Moved;
    const std::size_t step = movesNormals ? 2 * size : size;
    const osg::MFReal32 &targets = deformation.getTargets();
    bool isMoved = false;
    for (std::size_t i = 0; i < weights.size() && (i + 1) * step <= targets.size(); ++i) {
        if (weights[i] == 0.0f || size == 0)
            continue;
        isMoved = true;
        addTargets(form.positions, &targets[i * step], weights[i]);
        if (movesNormals && form.normals.size() == form.positions.size())
            addTargets(form.normals, &targets[i * step + size], weights[i]);
    }
    if (isMoved && deformation.getNormals() == osg::Deformation::Computed)
        form.normals.clear();
}

osg::Matrix weighted(const osg::MFUInt32 &joints, const float *weights, std::size_t first,
                     const qxRenderShape &shape, std::size_t count)
{
    osg::Matrix sum;
    std::fill_n(sum.getValues(), 16, 0.0f);
    float total = 0;
    for (std::size_t k = 0; k < count; ++k) {
        const std::size_t joint = joints[first + k];
        if (weights[k] == 0.0f || joint >= shape.joints.size())
            continue;
        const float *const from = shape.joints[joint].getValues();
        for (int i = 0; i < 16; ++i)
            sum.getValues()[i] += from[i] * weights[k];
        total += weights[k];
    }
    if (!(total > 0.0f))
        return shape.joints.front();
    for (int i = 0; i < 16; ++i)
        sum.getValues()[i] /= total;
    return sum;
}

/// The direction that is at right angles to what the matrix makes of a surface with that normal.
osg::Vec3f turnedNormal(const osg::Matrix &matrix, const osg::Vec3f &normal)
{
    osg::Vec3f x[3];
    for (osg::UInt32 i = 0; i < 3; ++i)
        x[i] = osg::Vec3f(matrix[i][0], matrix[i][1], matrix[i][2]);
    const osg::Vec3f result =
        x[1].cross(x[2]) * normal[0] + x[2].cross(x[0]) * normal[1] + x[0].cross(x[1]) * normal[2];
    return qxUnit(x[0].dot(x[1].cross(x[2])) < 0.0f ? -result : result);
}

/// The fourth value only says on which side the bitangent is.
void turn(osg::Vec4f &tangent, const osg::Matrix &matrix)
{
    osg::Vec3f turned;
    matrix.multMatrixVec(osg::Vec3f(tangent[0], tangent[1], tangent[2]), turned);
    turned = qxUnit(turned);
    tangent = osg::Vec4f(turned[0], turned[1], turned[2], tangent[3]);
}

/// Moves every vertex as its joints do.
void skin(qxRenderGeometry::Form &form, osg::Deformation &deformation, const qxRenderShape &shape)
{
    const std::size_t vertices = form.positions.size();
    const osg::MFUInt32 &joints = deformation.getJoints();
    const osg::MFReal32 &weights = deformation.getWeights();
    const std::size_t count = vertices > 0 ? joints.size() / vertices : 0;
    const bool isWhole =
        count > 0 && joints.size() == count * vertices && weights.size() == joints.size();
    for (std::size_t i = 0; i < vertices; ++i) {
        const osg::Matrix matrix = isWhole
            ? weighted(joints, &weights[i * count], i * count, shape, count)
            : shape.joints.front();
        osg::Pnt3f moved;
        matrix.multMatrixPnt(osg::Pnt3f(form.positions[i]), moved);
        form.positions[i] = osg::Vec3f(moved);
        if (i < form.normals.size())
            form.normals[i] = turnedNormal(matrix, form.normals[i]);
        if (i < form.tangents.size())
            turn(form.tangents[i], matrix);
    }
}

} // namespace

bool qxRenderShape::isRest() const
{
    return joints.empty()
        && std::all_of(weights.begin(), weights.end(), [](float weight) { return weight == 0.0f; });
}

bool qxRenderShape::operator==(const qxRenderShape &other) const
{
    return weights == other.weights && joints == other.joints;
}

qxRenderShape qxRenderShapes::of(const osg::NodePtr &node)
{
    qxRenderShape shape;
    const osg::NodePtr owner = node == osg::NullFC ? node : node->getParent();
    if (owner == osg::NullFC)
        return shape;
    const osg::DeformationPtr own = osg::Deformation::of(owner);
    const auto &posed = qxPose::the().weights;
    const auto weights = posed.find(owner.getFieldContainerId());
    if (weights != posed.end())
        shape.weights = weights->second;
    else if (own != osg::NullFC)
        shape.weights.assign(own->getWeights().begin(), own->getWeights().end());
    for (std::size_t i = 0; own != osg::NullFC && i < own->getJoints().size(); ++i) {
        shape.joints.push_back(toWorld(qxNodeWithId(own->getJoints()[i])));
        shape.joints.back().mult(own->getBindMatrices()[i]);
    }
    return shape;
}

/// From the topmost node that is not known down, because scenes may be deeper than the call stack.
osg::Matrix qxRenderShapes::toWorld(const osg::NodePtr &node)
{
    std::vector<osg::NodePtr> open;
    osg::Matrix matrix;
    for (osg::NodePtr at = node; at != osg::NullFC; at = at->getParent()) {
        const auto known = m_toWorld.find(at.getFieldContainerId());
        if (known != m_toWorld.end()) {
            matrix = known->second;
            break;
        }
        open.push_back(at);
    }
    const auto &posed = qxPose::the().matrices;
    for (auto at = open.rbegin(); at != open.rend(); ++at) {
        const auto local = posed.find(at->getFieldContainerId());
        if (local != posed.end())
            matrix.mult(local->second);
        else if ((*at)->getCore() != osg::NullFC)
            (*at)->getCore()->accumulateMatrix(matrix);
        m_toWorld[at->getFieldContainerId()] = matrix;
    }
    return matrix;
}

std::shared_ptr<const qxRenderGeometry>
qxShaped(const qxRenderGeometry &rest, const osg::GeometryPtr &core, const qxRenderShape &shape)
{
    qxRenderGeometry::Form form = rest.form();
    osg::Deformation &deformation = *osg::Deformation::of(core);
    morph(form, deformation, shape.weights);
    if (shape.isSkinned())
        skin(form, deformation, shape);
    return rest.shaped(std::move(form));
}
