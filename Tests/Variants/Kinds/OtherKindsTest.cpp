#include "qxAnalyzerVariant.h"
#include "qxLightVariant.h"
#include "qxOverlayVariant.h"
#include "qxTransformVariant.h"

#include "HostFixture.h"
#include "KindTexts.h"
#include "Script/qxScriptRunner.h"
#include "qxConnector.h"
#include "qxLights.h"
#include "qxNodeUtils.h"
#include "qxOverlays.h"

#include <OpenSG/OSGNode.h>

namespace {

class LightVariantTest : public HostFixture {};
class OverlayVariantTest : public HostFixture {};
class TransformVariantTest : public HostFixture {};

class AnalyzerVariantTest : public HostFixture {
protected:
    AnalyzerVariantTest()
    {
        m_listener = qxScriptRunner::addListener(
            [this](const qxScriptText &script) { scripts.push_back(script); });
    }
    ~AnalyzerVariantTest() override { qxScriptRunner::removeListener(m_listener); }

    std::string scriptOf(qxAnalyzerVariant clip)
    {
        scripts.clear();
        clip.execute();
        return scripts.size() == 1 ? scripts[0].text : "";
    }

    std::vector<qxScriptText> scripts;

private:
    int m_listener = 0;
};

int selected(const TestNode &node)
{
    return qxNodeUtils::getTransformVariantCurrentIndex(node);
}

} // namespace

TEST_F(LightVariantTest, EachLightOfTheNameIsToggledAndAnnounced)
{
    const TestNode group = scene.add("Sun");
    const TestNode first = scene.addLight("Sun");
    const TestNode second = scene.addLight("Sun", group);
    qxLights::setOn(second, false);
    qxLightVariant variant(first.node());
    EXPECT_EQ(variant.defaultState, "!Enable");
    notifications.clear();

    variant.onSelect("!Toggle"); // the group and its light come first
    EXPECT_TRUE(qxLights::getOn(second));
    EXPECT_FALSE(qxLights::getOn(first));
    EXPECT_EQ(
        notifications.lines(),
        Texts({"1 variantsLightsChanged variantName=Sun enabled=[Sun] disabled=[] parent= path=",
               "1 variantsLightsChanged variantName=Sun enabled=[] disabled=[Sun] parent= path=",
               "1 lightVariantSelected variant=" + addressOf(&variant)}));
    EXPECT_EQ(variant.onCurrent(), "!Enable");
}

TEST_F(LightVariantTest, StatesAreSetAndOthersIgnored)
{
    const TestNode lamp = scene.addLight("Lamp");
    qxLightVariant variant(lamp.node());
    variant.onSelect("!Disable");
    EXPECT_EQ(variant.onCurrent(), "!Disable");
    variant.onSelect("!Enable");
    EXPECT_EQ(variant.onCurrent(), "!Enable");
    notifications.clear();
    variant.onSelect("!Next");
    EXPECT_EQ(notifications.names(), Texts({"lightVariantSelected"}));
}

TEST_F(LightVariantTest, RebuildingLosesShortcutsAndWithoutALightAllOptions)
{
    const TestNode lamp = scene.addLight("Lamp");
    qxLightVariant variant(lamp.node());
    variant.options.clear();
    variant.add(true, "!Enable", "Ctrl+1");
    qxLights::setOn(lamp, false);
    variant.updateVariants();
    EXPECT_EQ(textsOf(variant.options), Texts({"!Enable", "!Disable", "!Toggle*"}));
    EXPECT_EQ(variant.defaultState, "!Disable");

    scene.add("Shade");
    variant.lightName = "Shade";
    variant.updateVariants();
    EXPECT_TRUE(variant.options.empty());
    EXPECT_EQ(variant.defaultState, "!Disable");
    EXPECT_EQ(variant.onCurrent(), "");
    EXPECT_TRUE(qxLightVariant(scene.add("Other").node()).options.empty());
}

