#include "SceneFileFixture.h"
#include "qxMaterials.h"
#include "qxScenegraph.h"

namespace {

class SceneFileEnvironmentTest : public SceneFileFixture {
protected:
    static bool isMade(const char *material)
    {
        return qxMaterials::isEnvironmentMaterial(qxMaterials::findMaterial(material));
    }
    static TestNode environment() { return qxScenegraph::environmentGeometrySwitch(); }
};

TEST_F(SceneFileEnvironmentTest, MovesOutOfTheTreeAndGoesBackToItsPlaceInTheFile)
{
    const qxJson json = qxJson::parse(sceneText(R"("nodes": [
        {"name": "Hall", "children": [1, 4, 5]},
        {"name": "Sky", "children": [2, 3], "extras": {"qxEnvironment": true, "qxSwitch": 1}},
        {"name": "Day"}, {"name": "Night", "translation": [0, 1, 0]}, {"name": "Floor"},
        {"name": "Logo", "extras": {"qxOverlay": true}}],
        "materials": [{"name": "Blue", "extras": {"qxEnvironment": 1, "mood": "calm"}},
                      {"name": "Stone", "extras": {"qxEnvironment": "no"}}])"));
    load(write("scene.gltf", json));
    EXPECT_EQ(file.warnings(),
              QStringList{"material 1 \"Stone\": qxEnvironment is neither true nor false"});
    EXPECT_EQ(tree(),
              " (Group 'Hall' (Group 'Floor')) overlays (OverlayCore 'Logo'=0)"
              " around Switch 'Sky'=1 (Group 'Day', ComponentTransform 'Night' @ 0 1 0)");
    EXPECT_TRUE(isMade("Blue"));
    EXPECT_FALSE(isMade("Stone"));
    expectSaved(json);

    environment().choose(0);
    environment().child(0).setMask(0);
    saveAndLoad();
    EXPECT_EQ(jsonOf(path("saved.gltf"))["nodes"][0], json["nodes"][0]);
}

TEST_F(SceneFileEnvironmentTest, ANewOneIsWrittenWithItsMaterials)
{
    scene.addEnvironments("Surroundings", {"Studio"}).choose(0);
    scene.addEnvironmentMaterial("White");
    scene.addMaterial("Paint");
    scene.add("Car");
    saveAndLoad();
    EXPECT_TRUE(isMade("White"));
    EXPECT_FALSE(isMade("Paint"));
    const qxJson written = jsonOf(path("saved.gltf"));
    EXPECT_EQ(written["scenes"][0]["nodes"], qxJson({0, 1}));
    EXPECT_EQ(written["nodes"][1]["extras"], qxJson({{"qxSwitch", 0}, {"qxEnvironment", true}}));

    host.clearScene();
    EXPECT_EQ(environment().node(), osg::NullFC);
    file.save(path("empty.gltf"));
    EXPECT_EQ(jsonOf(path("empty.gltf"))["scenes"][0].count("nodes"), 0u);
}

} // namespace
