#include "Files/SceneFileFixture.h"
#include "OSGOverlayCore.h"
#include "OSGUberLight.h"
#include "Scene/qxTransformStates.h"
#include "qxLights.h"
#include "qxMaterials.h"
#include "qxNodeUtils.h"
#include "qxOverlays.h"

#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGSimpleAttachments.h>
#include <OpenSG/OSGSimpleMaterial.h>
#include <OpenSG/OSGSwitchMaterial.h>

namespace {

const char *const _lamps = R"({
  "asset": {"version": "2.0"}, "extensionsUsed": ["KHR_lights_punctual"],
  "extensions": {"KHR_lights_punctual": {"lights": [
    {"type": "spot", "name": "Bulb", "color": [1, 0.5, 0.1], "intensity": 40, "range": 7,
     "spot": {"innerConeAngle": 0.1, "outerConeAngle": 0.3}, "extras": {"maker": "X"}},
    {"type": "laser"}]}},
  "nodes": [
    {"name": "Left", "translation": [1, 0, 0], "children": [3],
     "extensions": {"KHR_lights_punctual": {"light": 0}}},
    {"name": "Right", "extensions": {"KHR_lights_punctual": {"light": 0}},
     "extras": {"qxLightOn": false}},
    {"name": "Odd", "extensions": {"KHR_lights_punctual": {"light": 1}}},
    {"name": "Shade"}]})";

osg::UberLightPtr lightOf(const TestNode &node)
{
    const osg::UberLightPtr light = osg::UberLightPtr::dcast(node.core());
    EXPECT_NE(light, osg::NullFC) << node.name();
    return light;
}

/// Three parts that share the default material "Red", which the second maps otherwise.
qxJson paints()
{
    MeshText text;
    text.primitive["attributes"]["POSITION"] = text.addPositions({0, 0, 0, 1, 0, 0, 0, 1, 0});
    text.primitive["material"] = 0;
    qxJson json = text.scene();
    json["materials"] = {{{"name", "Red"}}, {{"name", "Blue"}}, {{"name", "Red"}}, {{"x", 1}}};
    json["extensions"]["KHR_materials_variants"]["variants"] = {
        {{"name", "Cold"}}, {{"name", "Cold"}}, {{"name", 7}}};
    qxJson &parts = json["meshes"][0]["primitives"];
    parts = {parts[0], parts[0], parts[0], parts[0]};
    const auto map = [&parts](std::size_t part, const qxJson &mappings) {
        parts[part]["extensions"]["KHR_materials_variants"]["mappings"] = mappings;
    };
    const qxJson first = {{{"material", 1}, {"variants", {0}}},
                          {{"material", 2}, {"variants", {1}}}};
    map(0, first);
    map(1, {{{"material", 3}, {"variants", {2, 0}}}});
    map(2, first);
    parts[3].erase("material");
    map(3, {qxJson::object(), {{"material", 1}, {"variants", {1, 9}}}});
    return json;
}

} // namespace

class SceneFileKindsTest : public SceneFileFixture {
protected:
    osg::GeometryPtr part(unsigned int index) const
    {
        return osg::GeometryPtr::dcast(find("Part").child(index).core());
    }
    /// The name, the contents and the choice of the switch material of a part.
    std::string paint(unsigned int index) const
    {
        const osg::SwitchMaterialPtr material =
            osg::SwitchMaterialPtr::dcast(part(index)->getMaterial());
        if (material == osg::NullFC)
            return qxMaterials::getName(part(index)->getMaterial());
        std::string text = qxMaterials::getName(material) + ":";
        for (const osg::MaterialPtr &each : *material->getMFMaterials())
            text += " " + qxMaterials::getName(each) + ",";
        return text + " " + std::to_string(material->getChoice());
    }
    TestNode overlay(const char *name) const
    {
        const osg::NodePtr node = qxOverlays::findOverlay(name);
        EXPECT_NE(node, osg::NullFC) << name;
        return node;
    }
};

