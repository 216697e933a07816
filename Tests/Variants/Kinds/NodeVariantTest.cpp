#include "qxNodeVariant.h"
#include "qxVariants.h"

#include "HostFixture.h"
#include "KindTexts.h"

#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGSimpleAttachments.h>
#include <OpenSG/OSGSwitch.h>

namespace {

const osg::UInt32 visible = 0xFFFFFFFF;

class NodeVariantTest : public HostFixture {
protected:
    ~NodeVariantTest() override { qxVariants::_recurse = false; }

    /// Selects the state through a new variant for the node and returns what was sent, without the
    /// closing notification, whose presence it checks.
    Texts select(const TestNode &node, const char *state)
    {
        qxNodeVariant variant(node.node());
        notifications.clear();
        variant.onSelect(state);
        Texts sent = notifications.lines();
        EXPECT_FALSE(sent.empty());
        EXPECT_EQ(sent.back(), "1 nodeVariantSelected variant=" + addressOf(&variant));
        sent.pop_back();
        return sent;
    }
    QString current(const TestNode &node) { return qxNodeVariant(node.node()).onCurrent(); }
};

/// Whether the change list holds an edit of that field.
template <class Ptr>
bool recorded(const Ptr &object, osg::BitVector field)
{
    const osg::ChangeList *changes = osg::Thread::getCurrentChangeList();
    for (auto entry = changes->beginChanged(); entry != changes->endChanged(); ++entry) {
        if (entry->first == object.getFieldContainerId() && entry->second == field)
            return true;
    }
    return false;
}

} // namespace

TEST_F(NodeVariantTest, AChildIsShownAndAnnounced)
{
    const TestNode axle = scene.add("Axle");
    const TestNode wheels = scene.addSwitch("Wheels", {"Steel", "Alloy", "Carbon"}, axle);
    osg::Thread::getCurrentChangeList()->clearAll();

    EXPECT_EQ(select(wheels, "Alloy"),
              Texts({"1 variantsNodesChanged variantName=Wheels visible=[Alloy] "
                     "invisible=[Steel, Carbon] parent=Wheels path=Axle|Wheels|"}));
    EXPECT_EQ(wheels.choice(), 1);
    EXPECT_TRUE(recorded(wheels.core(), osg::Switch::ChoiceFieldMask));
}

TEST_F(NodeVariantTest, AllAndNoneBothAnnounceEveryChildAsInvisible)
{
    const TestNode wheels = scene.addSwitch("Wheels", {"Steel", "Alloy"});
    const Texts hidden({"1 variantsNodesChanged variantName=Wheels visible=[] "
                        "invisible=[Steel, Alloy] parent=Wheels path=Wheels|"});
    EXPECT_EQ(select(wheels, "!All"), hidden);
    EXPECT_EQ(wheels.choice(), -2);
    EXPECT_EQ(select(wheels, "!None"), hidden);
    EXPECT_EQ(wheels.choice(), -1);
}

TEST_F(NodeVariantTest, NodesSharingASwitchAreSteppedOnceAndEachAnnounced)
{
    const TestNode wheels = scene.addSwitch("Wheels", {"Steel", "Alloy", "Carbon"});
    scene.addClone(wheels, scene.add("Rear"));
    wheels.choose(1);

    EXPECT_EQ(select(wheels, "!Next"),
              Texts({"1 variantsNodesChanged variantName=Wheels visible=[Carbon] "
                     "invisible=[Steel, Alloy] parent=Wheels path=Wheels|",
                     "1 variantsNodesChanged variantName=Wheels visible=[Carbon] "
                     "invisible=[Steel, Alloy] parent=Wheels path=Rear|Wheels|"}));
    EXPECT_EQ(wheels.choice(), 2);
}

TEST_F(NodeVariantTest, NodesOfOneNameWithCoresOfTheirOwnAreSteppedEach)
{
    const TestNode front = scene.addSwitch("Wheels", {"Steel", "Alloy"}).choose(0);
    const TestNode rear = scene.addSwitch("Wheels", {"Big", "Small", "None"}).choose(1);
    EXPECT_EQ(select(front, "!Next (Loop)").size(), 2u);
    EXPECT_EQ(front.choice(), 1);
    EXPECT_EQ(rear.choice(), 2);
}

