#include "Files/Gltf/Export/qxGltfExportPoses.h"

#include "Files/Gltf/Common/qxGltfExtras.h"
#include "Scene/qxPoseParts.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace {

const double _rightAngle = 1e-5; ///< the cosine of what is taken for one everywhere
const double _flat = 1e-6; ///< what is left of an axis that shows where another one does
const double _unitLength = 1e-3; ///< how far the length of a rotation may be off

typedef std::array<double, 3> Axis;

double product(const Axis &a, const Axis &b)
{
    return a[0] * b[0] + a[1] * b[1] + a[2] * b[2];
}

Axis cross(const Axis &a, const Axis &b)
{
    return {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
}

qxGltfPose poseOf(const osg::Vec3f &translation, const osg::Quaternion &rotation,
                  const osg::Vec3f &scale)
{
    return {qxGltfPose::Components,
            {translation[0], translation[1], translation[2], rotation.x(), rotation.y(),
             rotation.z(), rotation.w(), scale[0], scale[1], scale[2]}};
}

double lengthOf(const Axis &axis)
{
    return std::sqrt(product(axis, axis));
}

/// The axis without its share in the others, which have length 1 or none.
Axis across(Axis axis, const std::array<Axis, 3> &others)
{
    for (const Axis &other : others) {
        const double share = product(axis, other);
        for (std::size_t i = 0; i < 3; ++i)
            axis[i] -= share * other[i];
    }
    return axis;
}

Axis scaled(const Axis &axis, double factor)
{
    return {axis[0] * factor, axis[1] * factor, axis[2] * factor};
}

typedef std::array<Axis, 3> Axes;

Axes axesOf(const osg::Matrix &matrix)
{
    Axes axes;
    for (osg::UInt32 i = 0; i < 3; ++i)
        axes[i] = {double(matrix[i][0]), double(matrix[i][1]), double(matrix[i][2])};
    return axes;
}

bool areAtRightAngles(const Axes &axes)
{
    for (std::size_t i = 0; i < 3; ++i) {
        const Axis &one = axes[i];
        const Axis &other = axes[(i + 1) % 3];
        if (std::fabs(product(one, other)) > _rightAngle * lengthOf(one) * lengthOf(other))
            return false;
    }
    return true;
}

/// Any direction at right angles to the axes that are there.
Axis missingAxis(const Axes &axes)
{
    Axis best = {0, 0, 0};
    for (std::size_t i = 0; i < 3; ++i) {
        Axis unit = {0, 0, 0};
        unit[i] = 1;
        const Axis candidate = across(unit, axes);
        if (lengthOf(candidate) > lengthOf(best))
            best = candidate;
    }
    return scaled(best, 1 / lengthOf(best));
}

/// The pose with these axes, which are at right angles as far as numbers can tell: the longer ones
/// decide. Along an axis without length everything is flat.
qxGltfPose poseWith(const Axes &axes, const osg::Vec3f &translation)
{
    std::array<std::size_t, 3> order = {0, 1, 2};
    std::sort(order.begin(), order.end(), [&axes](std::size_t a, std::size_t b) {
        return lengthOf(axes[a]) > lengthOf(axes[b]);
    });
    Axes units = {};
    osg::Vec3f lengths(0, 0, 0);
    for (const std::size_t i : order) {
        const Axis rest = across(axes[i], units);
        const double length = lengthOf(rest);
        if (length <= _flat * lengthOf(axes[i]))
            continue;
        units[i] = scaled(rest, 1 / length);
        lengths[osg::UInt32(i)] = float(length);
    }
    for (Axis &unit : units) {
        if (lengthOf(unit) < 0.5)
            unit = missingAxis(units);
    }
    if (product(cross(units[0], units[1]), units[2]) < 0) { // a mirroring is no rotation
        units[0] = scaled(units[0], -1);
        lengths[0] = -lengths[0];
    }
    osg::Matrix turn;
    for (osg::UInt32 i = 0; i < 3; ++i) {
        for (osg::UInt32 c = 0; c < 3; ++c)
            turn[i][c] = float(units[i][c]);
    }
    return poseOf(translation, qxPoseParts(turn).rotation, lengths);
}

osg::Matrix matrixOf(const qxGltfPose &pose)
{
    if (pose.kind == qxGltfPose::Components)
        return qxGltfMatrix(pose.numbers.data());
    osg::Matrix matrix;
    matrix.setValue(pose.numbers.data());
    return matrix;
}

/// The turn that is to come before the matrix, so that its axes are at right angles afterwards:
/// the axes of its singular value decomposition, from the product with its transpose.
osg::Quaternion scalingAxes(const osg::Matrix &matrix)
{
    double largest = 0;
    for (osg::UInt32 i = 0; i < 9; ++i)
        largest = std::max(largest, std::fabs(double(matrix[i / 3][i % 3])));
    osg::Matrix squared;
    for (osg::UInt32 a = 0; a < 3; ++a) {
        for (osg::UInt32 b = 0; b < 3; ++b) {
            double sum = 0;
            for (osg::UInt32 c = 0; c < 3; ++c)
                sum += (double(matrix[a][c]) / largest) * (double(matrix[b][c]) / largest);
            squared[a][b] = float(sum);
        }
    }
    return qxPoseParts(squared).scaleOrientation;
}

/// Writes the numbers from `begin` on, unless they are those that nothing stands for.
void writePart(qxJson &node, const char *name, const float *begin,
               const std::vector<float> &identity)
{
    if (!std::equal(identity.begin(), identity.end(), begin))
        node[name] = qxGltfNumberList(begin, identity.size());
}

} // namespace

std::vector<qxGltfPose> qxGltfExportPoses(const qxGltfPose &pose)
{
    if (pose.kind == qxGltfPose::None)
        return {pose};
    if (pose.kind == qxGltfPose::Components) {
        qxGltfPose unit = pose;
        float *const r = &unit.numbers[3];
        const float length = std::sqrt(r[0] * r[0] + r[1] * r[1] + r[2] * r[2] + r[3] * r[3]);
        if (length != 1 && length > 0)
            std::for_each(r, r + 4, [length](float &number) { number /= length; });
        if (std::fabs(length - 1) < _unitLength)
            return {std::fabs(length - 1) < 1e-6f ? pose : unit};
    }
    const osg::Matrix matrix = matrixOf(pose);
    const osg::Vec3f translation(matrix[3][0], matrix[3][1], matrix[3][2]);
    if (areAtRightAngles(axesOf(matrix)))
        return {poseWith(axesOf(matrix), translation)};
    const osg::Quaternion axes = scalingAxes(matrix);
    osg::Matrix turn;
    axes.getValue(turn);
    osg::Matrix turned = matrix;
    turned.mult(turn);
    return {poseWith(axesOf(turned), translation),
            poseOf(osg::Vec3f(0, 0, 0), axes.inverse(), osg::Vec3f(1, 1, 1))};
}

void qxGltfWritePose(qxJson &node, const qxGltfPose &pose)
{
    if (pose.kind == qxGltfPose::None)
        return;
    writePart(node, "translation", &pose.numbers[0], {0, 0, 0});
    writePart(node, "rotation", &pose.numbers[3], {0, 0, 0, 1});
    writePart(node, "scale", &pose.numbers[7], {1, 1, 1});
}
