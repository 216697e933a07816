#include "Files/SceneFileFixture.h"

namespace {

struct File {
    const char *members;
    const char *tree;
    const char *warnings = "";
};

const File _files[] = {
    // Five along x, doubled and turned to y, on top of the parent's place.
    {R"("scenes": [{"nodes": [2, 0]}], "nodes": [
        {"name": "Moved", "translation": [1, 2, 3], "rotation": [0, 0, 0.70710678, 0.70710678],
         "scale": [2, 2, 2], "children": [1]},
        {"name": "Shifted", "matrix": [1,0,0,0, 0,1,0,0, 0,0,1,0, 5,0,0,1]}, {}])",
     " (Group -, ComponentTransform 'Moved' @ 1 2 3 (Transform 'Shifted' @ 1 12 3))"},
    {R"("nodes": [{"name": ""}, {"name": "T\u00fcr \ud83d\ude97"}])",
     " (Group '', Group 'T\u00fcr \U0001F697')"},
    {R"("nodes": [
        {"name": "Wheels", "translation": [3, 0, 0], "extras": {"qxSwitch": 1}, "children": [1, 2]},
        {"name": "Steel"}, {"name": "Alloy"}])",
     " (ComponentTransform - @ 3 0 0 (Switch 'Wheels'=1 (Group 'Steel', Group 'Alloy')))"},
    {R"("nodes": [{"name": "All", "extras": {"qxSwitch": -2}},
        {"name": "Float", "extras": {"qxSwitch": 3.0}},
        {"name": "Text", "extras": {"qxSwitch": "one"}}])",
     " (Switch 'All'=-2, Switch 'Float'=3, Group 'Text')",
     "node 2 \"Text\": qxSwitch is no integer"},
    {R"("nodes": [
        {"name": "Lid", "translation": [9, 9, 9], "extras": {"qxTransformChoice": 1,
         "qxTransformStates": [0,0,0, 0,0,0,1, 1,1,1,  0,2,0, 0,0,0,1, 1,1,1]}}])",
     " (SwitchComponentTransform 'Lid'=1 @ 0 2 0)"},
    {R"("nodes": [
        {"name": "Out", "extensions": {"KHR_node_visibility": {"visible": false}}},
        {"name": "Door", "extras": {"qxPoseNames": "Shut;Open", "qxPose": 1,
         "qxPoses": [0,0,0, 0,0,0,1, 1,1,1,  0,0,1, 0,0,0,1, 1,1,1]}}])",
     " (Group 'Out' hidden, ComponentTransform 'Door' in Open of 2)"},
    // Clones share the core of the first switch of that name.
    {R"("scenes": [{"nodes": [0, 1, 2, 3, 5]}], "nodes": [
        {"name": "Clone", "translation": [1, 0, 0], "extras": {"qxSharesCoreOf": "Wheel"},
         "children": [4]},
        {"name": "Wheel"}, {"name": "Wheel", "extras": {"qxSwitch": 0}},
        {"name": "Wheel", "extras": {"qxSwitch": 1}}, {"name": "Rim"},
        {"name": "Lost", "extras": {"qxSharesCoreOf": "Nobody"}}])",
     " (ComponentTransform - @ 1 0 0 (Switch 'Clone'=0& (Group 'Rim')), Group 'Wheel', "
     "Switch 'Wheel'=0&, Switch 'Wheel'=1, Group 'Lost')",
     "node 5 \"Lost\": there is no switch \"Nobody\" to share"},
    // What cannot be the environment stays in the tree.
    {R"("nodes": [
        {"name": "Plain", "extras": {"qxEnvironment": true}},
        {"name": "Sheet", "extras": {"qxOverlay": true, "qxSwitch": 0, "qxEnvironment": true}},
        {"name": "Choice", "children": [3], "extras": {"qxSwitch": 0}},
        {"name": "Chosen", "extras": {"qxSwitch": 0, "qxEnvironment": true}},
        {"name": "Sky", "translation": [1, 0, 0], "extras": {"qxSwitch": 0, "qxEnvironment": true}},
        {"name": "Late", "extras": {"qxSwitch": 0, "qxEnvironment": true}}])",
     " (Group 'Plain', Switch 'Choice'=0 (Switch 'Chosen'=0), Switch 'Late'=0)"
     " overlays (OverlayCore -=0 (Switch 'Sheet'=0)) around Switch 'Sky'=0",
     "node 0 \"Plain\": an environment is a switch and no overlay\n"
     "node 1 \"Sheet\": an environment is a switch and no overlay\n"
     "node 3 \"Chosen\": a child of a switch cannot be the environment\n"
     "node 5 \"Late\": the scene has an environment already\n"
     "node 4 \"Sky\": an environment surrounds everything: its transform has no effect"},
};

} // namespace