TEST_F(NodeVariantTest, ASwitchWithoutSuchAChildIsReportedAndTheOthersStillFollow)
{
    const TestNode front = scene.addSwitch("Wheels", {"Steel"}).choose(0);
    const TestNode rear = scene.addSwitch("Wheels", {"Steel", "Alloy", "Alloy"}).choose(0);
    expectError("Nodevariant Wheels does not have a child called Alloy");
    EXPECT_EQ(select(front, "Alloy"),
              Texts({"1 variantsNodesChanged variantName=Wheels visible=[Alloy] "
                     "invisible=[Steel, Alloy] parent=Wheels path=Wheels|"}));
    EXPECT_EQ(front.choice(), 0);
    EXPECT_EQ(rear.choice(), 1);
}

TEST_F(NodeVariantTest, ASwitchWithoutChildrenSteps)
{
    const TestNode empty = scene.addSwitch("Empty", {}).choose(-2);
    EXPECT_EQ(select(empty, "!Next").size(), 1u);
    EXPECT_EQ(empty.choice(), 0);
    select(empty, "!Previous (Loop)");
    EXPECT_EQ(empty.choice(), -1);
    expectError("Nodevariant Empty does not have a child called Steel");
    EXPECT_EQ(select(empty, "Steel"), Texts());
}

TEST_F(NodeVariantTest, VisibilityIsTriedOnSwitchesBeforeTheirChildren)
{
    const TestNode wheels = scene.addSwitch("Wheels", {"Steel"}).choose(0).setMask(0);
    expectError("Nodevariant Wheels does not have a child called !Enable");
    EXPECT_EQ(select(wheels, "!Enable"),
              Texts({"1 variantsNodesChanged variantName=Wheels visible=[Steel] invisible=[] "
                     "parent=Wheels path=Wheels|"}));
    EXPECT_EQ(wheels.mask(), visible);
    EXPECT_EQ(wheels.choice(), 0);

    const TestNode odd = scene.addSwitch("Odd", {"Steel", "!Disable"});
    EXPECT_EQ(select(odd, "!Disable").size(), 2u);
    EXPECT_EQ(odd.mask(), 0u);
    EXPECT_EQ(odd.choice(), 1);
}

TEST_F(NodeVariantTest, PlainNodesAreShownHiddenAndToggledByTheirMask)
{
    const TestNode door = scene.add("Door", scene.add("Body"));
    const Texts hidden({"1 variantsNodesChanged variantName=Door visible=[] invisible=[Door] "
                        "parent=Body path=Body|Door|"});
    const Texts shown({"1 variantsNodesChanged variantName=Door visible=[Door] invisible=[] "
                       "parent=Body path=Body|Door|"});
    osg::Thread::getCurrentChangeList()->clearAll();
    EXPECT_EQ(select(door, "!Disable"), hidden);
    EXPECT_EQ(door.mask(), 0u);
    EXPECT_TRUE(recorded(door.node(), osg::Node::TravMaskFieldMask));
    EXPECT_EQ(select(door, "!Toggle"), shown);
    EXPECT_EQ(select(door, "!Toggle"), hidden);
    door.setMask(7); // only all bits count as shown
    EXPECT_EQ(select(door, "!Toggle"), shown);
    EXPECT_EQ(door.mask(), visible);
    EXPECT_EQ(select(door, "Open"), Texts());
}

TEST_F(NodeVariantTest, ANodeWithoutCoreIsAPlainNode)
{
    const osg::NodePtr bare = osg::Node::create();
    osg::setName(bare, "Bare");
    scene.root().node()->addChild(bare);
    EXPECT_EQ(select(bare, "!Disable").size(), 1u);
    EXPECT_EQ(bare->getTravMask(), 0u);
    EXPECT_EQ(current(bare), "!Disable");
}

