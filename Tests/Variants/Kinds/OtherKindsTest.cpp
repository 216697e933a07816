#include "qxAnalyzerVariant.h"
#include "qxLightVariant.h"
#include "qxNodeVariant.h"
#include "qxOverlayVariant.h"
#include "qxTransformVariant.h"

#include "KindFixture.h"
#include "Script/qxScriptRunner.h"
#include "qxConnector.h"
#include "qxLights.h"

typedef KindFixture LightVariantTest;
typedef KindFixture OverlayVariantTest;
typedef KindFixture TransformVariantTest;
typedef HostFixture AnalyzerVariantTest;

/// What the setting runs in that state.
static std::vector<qxScriptText> scriptsOf(qxAnalyzerVariant clip, int state)
{
    std::vector<qxScriptText> scripts;
    const int listener = qxScriptRunner::addListener(
        [&scripts](const qxScriptText &script) { scripts.push_back(script); });
    clip.clipState = state;
    clip.execute();
    qxScriptRunner::removeListener(listener);
    return scripts;
}

TEST_F(LightVariantTest, EachLightOfTheNameIsSwitchedAndAnnounced)
{
    const TestNode group = scene.add("Sun");
    const TestNode first = scene.addLight("Sun");
    const TestNode second = scene.addLight("Sun", group);
    qxLights::setOn(second, false);
    qxLightVariant variant(first.node());
    EXPECT_EQ(variant.defaultState, "!Enable");

    const char *const closing = "lightVariantSelected";
    const std::string changed = "1 variantsLightsChanged variantName=Sun ";
    EXPECT_EQ(select(variant, "!Toggle", closing), // the group and its light come first
              Texts({changed + "enabled=[Sun] disabled=[] parent= path=",
                     changed + "enabled=[] disabled=[Sun] parent= path="}));
    EXPECT_TRUE(qxLights::getOn(second));
    EXPECT_FALSE(qxLights::getOn(first));
    for (const char *state : {"!Enable", "!Disable"}) {
        EXPECT_EQ(select(variant, state, closing).size(), 2u);
        EXPECT_EQ(variant.onCurrent(), state);
    }
    EXPECT_EQ(select(variant, "!Next", closing), Texts());
}

TEST_F(LightVariantTest, RebuildingLosesShortcutsAndWithoutALightAllOptions)
{
    const TestNode lamp = scene.addLight("Lamp");
    qxLightVariant variant(lamp.node());
    variant.options.clear();
    variant.add(true, "!Enable", "Ctrl+1");
    qxLights::setOn(lamp, false);
    EXPECT_EQ(rebuilt(variant), Texts({"!Enable", "!Disable", "!Toggle*"}));
    EXPECT_EQ(variant.defaultState, "!Disable");

    const TestNode shade = scene.add("Shade");
    variant.lightName = "Shade";
    EXPECT_EQ(rebuilt(variant), Texts());
    EXPECT_EQ(variant.defaultState, "!Disable");
    EXPECT_EQ(variant.onCurrent(), "");
    EXPECT_TRUE(qxLightVariant(shade.node()).options.empty());
}

TEST_F(OverlayVariantTest, SelectingOnlyAsksTheHost)
{
    const TestNode logo = scene.addOverlay("Logo");
    qxOverlayVariant variant(logo.node());
    EXPECT_EQ(textsOf(variant.options), Texts({"!Enable", "!Disable", "!Toggle*"}));
    EXPECT_EQ(variant.defaultState, "!Enable");
    variant.overlayName = "Unknown"; // the host need not know it
    EXPECT_EQ(select(variant, "Whatever", "overlayVariantSelected"),
              Texts({"1 activateOverlays variantState=Whatever name=Unknown"}));
    EXPECT_EQ(variant.onCurrent(), "");
    EXPECT_TRUE(logo.shown());
    EXPECT_EQ(rebuilt(variant), Texts());
}

TEST_F(OverlayVariantTest, ASwitchIsReadAsANodeVariantReadsIt)
{
    const TestNode legend = scene.addOverlaySwitch("Legend", {"Logo", "Info"}).choose(1);
    qxOverlayVariant variant(legend.node());
    EXPECT_EQ(variant.defaultState, "Info");
    EXPECT_EQ(variant.onCurrent(), "Info");
    qxMessage message;
    notifications.clear();
    variant.callVariantsNodesChanged(osg::NullFC, message); // bears it
    qxNodeVariant(legend.node()).callVariantsNodesChanged(osg::NullFC, message);
    variant.callVariantsNodesChanged(legend.node(), message);
    EXPECT_EQ(notifications.lines(),
              Texts({"1 variantsOverlaysChanged visible=[Info] invisible=[Logo] parent=Legend path="
                     + variant.getNodePath(legend.node()).toStdString()}));

    legend.choose(-2);
    EXPECT_EQ(variant.onCurrent(), "!All");
    EXPECT_EQ(qxOverlayVariant(legend.node()).defaultState, "!None");
    variant.find("Info")->shortcut = "F1";
    variant.remove("!Previous");
    EXPECT_EQ(rebuilt(variant),
              Texts({"!All", "!None", "!Next*", "!Next (Loop)*", "!Previous", "!Previous (Loop)*",
                     "Logo", "Info (F1)"}));
    EXPECT_EQ(variant.defaultState, "Info");
}

