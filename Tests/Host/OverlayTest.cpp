#include "HostFixture.h"
#include "qxController.h"
#include "qxOverlays.h"
#include "qxScenegraph.h"

class OverlayTest : public HostFixture {
protected:
    void activate(const std::string &name, const std::string &state)
    {
        qxMessage message;
        message.set("variantState", state);
        message.set("name", name);
        qxController::call("activateOverlays", message, 1);
    }
};

TEST_F(OverlayTest, OverlaysLieInATreeOfTheirOwn)
{
    const TestNode logo = scene.addOverlay("Logo");
    const TestNode inner = scene.add("Logo", logo);
    scene.add("Logo");

    EXPECT_EQ(qxOverlays::findOverlays("Logo"),
              (std::vector<qxNodePtr>{logo.node(), inner.node()}));
    EXPECT_EQ(qxOverlays::findOverlay("Logo"), logo.node());
    EXPECT_EQ(qxScenegraph::findNodes("Logo").size(), 1u);
    EXPECT_TRUE(qxOverlays::findOverlays("Overlays").empty()) << "the root is no overlay";
    EXPECT_TRUE(qxOverlays::findOverlay("") == osg::NullFC);
}

TEST_F(OverlayTest, EveryOverlayOfTheNameIsShownAndHidden)
{
    const TestNode logo = scene.addOverlay("Logo");
    const TestNode twin = scene.addOverlay("Logo").setMask(7);
    activate("Logo", "!Toggle");
    EXPECT_EQ(logo.mask(), 0u);
    EXPECT_TRUE(twin.shown());
    activate("Logo", "!Disable");
    EXPECT_EQ(twin.mask(), 0u);
    activate("Logo", "!Enable");
    EXPECT_TRUE(logo.shown() && twin.shown());
    activate("Logo", "unknown");
    activate("Missing", "!Disable");
    EXPECT_TRUE(logo.shown() && twin.shown());
}

TEST_F(OverlayTest, SwitchesFollowTheStateFromEveryChoice)
{
    struct Step {
        const char *state;
        int from;
        int to;
    };
    const std::vector<Step> steps = {
        {"!All", 1, -2},
        {"!None", 1, -1},
        {"!Next", 0, 1},
        {"!Next", 2, 2},
        {"!Next", -1, 0},
        {"!Next", -2, 2},
        {"!Next", 9, 2},
        {"!Next (Loop)", 2, 0},
        {"!Next (Loop)", -2, 0},
        {"!Next (Loop)", 1, 2},
        {"!Previous", 2, 1},
        {"!Previous", 0, 0},
        {"!Previous", -2, 0},
        {"!Previous", 9, 2},
        {"!Previous (Loop)", 0, 2},
        {"!Previous (Loop)", -1, 2},
        {"!Previous (Loop)", 2, 1},
        {"!Previous (Loop)", 9, 2},
        {"Info", 0, 1},
        {"info", 0, 0},
        {"!Enable", 2, 2},
    };
    const TestNode panels = scene.addOverlaySwitch("Panels", {"Logo", "Info", "Help"});
    for (const Step &step : steps) {
        panels.choose(step.from);
        activate("Panels", step.state);
        EXPECT_EQ(panels.choice(), step.to) << step.state << " from " << step.from;
    }
    const TestNode empty = scene.addOverlaySwitch("Empty", {});
    for (const Step &step : {Step{"!Next", -1, 0}, Step{"!Previous", -1, -1},
                             Step{"!Next (Loop)", -1, 0}, Step{"!Previous (Loop)", -1, -1}}) {
        empty.choose(step.from);
        activate("Empty", step.state);
        EXPECT_EQ(empty.choice(), step.to) << step.state << " without children";
    }
}

TEST_F(OverlayTest, SwitchesThatShareACoreAreSteppedOnce)
{
    const TestNode panels = scene.addOverlaySwitch("Panels", {"Logo", "Info", "Help"}).choose(0);
    scene.addClone(panels, qxOverlays::getPoolRoot());
    activate("Panels", "!Next");
    EXPECT_EQ(panels.choice(), 1);
}
