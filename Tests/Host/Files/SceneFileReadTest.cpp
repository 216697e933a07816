#include "Files/SceneFileFixture.h"
#include "OSGSwitchComponentTransform.h"
#include "qxAnimManager.h"
#include "qxNodeUtils.h"
#include "qxScenegraph.h"
#include "qxUberCameraPool.h"

#include <OpenSG/OSGSimpleAttachments.h>
#include <OpenSG/OSGSwitch.h>
#include <OpenSG/OSGTransform.h>

#include <cmath>

namespace {

std::string typeOf(const TestNode &node)
{
    return node.core()->getTypeName();
}

/// Where the node puts its own origin.
osg::Pnt3f originOf(const TestNode &node)
{
    const osg::Matrix toWorld = node.node()->getToWorld();
    return osg::Pnt3f(toWorld[3][0], toWorld[3][1], toWorld[3][2]);
}

} // namespace

class SceneFileReadTest : public SceneFileFixture {};

TEST_F(SceneFileReadTest, NodesKeepNamesOrderAndTransforms)
{
    loadText(R"({"asset": {"version": "2.0"}, "scenes": [{"nodes": [2, 0]}], "nodes": [
        {"name": "Moved", "translation": [1, 2, 3], "rotation": [0, 0, 0.70710678, 0.70710678],
         "scale": [2, 2, 2], "children": [1]},
        {"name": "Shifted", "matrix": [1,0,0,0, 0,1,0,0, 0,0,1,0, 5,0,0,1]},
        {}]})");

    ASSERT_EQ(scene.root().node()->getNChildren(), 2u);
    const TestNode unnamed = scene.root().child(0);
    EXPECT_EQ(osg::getName(unnamed.node()), nullptr);
    EXPECT_EQ(typeOf(unnamed), "Group");
    EXPECT_EQ(typeOf(find("Moved")), "ComponentTransform");
    EXPECT_EQ(typeOf(find("Shifted")), "Transform");
    // Five along x, doubled and turned to y, on top of the parent's place.
    EXPECT_TRUE(originOf(find("Shifted")).equals(osg::Pnt3f(1, 12, 3), 1e-4f));
}

TEST_F(SceneFileReadTest, EveryNameOfTheFileIsANameAlsoTheEmptyOne)
{
    loadText(R"({"asset": {"version": "2.0"}, "scenes": [{"nodes": [0, 1]}],
        "nodes": [{"name": ""}, {"name": "T\u00fcr \ud83d\ude97"}]})");

    EXPECT_STREQ(osg::getName(scene.root().child(0).node()), "");
    EXPECT_EQ(scene.root().child(1).name(), "T\u00fcr \U0001F697");
}

TEST_F(SceneFileReadTest, OnlyTheStatedSceneIsShown)
{
    loadText(R"({"asset": {"version": "2.0"}, "scene": 1, "nodes": [{"name": "A"}, {"name": "B"}],
        "scenes": [{"nodes": [0]}, {"nodes": [1]}]})");

    ASSERT_EQ(scene.root().node()->getNChildren(), 1u);
    EXPECT_EQ(scene.root().child(0).name(), "B");
    EXPECT_EQ(file.info().scenes, 2);
    EXPECT_EQ(file.info().nodes, 2);
}

TEST_F(SceneFileReadTest, WithoutAnySceneTheNodesWithoutParentsAreShown)
{
    loadText(R"({"asset": {"version": "2.0"},
        "nodes": [{"name": "Child"}, {"name": "Top", "children": [0]}]})");

    ASSERT_EQ(scene.root().node()->getNChildren(), 1u);
    EXPECT_EQ(scene.root().child(0).child(0).name(), "Child");
}

TEST_F(SceneFileReadTest, ASwitchThatStandsSomewhereGetsATransformAboveIt)
{
    loadText(R"({"asset": {"version": "2.0"}, "scenes": [{"nodes": [0]}], "nodes": [
        {"name": "Wheels", "translation": [3, 0, 0], "extras": {"qxSwitch": 1},
         "children": [1, 2]}, {"name": "Steel"}, {"name": "Alloy"}]})");

    const TestNode upper = scene.root().child(0);
    EXPECT_EQ(osg::getName(upper.node()), nullptr);
    EXPECT_EQ(typeOf(upper), "ComponentTransform");
    EXPECT_EQ(typeOf(find("Wheels")), "Switch");
    EXPECT_EQ(find("Wheels").choice(), 1);
    EXPECT_EQ(find("Wheels").child(1).name(), "Alloy");
    EXPECT_EQ(originOf(find("Wheels")), osg::Pnt3f(3, 0, 0));
}

TEST_F(SceneFileReadTest, SwitchChoicesComeAsAnyWholeNumber)
{
    loadText(R"({"asset": {"version": "2.0"}, "scenes": [{"nodes": [0, 1, 2]}], "nodes": [
        {"name": "All", "extras": {"qxSwitch": -2}}, {"name": "Float", "extras": {"qxSwitch": 3.0}},
        {"name": "Text", "extras": {"qxSwitch": "one"}}]})");

    EXPECT_EQ(find("All").choice(), -2);
    EXPECT_EQ(find("Float").choice(), 3);
    EXPECT_EQ(typeOf(find("Text")), "Group");
    ASSERT_EQ(file.warnings().size(), 1);
    EXPECT_EQ(file.warnings()[0], "node 2 \"Text\": qxSwitch is no integer");
}

