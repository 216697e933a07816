#include "HostFixture.h"
#include "qxOverlays.h"

#include <OpenSG/OSGNodeCore.h>
#include <OpenSG/OSGSimpleAttachments.h>

#include <map>
#include <random>

class SceneLookupTest : public HostFixture {
protected:
    typedef std::vector<qxNodePtr> Nodes;

    ~SceneLookupTest() override { qxScenegraph::clearFindCache(); }

    /// Looked up with the find cache.
    static Nodes cached(const char *name)
    {
        qxScenegraph::initFindCache();
        const Nodes found = qxScenegraph::findNodes(name);
        EXPECT_EQ(qxScenegraph::findNode(name), found.empty() ? qxNodePtr() : found.front());
        qxScenegraph::clearFindCache();
        return found;
    }
};

TEST_F(SceneLookupTest, ANodeIsNamedByItselfThenByItsCoreThenByTheTypeOfItsCore)
{
    const TestNode own = scene.add("Own");
    osg::setName(own.core(), "Core");
    const TestNode byCore = scene.addSwitch("", {});
    osg::setName(byCore.core(), "Core");
    const TestNode byType = scene.addSwitch("", {});
    const TestNode emptyName = scene.add("x");
    osg::setName(emptyName.node(), std::string());
    const osg::NodeRefPtr bare(osg::Node::create());

    EXPECT_EQ(own.name(), "Own");
    EXPECT_EQ(byCore.name(), "Core");
    EXPECT_EQ(byType.name(), "Switch");
    EXPECT_EQ(emptyName.name(), "") << "an empty name is a name";
    EXPECT_EQ(qxNodeUtils::getName(bare.get()), "");
    EXPECT_EQ(qxNodeUtils::getName(osg::NullFC), "");
    EXPECT_EQ(qxScenegraph::findNodes("Core"), (Nodes{byCore.node()}));
    EXPECT_EQ(cached("Switch"), (Nodes{byType.node()}));
    EXPECT_EQ(qxScenegraph::findNode("Root"), scene.root().node());
    for (const char *nothing : {"", static_cast<const char *>(nullptr), "Missing"}) {
        EXPECT_TRUE(qxScenegraph::findNodes(nothing).empty());
        EXPECT_TRUE(cached(nothing).empty());
        EXPECT_TRUE(qxScenegraph::findNode(nothing) == osg::NullFC);
    }
}

TEST_F(SceneLookupTest, ANodeIsFoundWithoutTheMeshOfItsNameThatItShows)
{
    const TestNode door = scene.add("Door");
    const TestNode mesh = scene.addGeometry("", osg::NullFC, door);
    osg::setName(mesh.core(), "Door");
    EXPECT_EQ(qxScenegraph::findNodes("Door"), (Nodes{door.node()}));
    EXPECT_EQ(cached("Door"), (Nodes{door.node()}));
    const TestNode sheet = scene.addOverlay("Door");
    mesh.moveTo(sheet);
    EXPECT_EQ(qxOverlays::findOverlays("Door"), (Nodes{sheet.node()}));
    mesh.moveTo(scene.add("Wall"));
    EXPECT_EQ(cached("Door").size(), 2u) << "of another node";
    mesh.moveTo(door);
    osg::setName(mesh.node(), "Door");
    EXPECT_EQ(cached("Door").size(), 2u) << "a node that was named so";
}

TEST_F(SceneLookupTest, EveryNodeOfANameIsFoundInSceneOrder)
{
    std::mt19937 random(20);
    for (int round = 0; round < 5; ++round) {
        host.clearScene();
        std::vector<TestNode> nodes = {scene.root()};
        for (int i = 0; i < 300; ++i) {
            const std::string name = random() % 5 ? "Node" + std::to_string(random() % 40) : "";
            const TestNode parent = nodes[random() % nodes.size()];
            const TestNode node = // chosen by no switch or not, hidden or not
                random() % 2 ? scene.add(name, parent) : scene.addSwitch(name, {}, parent);
            nodes.push_back(node.setMask(random() % 2 ? 0 : 7));
        }
        std::map<std::string, Nodes> expected;
        for (const qxNodePtr &node : qxNodeUtils::getSubTreeNodes(scene.root()))
            expected[qxNodeUtils::getName(node)].push_back(node);
        for (const auto &[name, found] : expected) {
            EXPECT_EQ(qxScenegraph::findNodes(name.c_str()), found);
            EXPECT_EQ(qxScenegraph::findNode(name.c_str()), found.front());
            EXPECT_EQ(cached(name.c_str()), found);
        }
    }
}

TEST_F(SceneLookupTest, TheCacheIsASnapshotUntilItIsClearedOrTheSceneIs)
{
    EXPECT_FALSE(qxScenegraph::hasFindCache());
    qxScenegraph::initFindCache();
    EXPECT_TRUE(qxScenegraph::hasFindCache());
    scene.add("Late");
    EXPECT_TRUE(qxScenegraph::findNodes("Late").empty());
    qxScenegraph::initFindCache();
    EXPECT_EQ(qxScenegraph::findNodes("Late").size(), 1u);
    host.clearScene();
    EXPECT_FALSE(qxScenegraph::hasFindCache());
    EXPECT_TRUE(qxScenegraph::findNodes("Late").empty());
}

TEST_F(SceneLookupTest, ShowingNodesShowsTheirAncestorsButNotTheirNeighbours)
{
    const TestNode top = scene.add("Top").setMask(0);
    const TestNode middle = scene.add("Middle", top); // visible below a hidden one
    const TestNode leaf = scene.add("Leaf", middle).setMask(7);
    const TestNode neighbour = scene.add("Neighbour", middle).setMask(0);

    qxScenegraph::showNodes({leaf.node(), middle.node(), qxNodePtr()});
    EXPECT_TRUE(top.shown() && middle.shown() && leaf.shown());
    EXPECT_FALSE(neighbour.shown());
}

TEST_F(SceneLookupTest, TheEnvironmentIsFoundBehindTheTree)
{
    EXPECT_EQ(qxScenegraph::environmentGeometrySwitch(), osg::NullFC);
    const TestNode environments = scene.addEnvironments("Environments", {"Studio", "Dusk"});
    const TestNode inTree = scene.add("Dusk");

    EXPECT_EQ(qxScenegraph::environmentGeometrySwitch(), environments.node());
    EXPECT_TRUE(qxNodeUtils::isEnvironmentGeometrySwitch(environments));
    EXPECT_FALSE(qxNodeUtils::isEnvironmentGeometrySwitch(environments.child(0)));
    EXPECT_FALSE(qxNodeUtils::isEnvironmentGeometrySwitch(osg::NullFC));
    EXPECT_EQ(environments.node()->getParent(), osg::NullFC);
    EXPECT_EQ(qxScenegraph::findNode("Environments"), environments.node());
    EXPECT_EQ(cached("Environments"), (Nodes{environments.node()}));
    const Nodes dusks{inTree.node(), environments.child(1).node()};
    EXPECT_EQ(qxScenegraph::findNodes("Dusk"), dusks);
    EXPECT_EQ(cached("Dusk"), dusks);
}