TEST_F(OverlayVariantTest, SelectingOnlyAsksTheHost)
{
    const TestNode logo = scene.addOverlay("Logo");
    qxOverlayVariant variant(logo.node());
    EXPECT_EQ(textsOf(variant.options), Texts({"!Enable", "!Disable", "!Toggle*"}));
    EXPECT_EQ(variant.defaultState, "!Enable");
    variant.overlayName = "Unknown"; // the host need not know it
    notifications.clear();
    variant.onSelect("Whatever");
    EXPECT_EQ(notifications.lines(),
              Texts({"1 activateOverlays variantState=Whatever name=Unknown",
                     "1 overlayVariantSelected variant=" + addressOf(&variant)}));
    EXPECT_TRUE(logo.shown());
}

TEST_F(OverlayVariantTest, ASwitchIsReadAsANodeVariantReadsIt)
{
    const TestNode legend = scene.addOverlaySwitch("Legend", {"Logo", "Info"}).choose(1);
    qxOverlayVariant variant(legend.node());
    EXPECT_EQ(variant.defaultState, "Info");
    EXPECT_EQ(variant.onCurrent(), "Info");
    legend.choose(-2);
    EXPECT_EQ(variant.onCurrent(), "!All");
    EXPECT_EQ(qxOverlayVariant(legend.node()).defaultState, "!None");

    variant.options.clear();
    variant.add("Info", "F1");
    variant.add("!Next", "");
    variant.updateVariants();
    EXPECT_EQ(textsOf(variant.options),
              Texts({"!All", "!None", "!Next*", "!Next (Loop)", "!Previous", "!Previous (Loop)",
                     "Logo", "Info (F1)"}));
    EXPECT_EQ(variant.defaultState, "Info");
    variant.overlayName = "Gone";
    variant.updateVariants();
    EXPECT_TRUE(variant.options.empty());
    EXPECT_EQ(variant.onCurrent(), "");
}

TEST_F(OverlayVariantTest, AChangeIsAnnouncedAsOneOfOverlays)
{
    const TestNode legend = scene.addOverlaySwitch("Legend", {"Logo", "Info"}).choose(0);
    qxOverlayVariant variant(legend.node());
    qxMessage message;
    notifications.clear();
    variant.callVariantsNodesChanged(legend.node(), message);
    const std::string path = variant.getNodePath(legend.node()).toStdString();
    EXPECT_EQ(notifications.lines(),
              Texts({"1 variantsOverlaysChanged visible=[Logo] invisible=[Info] parent=Legend path="
                     + path}));
}

TEST_F(TransformVariantTest, EachNodeIsSteppedFromItsOwnStateInSilence)
{
    const TestNode left = scene.addPoses("Door", {"Shut", "Ajar", "Open"});
    const TestNode right = scene.addPoses("Door", {"Shut", "Open"});
    scene.add("Door");
    qxTransformVariant variant("Door");
    notifications.clear();
    struct Step {
        const char *state;
        int left, right;
    };
    const std::vector<Step> steps{
        {"!Next", 1, 1},   {"!Next", 2, 1},     {"!Next (Loop)", 0, 0}, {"!Previous", 0, 0},
        {"Open", 2, 1},    {"!Previous", 1, 0}, {"Ajar", 1, 0},         {"!Previous (Loop)", 0, 1},
        {"Unknown", 0, 1}, {"!All", 0, 1}};
    for (const Step &step : steps) {
        variant.onSelect(step.state);
        EXPECT_EQ(selected(left), step.left) << step.state;
        EXPECT_EQ(selected(right), step.right) << step.state;
    }
    EXPECT_EQ(variant.onCurrent(), "Shut");
    EXPECT_EQ(notifications.names(), Texts());
}

