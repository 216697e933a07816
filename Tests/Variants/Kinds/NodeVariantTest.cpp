#include "qxNodeVariant.h"
#include "qxVariants.h"

#include "KindFixture.h"

#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGSimpleAttachments.h>
#include <OpenSG/OSGSwitch.h>

class NodeVariantTest : public KindFixture {
protected:
    ~NodeVariantTest() override { qxVariants::_recurse = false; }

    /// Selects the state through a new variant for the node and returns what was sent.
    Texts select(const TestNode &node, const char *state)
    {
        qxNodeVariant variant(node.node());
        return KindFixture::select(variant, state, "nodeVariantSelected");
    }
    /// Announcements of changes with these fields.
    static Texts changes(Texts fields)
    {
        for (std::string &each : fields)
            each.insert(0, "1 variantsNodesChanged variantName=");
        return fields;
    }
};

/// Whether the change list holds an edit of that field.
template <class Ptr>
static bool recorded(const Ptr &object, osg::BitVector field)
{
    const osg::ChangeList *changes = osg::Thread::getCurrentChangeList();
    const auto edit = std::make_pair(object.getFieldContainerId(), field);
    return std::count(changes->beginChanged(), changes->endChanged(), edit) > 0;
}

TEST_F(NodeVariantTest, AChildIsShownAndAllAndNoneBothAnnounceEveryChildAsInvisible)
{
    const TestNode rims = scene.addSwitch("Rims", {"Steel", "Alloy", "Wood"}, scene.add("Axle"));
    osg::Thread::getCurrentChangeList()->clearAll();
    EXPECT_EQ(
        select(rims, "Alloy"),
        changes({"Rims visible=[Alloy] invisible=[Steel, Wood] parent=Rims path=Axle|Rims|"}));
    EXPECT_EQ(rims.choice(), 1);
    EXPECT_TRUE(recorded(rims.core(), osg::Switch::ChoiceFieldMask));

    const Texts hidden =
        changes({"Rims visible=[] invisible=[Steel, Alloy, Wood] parent=Rims path=Axle|Rims|"});
    EXPECT_EQ(select(rims, "!All"), hidden);
    EXPECT_EQ(rims.choice(), -2);
    EXPECT_EQ(select(rims, "!None"), hidden);
    EXPECT_EQ(rims.choice(), -1);
}

TEST_F(NodeVariantTest, NodesOfOneNameFollowEachButThoseThatShareASwitchOnlyOnce)
{
    const TestNode front = scene.addSwitch("Rims", {"Steel", "Wood"}).choose(0);
    const TestNode rear = scene.addSwitch("Rims", {"Steel", "Alloy", "Alloy"}).choose(0);
    scene.addClone(rear, scene.add("Clones"));
    EXPECT_EQ(
        select(front, "!Next"),
        changes({"Rims visible=[Wood] invisible=[Steel] parent=Rims path=Rims|",
                 "Rims visible=[Alloy] invisible=[Steel, Alloy] parent=Rims path=Rims|",
                 "Rims visible=[Alloy] invisible=[Steel, Alloy] parent=Rims path=Clones|Rims|"}));
    EXPECT_EQ(front.choice(), 1);
    EXPECT_EQ(rear.choice(), 1);

    expectError("Nodevariant Rims does not have a child called Alloy");
    EXPECT_EQ(select(rear.choose(0), "Alloy").size(), 2u);
    EXPECT_EQ(front.choice(), 1);
    EXPECT_EQ(rear.choice(), 1);
}

TEST_F(NodeVariantTest, VisibilityIsTriedOnSwitchesBeforeTheirChildren)
{
    const TestNode rims = scene.addSwitch("Rims", {"Steel"}).choose(0).setMask(0);
    expectError("Nodevariant Rims does not have a child called !Enable");
    EXPECT_EQ(select(rims, "!Enable"),
              changes({"Rims visible=[Steel] invisible=[] parent=Rims path=Rims|"}));
    EXPECT_TRUE(rims.shown());
    EXPECT_EQ(rims.choice(), 0);

    const TestNode odd = scene.addSwitch("Odd", {"Steel", "!Disable"});
    EXPECT_EQ(select(odd, "!Disable").size(), 2u);
    EXPECT_EQ(odd.mask(), 0u);
    EXPECT_EQ(odd.choice(), 1);
}

