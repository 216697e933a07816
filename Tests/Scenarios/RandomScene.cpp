#include "RandomScene.h"

#include <algorithm>

namespace {

/// Makes the parts of one scene file.
class Maker {
public:
    Maker(RandomChoices &random, qxJson &json) : m_random(random), m_json(json) {}

    void makeMaterials();
    void makeSwitchMaterials();
    void makeMeshes();
    void makeLightsAndCameras();
    void makeNodes();
    void makeScenes();
    void makeDocument();

private:
    int anyOf(const char *section);
    void makePlace(qxJson &node);
    void makeExtras(qxJson &extras);
    void makeSurroundings(qxJson &extras);
    qxJson poses(unsigned count);
    std::string attribute();
    std::string variant(const char *tag);

    RandomChoices &m_random;
    qxJson &m_json;
};

/// The place of an entry of that list, -1 when it is empty.
int Maker::anyOf(const char *section)
{
    const std::size_t count = qxGltfSection(m_json, section).size();
    return count == 0 ? -1 : int(m_random.below(unsigned(count)));
}

void Maker::makeMaterials()
{
    for (unsigned i = m_random.below(5); i > 0; --i) {
        qxJson material = qxJson::object();
        if (m_random.percent(85))
            material["name"] = m_random.name();
        if (m_random.percent(40))
            material["pbrMetallicRoughness"] = {
                {"baseColorFactor", {m_random.positive(), 0.1, 0.3, 0.7}},
                {"roughnessFactor", m_random.positive()}};
        if (m_random.percent(20))
            material["alphaMode"] = m_random.of({"BLEND", "MASK", "OPAQUE"});
        if (m_random.percent(15))
            material["extras"]["qxEnvironment"] = true;
        if (m_random.percent(4))
            material["extras"] = "a text";
        m_json["materials"].push_back(material);
    }
}

void Maker::makeSwitchMaterials()
{
    if (!m_random.percent(35))
        return;
    for (unsigned i = 1 + m_random.below(3); i > 0; --i) {
        qxJson materials = qxJson::array();
        for (unsigned count = m_random.below(4); count > 0; --count)
            materials.push_back(m_random.percent(15) ? -1 : anyOf("materials"));
        m_json["extras"]["qxSwitchMaterials"].push_back(
            {{"name", m_random.name()}, {"materials", materials}, {"choice", m_random.below(4)}});
    }
    if (m_random.percent(5))
        m_json["extras"]["qxSwitchMaterials"][0] = 7;
}

void Maker::makeMeshes()
{
    const bool mapped = m_random.percent(30) && anyOf("materials") >= 0;
    if (mapped)
        m_json["extensions"]["KHR_materials_variants"]["variants"] = {{{"name", m_random.name()}},
                                                                      {{"name", m_random.name()}}};
    for (unsigned i = 1 + m_random.below(3); i > 0; --i) {
        qxJson mesh = qxJson::object();
        if (m_random.percent(60))
            mesh["name"] = m_random.name();
        for (unsigned parts = 1 + m_random.below(3); parts > 0; --parts) {
            qxJson part = {{"attributes", {{"POSITION", 0}}}};
            if (m_random.percent(5))
                part["attributes"] = qxJson::object();
            if (m_random.percent(75) && anyOf("materials") >= 0)
                part["material"] = anyOf("materials");
            if (mapped && m_random.percent(60))
                part["extensions"]["KHR_materials_variants"]["mappings"] = {
                    {{"material", anyOf("materials")}, {"variants", {m_random.below(2)}}}};
            if (m_random.percent(30))
                part["extras"]["qxSwitchMaterial"] = int(m_random.below(4)) - 1;
            mesh["primitives"].push_back(part);
        }
        m_json["meshes"].push_back(mesh);
    }
}

void Maker::makeLightsAndCameras()
{
    qxJson &lights = m_json["extensions"]["KHR_lights_punctual"]["lights"];
    for (const char *kind : {"point", "spot", "directional", "odd"})
        lights.push_back({{"type", kind}, {"intensity", m_random.positive()}});
    lights[0]["name"] = m_random.name();
    m_json["cameras"] = {{{"name", m_random.name()},
                          {"type", "perspective"},
                          {"perspective", {{"yfov", 0.5}, {"znear", 0.1}}}},
                         {{"type", "orthographic"},
                          {"orthographic", {{"xmag", 1}, {"ymag", 2}, {"znear", 0}, {"zfar", 9}}}}};
    if (m_random.percent(20))
        m_json["animations"] = {{{"name", m_random.name()},
                                 {"channels", qxJson::array()},
                                 {"samplers", qxJson::array()}}};
}

qxJson Maker::poses(unsigned count)
{
    qxJson list = qxJson::array();
    for (; count > 0; --count) {
        for (const float number : m_random.pose())
            list.push_back(number);
    }
    return list;
}

void Maker::makePlace(qxJson &node)
{
    const std::vector<float> pose = m_random.pose();
    if (m_random.percent(30))
        node["translation"] = {pose[0], pose[1], pose[2]};
    if (m_random.percent(20))
        node["rotation"] = {pose[3], pose[4], pose[5], pose[6]};
    if (m_random.percent(20))
        node["scale"] = {pose[7], pose[8], pose[9]};
    if (!m_random.percent(10))
        return;
    for (const char *member : {"translation", "rotation", "scale"})
        node.erase(member);
    for (int i = 0; i < 16; ++i)
        node["matrix"].push_back(i % 5 == 0 ? m_random.number() : i % 4 == 3 ? 0 : pose[i % 3]);
    node["matrix"][15] = 1;
}

void Maker::makeSurroundings(qxJson &extras)
{
    if (m_random.percent(15))
        extras["qxOverlay"] = true;
    if (m_random.percent(8))
        extras["qxOverlayLayer"] = int(m_random.below(4)) - 1;
    if (m_random.percent(12))
        extras["qxEnvironment"] = true;
    if (m_random.percent(15))
        extras["qxHiddenParts"] = {m_random.below(3)};
    if (m_random.percent(10))
        extras["qxLightOn"] = m_random.percent(50);
    if (m_random.percent(3))
        extras["other"] = "kept";
}

void Maker::makeExtras(qxJson &extras)
{
    makeSurroundings(extras);
    if (m_random.percent(35))
        extras["qxSwitch"] = int(m_random.below(6)) - 2;
    if (m_random.percent(15))
        extras["qxTransformStates"] = poses(1 + m_random.below(3));
    if (m_random.percent(15))
        extras["qxTransformChoice"] = m_random.below(4);
    if (m_random.percent(25))
        extras["qxSharesCoreOf"] = m_random.name();
    if (m_random.percent(15)) {
        const unsigned count = 1 + m_random.below(3);
        extras["qxPoses"] = poses(count);
        for (unsigned i = 0; i < count; ++i)
            extras["qxPoseNames"].push_back(m_random.name());
        if (m_random.percent(60))
            extras["qxPose"] = m_random.below(4);
    }
    for (auto &entry : extras) { // in an unusable form
        if (m_random.percent(2))
            entry = m_random.of<qxJson>({"x", 1.5, qxJson::array(), qxJson::object(), 3, true});
    }
}

void Maker::makeNodes()
{
    const unsigned count = 3 + m_random.below(10);
    qxJson &nodes = m_json["nodes"];
    for (unsigned i = 0; i < count; ++i) {
        qxJson node = qxJson::object();
        if (m_random.percent(85))
            node["name"] = m_random.name();
        makePlace(node);
        qxJson extras = qxJson::object();
        makeExtras(extras);
        if (!extras.empty())
            node["extras"] = extras;
        else if (m_random.percent(5))
            node["extras"] = m_random.of<qxJson>({"text", 7, qxJson::array()});
        if (m_random.percent(35))
            node["mesh"] = anyOf("meshes");
        if (m_random.percent(15))
            node["extensions"]["KHR_lights_punctual"]["light"] = m_random.below(4);
        if (m_random.percent(10))
            node["camera"] = anyOf("cameras");
        if (m_random.percent(15))
            node["extensions"]["KHR_node_visibility"]["visible"] = m_random.percent(20);
        nodes.push_back(node);
        if (i > 0 && m_random.percent(65))
            nodes[m_random.below(i)]["children"].push_back(i);
    }
}

void Maker::makeScenes()
{
    if (m_random.percent(15))
        return;
    std::vector<bool> isChild(m_json["nodes"].size(), false);
    for (const qxJson &node : m_json["nodes"]) {
        for (const qxJson &child : qxGltfMember(node, "children"))
            isChild[child.get<std::size_t>()] = true;
    }
    const unsigned count = 1 + m_random.below(2);
    for (unsigned scene = 0; scene < count; ++scene) {
        qxJson roots = qxJson::array();
        for (std::size_t i = 0; i < isChild.size(); ++i) {
            if (!isChild[i] && m_random.percent(scene == 0 ? 95 : 40))
                roots.push_back(i);
        }
        m_json["scenes"].push_back(qxJson::object());
        if (!roots.empty())
            m_json["scenes"][scene]["nodes"] = roots;
    }
    if (count == 2 && m_random.percent(30))
        m_json["scene"] = 1;
}

std::string Maker::attribute()
{
    return '"' + m_random.name() + '"';
}

std::string Maker::variant(const char *tag)
{
    const std::string name = attribute();
    const std::string base = m_random.percent(50) ? name : attribute();
    std::string text = std::string("<") + tag + " name=" + name + " base=" + base + ">";
    for (unsigned count = m_random.below(4); count > 0; --count)
        text += "<State name=" + attribute() + "/>";
    return text + "</" + tag + ">";
}

void Maker::makeDocument()
{
    if (!m_random.percent(60))
        return;
    std::string text = "<Variants><VariantGroup name=\"Group\">";
    for (unsigned i = m_random.below(4); i > 0; --i) {
        text += "<VariantSet name=" + attribute() + ">";
        for (const char *tag : {"NodeVariantRef", "MaterialVariantRef", "LightVariantRef",
                                "OverlayRef", "TransformRef"}) {
            if (m_random.percent(50))
                text +=
                    std::string("<") + tag + " ref=" + attribute() + " state=" + attribute() + "/>";
        }
        text += "</VariantSet>";
    }
    text += "</VariantGroup>";
    for (unsigned i = m_random.below(6); i > 0; --i)
        text += variant(m_random.of({"NodeVariant", "MaterialVariant", "MaterialVariant",
                                     "LightVariant", "OverlayVariant", "TransformVariant"}));
    text += "</Variants>";
    const bool hasScenes = m_json.contains("scenes");
    qxJson &holder = hasScenes ? m_json["scenes"][m_json.value("scene", std::size_t(0))] : m_json;
    holder["extras"]["qxVariants"] = text;
}

} // namespace

