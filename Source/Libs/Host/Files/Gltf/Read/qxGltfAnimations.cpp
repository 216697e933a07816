#include "Files/Gltf/Read/qxGltfAnimations.h"

#include "Files/Gltf/Common/qxGltfCheckValues.h"
#include "Files/Gltf/Read/qxGltfAccessors.h"
#include "Files/Gltf/Read/qxGltfElements.h"
#include "Files/Gltf/Read/qxGltfModel.h"
#include "Files/Gltf/Read/qxGltfNodes.h"
#include "qxText.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <set>

namespace {

typedef qxAnimationClip::Channel Channel;
typedef std::shared_ptr<const std::vector<float>> Numbers;

/// The text of a member; empty when it is none.
std::string textOf(const qxJson &object, const char *name)
{
    const qxJson &text = qxGltfMember(object, name);
    return text.is_string() ? text.get<std::string>() : std::string();
}

Channel::Path pathOf(const std::string &name)
{
    static const std::map<std::string, Channel::Path> paths{{"translation", Channel::Translation},
                                                            {"rotation", Channel::Rotation},
                                                            {"scale", Channel::Scale},
                                                            {"weights", Channel::Weights}};
    const auto found = paths.find(name);
    if (found == paths.end())
        throw qxGltfError(qxFileText::tr("\"%1\" cannot be animated").arg(qxText::fromUtf8(name)));
    return found->second;
}

qxAnimationCurve::Interpolation interpolationOf(const std::string &name)
{
    static const std::map<std::string, qxAnimationCurve::Interpolation> kinds{
        {"", qxAnimationCurve::Linear},
        {"LINEAR", qxAnimationCurve::Linear},
        {"STEP", qxAnimationCurve::Step},
        {"CUBICSPLINE", qxAnimationCurve::CubicSpline}};
    const auto found = kinds.find(name);
    if (found == kinds.end())
        throw qxGltfError(
            qxFileText::tr("unknown interpolation \"%1\"").arg(qxText::fromUtf8(name)));
    return found->second;
}

void checkTimes(const std::vector<float> &times)
{
    if (times.empty())
        throw qxGltfError(qxFileText::tr("it has no keys"));
    float last = -1.0f;
    for (const float time : times) {
        if (!std::isfinite(time) || time < 0.0f || !(time > last))
            throw qxGltfError(qxFileText::tr("the times of its keys do not ascend"));
        last = time;
    }
}

/// Reads the curves and remembers their numbers, which they may share.
class Reader {
public:
    Reader(qxGltfModel &model, const qxGltfNodes &nodes) : m_model(model), m_nodes(nodes) {}

    qxAnimationClip clip(int index, const qxJson &json)
    {
        qxAnimationClip clip;
        clip.name = textOf(json, "name");
        const QString called = qxGltfLabel("animation", index, json);
        const qxJson &channels = qxGltfMember(json, "channels");
        int number = 0;
        for (const qxJson &each : channels.is_array() ? channels : qxJson::array()) {
            const QString owner = qxFileText::tr("%1, channel %2").arg(called).arg(number++);
            m_model.budget.take(owner, 1, sizeof(Channel));
            pay(owner, json, each);
            try {
                addChannel(json, each, clip);
            } catch (const qxGltfError &error) {
                m_model.warnings << owner + QStringLiteral(": ") + error.reason();
            }
        }
        return clip;
    }

private:
    /// Takes the memory of numbers that are read for the first time; what is wrong with them is
    /// found later.
    void pay(const QString &owner, const qxJson &animation, const qxJson &channel)
    {
        const qxJson &samplers = qxGltfMember(animation, "samplers");
        const qxJson &accessors = qxGltfSection(m_model.document.json, "accessors");
        const std::size_t sampler = std::size_t(qxGltfIndex(channel, "sampler"));
        if (!samplers.is_array() || sampler >= samplers.size())
            return;
        for (const char *member : {"input", "output"}) {
            const int index = qxGltfIndex(samplers[sampler], member);
            if (index < 0 || std::size_t(index) >= accessors.size() || !m_paid.insert(index).second)
                continue;
            const qxGltfElements elements =
                qxGltfAccessor::of(m_model.document.json, index).elements;
            m_model.budget.take(owner, elements.count, elements.components * qint64(sizeof(float)));
        }
    }