TEST_F(NodeVariantTest, PlainNodesAreShownHiddenAndToggledByTheirMask)
{
    const TestNode door = scene.add("Door", scene.add("Body"));
    const Texts hidden = changes({"Door visible=[] invisible=[Door] parent=Body path=Body|Door|"});
    const Texts shown = changes({"Door visible=[Door] invisible=[] parent=Body path=Body|Door|"});
    osg::Thread::getCurrentChangeList()->clearAll();
    EXPECT_EQ(select(door, "!Disable"), hidden);
    EXPECT_EQ(door.mask(), 0u);
    EXPECT_TRUE(recorded(door.node(), osg::Node::TravMaskFieldMask));
    EXPECT_EQ(select(door, "!Toggle"), shown);
    EXPECT_EQ(select(door, "!Toggle"), hidden);
    door.setMask(7); // only all bits count as shown
    EXPECT_EQ(select(door, "!Toggle"), shown);
    EXPECT_TRUE(door.shown());
    EXPECT_EQ(select(door, "Open"), Texts());

    const osg::NodePtr bare = osg::Node::create(); // without a core
    osg::setName(bare, "Bare");
    scene.root().node()->addChild(bare);
    EXPECT_EQ(select(bare, "!Disable").size(), 1u);
    EXPECT_EQ(qxNodeVariant(bare).onCurrent(), "!Disable");
}

TEST_F(NodeVariantTest, ATransformSwitchTakesStepsAndNumbersFromAnyTextOnceForAllItsNodes)
{
    const TestNode seat = scene.addTransformSwitch("Seat", 3).choose(2);
    const TestNode clone = scene.addClone(seat);
    const std::vector<std::pair<const char *, int>> steps{
        {"!Next", 2},           {"!Next (Loop)", 0}, {"!Previous (Loop)", 2}, {"!Previous", 1},
        {"Transform 7", 7},     {"!Previous", 2},    {"Transform 1abc", 1},   {"Transform", 0},
        {"Transform     2", 2}, {"!None", 0},        {"transform 1", 0}};
    for (const auto &step : steps) {
        EXPECT_EQ(select(seat, step.first), Texts()) << step.first;
        EXPECT_EQ(seat.choice(), step.second) << step.first;
    }

    const std::string hidden =
        "Seat visible=[] invisible=[Seat] parent=" + scene.root().name() + " path=Seat|";
    EXPECT_EQ(select(seat.choose(2), "!Toggle"), changes({hidden, hidden}));
    EXPECT_EQ(seat.mask() | clone.mask(), 0u); // the masks are those of the nodes
    EXPECT_EQ(seat.choice(), 0);
    EXPECT_EQ(qxNodeVariant(seat.node()).onCurrent(), "!Disable");
}

TEST_F(NodeVariantTest, WithoutANodeNoOptionIsLeftAndOnlyTheSelectionIsAnnounced)
{
    qxNodeVariant variant(scene.addSwitch("Rims", {"Steel"}).choose(0).node());
    variant.nodeName = "Gone";
    EXPECT_EQ(KindFixture::select(variant, "!Next", "nodeVariantSelected"), Texts());
    EXPECT_EQ(variant.onCurrent(), "");
    EXPECT_EQ(rebuilt(variant), Texts());
    EXPECT_EQ(variant.defaultState, "Steel");
}

TEST_F(NodeVariantTest, EnablingReachesDownAndUpToTheFirstVisibleAncestor)
{
    const TestNode outer = scene.add("Outer").setMask(0);
    const TestNode inner = scene.add("Inner", scene.add("Middle", outer)).setMask(0);
    const TestNode rims = scene.addSwitch("Rims", {"Steel", "Alloy"}, inner).setMask(0);
    rims.child(1).setMask(0);

    select(rims, "Steel"); // not asked to recurse
    EXPECT_FALSE(rims.shown());
    qxVariants::_recurse = true;
    select(rims, "!None");
    EXPECT_FALSE(rims.shown());
    select(rims, "Steel");
    EXPECT_TRUE(rims.shown() && rims.child(1).shown() && inner.shown());
    EXPECT_FALSE(outer.shown());
}

TEST_F(NodeVariantTest, ItsGeometryIsHiddenAndShown)
{
    const TestNode panel = scene.addGeometry("Panel", osg::NullFC, scene.add("Body"));
    qxNodeVariant variant;
    variant.nodeName = "Body";
    variant.hideGeometry();
    EXPECT_EQ(panel.mask(), 0u);
    variant.showGeometry();
    EXPECT_TRUE(panel.shown());
}

TEST_F(NodeVariantTest, APathBeginsBelowANodeCalledRoot)
{
    const TestNode own = scene.add("Root", scene.add("Above"));
    const TestNode axle = scene.add("Axle|1", scene.add("root", own));
    qxNodeVariant variant;
    EXPECT_EQ(variant.getNodePath(axle.node()), "root|Axle|1|");
    EXPECT_EQ(variant.getNodePath(own.node()), "");
    EXPECT_EQ(variant.getNodePath(scene.root().node()), "");
}