std::string RandomChoices::name()
{
    return of({"Paint", "Paint", "Paint Switch", "Paint 2", "Paint Switch 2", "A", "A", "A 2", "B",
               "Default Material", "Material", "Transform 1", "Group", "!None", "A/B", "", "Tür ☂",
               "Switch"});
}

float RandomChoices::number()
{
    if (percent(4))
        return of({1e20f, -1e20f, 3e38f, 1e-20f, 1e-45f, 1e30f, -0.0f});
    return of({0.0f, 1.0f, -1.0f, 0.5f, 2.5f, 0.1f, -7.0f});
}

std::vector<float> RandomChoices::pose()
{
    std::vector<float> numbers;
    for (int i = 0; i < 10; ++i)
        numbers.push_back(number());
    static const float rotations[][4] = {{0, 0, 0, 1}, {0.6f, 0, 0, 0.8f}, {0.38f, 0, 0, 0.92f}};
    if (percent(75))
        std::copy_n(rotations[below(3)], 4, numbers.begin() + 3);
    return numbers;
}

qxJson randomScene(RandomChoices &random, bool isExternal)
{
    const QByteArray uri = "data:application/octet-stream;base64," + randomSceneData().toBase64();
    qxJson json = {{"asset", {{"version", "2.0"}}}};
    json["buffers"] = {{{"byteLength", 36}, {"uri", isExternal ? "data.bin" : uri.constData()}}};
    json["bufferViews"] = {{{"buffer", 0}, {"byteLength", 36}}};
    json["accessors"] = {
        {{"bufferView", 0}, {"componentType", 5126}, {"count", 3}, {"type", "VEC3"}}};
    Maker maker(random, json);
    maker.makeMaterials();
    maker.makeSwitchMaterials();
    maker.makeMeshes();
    maker.makeLightsAndCameras();
    maker.makeNodes();
    maker.makeScenes();
    maker.makeDocument();
    return json;
}

QByteArray randomSceneData()
{
    const float corners[9] = {0, 0, 0, 1, 0, 0, 0, 1, 0};
    return QByteArray(reinterpret_cast<const char *>(corners), sizeof(corners));
}
