#include "HostFixture.h"
#include "qxSceneLookup.h"

#include <OpenSG/OSGSimpleAttachments.h>

#include <optional>

class SceneLookupTest : public HostFixture {};

TEST_F(SceneLookupTest, EachSortIsFoundByName)
{
    const TestNode car = scene.add("Car");
    const TestNode inner = scene.add("Car", scene.add("Seat", car));
    const TestNode seat = scene.add("Seat", scene.addTransform("Rear"));
    const TestNode logo = scene.addOverlay("Logo");
    osg::setName(scene.addLight("Dark").node(), "");
    const TestMaterial paint = scene.addMaterial("Paint");
    scene.addViewpoint("Front");
    scene.addViewpoint("");
    scene.setClips({"Drive"});

    const qxSceneLookup lookup;
    EXPECT_EQ(lookup.nodes("Car"), (std::vector<qxNodePtr>{car.node(), inner.node()}));
    EXPECT_EQ(lookup.nodes("Seat").back(), seat.node());
    EXPECT_EQ(lookup.overlays("Logo"), std::vector<qxNodePtr>{logo.node()});
    EXPECT_EQ(lookup.materials("Paint"), std::vector<osg::MaterialPtr>{paint.material()});
    EXPECT_TRUE(lookup.hasNestedNodes("Car") && !lookup.hasNestedNodes("Seat")
                && !lookup.hasNestedOverlays("Logo"));
    EXPECT_TRUE(lookup.hasLight("") && !lookup.hasLight("Car") && !lookup.hasNode(""));
    EXPECT_TRUE(lookup.hasViewpoint("Front") && !lookup.hasViewpoint("")
                && lookup.hasClip("Drive"));
    EXPECT_TRUE(lookup.hasPath("Car/Seat/Car") && !lookup.hasPath("Seat/Car")
                && !lookup.hasNode("Logo"));
    EXPECT_EQ(lookup.viewpointNames(), (QStringList{"Front", ""}));
}

TEST_F(SceneLookupTest, OneMadeWithinAnothersLifeSharesWhatThatGathers)
{
    std::optional<qxSceneLookup> outer{qxSceneLookup()};
    EXPECT_FALSE(outer->hasNode("Late"));
    scene.add("Late");
    const auto hasLate = [] { return qxSceneLookup().hasNode("Late"); };
    EXPECT_FALSE(hasLate());
    outer.reset();
    EXPECT_TRUE(hasLate());
}