class SceneFileReadTest : public SceneFileFixture {};

TEST_F(SceneFileReadTest, NodesKeepNamesOrderTransformsAndStates)
{
    for (const File &each : _files) {
        SCOPED_TRACE(each.members);
        loadText(each.members);
        EXPECT_EQ(tree(), each.tree);
        EXPECT_EQ(file.warnings().join('\n'), each.warnings);
        saveAndLoad();
        expectSaved(jsonOf(path("scene.gltf")));
    }
}

TEST_F(SceneFileReadTest, TheStatedSceneIsShownWithItsVariantsDocument)
{
    loadText(R"("scene": 1, "nodes": [{"name": "A"}, {"name": "B"}], "scenes": [
        {"nodes": [0], "extras": {"qxVariants": "<other/>"}},
        {"nodes": [1], "extras": {"qxVariants": "<VariantSets/>"}}])");
    EXPECT_EQ(tree(), " (Group 'B')");
    EXPECT_EQ(file.variantsDocument(), "<VariantSets/>");

    // Without any scene: the nodes without parents.
    loadText(R"("nodes": [{"name": "Child"}, {"name": "Top", "children": [0]}],
        "extras": {"qxVariants": "<root/>"})");
    EXPECT_EQ(tree(), " (Group 'Top' (Group 'Child'))");
    EXPECT_EQ(file.variantsDocument(), "<root/>");
}

TEST_F(SceneFileReadTest, AMeshOfItsNodesNameIsHiddenWithTheNode)
{
    qxJson json = MeshText(triangle).scene();
    json["nodes"][0]["name"] = "Shape";
    const qxJson shown = json;
    json["nodes"][0]["extras"]["qxHiddenParts"] = {0};
    qxJson hidden = json;
    hidden["nodes"][0]["extensions"]["KHR_node_visibility"]["visible"] = false;
    for (const qxJson &each : {json, hidden}) {
        load(write("scene.gltf", each));
        EXPECT_EQ(tree(), " (Group 'Shape' hidden (Geometry - <>))");
        expectSaved(each);
        find("Shape").setMask(0xFFFFFFFF);
        expectSaved(shown);
    }
    json["meshes"][0]["primitives"].push_back(qxJson(json["meshes"][0]["primitives"][0]));
    load(write("scene.gltf", json));
    EXPECT_EQ(tree(), " (Group 'Shape' (Geometry - <> hidden, Geometry - <>))") << "a part of it";
}

TEST_F(SceneFileReadTest, ChainsOfAHundredThousandNodesLoadAndComeBack)
{
    const int depth = 100000;
    qxJson json = {{"asset", {{"version", "2.0"}}}};
    for (int i = 0; i + 1 < depth; ++i)
        json["nodes"].push_back({{"children", qxJson::array({i + 1})}});
    json["nodes"].push_back({{"name", "Deepest"}});
    load(write("deep.gltf", json));
    find("Deepest").setMask(0);
    save(path("deep.gltf"));
    load(path("deep.gltf"));
    EXPECT_EQ(find("Deepest").mask(), 0u);
}
