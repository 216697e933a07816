#include "Core/qxRenderRequests.h"
#include "Scene/qxClipping.h"
#include "ScriptFixture.h"

#include <OpenSG/OSGSimpleAttachments.h>

typedef std::vector<std::pair<std::string, std::string>> Values;

class ScriptBindingsTest : public ScriptFixture {
protected:
    void expectValues(const Values &values)
    {
        for (const auto &expected : values)
            EXPECT_EQ(value(expected.first), expected.second) << expected.first;
    }
};

TEST_F(ScriptBindingsTest, PointsAndVectorsAreThreeNumbersThatKeepTheirFloats)
{
    expectValues({{"Pnt3f(0.2, 1e-7, -3)", "0.2, 1e-07, -3"},
                  {"Vec3f()", "0, 0, 0"},
                  {"Vec3f(0.123456789, 16777216, 1e30)", "0.12345679, 16777216, 1e+30"},
                  {"repr([Pnt3f(1, 2, 3), Vec3f(4, 5, 6)])", "[Pnt3f(1, 2, 3), Vec3f(4, 5, 6)]"},
                  {"(lambda v: (v.x(), v.y(), v.z()))(Vec3f(1, 2, 3))", "(1.0, 2.0, 3.0)"},
                  {"list(Pnt3f(1, 2, 3)), Pnt3f(1, 2, 3)[-1]", "([1.0, 2.0, 3.0], 3.0)"},
                  {"Pnt3f(1, 2, 3) == Pnt3f(1, 2, 3), Vec3f(1, 0, 0) != Vec3f()", "(True, True)"}});
    EXPECT_NE(errorsOf("Vec3f(1, 2, 3)[3]").find("IndexError"), std::string::npos);
}

TEST_F(ScriptBindingsTest, TheClippingTextsOfVariantSetsReachTheClippingPlaneAndComeBack)
{
    qxScript::executeNUS("setClippingPlane(Pnt3f(1.5, 0, -2),Vec3f(0, 0, 1),true)\n"
                         "setClippingPlaneVisualization(false, Vec3f(0.1, 0.2, 0.3))\n"
                         "setClippingGridVisualization(false, Vec3f(0.4, 0.5, 0.6))\n"
                         "setClippingContourVisualization(false, Vec3f(0.7, 0.8, 0.9), 4)\n"
                         "setClippingHideScene(true)\n"
                         "enableClippingPlane(true)\n",
                         false);
    const qxClipping &plane = qxClipping::the();
    EXPECT_TRUE(plane.enabled && plane.invert && plane.hideScene && !plane.showGrid);
    EXPECT_EQ(plane.gridColor, osg::Color3f(0.4f, 0.5f, 0.6f));
    expectValues({{"getClippingPlanePosition()", "1.5, 0, -2"},
                  {"getClippingPlaneNormal()", "0, 0, 1"},
                  {"getClippingPlaneColor()", "0.1, 0.2, 0.3"},
                  {"getClippingGridColor()", "0.4, 0.5, 0.6"},
                  {"getClippingContourColor()", "0.7, 0.8, 0.9"},
                  {"getClippingContourWidth(), getClippingPlaneInvertDirection(), "
                   "getClippingHideScene(), isClippingPlaneEnabled()",
                   "(4, True, True, True)"},
                  {"getClippingShowPlane(), getClippingShowGrid(), getClippingShowContour()",
                   "(False, False, False)"}});
    qxScript::run("setClippingGridVisualization(true, Vec3f())");
    expectValues({{"getClippingShowPlane(), getClippingShowGrid(), getClippingShowContour()",
                   "(False, True, False)"}});

    host.clearScene();
    expectValues({{"getClippingShowPlane()", "True"},
                  {"getClippingGridColor()", "0.63, 0.82, 0.89"},
                  {"isClippingPlaneEnabled()", "False"}});
}

TEST_F(ScriptBindingsTest, ChangesAskForANewPictureAndQuestionsDoNot)
{
    scene.add("Car");
    scene.addMaterialGroup("Group", osg::NullFC);
    const std::vector<std::pair<const char *, int>> requests{
        {"setClippingPlane(Pnt3f(), Vec3f(), false)", 1},
        {"setClippingHideScene(true)", 1},
        {"enableClippingPlane(false)", 1},
        {"findNode('Car').setActive(true)", 1},
        {"setIgnoreMaterialGroup('Group', true)", 1},
        {"getClippingPlaneColor(), findNode('Car').isActive()", 0}};
    for (const auto &[script, count] : requests) {
        const int before = qxRenderRequests::count();
        qxScript::run(script);
        EXPECT_EQ(qxRenderRequests::count(), before + count) << script;
    }
}

TEST_F(ScriptBindingsTest, HandlesFindNameShowAndHideNodesAndBecomeNullWithTheirObject)
{
    const TestNode car = scene.add("Car");
    const TestNode door = scene.add("T\xC3\xBCr", car);
    door.setMask(7);
    qxScript::run("door = findNode('T\xC3\xBCr')\nother = findNode(u'T\\xfcr')");
    expectValues(
        {{"door.getName()", "T\xC3\xBCr"},
         {"bool(door), door.isNull(), door.isActive()", "(True, False, False)"},
         {"door == other, door != findNode('Car'), len({door, other})", "(True, True, 1)"},
         {"bool(findNode('Bus')), bool(findNode('')), bool(qxNodePtr())", "(False, False, False)"},
         {"qxNodePtr().getName(), qxNodePtr().isActive()", "('', False)"}});
    qxScript::run("door.setActive(true)");
    EXPECT_TRUE(door.shown());
    qxScript::run("door.setActive(false)");
    EXPECT_EQ(door.mask(), 0u);
    EXPECT_TRUE(car.shown());
    qxScript::run("findNodePath('Car/Roof').setActive(false)");
    EXPECT_EQ(logged(qxLog::Warning),
              std::vector<std::string>{"setActive: there is no node \"Car/Roof\""});

    scene.addMaterial("Paint");
    qxScript::run("car = findNode('Car')\npaint = findMaterial('Paint')");
    expectValues({{"car.isNull(), paint.getName()", "(False, 'Paint')"}});
    host.clearScene();
    scene.add("Bus"); // may take the storage
    expectValues({{"car.isNull(), car.getName(), car.isActive()", "(True, '', False)"},
                  {"car == findNode('Bus'), car == qxNodePtr()", "(False, True)"},
                  {"paint.isNull(), paint.getName()", "(True, '')"}});
}

