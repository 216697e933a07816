#include "Core/qxRenderRequests.h"
#include "Scene/qxClipping.h"
#include "ScriptFixture.h"
#include "qxMaterials.h"
#include "qxScript.h"

namespace {

typedef std::vector<std::pair<std::string, std::string>> Values;

class ScriptWordsTest : public ScriptFixture {
protected:
    void expectValues(const Values &values)
    {
        for (const auto &expected : values)
            EXPECT_EQ(value(expected.first), expected.second) << expected.first;
    }
};

} // namespace

TEST_F(ScriptWordsTest, PointsAndVectorsAreThreeNumbersThatKeepTheirFloats)
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

TEST_F(ScriptWordsTest, TheClippingTextsOfVariantSetsReachTheClippingPlaneAndComeBack)
{
    qxScript::executeNUS("setClippingPlane(Pnt3f(1.5, 0, -2),Vec3f(0, 0, 1),true)\n"
                         "setClippingPlaneVisualization(false, Vec3f(0.1, 0.2, 0.3))\n"
                         "setClippingGridVisualization(false, Vec3f(0.4, 0.5, 0.6))\n"
                         "setClippingContourVisualization(false, Vec3f(0.7, 0.8, 0.9), 4)\n"
                         "setClippingHideScene(true)\n"
                         "enableClippingPlane(true)\n",
                         false);
    const qxClipping &plane = qxClipping::the();
    EXPECT_TRUE(plane.enabled && plane.invert && plane.hideScene);
    EXPECT_FALSE(plane.showPlane || plane.showGrid || plane.showContour);
    EXPECT_EQ(plane.position, osg::Pnt3f(1.5f, 0, -2));
    EXPECT_EQ(plane.gridColor, osg::Color3f(0.4f, 0.5f, 0.6f));
    expectValues({{"getClippingPlanePosition()", "1.5, 0, -2"},
                  {"getClippingPlaneNormal()", "0, 0, 1"},
                  {"getClippingPlaneColor()", "0.1, 0.2, 0.3"},
                  {"getClippingGridColor()", "0.4, 0.5, 0.6"},
                  {"getClippingContourColor()", "0.7, 0.8, 0.9"},
                  {"getClippingContourWidth()", "4"},
                  {"getClippingPlaneInvertDirection()", "True"},
                  {"getClippingHideScene()", "True"},
                  {"getClippingShowPlane()", "False"},
                  {"getClippingShowGrid()", "False"},
                  {"getClippingShowContour()", "False"},
                  {"isClippingPlaneEnabled()", "True"}});

    host.clearScene();
    expectValues({{"getClippingShowPlane()", "True"},
                  {"getClippingGridColor()", "0.63, 0.82, 0.89"},
                  {"isClippingPlaneEnabled()", "False"}});
}

TEST_F(ScriptWordsTest, ChangesAskForANewPictureAndQuestionsDoNot)
{
    scene.add("Car");
    scene.addMaterialGroup("Group", osg::NullFC);
    const char *const changes[] = {"setClippingPlane(Pnt3f(), Vec3f(), false)",
                                   "setClippingHideScene(true)", "enableClippingPlane(false)",
                                   "findNode('Car').setActive(true)",
                                   "setIgnoreMaterialGroup('Group', true)"};
    for (const char *change : changes) {
        const int before = qxRenderRequests::count();
        qxScript::run(change);
        EXPECT_EQ(qxRenderRequests::count(), before + 1) << change;
    }
    const int before = qxRenderRequests::count();
    qxScript::run("getClippingPlaneColor(), findNode('Car').isActive()");
    EXPECT_EQ(qxRenderRequests::count(), before);
}

TEST_F(ScriptWordsTest, HandlesFindNameShowAndHideNodes)
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
}

TEST_F(ScriptWordsTest, AHandleOfARemovedObjectIsNull)
{
    scene.add("Car");
    scene.addMaterial("Paint");
    qxScript::run("car = findNode('Car')\npaint = findMaterial('Paint')");
    expectValues({{"car.isNull(), paint.getName()", "(False, 'Paint')"}});
    host.clearScene();
    scene.add("Bus"); // may take the storage
    expectValues({{"car.isNull(), car.getName(), car.isActive()", "(True, '', False)"},
                  {"car == findNode('Bus'), car == qxNodePtr()", "(False, True)"},
                  {"paint.isNull(), paint.getName()", "(True, '')"}});
}

TEST_F(ScriptWordsTest, PathsAreNamesFromBelowTheRootAndTheFirstNodeInSceneOrderCounts)
{
    const TestNode car = scene.add("Car");
    scene.add("Door", car);
    const TestNode second = scene.add("Car");
    const TestNode wheel = scene.add("Wheel", second);
    const TestNode slash = scene.add("Front/Left", wheel);
    const TestNode unnamed = scene.add("", wheel);
    const auto maskAfterHiding = [this](const TestNode &node, const std::string &path) {
        qxScript::run(("findNodePath('" + path + "').setActive(false)").c_str());
        const bool hidden = !node.shown();
        node.setMask(0xFFFFFFFF);
        return hidden;
    };
    EXPECT_TRUE(maskAfterHiding(car, "Car"));
    EXPECT_TRUE(maskAfterHiding(wheel, "Car/Wheel")); // below the second one
    EXPECT_TRUE(maskAfterHiding(slash, "Car/Wheel/Front/Left"));
    EXPECT_TRUE(maskAfterHiding(unnamed, "Car/Wheel/Group"));
    for (const char *path : {"", "Root", "Root/Car", "/Car", "Car/", "Ca", "Car/Wheel/Front"})
        EXPECT_EQ(value("findNodePath('" + std::string(path) + "').isNull()"), "True") << path;
}

TEST_F(ScriptWordsTest, MaterialGroupsKeepTheirIgnoreFlag)
{
    const TestNode group = scene.addMaterialGroup("Group", osg::NullFC, scene.add("Car"));
    EXPECT_FALSE(qxMaterials::getIgnoreMaterialGroup(group));
    qxScript::run("setIgnoreMaterialGroup(\"Car/Group\",true)");
    EXPECT_TRUE(qxMaterials::getIgnoreMaterialGroup(group));
    qxScript::run("setIgnoreMaterialGroup(\"Car/Group\",false)");
    EXPECT_FALSE(qxMaterials::getIgnoreMaterialGroup(group));
    qxScript::run("setIgnoreMaterialGroup(\"Car\",true)");
    EXPECT_EQ(
        logged(qxLog::Warning),
        std::vector<std::string>{"setIgnoreMaterialGroup: there is no material group \"Car\""});
    EXPECT_FALSE(qxMaterials::getIgnoreMaterialGroup(scene.root().child(0)));
    EXPECT_FALSE(qxMaterials::getIgnoreMaterialGroup(osg::NullFC));
}
