#include "Files/Gltf/Export/qxGltfExportClips.h"

#include "Animation/qxAnimationPlayer.h"
#include "Files/Gltf/Common/qxGltfOrigin.h"
#include "Files/Gltf/Export/qxGltfExportChoice.h"
#include "Files/Gltf/Export/qxGltfPacked.h"
#include "qxText.h"

#include <algorithm>
#include <cmath>
#include <set>

namespace {

typedef qxAnimationClip::Channel Channel;

const char *const _paths[] = {"translation", "rotation", "scale", "weights"};
const char *const _interpolations[] = {"STEP", "LINEAR", "CUBICSPLINE"};

/// With rotations of length 1.
std::vector<float> valuesOf(const qxAnimationCurve &curve)
{
    std::vector<float> values = *curve.values;
    if (curve.kind != qxAnimationCurve::Rotation)
        return values;
    const bool isSpline = curve.interpolation == qxAnimationCurve::CubicSpline;
    for (std::size_t i = isSpline ? 4 : 0; i + 4 <= values.size(); i += isSpline ? 12 : 4) {
        float *v = &values[i];
        const float length = std::sqrt(v[0] * v[0] + v[1] * v[1] + v[2] * v[2] + v[3] * v[3]);
        if (length > 0 && std::fabs(length - 1) > 1e-4f)
            std::for_each(v, v + 4, [length](float &number) { number /= length; });
    }
    return values;
}

} // namespace

void qxGltfExportClips::write(qxExportOptions::Extent extent, qxExport &result)
{
    const std::vector<qxAnimationClip> &clips = qxAnimationPlayer::the().clips();
    for (const qxAnimationClip &clip : clips) {
        qxJson json = animation(clip);
        if (json.is_null() && extent == qxExportOptions::Shown) {
            result.losses +=
                {"animation", qxText::fromUtf8(clip.name), true, "what it moves is not there"};
            continue;
        }
        if (json.is_null()) { // which moves nothing
            const int zero = m_bin.addAccessor(qxGltfPacked::of(std::vector<float>{0}, 1),
                                               qxGltfBin::Values, true);
            const int none = m_bin.addAccessor(qxGltfPacked::of(std::vector<float>{0, 0, 0}, 3),
                                               qxGltfBin::Values, false);
            json["samplers"] = {{{"input", zero}, {"output", none}}};
            json["channels"] = {{{"sampler", 0}, {"target", {{"path", "translation"}}}}};
        } else if (json["channels"].size() < clip.channels.size()) {
            result.losses += {"animation", qxText::fromUtf8(clip.name), false,
                              QStringLiteral("it moves only %1 of %2 things")
                                  .arg(json["channels"].size())
                                  .arg(clip.channels.size())};
        }
        if (!clip.name.empty())
            json["name"] = clip.name;
        m_json["animations"].push_back(json);
    }
}

/// The node that a channel moves in the export; -1 when it is not there.
int qxGltfExportClips::targetOf(unsigned int node, bool isMoved) const
{
    for (const auto *list : {&m_origin.nodes, &m_origin.uppers}) {
        const auto found = list->find(node);
        if (found == list->end())
            continue;
        const int number = m_choice.numberOf(found->second);
        const bool hasPlace =
            number >= 0 && isMoved && m_json["nodes"][std::size_t(number)].contains("matrix");
        return hasPlace ? -1 : number;
    }
    return -1;
}

/// Null when it moves nothing.
qxJson qxGltfExportClips::animation(const qxAnimationClip &clip)
{
    qxJson json;
    std::set<std::pair<int, int>> moved;
    // Of several channels for one property the last one wins.
    for (auto channel = clip.channels.rbegin(); channel != clip.channels.rend(); ++channel) {
        const qxAnimationCurve &curve = channel->curve;
        const bool isWeights = channel->path == Channel::Weights;
        const int target = targetOf(channel->node, !isWeights);
        if (target < 0 || !moved.emplace(target, channel->path).second)
            continue;
        if (isWeights && !m_json["nodes"][std::size_t(target)].contains("mesh"))
            continue;
        qxJson sampler;
        sampler["input"] = accessorOf(curve.times, 1, [&curve] { return *curve.times; });
        if (curve.interpolation != qxAnimationCurve::Linear)
            sampler["interpolation"] = _interpolations[curve.interpolation];
        sampler["output"] = accessorOf(curve.values, isWeights ? 1 : int(curve.width),
                                       [&curve] { return valuesOf(curve); });
        const std::size_t number = json["samplers"].size();
        json["channels"].push_back(
            {{"sampler", number}, {"target", {{"node", target}, {"path", _paths[channel->path]}}}});
        json["samplers"].push_back(sampler);
    }
    return json;
}

/// Curves may share their numbers.
int qxGltfExportClips::accessorOf(const qxAnimationCurve::Numbers &shared, int components,
                                  const std::function<std::vector<float>()> &numbers)
{
    const auto [known, isNew] = m_accessors.try_emplace({shared.get(), components}, -1);
    if (isNew) // the input has bounds, and so may the output
        known->second =
            m_bin.addAccessor(qxGltfPacked::of(numbers(), components), qxGltfBin::Values, true);
    return known->second;
}
