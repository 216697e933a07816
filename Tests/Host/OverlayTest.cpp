#include "HostFixture.h"
#include "qxOverlays.h"

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

    for (const bool cached : {false, true}) {
        if (cached)
            qxScenegraph::initFindCache();
        EXPECT_EQ(qxOverlays::findOverlays("Logo"),
                  (std::vector<qxNodePtr>{logo.node(), inner.node()}));
        EXPECT_EQ(qxOverlays::findOverlay("Logo"), logo.node());
        EXPECT_EQ(qxScenegraph::findNodes("Logo").size(), 1u);
        EXPECT_TRUE(qxOverlays::findOverlays("Overlays").empty()) << "the root is no overlay";
        EXPECT_TRUE(qxOverlays::findOverlay("") == osg::NullFC);
    }
    qxScenegraph::clearFindCache();
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

TEST_F(OverlayTest, SwitchesFollowTheStateFromEveryChoiceAndThoseThatShareACoreOnce)
{
    struct Step {
        const char *state;
        std::vector<int> choices; ///< after the state, from each of `before`
        int ofNone; ///< the choice of a switch without children
    };
    const std::vector<int> before = {-2, -1, 0, 1, 2, 9};
    const std::vector<Step> steps = {
        {"!All", {-2, -2, -2, -2, -2, -2}, -2},
        {"!None", {-1, -1, -1, -1, -1, -1}, -1},
        {"!Next", {2, 0, 1, 2, 2, 2}, 0},
        {"!Next (Loop)", {0, 0, 1, 2, 0, 0}, 0},
        {"!Previous", {0, 0, 0, 0, 1, 2}, -1},
        {"!Previous (Loop)", {2, 2, 2, 0, 1, 2}, -1},
        {"Info", {1, 1, 1, 1, 1, 1}, -1},
        {"info", before, -1},
        {"!Enable", before, -1},
    };
    const TestNode panels = scene.addOverlaySwitch("Panels", {"Logo", "Info", "Help"});
    scene.addClone(panels, qxOverlays::getPoolRoot());
    const TestNode empty = scene.addOverlaySwitch("Empty", {});
    for (const Step &step : steps) {
        for (std::size_t i = 0; i < before.size(); ++i) {
            panels.choose(before[i]);
            activate("Panels", step.state);
            EXPECT_EQ(panels.choice(), step.choices[i]) << step.state << " from " << before[i];
        }
        empty.choose(-1);
        activate("Empty", step.state);
        EXPECT_EQ(empty.choice(), step.ofNone) << step.state << " without children";
    }
}
