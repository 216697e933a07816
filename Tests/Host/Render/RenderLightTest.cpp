#include "RenderFixture.h"
#include "qxLights.h"

#include <OpenSG/OSGDirectionalLight.h>
#include <OpenSG/OSGSpotLight.h>

/// A matt white wall and lights one unit in front of it.
class RenderLightTest : public RenderFixture {
protected:
    RenderLightTest()
    {
        addMattWall(-1);
        const TestNode off = scene.addLight("Off");
        osg::UberLightPtr::dcast(off.core())->setOn(false);
        m_dark = picture().brightness(0, 0);
    }
    template <class Core>
    typename Core::Ptr add()
    {
        const typename Core::Ptr light = Core::create();
        addNode(light);
        return light;
    }
    /// How much brighter the wall is there than without light.
    int lightAt(float x) { return picture().brightness(x, 0) - m_dark; }

private:
    int m_dark = 0;
};

TEST_F(RenderLightTest, APointShinesAllAroundUpToItsRangeAndASpotIntoItsConeOnly)
{
    const auto light = add<osg::UberLight>();
    light->setIntensity(3);
    EXPECT_GT(lightAt(0), lightAt(0.8f));
    EXPECT_GT(lightAt(0.8f), 30);
    light->setRange(1.1f);
    EXPECT_GT(lightAt(0), 20);
    EXPECT_EQ(lightAt(0.8f), 0);
    light->setRange(0);
    light->setKind(osg::UberLight::Spot);
    light->setOuterAngle(0.4f); // reaches 0.42 beside the middle
    EXPECT_GT(lightAt(0), 100);
    EXPECT_GT(lightAt(0.2f), 10);
    EXPECT_LT(lightAt(0.2f), lightAt(0));
    EXPECT_EQ(lightAt(0.5f), 0);
}

TEST_F(RenderLightTest, LightsOfTheSceneGraphShineAsTheirFieldsSay)
{
    const auto towards = add<osg::DirectionalLight>();
    towards->setDirection(osg::Vec3f(0, 0, 1));
    EXPECT_GT(lightAt(0), 100);
    EXPECT_EQ(lightAt(0), lightAt(0.8f));
    towards->setDirection(osg::Vec3f(0, 0, -1));
    EXPECT_EQ(lightAt(0), 0);
    const auto spot = add<osg::SpotLight>();
    spot->setDirection(osg::Vec3f(0, 0, -1));
    spot->setSpotCutOff(0.4f);
    EXPECT_GT(lightAt(0), 100);
    EXPECT_EQ(lightAt(0.5f), 0);
    const TestNode beacon = scene.addTransformSwitch("Beacon", 2);
    spot->setBeacon(beacon.node());
    beacon.choose(1);
    EXPECT_EQ(lightAt(0), 0);
    EXPECT_GT(lightAt(0.9f), 50);
}

TEST_F(RenderLightTest, LightsTooStrongForAPictureAreExposed)
{
    const osg::NodePtr sun = addSun(100000);
    add<osg::UberLight>()->setIntensity(50000);
    const int both = lightAt(0);
    qxLights::setOn(sun, false);
    EXPECT_LT(lightAt(0), both);
    EXPECT_GT(lightAt(0), 10);
}