TEST_F(SceneFileKindsTest, LightsCarryTheNameOfTheirNodeAndStandWhereItStands)
{
    loadText(_lamps);
    ASSERT_EQ(file.warnings(), QStringList{"node 2 \"Odd\": light 1 is of an unknown kind"});
    ASSERT_EQ(qxLights::getLights().size(), 2u);
    const TestNode left = find("Left");
    EXPECT_EQ(lightOf(left)->getKind(), osg::UInt32(osg::UberLight::Spot));
    EXPECT_EQ(lightOf(left)->getDiffuse(), osg::Color4f(1, 0.5f, 0.1f, 1));
    EXPECT_EQ(lightOf(left)->getIntensity(), 40);
    EXPECT_EQ(lightOf(left)->getRange(), 7);
    EXPECT_EQ(lightOf(left)->getInnerAngle(), 0.1f);
    EXPECT_EQ(lightOf(left)->getOuterAngle(), 0.3f);
    EXPECT_EQ(left.node()->getToWorld()[3][0], 1);
    EXPECT_EQ(left.child(0).name(), "Shade");
    EXPECT_TRUE(qxLights::getOn(left));
    EXPECT_FALSE(qxLights::getOn(find("Right"))) << "it shares no more than the description";
}

TEST_F(SceneFileKindsTest, SwitchedAndNewLightsComeBackAndOthersKeepTheirDescription)
{
    loadText(_lamps);
    qxLights::setOn(find("Left"), false);
    qxLights::setOn(find("Right"), true);
    {
        const osg::CPEditor edit(lightOf(find("Right")), osg::UberLight::IntensityFieldMask);
        lightOf(find("Right"))->setIntensity(3);
    }
    scene.addLight("Sun");
    qxJson expected = qxJson::parse(_lamps);
    qxJson &lights = expected["extensions"]["KHR_lights_punctual"]["lights"];
    lights.push_back(lights[0]);
    lights[2]["intensity"] = 3;
    expected["nodes"][0]["extras"]["qxLightOn"] = false;
    expected["nodes"][1].erase("extras");
    expected["nodes"][1]["extensions"]["KHR_lights_punctual"]["light"] = 2;

    saveAndLoad();
    qxJson saved = jsonOf(path("saved.gltf"));
    EXPECT_EQ(saved["extensions"]["KHR_lights_punctual"]["lights"].size(), 4u);
    saved["extensions"]["KHR_lights_punctual"]["lights"].erase(3);
    EXPECT_EQ(saved["extensions"], expected["extensions"]);
    EXPECT_EQ(saved["nodes"][0], expected["nodes"][0]);
    EXPECT_EQ(saved["nodes"][1], expected["nodes"][1]);
    EXPECT_EQ(saved["nodes"][2], expected["nodes"][2]) << "what was left out stays";
    EXPECT_EQ(lightOf(find("Right"))->getIntensity(), 3);
    EXPECT_TRUE(qxLights::getOn(find("Sun")));
    EXPECT_FALSE(qxLights::getOn(find("Left")));
}

TEST_F(SceneFileKindsTest, LightsThatCannotBeReadAreRefused)
{
    qxJson json = qxJson::parse(_lamps);
    json["nodes"][1]["extensions"]["KHR_lights_punctual"]["light"] = 2;
    EXPECT_TRUE(loadError(write("x.gltf", json))
                    .endsWith("node 1 \"Right\" refers to light 2, the file has 2"));
    json = qxJson::parse(_lamps);
    json["extensions"]["KHR_lights_punctual"]["lights"][0]["color"] = {1, 1};
    EXPECT_TRUE(loadError(write("x.gltf", json)).contains("light 0 \"Bulb\""));
    json = qxJson::parse(_lamps);
    json["extensions"]["KHR_lights_punctual"]["lights"][0]["intensity"] = 1e300;
    EXPECT_TRUE(loadError(write("x.gltf", json)).contains("light 0 \"Bulb\""));
}

TEST_F(SceneFileKindsTest, PrimitivesMappedAlikeShareASwitchMaterial)
{
    load(write("scene.gltf", paints()));
    EXPECT_EQ(paint(0), "Red Switch: Red, Blue, Red 2, 0");
    EXPECT_EQ(paint(1), "Red Switch 2: Red, Material, 0");
    EXPECT_EQ(part(2)->getMaterial(), part(0)->getMaterial());
    EXPECT_EQ(paint(3), "Default Material Switch: Default Material, Blue, 0");
    EXPECT_EQ(file.warnings().size(), 2) << "an empty mapping and a variant that is not there";

    const std::vector<qxSceneVariant> variants = file.materialVariants();
    ASSERT_EQ(variants.size(), 3u);
    EXPECT_EQ(variants[0].name, "Cold");
    EXPECT_EQ(variants[1].name, "Cold 2");
    EXPECT_EQ(variants[2].name, "Variant");
    typedef QList<QPair<QString, QString>> Choices;
    EXPECT_EQ(variants[1].materials,
              (Choices{{"Red Switch", "Red 2"},
                       {"Red Switch 2", "Red"},
                       {"Default Material Switch", "Blue"}}));
    EXPECT_EQ(variants[2].materials,
              (Choices{{"Red Switch", "Red"},
                       {"Red Switch 2", "Material"},
                       {"Default Material Switch", "Default Material"}}));
    save(path("scene.gltf"));
    EXPECT_EQ(jsonOf(path("scene.gltf")), paints());
}

