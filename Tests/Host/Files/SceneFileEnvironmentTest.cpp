#include "SceneFileFixture.h"
#include "qxMaterials.h"
#include "qxNodeUtils.h"
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
    const qxJson json = qxJson::parse(R"({"asset": {"version": "2.0"}, "nodes": [
        {"name": "Hall", "children": [1, 4, 5]},
        {"name": "Sky", "children": [2, 3], "extras": {"qxEnvironment": true, "qxSwitch": 1}},
        {"name": "Day"}, {"name": "Night", "translation": [0, 1, 0]}, {"name": "Floor"},
        {"name": "Logo", "extras": {"qxOverlay": true}}],
        "materials": [{"name": "Blue", "extras": {"qxEnvironment": 1, "mood": "calm"}},
                      {"name": "Stone", "extras": {"qxEnvironment": "no"}}]})");
    load(write("scene.gltf", json));
    EXPECT_EQ(file.warnings(),
              QStringList{"material 1 \"Stone\": qxEnvironment is neither true nor false"});
    EXPECT_EQ(environment().name(), "Sky");
    EXPECT_EQ(environment().choice(), 1);
    EXPECT_EQ(environment().child(1).name(), "Night");
    EXPECT_EQ(environment().node()->getParent(), osg::NullFC);
    EXPECT_EQ(find("Hall").node()->getNChildren(), 1u);
    EXPECT_TRUE(isMade("Blue"));
    EXPECT_FALSE(isMade("Stone"));
    save(path("scene.gltf"));
    EXPECT_EQ(jsonOf(path("scene.gltf")), json);

    environment().choose(0);
    environment().child(0).setMask(0);
    saveAndLoad();
    EXPECT_EQ(environment().choice(), 0);
    EXPECT_FALSE(environment().child(0).shown());
    EXPECT_EQ(jsonOf(path("saved.gltf"))["nodes"][0], json["nodes"][0]);
}

TEST_F(SceneFileEnvironmentTest, ANewOneIsWrittenWithItsMaterials)
{
    scene.addEnvironments("Surroundings", {"Studio"}).choose(0);
    scene.addEnvironmentMaterial("White");
    scene.addMaterial("Paint");
    scene.add("Car");
    saveAndLoad();
    EXPECT_EQ(environment().name(), "Surroundings");
    EXPECT_EQ(environment().child(0).name(), "Studio");
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

TEST_F(SceneFileEnvironmentTest, WhatCannotBeOneStaysInTheTree)
{
    loadText(R"({"asset": {"version": "2.0"}, "nodes": [
        {"name": "Plain", "extras": {"qxEnvironment": true}},
        {"name": "Sheet", "extras": {"qxOverlay": true, "qxSwitch": 0, "qxEnvironment": true}},
        {"name": "Choice", "children": [3], "extras": {"qxSwitch": 0}},
        {"name": "Chosen", "extras": {"qxSwitch": 0, "qxEnvironment": true}},
        {"name": "Sky", "translation": [1, 0, 0], "extras": {"qxSwitch": 0, "qxEnvironment": true}},
        {"name": "Late", "extras": {"qxSwitch": 0, "qxEnvironment": true}}]})");
    EXPECT_EQ(
        file.warnings(),
        (QStringList{
            "node 0 \"Plain\": an environment is a switch and no overlay",
            "node 1 \"Sheet\": an environment is a switch and no overlay",
            "node 3 \"Chosen\": a child of a switch cannot be the environment",
            "node 5 \"Late\": the scene has an environment already",
            "node 4 \"Sky\": an environment surrounds everything: its transform has no effect"}));
    EXPECT_EQ(environment().name(), "Sky");
    for (const char *name : {"Plain", "Chosen", "Late"})
        EXPECT_NE(find(name).node(), osg::NullFC) << name;
    EXPECT_EQ(find("Choice").node()->getNChildren(), 1u);
}

} // namespace