TEST_F(SceneFileReadTest, ATransformSwitchStandsInItsChosenState)
{
    loadText(R"({"asset": {"version": "2.0"}, "scenes": [{"nodes": [0]}], "nodes": [
        {"name": "Lid", "translation": [9, 9, 9], "extras": {"qxTransformChoice": 1,
         "qxTransformStates": [0,0,0, 0,0,0,1, 1,1,1,  0,2,0, 0,0,0,1, 1,1,1]}}]})");

    EXPECT_EQ(typeOf(find("Lid")), "SwitchComponentTransform");
    EXPECT_EQ(find("Lid").choice(), 1);
    EXPECT_EQ(originOf(find("Lid")), osg::Pnt3f(0, 2, 0));
}

TEST_F(SceneFileReadTest, ClonesShareTheCoreOfTheFirstSwitchOfThatName)
{
    loadText(R"({"asset": {"version": "2.0"}, "scenes": [{"nodes": [0, 1, 2, 3, 5]}], "nodes": [
        {"name": "Clone", "translation": [1, 0, 0], "extras": {"qxSharesCoreOf": "Wheel"},
         "children": [4]},
        {"name": "Wheel"}, {"name": "Wheel", "extras": {"qxSwitch": 0}},
        {"name": "Wheel", "extras": {"qxSwitch": 1}}, {"name": "Rim"},
        {"name": "Lost", "extras": {"qxSharesCoreOf": "Nobody"}}]})");

    const TestNode owner = scene.root().child(2);
    EXPECT_EQ(find("Clone").core(), owner.core());
    EXPECT_NE(find("Clone").core(), scene.root().child(3).core());
    EXPECT_EQ(find("Clone").child(0).name(), "Rim");
    EXPECT_EQ(originOf(find("Rim")), osg::Pnt3f(1, 0, 0));
    ASSERT_EQ(file.warnings().size(), 1);
    EXPECT_EQ(file.warnings()[0], "node 5 \"Lost\": there is no switch \"Nobody\" to share");
}

TEST_F(SceneFileReadTest, HiddenNodesAndNamedPoses)
{
    loadText(R"({"asset": {"version": "2.0"}, "scenes": [{"nodes": [0, 1]}], "nodes": [
        {"name": "Hidden", "extensions": {"KHR_node_visibility": {"visible": false}}},
        {"name": "Door", "extras": {"qxPoseNames": "Shut;Open", "qxPose": 1,
         "qxPoses": [0,0,0, 0,0,0,1, 1,1,1,  0,0,1, 0,0,0,1, 1,1,1]}}]})");

    EXPECT_EQ(find("Hidden").mask(), 0u);
    EXPECT_TRUE(find("Door").shown());
    EXPECT_EQ(qxNodeUtils::getTransformVariantCount(find("Door")), 2);
    EXPECT_EQ(qxNodeUtils::getSelectedTransformVariantName(find("Door")), "Open");
}

TEST_F(SceneFileReadTest, CamerasBecomeViewpointsAndAnimationsClips)
{
    loadText(R"({"asset": {"version": "2.0"}, "scenes": [{"nodes": [0, 2]}], "nodes": [
        {"translation": [0, 0, 5], "children": [1]}, {"name": "Front", "camera": 0}, {"camera": 1}],
        "cameras": [
        {"type": "perspective", "perspective": {"yfov": 0.5, "znear": 0.25}},
        {"name": "Plan", "type": "orthographic",
         "orthographic": {"xmag": 2, "ymag": 3, "znear": 1, "zfar": 9}}],
        "animations": [{"name": "Open", "channels": [], "samplers": []}, {}]})");

    const qxUberCameraPool &pool = *qxUberCameraPool::the();
    ASSERT_EQ(pool.count(), 2);
    EXPECT_EQ(pool.findViewpoint("Front"), 0);
    EXPECT_EQ(pool.get(0)->fieldOfView, 0.5f);
    EXPECT_EQ(pool.get(0)->nearPlane, 0.25f);
    EXPECT_EQ(pool.get(0)->farPlane, 0.0f);
    EXPECT_EQ(pool.get(0)->toWorld[3][2], 5.0f);
    EXPECT_EQ(pool.findViewpoint("Plan"), 1);
    EXPECT_EQ(pool.get(1)->fieldOfView, 0.0f);
    EXPECT_EQ(pool.get(1)->height, 6.0f);
    EXPECT_EQ(qxAnimManager::the()->clips(), (std::vector<std::string>{"Open", ""}));
}

TEST_F(SceneFileReadTest, TheVariantsDocumentOfTheShownSceneIsFound)
{
    loadText(R"({"asset": {"version": "2.0"}, "scene": 1, "scenes": [
        {"extras": {"qxVariants": "<other/>"}}, {"extras": {"qxVariants": "<VariantSets/>"}}]})");
    EXPECT_EQ(file.variantsDocument(), "<VariantSets/>");

    loadText(R"({"asset": {"version": "2.0"}, "extras": {"qxVariants": "<root/>"}})");
    EXPECT_EQ(file.variantsDocument(), "<root/>");
}

TEST_F(SceneFileReadTest, ChainsOfAHundredThousandNodesLoadAndComeBack)
{
    const int depth = 100000;
    qxJson json = {{"asset", {{"version", "2.0"}}}};
    for (int i = 0; i + 1 < depth; ++i)
        json["nodes"].push_back({{"children", qxJson::array({i + 1})}});
    json["nodes"].push_back({{"name", "Deepest"}});
    load(write("deep.gltf", json));
    EXPECT_EQ(find("Deepest").name(), "Deepest");

    find("Deepest").setMask(0);
    saveAndLoad();
    EXPECT_EQ(find("Deepest").mask(), 0u);
}