TEST_F(SceneFileKindsTest, AChosenMaterialIsShownByOtherProgramsAndKeptWithItsDefault)
{
    load(write("scene.gltf", paints()));
    TestMaterial(part(0)->getMaterial()).choose(2);
    TestMaterial(part(3)->getMaterial()).choose(1);
    saveAndLoad("saved.gltf");
    const qxJson parts = jsonOf(path("saved.gltf"))["meshes"][0]["primitives"];
    EXPECT_EQ(parts[0]["material"], 2);
    EXPECT_EQ(parts[1]["material"], 0);
    EXPECT_EQ(parts[2]["material"], 2);
    EXPECT_EQ(parts[3]["material"], 1);
    EXPECT_EQ(parts[0]["extensions"], paints()["meshes"][0]["primitives"][0]["extensions"]);

    EXPECT_EQ(paint(0), "Red Switch: Red, Blue, Red 2, 2");
    EXPECT_EQ(paint(1), "Red Switch 2: Red, Material, 0");
    EXPECT_EQ(paint(3), "Default Material Switch: Default Material, Blue, 1");
    EXPECT_EQ(file.materialVariants()[2].materials[0].second, "Red") << "the default, as before";
    TestMaterial(part(3)->getMaterial()).choose(0);
    saveAndLoad("again.gltf");
    EXPECT_FALSE(jsonOf(path("again.gltf"))["meshes"][0]["primitives"][3].contains("material"));
    EXPECT_EQ(paint(3), "Default Material Switch: Default Material, Blue, 0");

    // As the mappings make them, they need no list.
    TestMaterial(part(0)->getMaterial()).choose(0);
    save(path("again.gltf"));
    EXPECT_EQ(jsonOf(path("again.gltf")), paints());
}

TEST_F(SceneFileKindsTest, AGeometryKeepsAMaterialThatItsMappingDoesNotKnow)
{
    load(write("scene.gltf", paints()));
    const auto show = [this](unsigned int index, const osg::MaterialPtr &material) {
        const osg::CPEditor edit(part(index), osg::Geometry::MaterialFieldMask);
        part(index)->setMaterial(material);
    };
    show(0, qxMaterials::findMaterial("Blue"));
    show(3, part(1)->getMaterial());
    saveAndLoad();
    EXPECT_EQ(paint(0), "Blue");
    EXPECT_EQ(paint(2), "Red Switch: Red, Blue, Red 2, 0");
    EXPECT_EQ(part(3)->getMaterial(), part(1)->getMaterial());
    const QByteArray before = bytesOf(path("saved.gltf"));
    save(path("saved.gltf"));
    EXPECT_EQ(bytesOf(path("saved.gltf")), before);
}

TEST_F(SceneFileKindsTest, SwitchMaterialsThatWereBuiltHereComeBackAsTheyWere)
{
    qxJson json = paints();
    json.erase("extensions");
    for (qxJson &part : json["meshes"][0]["primitives"])
        part.erase("extensions");
    load(write("scene.gltf", json));
    const TestMaterial made = scene.addSwitchMaterial("Paint", {"Blue", "Green"});
    made.choose(1);
    {
        const osg::CPEditor edit(part(1), osg::Geometry::MaterialFieldMask);
        part(1)->setMaterial(made.material());
    }
    scene.addSwitchMaterial("Unused", {"Red 2"}).choose(5);
    saveAndLoad("saved.gltf");
    EXPECT_EQ(paint(0), "Red");
    EXPECT_EQ(paint(1), "Paint: Blue, Green, 1");
    EXPECT_EQ(TestMaterial(qxMaterials::findMaterial("Unused")).choice(), 5u);
    const QByteArray before = bytesOf(path("saved.gltf"));
    save(path("saved.gltf"));
    EXPECT_EQ(bytesOf(path("saved.gltf")), before);
}

