#include "HostFixture.h"
#include "OSGSwitchComponentTransform.h"
#include "Scene/qxTransformStates.h"
#include "qxLights.h"
#include "qxTransformService.h"

#include <OpenSG/OSGQuaternion.h>

#include <QTest>

static float xOf(const TestNode &node)
{
    return node.node()->getToWorld()[3][0];
}

static void selectState(const osg::NodePtr &node, int state, int delay = 0)
{
    auto *service = qxKernelServiceFactory::the()->getService<qxTransformService>();
    service->selectTransformVariants({QRPC::NodeTrafoId(qxNodePtr(node).getID(), state)}, 0, delay);
}

TEST(UniqueNameTest, TheSmallestFreeNumberIsPutBehindTheWholeName)
{
    const struct {
        std::string base, expected;
        std::vector<std::string> existing;
    } cases[] = {
        {"Set", "Set", {"Set 2", "set"}},
        {"Set", "Set 5", {"Set 2", "Set", "Set 4", "Set 3"}},
        {"Set", "Set 2", {"Set", "Set 02", "Set 2x", "Set  2", "Set2", "Set 1", "Set 3"}},
        {"Set", "Set 3", {"Set", "Set 99999999999999999999", "Set 2"}},
        {"RAL 9010", "RAL 9010 2", {"RAL 9010"}},
        {"RAL", "RAL 2", {"RAL", "RAL 9010"}},
        {"", " 2", {""}},
    };
    for (const auto &each : cases)
        EXPECT_EQ(qxNodeUtils::getUniqueName(each.base, each.existing), each.expected);
}

class NodeUtilsTest : public HostFixture {};

TEST_F(NodeUtilsTest, ATransformSwitchTakesThePoseOfTheChosenState)
{
    const TestNode seat = scene.addTransformSwitch("Seat", 3);
    EXPECT_FLOAT_EQ(xOf(seat), 0) << "state 0 from the start";
    EXPECT_EQ(seat.choose(2).choose(7).choice(), 7);
    EXPECT_FLOAT_EQ(xOf(seat), 2) << "a choice without state leaves the transform";

    const auto core = osg::SwitchComponentTransformPtr::dcast(seat.core());
    ASSERT_EQ(core->getCount(), 3u);
    osg::Matrix turned;
    turned.setTransform(osg::Vec3f(1, 2, 3), osg::Quaternion(osg::Vec3f(0, 0, 1), 0.5f),
                        osg::Vec3f(2, 3, 4));
    seat.choose(1);
    {
        const osg::CPEditor edit(core, osg::SwitchComponentTransform::StatesFieldMask);
        core->getStates()[1] = turned;
    }
    EXPECT_TRUE(seat.node()->getToWorld().equals(turned, 1e-5f));
}

TEST_F(NodeUtilsTest, NamedStatesAreSelectedByTheTransformService)
{
    const TestNode door = scene.addPoses("Door", {"Closed", "Ajar", "Open"});
    const TestNode twin = scene.addPoses("Door", {"Open"});
    EXPECT_TRUE(qxNodeUtils::hasTransformVariants(door));
    EXPECT_EQ(qxNodeUtils::getTransformVariantCount(door), 3);
    EXPECT_EQ(qxNodeUtils::getTransformVariantIndex(door, "Open"), 2);
    EXPECT_EQ(qxNodeUtils::getTransformVariantIndex(door, "open"), -1);
    EXPECT_EQ(qxNodeUtils::getTransformVariantName(door, 3), "");
    for (const int state : {2, 3, -1}) // the latter two are none
        selectState(door, state);
    EXPECT_EQ(qxNodeUtils::getTransformVariantCurrentIndex(door), 2);
    EXPECT_EQ(qxNodeUtils::getSelectedTransformVariantName(door), "Open");
    EXPECT_FLOAT_EQ(xOf(door), 2);
    EXPECT_EQ(qxNodeUtils::getTransformVariantCurrentIndex(twin), 0) << "addressed by identifier";
}

TEST_F(NodeUtilsTest, WithoutStatesTheAnswersAreEmpty)
{
    const TestNode plain = scene.addTransform("Plain");
    for (const osg::NodePtr &node : {plain.node(), osg::NodePtr()}) {
        selectState(node, 0);
        EXPECT_FALSE(qxNodeUtils::hasTransformVariants(node));
        EXPECT_EQ(qxNodeUtils::getTransformVariantCount(node), 0);
        EXPECT_EQ(qxNodeUtils::getTransformVariantIndex(node, "x"), -1);
        EXPECT_EQ(qxNodeUtils::getTransformVariantCurrentIndex(node), -1);
        EXPECT_EQ(qxNodeUtils::getSelectedTransformVariantName(node), "");
    }
}

TEST_F(NodeUtilsTest, ADelayedRequestOutlivesItsNode)
{
    const TestNode stays = scene.addPoses("Stays", {"A", "B"});
    const TestNode goes = scene.addPoses("Goes", {"A", "B"});
    for (const TestNode &node : {goes, stays})
        selectState(node, 1, 1);
    EXPECT_FLOAT_EQ(xOf(stays), 0);
    goes.remove();
    EXPECT_TRUE(QTest::qWaitFor([&] { return xOf(stays) == 1; }, 60000));
}

TEST_F(NodeUtilsTest, LightsAreSwitched)
{
    const TestNode group = scene.add("Group").setMask(0);
    const TestNode lamp = scene.addLight("Lamp", group);
    const TestNode sun = scene.addLight("Sun", scene.addEnvironments("Sky", {"Day"}).child(0));
    const TestNode clone = scene.addClone(lamp);

    EXPECT_EQ(qxLights::getLights(),
              (std::vector<qxNodePtr>{lamp.node(), clone.node(), sun.node()}));
    EXPECT_TRUE(qxLights::getOn(lamp));
    qxLights::setOn(lamp, false);
    EXPECT_FALSE(qxLights::getOn(clone)) << "shares the light";
    qxLights::setOn(group, true);
    EXPECT_FALSE(qxLights::isLight(group) || qxLights::getOn(group));
    EXPECT_FALSE(qxLights::isLight(osg::NullFC));
}
