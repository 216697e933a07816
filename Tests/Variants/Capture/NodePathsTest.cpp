#include "Internal/Scene/qxPathLookup.h"

#include "CaptureFixture.h"

class NodePathsTest : public CaptureFixture {
protected:
    typedef std::vector<qxNodePtr> Nodes;

    static Nodes found(const char *path)
    {
        return qxPathLookup::findHash(qxPathLookup::hashOf(path));
    }
};

TEST_F(NodePathsTest, APathNamesEveryStepBelowTheRootAndItsHashIsFnv1OverSignedBytes)
{
    const TestNode car = scene.add("Car");
    const TestNode door = scene.add("Left/Door", scene.add("Side", car));
    const TestNode unnamed = scene.add("", car);
    const TestNode handle = scene.add("Türgriff", unnamed);
    EXPECT_EQ(qxPathLookup::getNodePath(car.node()), "Car");
    EXPECT_EQ(qxPathLookup::getNodePath(door.node()), "Car/Side/Left/Door");
    // The host calls an unnamed node after its core.
    EXPECT_EQ(qxPathLookup::getNodePath(handle.node()), "Car/Group/Türgriff");
    EXPECT_EQ(qxPathLookup::getNodePath(osg::NullFC), "");

    EXPECT_EQ(qxPathLookup::hashOf(""), 2166136261u);
    EXPECT_EQ(qxPathLookup::hashOf("a"), 0x050C5D7Eu);
    EXPECT_EQ(qxPathLookup::hashOf("foobar"), 0x31F0B262u);
    // 0xFC, the first byte of nothing in UTF-8, as -4: all upper bits are turned over.
    EXPECT_EQ(qxPathLookup::hashOf("\xFC"), 0x050C5D1Fu ^ 0xFFFFFFFCu);
    EXPECT_EQ(qxPathLookup::hashOf("b", qxPathLookup::hashOf("a/")), qxPathLookup::hashOf("a/b"));
}

TEST_F(NodePathsTest, EveryNodeThatWasThereAndStaysIsFoundByItsPath)
{
    const TestNode car = scene.add("Car");
    const TestNode grill = scene.add("Kühlergrill", car);
    const TestNode chrome = scene.add("", grill);
    const TestNode twin = scene.add("Kühlergrill", car);
    const TestNode slash = scene.add("Car/Kühlergrill");
    const TestNode gone = scene.add("Gone");
    qxPathLookup::createLookupTable();
    scene.add("Late");
    gone.remove();
    EXPECT_EQ(found("Car"), Nodes{car.node()});
    Nodes same = found("Car/Kühlergrill");
    EXPECT_EQ(same, (Nodes{grill.node(), twin.node(), slash.node()}));
    qxPathLookup::removeFalsePositives(same, "Car/Kühlergrill");
    EXPECT_EQ(same.size(), 3u); // a slash in a name looks like a step
    EXPECT_EQ(found("Car/Kühlergrill/Group"), Nodes{chrome.node()});
    for (const char *const none : {"Root", "", "Gone", "Late"})
        EXPECT_EQ(found(none), Nodes()) << none;
}

TEST_F(NodePathsTest, AVeryDeepSceneIsTakenIn)
{
    TestNode node = scene.root();
    for (int i = 0; i < 50000; ++i)
        node = scene.add("n", node);
    qxPathLookup::createLookupTable();
    EXPECT_EQ(found(qxPathLookup::utf8Path(node).c_str()), Nodes{node.node()});
}

TEST_F(NodePathsTest, TheFirstNodeOfAPathGivesTheOthersItsMaterial)
{
    const char *const name = "First Seat 1";
    const char *const sameHash = "Big Grill 853";
    const TestMaterial red = scene.addMaterial("Red");
    const TestMaterial blue = scene.addMaterial("Blue");
    const TestNode other = scene.addGeometry(sameHash, blue);
    const TestNode geometry = scene.addGeometry(name, red);
    const TestNode group = scene.addMaterialGroup(name, blue);
    const TestNode plain = scene.add(name);
    const TestNode below = scene.addGeometry(name, blue, plain); // which has another path
    qxPathLookup::createLookupTable();
    Nodes nodes = found(name);
    EXPECT_EQ(nodes, found(sameHash));
    EXPECT_EQ(nodes.size(), 4u);
    qxPathLookup::removeFalsePositives(nodes, name);
    EXPECT_EQ(nodes, (Nodes{geometry.node(), group.node(), plain.node()}));
    EXPECT_TRUE(qxVariants::checkIfNodeMatchesNodePath(plain, name, false));
    EXPECT_EQ(qxNodeUtils::getMaterial(group), blue.material());
    EXPECT_TRUE(qxVariants::checkIfNodeMatchesNodePath(osg::NullFC, name, true));
    EXPECT_EQ(qxNodeUtils::getMaterial(geometry), red.material());
    EXPECT_EQ(qxNodeUtils::getMaterial(group), red.material());
    EXPECT_EQ(qxNodeUtils::getMaterial(below), blue.material());
    EXPECT_EQ(qxNodeUtils::getMaterial(other), blue.material());
    EXPECT_FALSE(qxVariants::checkIfNodeMatchesNodePath(geometry, "first seat 1", true));
}