TEST_F(SceneFileKindsTest, AListOfSwitchMaterialsThatCannotBeUsedIsLeftOut)
{
    qxJson json = paints();
    json["extras"]["qxSwitchMaterials"] = {{{"name", "A"}, {"materials", {0, 99}}},
                                           {{"name", 1}, {"materials", {0}}},
                                           {{"materials", qxJson::array()}, {"name", "C"}},
                                           7};
    json["meshes"][0]["primitives"][0]["extras"]["qxSwitchMaterial"] = 1;
    json["meshes"][0]["primitives"][1]["extras"]["qxSwitchMaterial"] = 4;
    json["meshes"][0]["primitives"][2]["extras"]["qxSwitchMaterial"] = "x";
    load(write("scene.gltf", json));
    EXPECT_EQ(file.warnings().size(), 6);
    EXPECT_EQ(paint(0), "Red Switch: Red, Blue, Red 2, 0");
    EXPECT_EQ(paint(1), "Red Switch 2: Red, Material, 0");
}

TEST_F(SceneFileKindsTest, MaterialsOfOneNameAreToldApartAndKeepTheirNamesInTheFile)
{
    qxJson json = paints();
    json["materials"] = {
        {{"name", "Red"}}, {{"name", "Red"}}, {{"name", "Red 2"}}, {{"name", "Red"}}};
    load(write("scene.gltf", json));
    for (const char *name : {"Red", "Red 2", "Red 3", "Red 4"})
        EXPECT_EQ(qxMaterials::findMaterials(name).size(), 1u) << name;
    save(path("saved.gltf"));
    EXPECT_EQ(jsonOf(path("saved.gltf")), json);

    // Without the first one the others would be called otherwise: they get the names they have.
    qxMaterials::setName(qxMaterials::findMaterial("Red"), "Green", true);
    saveAndLoad();
    for (const char *name : {"Green", "Red 2", "Red 3", "Red 4"})
        EXPECT_EQ(qxMaterials::findMaterials(name).size(), 1u) << name;
    const QByteArray before = bytesOf(path("saved.gltf"));
    save(path("saved.gltf"));
    EXPECT_EQ(bytesOf(path("saved.gltf")), before) << "also a list that nothing needs any more";
}

TEST_F(SceneFileKindsTest, OverlaysMoveToTheirTreeAndGoBackToTheirPlaceInTheFile)
{
    const qxJson json = qxJson::parse(R"({"asset": {"version": "2.0"}, "nodes": [
        {"name": "Car", "children": [1, 2, 5]},
        {"name": "Door"},
        {"name": "Sheet", "translation": [1, 2, 3], "children": [3, 4],
         "extras": {"qxOverlay": true, "qxOverlayLayer": 3, "qxSwitch": 0}},
        {"name": "Page 1"}, {"name": "Page 2"}, {"name": "Roof"},
        {"name": "Logo", "extras": {"qxOverlay": 1}}, {"name": "Sun"},
        {"name": "Choice", "children": [9], "extras": {"qxSwitch": 0}},
        {"name": "Never", "extras": {"qxOverlay": true}}]})");
    load(write("scene.gltf", json));
    EXPECT_EQ(file.warnings(),
              QStringList{"node 9 \"Never\": a child of a switch cannot be an overlay"});
    EXPECT_EQ(find("Car").node()->getNChildren(), 2u);
    EXPECT_EQ(overlay("Sheet").choice(), 0);
    EXPECT_EQ(overlay("Sheet").child(1).name(), "Page 2");
    ASSERT_EQ(qxOverlays::getPoolRoot()->getNChildren(), 2u);
    const auto core = osg::OverlayCorePtr::dcast(qxOverlays::getPoolRoot()->getChild(0)->getCore());
    ASSERT_NE(core, osg::NullFC);
    EXPECT_EQ(core->getLayer(), 3u);
    EXPECT_NE(osg::OverlayCorePtr::dcast(overlay("Logo").core()), osg::NullFC);
    save(path("scene.gltf"));
    EXPECT_EQ(jsonOf(path("scene.gltf")), json);

    overlay("Sheet").choose(1);
    overlay("Logo").setMask(0);
    scene.addOverlay("Fresh");
    saveAndLoad();
    const qxJson nodes = jsonOf(path("saved.gltf"))["nodes"];
    EXPECT_EQ(nodes[0], json["nodes"][0]);
    EXPECT_EQ(overlay("Sheet").choice(), 1);
    EXPECT_FALSE(overlay("Logo").shown());
    EXPECT_TRUE(overlay("Fresh").shown());
    EXPECT_EQ(jsonOf(path("saved.gltf"))["scenes"][0]["nodes"], qxJson({0, 6, 7, 8, 10}));
}
