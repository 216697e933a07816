#include "Animation/qxAnimationPlayer.h"
#include "Files/SceneFileFixture.h"
#include "Light/qxEnvironmentPicture.h"
#include "OSGUberLight.h"
#include "qxAnimManager.h"
#include "qxLights.h"
#include "qxOverlays.h"
#include "qxUberCameraPool.h"

#include <OpenSG/OSGSimpleMaterial.h>

static void expectViewpoint(int id, const qxUberCamera &expected)
{
    const qxUberCamera *const found = qxUberCameraPool::the()->get(id);
    ASSERT_TRUE(found);
    EXPECT_EQ(found->name, expected.name);
    EXPECT_FLOAT_EQ(found->fieldOfView, expected.fieldOfView);
    EXPECT_FLOAT_EQ(found->height, expected.height);
    EXPECT_FLOAT_EQ(found->nearPlane, expected.nearPlane);
    EXPECT_FLOAT_EQ(found->farPlane, expected.farPlane);
    EXPECT_TRUE(found->toWorld.equals(expected.toWorld, 1e-5f));
}

class SceneFileKindsTest : public SceneFileFixture {
protected:
    static bool isForEnvironments(const char *material)
    {
        return qxMaterials::isEnvironmentMaterial(qxMaterials::findMaterial(material));
    }
    osg::UberLightPtr lightOf(const char *node) const
    {
        return osg::UberLightPtr::dcast(find(node).core());
    }

    /// Three parts that share the default material "Red", which the second maps otherwise, and a
    /// mesh that nothing shows.
    const qxJson paints = sample("paints");
};

TEST_F(SceneFileKindsTest, LightsStandWhereTheirNodeStandsAndComeBackAsTheyWereSwitched)
{
    load(sample("lamps"));
    EXPECT_EQ(file.warnings(), QStringList{"node 2 \"Odd\": light 1 is of an unknown kind"});
    EXPECT_EQ(tree(),
              " (ComponentTransform - @ 1 0 0 (UberLight 'Left' on (Group 'Shade')), "
              "UberLight 'Right' off, Group 'Odd')");
    const osg::UberLightPtr light = lightOf("Left");
    EXPECT_EQ(light->getKind(), osg::UInt32(osg::UberLight::Spot));
    EXPECT_EQ(light->getDiffuse(), osg::Color4f(1, 0.5f, 0.1f, 1));
    EXPECT_EQ(light->getIntensity(), 40);
    EXPECT_EQ(light->getRange(), 7);
    EXPECT_EQ(light->getInnerAngle(), 0.1f);
    EXPECT_EQ(light->getOuterAngle(), 0.3f);

    // Others keep their description.
    qxLights::setOn(find("Left"), false);
    qxLights::setOn(find("Right"), true);
    lightOf("Right")->setIntensity(3);
    scene.addLight("Sun");
    qxJson expected = sample("lamps");
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
    for (std::size_t node = 0; node < 4; ++node)
        EXPECT_EQ(saved["nodes"][node], expected["nodes"][node]);
    EXPECT_EQ(lightOf("Right")->getIntensity(), 3);
}

TEST_F(SceneFileKindsTest, PrimitivesMappedAlikeShareASwitchMaterial)
{
    load(paints);
    EXPECT_EQ(lookOf(part(0)), "Red Switch: Red, Blue, Red 2, 0");
    EXPECT_EQ(lookOf(part(1)), "Red Switch 2: Red, Material, 0");
    EXPECT_EQ(part(2)->getMaterial(), part(0)->getMaterial());
    EXPECT_EQ(lookOf(part(3)), "Default Material Switch: Default Material, Blue, 0");
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
    expectSaved(paints);
}

TEST_F(SceneFileKindsTest, AChosenMaterialIsShownByOtherProgramsAndKeptWithItsDefault)
{
    load(paints);
    TestMaterial(part(0)->getMaterial()).choose(2);
    TestMaterial(part(3)->getMaterial()).choose(1);
    saveAndLoad();
    const qxJson parts = jsonOf(path("saved.gltf"))["meshes"][0]["primitives"];
    const int shown[] = {2, 0, 2, 1};
    for (std::size_t i = 0; i < 4; ++i) {
        EXPECT_EQ(parts[i]["material"], shown[i]) << i;
        EXPECT_EQ(parts[i]["extensions"], paints["meshes"][0]["primitives"][i]["extensions"]);
    }
    EXPECT_EQ(jsonOf(path("saved.gltf"))["meshes"][1]["primitives"][0], parts[0]);
    EXPECT_EQ(file.materialVariants()[2].materials[0].second, "Red") << "the default, as before";
    TestMaterial(part(3)->getMaterial()).choose(0);
    saveAndLoad();
    EXPECT_FALSE(jsonOf(path("saved.gltf"))["meshes"][0]["primitives"][3].contains("material"));
    // As the mappings make them, they need no list.
    TestMaterial(part(0)->getMaterial()).choose(0);
    expectSaved(paints);
    setMaterial(part(0), qxMaterials::findMaterial("Blue"));
    setMaterial(part(3), part(1)->getMaterial());
    saveAndLoad();
}