    /// What does not concern the shown scene, or what an extension defines, is no mistake.
    void addChannel(const qxJson &animation, const qxJson &json, qxAnimationClip &clip)
    {
        const qxJson &target = qxGltfMember(json, "target");
        const qxJson &node = qxGltfMember(target, "node");
        const std::string path = textOf(target, "path");
        if (path == "pointer" || (node.is_null() && target.is_object()))
            return;
        const QString it = qxFileText::tr("it");
        qxGltfCheckIndexValue(it, node, qxGltfSection(m_model.document.json, "nodes"), "node");
        const qxJson &samplers = qxGltfMember(animation, "samplers");
        if (!samplers.is_array())
            throw qxGltfError(qxFileText::tr("the animation has no \"samplers\""));
        qxGltfCheckIndexValue(it, qxGltfMember(json, "sampler"), samplers, "sampler");
        const int index = node.get<int>();
        Channel channel;
        channel.path = pathOf(path);
        channel.curve = curve(samplers[json["sampler"].get<std::size_t>()], channel.path,
                              widthOf(channel.path, index));
        if (m_nodes.node(index) == osg::NullFC)
            return;
        const osg::NodePtr moved =
            channel.path == Channel::Weights ? m_nodes.node(index) : m_nodes.placedNode(index);
        channel.node = moved.getFieldContainerId();
        clip.channels.push_back(std::move(channel));
    }

    std::size_t widthOf(Channel::Path path, int node) const
    {
        const qxJson &json = m_model.node(node);
        if (path != Channel::Weights && !qxGltfMember(json, "matrix").is_null())
            throw qxGltfError(qxFileText::tr("its node stands where a matrix says"));
        if (path != Channel::Weights)
            return path == Channel::Rotation ? 4 : 3;
        const int mesh = qxGltfIndex(json, "mesh");
        const qxJson &meshes = qxGltfSection(m_model.document.json, "meshes");
        if (mesh < 0 || meshes[std::size_t(mesh)]["primitives"].empty())
            throw qxGltfError(qxFileText::tr("its node has no morph targets"));
        const qxJson &targets = qxGltfMember(meshes[std::size_t(mesh)]["primitives"][0], "targets");
        if (!targets.is_array() || targets.empty())
            throw qxGltfError(qxFileText::tr("its node has no morph targets"));
        return targets.size();
    }

    qxAnimationCurve curve(const qxJson &sampler, Channel::Path path, std::size_t width)
    {
        qxAnimationCurve curve;
        curve.kind =
            path == Channel::Rotation ? qxAnimationCurve::Rotation : qxAnimationCurve::Plain;
        curve.interpolation = interpolationOf(textOf(sampler, "interpolation"));
        curve.width = width;
        curve.times = numbers(sampler, "input", 1);
        checkTimes(*curve.times);
        // The weights of a key are as many elements.
        const int components = path == Channel::Weights ? 1 : int(width);
        curve.values = numbers(sampler, "output", components);
        const std::size_t parts = curve.interpolation == qxAnimationCurve::CubicSpline ? 3 : 1;
        const std::size_t wanted = curve.times->size() * width * parts;
        if (curve.values->size() != wanted)
            throw qxGltfError(qxFileText::tr("its %1 keys need %2 numbers, it has %3")
                                  .arg(curve.times->size())
                                  .arg(wanted)
                                  .arg(curve.values->size()));
        return curve;
    }

    Numbers numbers(const qxJson &sampler, const char *member, int components)
    {
        const qxJson &document = m_model.document.json;
        qxGltfCheckIndexValue(QString::fromLatin1(member), qxGltfMember(sampler, member),
                              qxGltfSection(document, "accessors"), "accessor");
        const int index = sampler[member].get<int>();
        const qxGltfAccessor accessor = qxGltfAccessor::of(document, index);
        const int floats = TINYGLTF_COMPONENT_TYPE_FLOAT;
        if (accessor.elements.components != components
            || (accessor.elements.type != floats && !accessor.isNormalized))
            throw qxGltfError(
                qxFileText::tr("accessor %1 has elements of the wrong type").arg(index));
        Numbers &known = m_numbers[index];
        if (!known) {
            std::vector<float> read = qxGltfFloats(m_model, index);
            const auto isFinite = [](float number) { return std::isfinite(number); };
            if (!std::all_of(read.begin(), read.end(), isFinite))
                throw qxGltfError(
                    qxFileText::tr("accessor %1 holds something that is no finite number")
                        .arg(index));
            known = std::make_shared<std::vector<float>>(std::move(read));
        }
        return known;
    }

    qxGltfModel &m_model;
    const qxGltfNodes &m_nodes;
    std::map<int, Numbers> m_numbers; ///< by accessor
    std::set<int> m_paid; ///< accessors whose memory was taken
};

} // namespace

std::vector<qxAnimationClip> qxGltfAnimations(qxGltfModel &model, const qxGltfNodes &nodes)
{
    Reader reader(model, nodes);
    std::vector<qxAnimationClip> clips;
    for (const qxJson &animation : qxGltfSection(model.document.json, "animations"))
        clips.push_back(reader.clip(int(clips.size()), animation));
    return clips;
}
