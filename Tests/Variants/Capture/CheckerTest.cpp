#include "qxVariantCaptureChecker.h"

#include "CaptureFixture.h"

#include <OpenSG/OSGSimpleAttachments.h>

class CheckerTest : public CaptureFixture {
protected:
    std::vector<osg::NodePtr> ambiguous()
    {
        checker.findAmbiguousNodes();
        const std::vector<osg::NodePtr> nodes = checker.getAmbiguousNodes();
        EXPECT_EQ(checker.hasSceneAmbiguousNodes(), !nodes.empty());
        EXPECT_EQ(checker.getAmbiguousNodes().size(), nodes.empty() ? 0u : 1u);
        return nodes;
    }

    typedef std::vector<osg::NodePtr> Nodes;
    qxVariantCaptureChecker checker;
    const TestMaterial paint = scene.addMaterial("Paint");
};

TEST_F(CheckerTest, TheSecondSwitchOfANameIsAmbiguousWhereverItStands)
{
    const TestNode first = scene.addSwitch("Wheels", {"Steel"});
    const TestNode second = scene.addSwitch("Wheels", {"Steel"}, scene.add("Car"));
    const TestNode third = scene.addSwitch("Wheels", {}, first.child(0));
    scene.addSwitch("", {}); // the unnamed ones share the name of their kind
    const TestNode unnamed = scene.addSwitch("", {});
    EXPECT_EQ(ambiguous(), (Nodes{third, second, unnamed})); // in scene order
}

TEST_F(CheckerTest, TwinsBelowASwitchShareTheirNamesWithSwitchesAndTwinsElsewhere)
{
    const TestNode wheels = scene.addSwitch("Wheels", {"Steel", "Alloy", "Steel", "Steel"});
    const TestNode group = scene.add("Group");
    scene.add("Steel", group);
    scene.add("Alloy", group);
    scene.add("Alloy", group);
    scene.addSwitch("Doors", {"Steel", "Alloy"}); // children of different switches
    const TestNode steel = scene.addSwitch("Steel", {});
    const TestNode covers = scene.addSwitch("Covers", {"Steel", "Steel"});
    EXPECT_EQ(ambiguous(),
              (Nodes{wheels.child(2), wheels.child(3), steel, covers.child(0), covers.child(1)}));
}

TEST_F(CheckerTest, GeometriesWithAMaterialNeedAPathOfTheirOwn)
{
    const TestNode left = scene.add("Side");
    const TestNode right = scene.add("Side");
    scene.addGeometry("Door", paint, left);
    scene.addGeometry("Mirror", paint, left);
    scene.addGeometry("Plain", osg::NullFC, left);
    const TestNode door = scene.addGeometry("Door", paint, right);
    scene.addGeometry("Plain", osg::NullFC, right);
    const TestNode slash = scene.addGeometry("Side/Mirror", paint);
    scene.add("Body"); // any node counts
    const TestNode body = scene.addGeometry("Body", paint);
    EXPECT_EQ(ambiguous(), (Nodes{door, slash, body}));
}

TEST_F(CheckerTest, ANodeCheckedByNameReplacesTheOneRecordedUnderItsPath)
{
    // The switch takes the place of the geometry: its clone is no clone of what stands there now.
    const TestNode body = scene.addGeometry("Body", paint);
    scene.addSwitch("Body", {});
    const TestNode clone = scene.addClone(body);
    EXPECT_EQ(ambiguous(), Nodes{clone});
}

TEST_F(CheckerTest, ClonesAreNotAmbiguousWithEachOtherAndReportedOnce)
{
    const TestNode wheels = scene.addSwitch("Wheels", {"Steel"});
    scene.addGeometry("Rim", paint, wheels.child(0));
    const TestNode clone = scene.addClone(wheels);
    EXPECT_EQ(ambiguous(), Nodes());
    const TestNode other = scene.addSwitch("Wheels", {});
    scene.addClone(other);
    EXPECT_EQ(ambiguous(), Nodes{other});
    for (const TestNode &node : {wheels, clone})
        osg::setName(node.node(), "Rims");
    EXPECT_EQ(ambiguous(), Nodes()); // nothing is left of the walks before
}

TEST_F(CheckerTest, WhatNeedsAUniqueNameOrPath)
{
    const TestNode wheels = scene.addSwitch("Wheels", {"Steel", "Alloy", "Steel"});
    const TestNode body = scene.addGeometry("Body", paint);
    const TestNode blank = scene.addGeometry("Blank");
    const osg::NodePtr bare = osg::Node::create(); // without core
    const osg::NodeRefPtr kept(bare);
    osg::setName(bare, "Steel");
    wheels.node()->addChild(bare);
    for (const TestNode &node : {wheels, wheels.child(0)})
        EXPECT_TRUE(checker.needsUniqueName(node));
    for (const osg::NodePtr &node : Nodes{wheels.child(1), body, bare, osg::NullFC})
        EXPECT_FALSE(checker.needsUniqueName(node));
    EXPECT_TRUE(checker.needsUniquePath(body));
    for (const osg::NodePtr &node : Nodes{blank, wheels, bare, osg::NullFC})
        EXPECT_FALSE(checker.needsUniquePath(node));
}