TEST_F(SceneFileKindsTest, AListOfSwitchMaterialsThatCannotBeUsedIsLeftOut)
{
    qxJson json = paints;
    const auto nested = [](int place) { return qxJson{{"qxSwitchMaterial", place}}; };
    json["extras"]["qxSwitchMaterials"] = {
        {{"name", "A"}, {"materials", {0, 99}}},     {{"name", 1}, {"materials", {0}}},
        {{"materials", {nested(3)}}, {"name", "C"}}, {{"materials", {0, nested(2)}}, {"name", "D"}},
        {{"materials", {nested(7)}}, {"name", "E"}}, 7};
    json["extras"]["qxMaterialPool"] = {0, 99};
    json["meshes"][0]["primitives"][0]["extras"]["qxSwitchMaterial"] = 1;
    json["meshes"][0]["primitives"][1]["extras"]["qxSwitchMaterial"] = 3;
    json["meshes"][0]["primitives"][2]["extras"]["qxSwitchMaterial"] = "x";
    load(json);
    EXPECT_EQ(file.warnings().size(), 9);
    EXPECT_EQ(lookOf(part(0)), "Red Switch: Red, Blue, Red 2, 0");
    EXPECT_EQ(lookOf(part(1)), "Red Switch 2: Red, Material, 0");
}

TEST_F(SceneFileKindsTest, MaterialsOfOneNameAreToldApartAndKeepTheirNamesInTheFile)
{
    qxJson json = paints;
    json["materials"] = {
        {{"name", "Red"}}, {{"name", "Red"}}, {{"name", "Red 2"}}, {{"name", "Red"}}};
    load(json);
    for (const char *name : {"Red", "Red 2", "Red 3", "Red 4"})
        EXPECT_EQ(qxMaterials::findMaterials(name).size(), 1u) << name;
    expectSaved(json);

    // Without the first one the others would be called otherwise: they get the names they have.
    qxMaterials::setName(qxMaterials::findMaterial("Red"), "Green", true);
    saveAndLoad();
    for (const char *name : {"Green", "Red 2", "Red 3", "Red 4"})
        EXPECT_EQ(qxMaterials::findMaterials(name).size(), 1u) << name;
}

TEST_F(SceneFileKindsTest, OverlaysAndTheEnvironmentLeaveTheTreeAndGoBackToTheirPlaceInTheFile)
{
    const qxJson json = sample("overlays");
    load(json);
    EXPECT_EQ(file.warnings(),
              (QStringList{"material 1 \"Stone\": qxEnvironment is neither true nor false",
                           "node 13 \"Never\": a child of a switch cannot be an overlay"}));
    EXPECT_EQ(tree(),
              " (Group 'Hall' (Group 'Door', Group 'Floor'), Group 'Sun', "
              "Switch 'Choice'=0 (Group 'Never'))"
              " overlays (OverlayCore -=3 (ComponentTransform - @ 1 2 3 (Switch 'Sheet'=0 "
              "(Group 'Page 1', Group 'Page 2'))), OverlayCore 'Sign'=0, OverlayCore 'Logo'=0)"
              " around Switch 'Sky'=1 (Group 'Day', ComponentTransform 'Night' @ 0 1 0)");
    EXPECT_TRUE(isForEnvironments("Blue"));
    EXPECT_FALSE(isForEnvironments("Stone"));
    expectSaved(json);

    TestNode(qxOverlays::findOverlay("Sheet")).choose(1);
    TestNode(qxOverlays::findOverlay("Logo")).setMask(0);
    scene.addOverlay("Fresh");
    scene.add("Stair", find("Hall"));
    const TestNode sky(qxScenegraph::environmentGeometrySwitch());
    sky.choose(0);
    sky.child(0).setMask(0);
    saveAndLoad();
    const qxJson saved = jsonOf(path("saved.gltf"));
    EXPECT_EQ(saved["nodes"][0]["children"], qxJson({1, 5, 2, 8, 9, 14}));
    EXPECT_EQ(saved["scenes"][0]["nodes"], qxJson({0, 10, 11, 12, 15}));
}