TEST_F(TransformVariantTest, EachNodeIsSteppedFromItsOwnStateInSilence)
{
    const TestNode left = scene.addPoses("Door", {"Shut", "Ajar", "Open"});
    const TestNode right = scene.addPoses("Door", {"Shut", "Open"});
    scene.add("Door");
    qxTransformVariant variant("Door");
    notifications.clear();
    const struct {
        const char *state;
        int left, right;
    } steps[] = {
        {"!Next", 1, 1},   {"!Next", 2, 1},     {"!Next (Loop)", 0, 0}, {"!Previous", 0, 0},
        {"Open", 2, 1},    {"!Previous", 1, 0}, {"Ajar", 1, 0},         {"!Previous (Loop)", 0, 1},
        {"Unknown", 0, 1}, {"!All", 0, 1}};
    for (const auto &step : steps) {
        variant.onSelect(step.state);
        EXPECT_EQ(qxNodeUtils::getTransformVariantCurrentIndex(left), step.left) << step.state;
        EXPECT_EQ(qxNodeUtils::getTransformVariantCurrentIndex(right), step.right) << step.state;
    }
    EXPECT_EQ(variant.onCurrent(), "Shut");
    EXPECT_EQ(notifications.names(), Texts());
}

TEST_F(TransformVariantTest, OptionsAreTakenFromTheFirstNodeWithStates)
{
    scene.add("Door");
    scene.addPoses("Door", {"Shut", "Open"});
    qxTransformVariant variant("Door");
    EXPECT_EQ(variant.name, "Door");
    EXPECT_EQ(variant.defaultState, "!Next");

    variant.options.clear();
    variant.add("!Next", "F1");
    variant.add(true, "Open", "F2");
    variant.add("Shut", "F3");
    EXPECT_EQ(rebuilt(variant), stepsAnd({"Shut (F3)", "Open* (F2)"}));
    EXPECT_EQ(rebuiltDefault(variant, "Shut"), "Shut");
    EXPECT_EQ(rebuiltDefault(variant, "Open"), "!Next"); // an action here
    variant.nodeName = "Gone";
    EXPECT_EQ(rebuilt(variant), Texts());
    EXPECT_TRUE(qxTransformVariant("").name.isEmpty());
}

TEST_F(AnalyzerVariantTest, EachStateRunsItsScriptOfAllSettingsAndHandsOnWhetherToSynchronise)
{
    const std::pair<bool qxAnalyzerVariant::*, const char *> flags[] = {
        {&qxAnalyzerVariant::clipPlaneInvert, "Vec3f(0, 1, 0),true)\n"},
        {&qxAnalyzerVariant::clipPlaneShow, "setClippingPlaneVisualization(false, "},
        {&qxAnalyzerVariant::clipGridShow, "setClippingGridVisualization(false, "},
        {&qxAnalyzerVariant::clipContourShow, "setClippingContourVisualization(false, "},
        {&qxAnalyzerVariant::clipPlaneHideScene, "setClippingHideScene(true)\n"}};
    for (const auto &flag : flags) {
        qxAnalyzerVariant clip;
        clip.*flag.first = !(clip.*flag.first);
        clip.clipContourWidth = 12345; // no separator between thousands
        for (const char *text : {flag.second, ", 12345)\n"})
            EXPECT_NE(scriptsOf(clip, 1).at(0).text.find(text), std::string::npos) << text;
    }
    qxAnalyzerVariant clip;
    for (int state : {0, 4, -1})
        EXPECT_TRUE(scriptsOf(clip, state).empty()) << state;
    EXPECT_EQ(scriptsOf(clip, 1).at(0).text,
              "setClippingPlane(Pnt3f(0, 0, 0),Vec3f(0, 1, 0),false)\n"
              "setClippingPlaneVisualization(true, Vec3f(0.2, 0.3, 0.4))\n"
              "setClippingGridVisualization(true, Vec3f(0.63, 0.82, 0.89))\n"
              "setClippingContourVisualization(true, Vec3f(1, 0.7, 0), 1)\n"
              "setClippingHideScene(false)\n"
              "enableClippingPlane(true)\n");
    EXPECT_EQ(scriptsOf(clip, 2).at(0).text, "enableClippingPlane(false)\n");

    clip.clipPlanePosition = osg::Pnt3f(1.5f, 0, -2);
    clip.clipPlaneNormal = osg::Vec3f(0.123456789f, 1e-7f, 1);
    const qxScriptText moved = scriptsOf(clip, 3).at(0);
    EXPECT_EQ(moved.text, "setClippingPlane(Pnt3f(1.5, 0, -2),Vec3f(0.123457, 1e-07, 1),false)\n");
    EXPECT_EQ(moved.origin, qxScriptText::Application);
    EXPECT_FALSE(moved.synchronise);
    qxConnector::the()->setSyncVariants(true);
    EXPECT_TRUE(scriptsOf(clip, 3).at(0).synchronise);
    qxConnector::the()->setSyncVariants(false);
}
