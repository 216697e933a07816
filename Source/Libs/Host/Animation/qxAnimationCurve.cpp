#include "Animation/qxAnimationCurve.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace {

/// Quaternions that are so near to each other go the straight way, which is the same.
const float _nearlySame = 0.9995f;

void normalize(std::vector<float> &quaternion)
{
    const float square =
        std::inner_product(quaternion.begin(), quaternion.end(), quaternion.begin(), 0.0f);
    if (!(square > 0.0f))
        return;
    for (float &number : quaternion)
        number /= std::sqrt(square);
}

/// The shares of two rotations whose quaternions have that product, on the shorter way.
std::pair<float, float> shares(float product, float share)
{
    const float sign = product < 0.0f ? -1.0f : 1.0f;
    if (std::fabs(product) > _nearlySame)
        return {1.0f - share, sign * share};
    const float angle = std::acos(std::fabs(product));
    const float sine = std::sin(angle);
    return {std::sin((1.0f - share) * angle) / sine, sign * std::sin(share * angle) / sine};
}

} // namespace

const float *qxAnimationCurve::part(std::size_t key, Part part) const
{
    const std::size_t place = interpolation == CubicSpline ? key * 3 + std::size_t(part) : key;
    return values->data() + place * width;
}

std::vector<float> qxAnimationCurve::at(float time) const
{
    const auto next = std::upper_bound(times->begin(), times->end(), time);
    const std::size_t key = std::size_t(std::max<std::ptrdiff_t>(next - times->begin() - 1, 0));
    std::vector<float> result;
    const bool isOutside = next == times->begin() || next == times->end();
    if (isOutside || interpolation == Step) {
        result.assign(part(key, Value), part(key, Value) + width);
    } else {
        const float share = (time - (*times)[key]) / ((*times)[key + 1] - (*times)[key]);
        result = interpolation == Linear ? mixed(key, share) : spline(key, share);
    }
    if (kind == Rotation)
        normalize(result);
    return result;
}

/// Linear; spherical for rotations.
std::vector<float> qxAnimationCurve::mixed(std::size_t key, float share) const
{
    const float *const from = part(key, Value);
    const float *const to = part(key + 1, Value);
    const auto [first, second] = kind == Rotation
        ? shares(std::inner_product(from, from + width, to, 0.0f), share)
        : std::pair(1.0f - share, share);
    std::vector<float> result(width);
    for (std::size_t i = 0; i < width; ++i)
        result[i] = first * from[i] + second * to[i];
    return result;
}

/// Hermite's, with the tangents of one second stretched to the distance of the keys.
std::vector<float> qxAnimationCurve::spline(std::size_t key, float t) const
{
    const float span = (*times)[key + 1] - (*times)[key];
    const float square = t * t;
    const float cube = square * t;
    const float weights[] = {2 * cube - 3 * square + 1, span * (cube - 2 * square + t),
                             3 * square - 2 * cube, span * (cube - square)};
    std::vector<float> result(width);
    for (std::size_t i = 0; i < width; ++i)
        result[i] = weights[0] * part(key, Value)[i] + weights[1] * part(key, Departure)[i]
            + weights[2] * part(key + 1, Value)[i] + weights[3] * part(key + 1, Arrival)[i];
    return result;
}