TEST_F(ScriptBindingsTest, PathsAreNamesFromBelowTheRootAndTheFirstNodeInSceneOrderCounts)
{
    const TestNode car = scene.add("Car"), door = scene.add("Door", car);
    const TestNode second = scene.add("Car"), wheel = scene.add("Wheel", second);
    const TestNode slash = scene.add("Front/Left", wheel), unnamed = scene.add("", second);
    const TestNode front = scene.add("Front", scene.add("Wheel", second));
    scene.add("Left", front);
    scene.add("Bonnet/Left", car);
    const TestNode skies = scene.addEnvironments("Sky", {"Studio", "Car"});
    const TestNode sky = scene.add("Sky"), none(osg::NullFC);
    std::vector<std::pair<std::string, TestNode>> paths{
        {"Car", car},
        {"Car/Door", door},
        {"Car/Wheel", wheel}, // below the second one
        {"Car/Wheel/Front/Left", slash},
        {"Car/Wheel/Front", front},
        {"Car/Group", unnamed},
        {"Sky", sky}, // the one in the tree
        {"Sky/Studio", skies.child(0)},
        {"Sky/Car", skies.child(1)}};
    for (const char *wrong : {"", "Root", "Root/Car", "/Car", "Car/", "Ca", "Car Door", "ar/Door",
                              "Door", "Car/Bonnet", "Car/Wheel/Front/", "Studio/Car"})
        paths.emplace_back(wrong, none);
    std::string all = "found = {";
    for (const auto &expected : paths)
        all += "'" + expected.first + "': findNodePath('" + expected.first + "'), ";
    qxScript::run((all + "}").c_str());
    for (const auto &[path, expected] : paths) {
        const osg::NodePtr node = expected;
        const std::string id = std::to_string(node == osg::NullFC ? 0 : node.getFieldContainerId());
        EXPECT_EQ(value("hash(findNodePath('" + path + "'))"), id) << path;
        EXPECT_EQ(value("hash(found['" + path + "'])"), id) << path << " among many";
    }
}

TEST_F(ScriptBindingsTest, PathsFollowWhatAScriptChangesMeanwhile)
{
    const TestNode car = scene.add("Car");
    const TestNode door = scene.addMaterialGroup("Door", osg::NullFC, car);
    const TestNode unnamed = scene.addMaterialGroup("", osg::NullFC, car);
    const std::vector<std::pair<std::function<void()>, std::string>> changes{
        {[] {}, "1100000"},
        {[&] { qxMaterials::setIgnoreMaterialGroup(door, true); }, "1100000"},
        {[&] { osg::setName(unnamed.node(), "Roof"); }, "1110000"},
        {[&] { osg::setName(car.node(), "Bus"); }, "0001000"},
        {[&] { osg::setName(door.core(), "Gate"); }, "0001000"},
        {[&] { scene.add("Seat", car); }, "0001100"},
        {[&] { scene.addEnvironments("Sky", {"Sun"}); }, "0001110"},
        {[&] { osg::setName(scene.add("Car").node(), "Sea"); }, "0001111"},
        {[&] { host.clearScene(); }, "0000000"}};
    std::size_t step = 0;
    const int listener = qxRenderRequests::addListener([&](bool) { changes[step++].first(); });
    qxScript::run(
        "paths = ['Car', 'Car/Door', 'Car/Roof', 'Bus/Door', 'Bus/Seat', 'Sky/Sun', 'Sea']\n"
        "found = []\n"
        "for step in range(9):\n"
        "  for path in paths: findNodePath(path)\n"
        "  enableClippingPlane(true)\n"
        "  found.append(''.join(str(int(bool(findNodePath(p)))) for p in paths))\n");
    qxRenderRequests::removeListener(listener);
    ASSERT_EQ(step, changes.size());
    for (std::size_t i = 0; i < changes.size(); ++i)
        EXPECT_EQ(value("found[" + std::to_string(i) + "]"), changes[i].second) << i;
}

TEST_F(ScriptBindingsTest, MaterialGroupsKeepTheirIgnoreFlag)
{
    const TestNode car = scene.add("Car");
    const TestNode group = scene.addMaterialGroup("Group", osg::NullFC, car);
    EXPECT_FALSE(qxMaterials::getIgnoreMaterialGroup(group));
    qxScript::run("setIgnoreMaterialGroup(\"Car/Group\",true)");
    EXPECT_TRUE(qxMaterials::getIgnoreMaterialGroup(group));
    qxScript::run("setIgnoreMaterialGroup(\"Car/Group\",false)\n"
                  "setIgnoreMaterialGroup(\"Car\",true)");
    for (const osg::NodePtr &node : {group.node(), car.node(), osg::NodePtr()})
        EXPECT_FALSE(qxMaterials::getIgnoreMaterialGroup(node));
    EXPECT_EQ(
        logged(qxLog::Warning),
        std::vector<std::string>{"setIgnoreMaterialGroup: there is no material group \"Car\""});
}
