#include "qxVariantCaptureChecker.h"

#include "CaptureFixture.h"

#include <OpenSG/OSGNodePtr.h>
#include <OpenSG/OSGSimpleAttachments.h>

namespace {

class CheckerTest : public CaptureFixture {
protected:
    std::vector<osg::NodePtr> ambiguous()
    {
        qxVariantCaptureChecker checker;
        checker.findAmbiguousNodes();
        const std::vector<osg::NodePtr> nodes = checker.getAmbiguousNodes();
        EXPECT_EQ(checker.hasSceneAmbiguousNodes(), !nodes.empty());
        EXPECT_EQ(checker.getAmbiguousNodes().size(), nodes.empty() ? 0u : 1u);
        return nodes;
    }

    typedef std::vector<osg::NodePtr> Nodes;
    const TestMaterial paint = scene.addMaterial("Paint");
};

TEST_F(CheckerTest, ASceneWithDistinctNamesHasNoAmbiguousNodes)
{
    scene.addSwitch("Wheels", {"Steel", "Alloy"});
    scene.addSwitch("Doors", {"Steel", "Alloy"}); // children of different switches
    scene.addGeometry("Body", paint);
    EXPECT_EQ(ambiguous(), Nodes());
}

TEST_F(CheckerTest, TheSecondSwitchOfANameIsAmbiguousWhereverItStands)
{
    const TestNode first = scene.addSwitch("Wheels", {"Steel"});
    const TestNode second = scene.addSwitch("Wheels", {"Steel"}, scene.add("Car"));
    const TestNode third = scene.addSwitch("Wheels", {}, first.child(0));
    EXPECT_EQ(ambiguous(), (Nodes{third, second})); // in scene order
}

TEST_F(CheckerTest, TwinsAreAmbiguousBelowASwitchOnly)
{
    const TestNode wheels = scene.addSwitch("Wheels", {"Steel", "Alloy", "Steel", "Steel"});
    const TestNode group = scene.add("Group");
    scene.add("Steel", group);
    scene.add("Alloy", group);
    scene.add("Alloy", group);
    EXPECT_EQ(ambiguous(), (Nodes{wheels.child(2), wheels.child(3)}));
}

TEST_F(CheckerTest, TwinsOfASwitchShareTheirNamesWithSwitchesAndTwinsElsewhere)
{
    scene.addSwitch("Rims", {"Steel", "Steel"});
    const TestNode steel = scene.addSwitch("Steel", {});
    const TestNode twins = scene.addSwitch("Covers", {"Steel", "Steel"});
    EXPECT_EQ(ambiguous().size(), 4u); // the second twin, the switch, both twins of the other one
    EXPECT_EQ(ambiguous()[1], steel.node());
    EXPECT_EQ(ambiguous()[2], twins.child(0).node());
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
    EXPECT_EQ(ambiguous(), Nodes{door});
}

TEST_F(CheckerTest, ASlashInANameCanMakeTwoPathsEqual)
{
    scene.addGeometry("Door", paint, scene.add("Side"));
    const TestNode other = scene.addGeometry("Side/Door", paint);
    EXPECT_EQ(ambiguous(), Nodes{other});
}

TEST_F(CheckerTest, AGeometrySharesItsPathWithAnyNode)
{
    scene.add("Body");
    const TestNode body = scene.addGeometry("Body", paint);
    EXPECT_EQ(ambiguous(), Nodes{body});
}

TEST_F(CheckerTest, ANodeCheckedByNameReplacesTheOneRecordedUnderItsPath)
{
    // The switch takes the place of the geometry: its clone is no clone of what stands there now.
    const TestNode body = scene.addGeometry("Body", paint);
    scene.addSwitch("Body", {});
    const TestNode clone = scene.addClone(body);
    EXPECT_EQ(ambiguous(), Nodes{clone});
}

TEST_F(CheckerTest, ClonesAreNeverAmbiguousWithEachOther)
{
    const TestNode wheels = scene.addSwitch("Wheels", {"Steel"});
    scene.addGeometry("Rim", paint, wheels.child(0));
    scene.addClone(wheels);
    EXPECT_EQ(ambiguous(), Nodes());
}

TEST_F(CheckerTest, NodesThatShareACoreAreReportedOnce)
{
    scene.addSwitch("Wheels", {});
    const TestNode other = scene.addSwitch("Wheels", {});
    scene.addClone(other);
    EXPECT_EQ(ambiguous(), Nodes{other});
}

TEST_F(CheckerTest, UnnamedSwitchesShareTheNameOfTheirKind)
{
    scene.addSwitch("", {});
    const TestNode second = scene.addSwitch("", {});
    const TestNode third = scene.addSwitch("", {});
    EXPECT_EQ(ambiguous(), (Nodes{second, third}));
}

TEST_F(CheckerTest, AWalkForgetsTheOneBefore)
{
    scene.addSwitch("Wheels", {});
    const TestNode second = scene.addSwitch("Wheels", {});
    qxVariantCaptureChecker checker;
    checker.findAmbiguousNodes();
    EXPECT_EQ(checker.getAmbiguousNodes().size(), 1u);
    osg::setName(second.node(), "Rims");
    checker.findAmbiguousNodes();
    EXPECT_TRUE(checker.getAmbiguousNodes().empty());
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
    const qxVariantCaptureChecker checker;
    EXPECT_TRUE(checker.needsUniqueName(wheels));
    EXPECT_TRUE(checker.needsUniqueName(wheels.child(0)));
    EXPECT_FALSE(checker.needsUniqueName(wheels.child(1)));
    EXPECT_FALSE(checker.needsUniqueName(body));
    EXPECT_FALSE(checker.needsUniqueName(bare));
    EXPECT_FALSE(checker.needsUniqueName(osg::NullFC));
    EXPECT_TRUE(checker.needsUniquePath(body));
    EXPECT_FALSE(checker.needsUniquePath(blank));
    EXPECT_FALSE(checker.needsUniquePath(wheels));
    EXPECT_FALSE(checker.needsUniquePath(bare));
    EXPECT_FALSE(checker.needsUniquePath(osg::NullFC));
}

TEST_F(CheckerTest, ASwitchWithVeryManyChildrenIsCheckedInOnePass)
{
    const TestNode many = scene.addSwitch("Many", {});
    for (int i = 0; i < 20000; ++i)
        scene.add("Child " + std::to_string(i % 19999), many);
    EXPECT_EQ(ambiguous(), Nodes{many.child(19999)});
}

} // namespace