TEST_F(SceneFileKindsTest, ANewEnvironmentIsWrittenWithItsMaterials)
{
    scene.addEnvironments("Surroundings", {"Studio"}).choose(0);
    scene.addEnvironmentMaterial("White");
    scene.addMaterial("Paint");
    scene.add("Car");
    saveAndLoad();
    EXPECT_TRUE(isForEnvironments("White"));
    EXPECT_FALSE(isForEnvironments("Paint"));
    const qxJson written = jsonOf(path("saved.gltf"));
    EXPECT_EQ(written["scenes"][0]["nodes"], qxJson({0, 1}));
    EXPECT_EQ(written["nodes"][1]["extras"], qxJson({{"qxSwitch", 0}, {"qxEnvironment", true}}));

    host.clearScene();
    EXPECT_EQ(tree(), "");
    save(path("empty.gltf"));
    EXPECT_EQ(jsonOf(path("empty.gltf"))["scenes"][0].count("nodes"), 0u);
}

TEST_F(SceneFileKindsTest, ThePictureOfTheShownEnvironmentLightsTheScene)
{
    const QByteArray grey =
        "#?RADIANCE\n\n-Y 1 +X 2\n\x40\x40\x40\x81\x40\x40\x40\x81"; // half of white
    write("sky/day.hdr", grey);
    write("broken.exr", QByteArray("none"));
    const qxJson json = {
        {"asset", {{"version", "2.0"}}},
        {"nodes",
         {{{"extras", {{"qxEnvironment", true}, {"qxSwitch", 0}}}, {"children", {1, 2, 3, 4}}},
          {{"extras",
            {{"qxEnvironmentPicture", "sky/day.hdr"},
             {"qxEnvironmentExposure", 1},
             {"qxEnvironmentRotation", "much"}}}},
          {{"extras", {{"qxEnvironmentPicture", "broken.exr"}}}},
          {{"extras", {{"qxEnvironmentPicture", "../lost.hdr"}}}},
          {{"name", "Plain"}}}}};
    load(json);
    EXPECT_EQ(file.warnings(),
              (QStringList{"node 1: qxEnvironmentRotation is no number",
                           "node 2: the picture of the environment is left out: it is neither a "
                           "Radiance nor an OpenEXR picture",
                           "node 3: the picture of the environment is left out: \"../lost.hdr\" "
                           "leads out of the folder of the scene file"}));
    const TestNode choices(qxScenegraph::environmentGeometrySwitch());
    const auto brightnessOf = [](osg::UInt32 picture) {
        return qxEnvironmentPicture::lightOf(picture)->light(osg::Vec3f(0, 1, 0))[1];
    };
    for (const auto &[choice, isLit] :
         {std::pair(0, true), {1, false}, {2, false}, {3, false}, {-1, false}, {-2, true}}) {
        choices.choose(choice);
        const osg::UInt32 picture = qxEnvironmentPicture::shownBy(choices);
        EXPECT_EQ(picture != 0, isLit) << choice;
        EXPECT_TRUE(!isLit || brightnessOf(picture) > 0.98f) << choice;
    }
    choices.choose(0);
    choices.child(0).setMask(0);
    EXPECT_EQ(qxEnvironmentPicture::shownBy(choices), 0u);
    choices.child(0).setMask(1);
    EXPECT_EQ(qxEnvironmentPicture::shownBy(osg::NullFC), 0u);
    expectSaved(json);
    save(path("other/saved.gltf"));
    EXPECT_EQ(jsonOf(path("other/saved.gltf"))["nodes"], json["nodes"]);
    EXPECT_EQ(bytesOf(path("other/sky/day.hdr")), grey);
}

TEST_F(SceneFileKindsTest, CamerasAreViewpoints)
{
    loadText(R"("scenes": [{"nodes": [0, 2]}], "nodes": [
        {"translation": [0, 0, 5], "children": [1]}, {"name": "Front", "camera": 0}, {"camera": 1}],
        "cameras": [{"type": "perspective", "perspective": {"yfov": 0.5, "znear": 0.25}},
            {"name": "Plan", "type": "orthographic",
             "orthographic": {"xmag": 2, "ymag": 3, "znear": 1, "zfar": 9}}],
        "animations": [{"name": "Open", "channels": [], "samplers": []}, {}])");
    EXPECT_EQ(qxAnimManager::the()->clips(), (std::vector<std::string>{"Open", ""}));
    osg::Matrix inFront;
    inFront.setTranslate(0, 0, 5);
    qxUberCameraPool &pool = *qxUberCameraPool::the();
    ASSERT_EQ(pool.count(), 2);
    expectViewpoint(0, {"Front", inFront, 0.5f, 0, 0.25f, 0});
    expectViewpoint(1, {"Plan", osg::Matrix(), 0, 6, 1, 9});
}

