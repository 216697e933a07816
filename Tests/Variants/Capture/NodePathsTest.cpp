#include "Internal/qxNodePaths.h"

#include "CaptureFixture.h"

namespace {

class NodePathsTest : public CaptureFixture {
protected:
    static std::string path(const osg::NodePtr &node)
    {
        return qxNodePaths::getNodePath(node).toStdString();
    }
    static std::vector<qxNodePtr> found(const std::string &path)
    {
        return qxNodePaths::findHash(qxNodePaths::hashOf(path.c_str()));
    }
    static osg::MaterialPtr materialOf(const osg::NodePtr &node)
    {
        return qxNodeUtils::getMaterial(node);
    }
};

TEST_F(NodePathsTest, APathNamesEveryStepBelowTheRoot)
{
    const TestNode car = scene.add("Car");
    const TestNode door = scene.add("Left/Door", scene.add("Side", car));
    const TestNode unnamed = scene.add("", car);
    const TestNode handle = scene.add("Türgriff", unnamed);
    EXPECT_EQ(path(car), "Car");
    EXPECT_EQ(path(door), "Car/Side/Left/Door");
    EXPECT_EQ(path(handle), "Car/Group/Türgriff"); // the host calls it after its core
    EXPECT_EQ(path(osg::NullFC), "");
}

TEST_F(NodePathsTest, TheHashIsFnv1OverSignedBytes)
{
    EXPECT_EQ(qxNodePaths::hashOf(""), 2166136261u);
    EXPECT_EQ(qxNodePaths::hashOf("a"), 0x050C5D7Eu);
    EXPECT_EQ(qxNodePaths::hashOf("foobar"), 0x31F0B262u);
    // 0xFC, the first byte of nothing in UTF-8, as -4: all upper bits are turned over.
    EXPECT_EQ(qxNodePaths::hashOf("\xFC"), 0x050C5D1Fu ^ 0xFFFFFFFCu);
    EXPECT_EQ(qxNodePaths::hashOf("b", qxNodePaths::hashOf("a/")), qxNodePaths::hashOf("a/b"));
}

TEST_F(NodePathsTest, EveryNodeIsFoundByItsPath)
{
    const TestNode car = scene.add("Car");
    const TestNode grill = scene.add("Kühlergrill", car);
    const TestNode chrome = scene.add("", grill);
    const TestNode twin = scene.add("Kühlergrill", car);
    const TestNode slash = scene.add("Car/Kühlergrill");
    qxNodePaths::createLookupTable();
    EXPECT_EQ(found("Car"), std::vector<qxNodePtr>{car.node()});
    EXPECT_EQ(found("Car/Kühlergrill"),
              (std::vector<qxNodePtr>{grill.node(), twin.node(), slash.node()}));
    std::vector<qxNodePtr> same = found("Car/Kühlergrill");
    qxNodePaths::removeFalsePositives(same, "Car/Kühlergrill");
    EXPECT_EQ(same.size(), 3u); // a slash in a name looks like a step
    EXPECT_EQ(found("Car/Kühlergrill/Group"), std::vector<qxNodePtr>{chrome.node()});
    EXPECT_EQ(found("Root"), std::vector<qxNodePtr>());
    EXPECT_EQ(found(""), std::vector<qxNodePtr>());
}

TEST_F(NodePathsTest, TheTableKeepsTheSceneOfItsMakingWithoutHoldingIt)
{
    const TestNode gone = scene.add("Gone");
    const TestNode stays = scene.add("Stays");
    qxNodePaths::createLookupTable();
    scene.add("Late");
    gone.remove();
    EXPECT_EQ(found("Gone"), std::vector<qxNodePtr>());
    EXPECT_EQ(found("Late"), std::vector<qxNodePtr>());
    EXPECT_EQ(found("Stays"), std::vector<qxNodePtr>{stays.node()});
}

TEST_F(NodePathsTest, AVeryDeepSceneIsTakenIn)
{
    TestNode node = scene.root();
    for (int i = 0; i < 50000; ++i)
        node = scene.add("n", node);
    qxNodePaths::createLookupTable();
    EXPECT_EQ(found(path(node)), std::vector<qxNodePtr>{node.node()});
}

TEST_F(NodePathsTest, TheFirstNodeOfAPathGivesTheOthersItsMaterial)
{
    const std::string name = "First Seat 1";
    const std::string sameHash = "Big Grill 853";
    const TestMaterial red = scene.addMaterial("Red");
    const TestMaterial blue = scene.addMaterial("Blue");
    const TestNode other = scene.addGeometry(sameHash, blue);
    const TestNode geometry = scene.addGeometry(name, red);
    const TestNode group = scene.addMaterialGroup(name, blue);
    const TestNode plain = scene.add(name);
    const TestNode below = scene.addGeometry(name, blue, plain); // which has another path
    qxNodePaths::createLookupTable();
    std::vector<qxNodePtr> nodes = found(name);
    EXPECT_EQ(nodes, found(sameHash));
    EXPECT_EQ(nodes.size(), 4u);
    qxNodePaths::removeFalsePositives(nodes, name);
    EXPECT_EQ(nodes, (std::vector<qxNodePtr>{geometry.node(), group.node(), plain.node()}));

    EXPECT_TRUE(qxVariants::checkIfNodeMatchesNodePath(plain, name.c_str(), false));
    EXPECT_EQ(materialOf(group), blue.material());
    EXPECT_TRUE(qxVariants::checkIfNodeMatchesNodePath(osg::NullFC, name.c_str(), true));
    EXPECT_EQ(materialOf(geometry), red.material());
    EXPECT_EQ(materialOf(group), red.material());
    EXPECT_EQ(materialOf(below), blue.material());
    EXPECT_EQ(materialOf(other), blue.material());
    EXPECT_FALSE(qxVariants::checkIfNodeMatchesNodePath(geometry, "first seat 1", true));
}

} // namespace