TEST_F(TransformVariantTest, OptionsAreTakenFromTheFirstNodeWithStates)
{
    scene.add("Door");
    scene.addPoses("Door", {"Shut", "Open"});
    qxTransformVariant variant("Door");
    const Texts steps{"!Next*", "!Next (Loop)*", "!Previous*", "!Previous (Loop)*"};
    EXPECT_EQ(variant.name, "Door");
    EXPECT_EQ(variant.defaultState, "!Next");

    variant.options.clear();
    variant.add("!Next", "F1");
    variant.add(true, "Open", "F2");
    variant.add("Shut", "F3");
    variant.defaultState = "Shut";
    variant.updateVariants();
    EXPECT_EQ(textsOf(variant.options),
              Texts({steps[0], steps[1], steps[2], steps[3], "Shut (F3)", "Open* (F2)"}));
    EXPECT_EQ(variant.defaultState, "Shut");
    variant.defaultState = "Open";
    variant.updateVariants();
    EXPECT_EQ(variant.defaultState, "!Next");

    variant.nodeName = "Gone";
    variant.updateVariants();
    EXPECT_TRUE(variant.options.empty());
    EXPECT_TRUE(qxTransformVariant("").name.isEmpty());
}

TEST_F(AnalyzerVariantTest, DoesNothingUnlessAsked)
{
    qxAnalyzerVariant clip;
    for (int state : {0, 4, -1}) {
        clip.clipState = state;
        clip.execute();
    }
    EXPECT_TRUE(scripts.empty());
}

TEST_F(AnalyzerVariantTest, EnablesWithEveryOptionAndDisablesWithNone)
{
    qxAnalyzerVariant clip;
    clip.clipState = 1;
    EXPECT_EQ(scriptOf(clip),
              "setClippingPlane(Pnt3f(0, 0, 0),Vec3f(0, 1, 0),false)\n"
              "setClippingPlaneVisualization(true, Vec3f(0.2, 0.3, 0.4))\n"
              "setClippingGridVisualization(true, Vec3f(0.63, 0.82, 0.89))\n"
              "setClippingContourVisualization(true, Vec3f(1, 0.7, 0), 1)\n"
              "setClippingHideScene(false)\n"
              "enableClippingPlane(true)\n");
    clip.clipState = 2;
    EXPECT_EQ(scriptOf(clip), "enableClippingPlane(false)\n");
}

TEST_F(AnalyzerVariantTest, EachFieldHasItsPlaceInTheScript)
{
    qxAnalyzerVariant clip;
    clip.clipState = 1;
    clip.clipPlaneInvert = true;
    clip.clipPlaneShow = false;
    clip.clipPlaneColor = osg::Color3f(0.123456789f, 0, 1e-7f);
    clip.clipGridShow = false;
    clip.clipGridColor = osg::Color3f(0, 1, 0);
    clip.clipContourShow = false;
    clip.clipContourColor = osg::Color3f(0, 0, 1);
    clip.clipContourWidth = 12345;
    clip.clipPlaneHideScene = true;
    EXPECT_EQ(scriptOf(clip),
              "setClippingPlane(Pnt3f(0, 0, 0),Vec3f(0, 1, 0),true)\n"
              "setClippingPlaneVisualization(false, Vec3f(0.123457, 0, 1e-07))\n"
              "setClippingGridVisualization(false, Vec3f(0, 1, 0))\n"
              "setClippingContourVisualization(false, Vec3f(0, 0, 1), 12345)\n"
              "setClippingHideScene(true)\n"
              "enableClippingPlane(true)\n");
}

TEST_F(AnalyzerVariantTest, MovesThePlaneAloneAndHandsOnWhetherToSynchronise)
{
    qxAnalyzerVariant clip;
    clip.clipState = 3;
    clip.clipPlanePosition = osg::Pnt3f(1.5f, 0, -2);
    clip.clipPlaneNormal = osg::Vec3f(0, 0, 1);
    EXPECT_EQ(scriptOf(clip), "setClippingPlane(Pnt3f(1.5, 0, -2),Vec3f(0, 0, 1),false)\n");
    EXPECT_FALSE(scripts[0].synchronise);
    EXPECT_EQ(scripts[0].origin, qxScriptText::Application);

    qxConnector::the()->setSyncVariants(true);
    scriptOf(clip);
    qxConnector::the()->setSyncVariants(false);
    EXPECT_TRUE(scripts[0].synchronise);
}