TEST_F(SceneFileKindsTest, AnimationsMoveTheirNodesAndMalformedChannelsAreLeftOutWithAWarning)
{
    // Of the corners of the triangle 0 and 8 are the times, the first two the places.
    QByteArray text = sceneWith("signs", "").replace("[8, 8, 0]}", R"([8, 8, 0]},
        {"bufferView": 0, "byteOffset": 8, "componentType": 5126, "count": 2, "type": "SCALAR"},
        {"bufferView": 0, "componentType": 5126, "count": 2, "type": "VEC3"})");
    text.replace("\"cameras\"", R"("animations": [{"name": "Slide", "channels": [
        {"sampler": 0, "target": {"node": 1, "path": "translation"}}],
        "samplers": [{"input": 1, "output": 2, "interpolation": "LINEAR"}]}], "cameras")");
    const auto clip = [this](const QByteArray &json) {
        load(write("moving.gltf", json));
        EXPECT_EQ(qxAnimManager::the()->clips(), std::vector<std::string>{"Slide"});
        return qxAnimationPlayer::the().clips().at(0);
    };
    const qxAnimationClip good = clip(text);
    EXPECT_EQ(file.warnings(), QStringList());
    ASSERT_EQ(good.channels.size(), 1u);
    EXPECT_EQ(good.duration(), 8);
    EXPECT_EQ(good.channels[0].node, find("Red").node().getFieldContainerId());
    EXPECT_EQ(good.channels[0].curve.at(4), (std::vector<float>{2, -4, 0}));
    expectSaved(jsonOf(path("moving.gltf")));
    // A switch stands where a node above it stands.
    const qxAnimationClip above = clip(QByteArray(text)
                                           .replace("\"Sign\",", "\"Sign\", \"scale\": [2, 2, 2],")
                                           .replace("{\"node\": 1", "{\"node\": 0"));
    ASSERT_EQ(above.channels.size(), 1u);
    EXPECT_EQ(above.channels[0].node, find("Sign").node()->getParent().getFieldContainerId());

    for (const auto &[what, instead, words] :
         {std::tuple("\"byteOffset\": 8", "\"byteOffset\": 0", "keys do not ascend"),
          {"\"count\": 2, \"type\": \"S", "\"count\": 1, \"type\": \"S",
           "keys need 3 numbers, it has 6"},
          {"\"LINEAR\"", "\"CUBICSPLINE\"", "its 2 keys need 18 numbers, it has 6"},
          {"\"LINEAR\"", "\"WILD\"", "unknown interpolation \"WILD\""},
          {"\"translation\"}", "\"colour\"}", "\"colour\" cannot be animated"},
          {"\"translation\"}", "\"rotation\"}", "accessor 2 has elements of the wrong type"},
          {"\"translation\"}", "\"weights\"}", "its node has no morph targets"},
          {"\"output\": 2", "\"output\": 7", "refers to accessor 7"},
          {"\"input\": 1", "\"input\": 2", "accessor 2 has elements of the wrong type"},
          {"\"sampler\": 0", "\"sampler\": 3", "refers to sampler 3"},
          {"{\"node\": 1", "{\"node\": 9", "refers to node 9, the file has 5"},
          {"\"Red\",", "\"Red\", \"matrix\": [1,0,0,0,0,1,0,0,0,0,1,0,0,0,0,1],", "a matrix says"},
          {"\"samplers\": [{\"i", "\"none\": [{\"i", "the animation has no \"samplers\""},
          // What extensions animate is theirs.
          {"{\"node\": 1, \"path\": \"translation\"}", "{\"path\": \"pointer\"}", ""}}) {
        SCOPED_TRACE(instead);
        ASSERT_TRUE(text.contains(what));
        EXPECT_EQ(clip(QByteArray(text).replace(what, instead)).channels.size(), 0u);
        ASSERT_EQ(file.warnings().size(), *words ? 1 : 0);
        const QString said = file.warnings().value(0);
        EXPECT_TRUE(said.contains(words)) << said.toStdString();
        EXPECT_EQ(said.startsWith("animation 0 \"Slide\", channel 0: "), *words != 0);
    }
}
