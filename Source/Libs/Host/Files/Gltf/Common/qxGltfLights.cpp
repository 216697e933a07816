#include "Files/Gltf/Common/qxGltfLights.h"

#include "Files/Gltf/Read/qxGltfCheck.h"
#include "Files/Gltf/Write/qxGltfPatch.h"

#include <OpenSG/OSGSimpleAttachments.h>

#include <algorithm>
#include <iterator>
#include <tuple>

namespace {

const char *const _extension = "KHR_lights_punctual";
const char *const _kinds[] = {"point", "spot", "directional"}; // as in osg::UberLight::Kind

const qxJson &extensionOf(const qxJson &object)
{
    return qxGltfMember(qxGltfMember(object, "extensions"), _extension);
}

const qxJson &lightsOf(const qxJson &document)
{
    return qxGltfSection(extensionOf(document), "lights");
}

float number(const qxJson &object, const char *name, float fallback)
{
    const qxJson &value = qxGltfMember(object, name);
    return value.is_number() ? value.get<float>() : fallback;
}

/// Of the kind that the light states; its position in the list of kinds is beyond the end when the
/// kind is unknown.
qxGltfLight lightFrom(const qxJson &json)
{
    const qxJson &kind = qxGltfMember(json, "type");
    const std::string stated = kind.is_string() ? kind.get<std::string>() : std::string();
    const qxJson &colour = qxGltfMember(json, "color");
    const qxJson &spot = qxGltfMember(json, "spot");
    qxGltfLight light;
    light.kind = osg::UInt32(std::find(std::begin(_kinds), std::end(_kinds), stated) - _kinds);
    light.colour = colour.is_array() ? colour.get<std::vector<float>>() : std::vector<float>(3, 1);
    light.intensity = number(json, "intensity", 1);
    light.range = number(json, "range", 0);
    light.innerAngle = number(spot, "innerConeAngle", 0);
    light.outerAngle = number(spot, "outerConeAngle", 0.78539816f);
    if (qxGltfMember(json, "name").is_string())
        light.name = json["name"].get<std::string>().c_str(); // as far as the core keeps it
    return light;
}

/// `base` with everything that `light` says.
qxJson jsonOf(const qxGltfLight &light, const qxJson &base)
{
    qxJson json = base.is_object() ? base : qxJson::object();
    if (light.name)
        json["name"] = *light.name;
    else
        json.erase("name");
    json["type"] = _kinds[light.kind];
    json["color"] = qxGltfNumberList(light.colour.data(), light.colour.size());
    json["intensity"] = qxGltfNumber(light.intensity);
    if (light.range > 0)
        json["range"] = qxGltfNumber(light.range);
    else
        json.erase("range");
    if (light.kind != osg::UberLight::Spot) {
        json.erase("spot");
    } else {
        json["spot"] = {{"innerConeAngle", qxGltfNumber(light.innerAngle)},
                        {"outerConeAngle", qxGltfNumber(light.outerAngle)}};
    }
    return json;
}

void checkLight(const QString &called, const qxJson &light)
{
    if (!light.is_object())
        throw qxGltfError(qxFileText::tr("%1 is no object").arg(called));
    qxGltfCheckNumbers(called, light, "color", 3);
    const qxJson &spot = qxGltfMember(light, "spot");
    const qxJson numbers = {
        {"numbers",
         {number(light, "intensity", 1), number(light, "range", 0),
          number(spot, "innerConeAngle", 0), number(spot, "outerConeAngle", 0)}}};
    qxGltfCheckNumbers(called, numbers, "numbers", 4);
}

} // namespace

qxGltfLight qxGltfLight::of(const osg::UberLightPtr &core)
{
    const osg::Color4f &colour = core->getDiffuse();
    qxGltfLight light;
    light.kind = std::min(core->getKind(), osg::UInt32(osg::UberLight::Directional));
    light.colour = {colour.red(), colour.green(), colour.blue()};
    light.intensity = core->getIntensity();
    light.range = core->getRange();
    light.innerAngle = core->getInnerAngle();
    light.outerAngle = core->getOuterAngle();
    if (const char *name = osg::getName(core))
        light.name = name;
    return light;
}

bool qxGltfLight::operator==(const qxGltfLight &other) const
{
    const auto values = [](const qxGltfLight &l) {
        return std::tie(l.kind, l.colour, l.intensity, l.range, l.innerAngle, l.outerAngle, l.name);
    };
    return values(*this) == values(other);
}

void qxGltfCheckLights(const qxJson &document)
{
    const qxJson &lights = lightsOf(document);
    for (std::size_t i = 0; i < lights.size(); ++i)
        checkLight(qxGltfLabel("light", int(i), lights[i]), lights[i]);
    int index = 0;
    for (const qxJson &node : qxGltfSection(document, "nodes"))
        qxGltfCheckIndex(qxGltfLabel("node", index++, node), extensionOf(node), "light", lights,
                         "light");
}

int qxGltfLightOf(const qxJson &node)
{
    return qxGltfIndex(extensionOf(node), "light");
}

osg::UberLightPtr qxGltfMakeLight(const qxJson &document, int index)
{
    const qxJson &json = lightsOf(document)[std::size_t(index)];
    const qxGltfLight light = lightFrom(json);
    if (light.kind >= std::size(_kinds))
        return osg::UberLightPtr();
    const osg::UberLightPtr core = osg::UberLight::create();
    const osg::CPEditor edit(core);
    core->setKind(light.kind);
    core->setDiffuse(osg::Color4f(light.colour[0], light.colour[1], light.colour[2], 1));
    core->setIntensity(light.intensity);
    core->setRange(light.range);
    core->setInnerAngle(light.innerAngle);
    core->setOuterAngle(light.outerAngle);
    const qxJson &name = qxGltfMember(json, "name");
    if (name.is_string())
        osg::setName(core, name.get<std::string>());
    return core;
}

void qxGltfWriteLight(qxJson &document, qxJson &node, const qxGltfLight *light)
{
    if (!light) {
        qxGltfEraseExtension(node, _extension);
        return;
    }
    qxJson &list = document["extensions"][_extension]["lights"];
    const auto same = std::find_if(list.begin(), list.end(), [light](const qxJson &json) {
        return lightFrom(json) == *light;
    });
    const std::ptrdiff_t index = same - list.begin();
    if (same == list.end()) {
        const int before = qxGltfLightOf(node);
        list.push_back(jsonOf(*light, before < 0 ? qxJson() : qxJson(list[std::size_t(before)])));
    }
    node["extensions"][_extension]["light"] = index;
    qxGltfUseExtension(document, _extension);
}