TEST_F(NodeVariantTest, ATransformSwitchTakesStepsAndNumbersFromAnyText)
{
    const TestNode seat = scene.addTransformSwitch("Seat", 3).choose(2);
    const std::vector<std::pair<const char *, int>> steps{
        {"!Next", 2},           {"!Next (Loop)", 0}, {"!Previous (Loop)", 2}, {"!Previous", 1},
        {"Transform 7", 7},     {"!Previous", 2},    {"Transform 1abc", 1},   {"Transform", 0},
        {"Transform     2", 2}, {"!None", 0},        {"transform 1", 0}};
    for (const auto &step : steps) {
        EXPECT_EQ(select(seat, step.first), Texts()) << step.first;
        EXPECT_EQ(seat.choice(), step.second) << step.first;
    }
}

TEST_F(NodeVariantTest, ATransformSwitchIsToggledAndFallsBackToItsFirstState)
{
    const TestNode seat = scene.addTransformSwitch("Seat", 3).choose(2);
    EXPECT_EQ(select(seat, "!Toggle"),
              Texts({"1 variantsNodesChanged variantName=Seat visible=[] invisible=[Seat] parent="
                     + scene.root().name() + " path=Seat|"}));
    EXPECT_EQ(seat.mask(), 0u);
    EXPECT_EQ(seat.choice(), 0);
    EXPECT_EQ(current(seat), "!Disable");
}

TEST_F(NodeVariantTest, ClonesOfATransformSwitchAreSteppedOnce)
{
    const TestNode seat = scene.addTransformSwitch("Seat", 3);
    const TestNode clone = scene.addClone(seat);
    select(seat, "!Next (Loop)");
    EXPECT_EQ(seat.choice(), 1);
    select(seat, "!Disable"); // the masks are those of the nodes, not of the core
    EXPECT_EQ(clone.mask(), 0u);
}

TEST_F(NodeVariantTest, ANameWithoutNodesOnlyAnnouncesTheSelection)
{
    qxNodeVariant variant;
    variant.nodeName = "Gone";
    variant.onSelect("!Next");
    EXPECT_EQ(notifications.lines(),
              Texts({"1 nodeVariantSelected variant=" + addressOf(&variant)}));
    EXPECT_EQ(variant.onCurrent(), "");
}

TEST_F(NodeVariantTest, EnablingReachesDownAndUpToTheFirstVisibleAncestor)
{
    const TestNode outer = scene.add("Outer").setMask(0);
    const TestNode middle = scene.add("Middle", outer);
    const TestNode inner = scene.add("Inner", middle).setMask(0);
    const TestNode wheels = scene.addSwitch("Wheels", {"Steel", "Alloy"}, inner).setMask(0);
    wheels.child(1).setMask(0);

    select(wheels, "Steel"); // not asked to recurse
    EXPECT_FALSE(wheels.shown());
    qxVariants::_recurse = true;
    select(wheels, "!None");
    EXPECT_FALSE(wheels.shown());
    select(wheels, "Steel");
    EXPECT_TRUE(wheels.shown() && wheels.child(1).shown() && inner.shown());
    EXPECT_FALSE(outer.shown());
}

TEST_F(NodeVariantTest, HidingGeometryLeavesGroupsAndShowingShowsAll)
{
    const TestNode body = scene.add("Body");
    const TestNode group = scene.add("Panels", body);
    const TestNode panel = scene.addGeometry("Panel", osg::NullFC, group);
    const TestNode inset = scene.addGeometry("Inset", osg::NullFC, panel);
    qxNodeVariant variant(body.node());

    variant.hideGeometry();
    EXPECT_TRUE(body.shown() && group.shown());
    EXPECT_EQ(panel.mask(), 0u);
    EXPECT_EQ(inset.mask(), 0u);
    group.setMask(3);
    variant.showGeometry();
    EXPECT_TRUE(group.shown() && panel.shown() && inset.shown());
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

TEST_F(NodeVariantTest, TheCurrentStateIsThatOfTheFirstNode)
{
    const TestNode wheels = scene.addSwitch("Wheels", {"Steel", "Alloy"});
    scene.addSwitch("Wheels", {"Carbon"}).choose(0);
    const std::vector<std::pair<int, const char *>> states{
        {-3, ""}, {-2, "!All"}, {-1, "!None"}, {0, "Steel"}, {1, "Alloy"}, {2, ""}};
    for (const auto &state : states)
        EXPECT_EQ(current(wheels.choose(state.first)), state.second) << state.first;
}
