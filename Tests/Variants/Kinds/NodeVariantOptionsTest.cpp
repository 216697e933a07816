#include "Internal/qxNodesChange.h"
#include "qxNodeVariant.h"

#include "HostFixture.h"
#include "KindTexts.h"

namespace {

class NodeVariantOptionsTest : public HostFixture {
protected:
    /// The default state of a variant built from the switch with that choice.
    static QString defaultFor(const TestNode &node, int choice)
    {
        return qxNodeVariant(node.choose(choice).node()).defaultState;
    }
};

} // namespace

TEST_F(NodeVariantOptionsTest, OfASwitch)
{
    const TestNode wheels = scene.addSwitch("Wheels", {"Steel", "Alloy", "Steel", "", ""});
    const qxNodeVariant variant(wheels.node());
    EXPECT_EQ(variant.name, "Wheels");
    EXPECT_EQ(variant.nodeName, "Wheels");
    EXPECT_EQ(textsOf(variant.options),
              Texts({"!All", "!None", "!Next*", "!Next (Loop)*", "!Previous*", "!Previous (Loop)*",
                     "Steel", "Alloy", "Group"}));
    const std::vector<std::pair<int, const char *>> defaults{
        {-3, "!None"}, {-2, "!None"}, {-1, "!None"}, {0, "Steel"}, {1, "Alloy"}, {5, "!None"}};
    for (const auto &entry : defaults)
        EXPECT_EQ(defaultFor(wheels, entry.first), entry.second) << entry.first;
}

TEST_F(NodeVariantOptionsTest, OfATransformSwitchAndOfOtherNodes)
{
    qxNodeVariant seat(scene.addTransformSwitch("Seat", 2).choose(1).node());
    EXPECT_EQ(textsOf(seat.options),
              Texts({"!Next*", "!Next (Loop)*", "!Previous*", "!Previous (Loop)*", "Transform 0",
                     "Transform 1"}));
    EXPECT_EQ(seat.defaultState, "!Next (Loop)");

    qxNodeVariant door(scene.add("Door").setMask(1).node());
    EXPECT_EQ(textsOf(door.options), Texts({"!Enable", "!Disable", "!Toggle*"}));
    EXPECT_EQ(door.defaultState, "!Disable");
}

TEST_F(NodeVariantOptionsTest, RebuiltKeepShortcutsAndFlags)
{
    scene.addSwitch("Wheels", {"Steel", "Alloy"});
    qxNodeVariant variant;
    variant.nodeName = "Wheels";
    variant.add(true, "Alloy", "Ctrl+2");
    variant.add("!Next", "F5");
    variant.add(true, "!All", "F6");
    variant.add("Rubber", "F7");
    variant.updateVariants();
    // Steps that were options become actions, new ones come back plain.
    EXPECT_EQ(textsOf(variant.options),
              Texts({"!All* (F6)", "!None", "!Next* (F5)", "!Next (Loop)", "!Previous",
                     "!Previous (Loop)", "Steel", "Alloy* (Ctrl+2)"}));
}

TEST_F(NodeVariantOptionsTest, RebuiltForATransformSwitchLoseTheShortcutsOfItsStates)
{
    scene.addTransformSwitch("Seat", 2);
    qxNodeVariant variant;
    variant.nodeName = "Seat";
    variant.add(true, "Transform 1", "F1");
    variant.add("!Previous", "F2");
    variant.defaultState = "Transform 1";
    variant.updateVariants();
    EXPECT_EQ(textsOf(variant.options),
              Texts({"!Next", "!Next (Loop)", "!Previous* (F2)", "!Previous (Loop)", "Transform 0",
                     "Transform 1"}));
    EXPECT_EQ(variant.defaultState, "Transform 1");
    variant.defaultState = "Transform 2";
    variant.updateVariants();
    EXPECT_EQ(variant.defaultState, "!Next (Loop)");
}

TEST_F(NodeVariantOptionsTest, RebuiltForAPlainNode)
{
    const TestNode door = scene.add("Door").setMask(0);
    qxNodeVariant variant(door.node());
    variant.defaultState = "";
    variant.remove("!Toggle");
    door.setMask(0xFFFFFFFF);
    variant.updateVariants();
    EXPECT_EQ(textsOf(variant.options), Texts({"!Enable", "!Disable", "!Toggle"}));
    EXPECT_EQ(variant.defaultState, "!Enable");
    variant.defaultState = "!Disable";
    variant.updateVariants();
    EXPECT_EQ(variant.defaultState, "!Disable");
}

TEST_F(NodeVariantOptionsTest, ANewDefaultCountsTwoOptionsBeforeTheChildren)
{
    const TestNode wheels = scene.addSwitch("Wheels", {"A", "B", "C", "D", "E", "F"});
    const std::vector<std::pair<int, const char *>> defaults{
        {-2, "!None"}, {-1, "!None"}, {0, "!Next"}, {3, "!Previous (Loop)"}, {4, "A"}, {5, "B"}};
    for (const auto &entry : defaults) {
        qxNodeVariant variant(wheels.choose(entry.first).node());
        variant.defaultState = "Gone";
        variant.updateVariants();
        EXPECT_EQ(variant.defaultState, entry.second) << entry.first;
    }

    const TestNode twins = scene.addSwitch("Twins", {"A", "A", "A", "A", "A", "A"}).choose(5);
    qxNodeVariant variant(twins.node());
    variant.defaultState = "";
    variant.updateVariants();
    EXPECT_EQ(variant.defaultState, "A");
}

TEST_F(NodeVariantOptionsTest, RebuildingKeepsThemAsBuiltButForADefaultThatIsAnAction)
{
    qxNodeVariant variant(scene.addSwitch("Wheels", {"Steel", "Alloy"}).choose(1).node());
    const Texts built = textsOf(variant.options);
    variant.updateVariants();
    EXPECT_EQ(textsOf(variant.options), built);
    EXPECT_EQ(variant.defaultState, "Alloy");
    variant.defaultState = "!Previous";
    variant.updateVariants();
    EXPECT_EQ(variant.defaultState, "!Next (Loop)");
}

TEST_F(NodeVariantOptionsTest, WithoutANodeNoOptionIsLeftButTheDefaultStays)
{
    qxNodeVariant variant(scene.addSwitch("Wheels", {"Steel"}).choose(0).node());
    variant.nodeName = "Gone";
    variant.updateVariants();
    EXPECT_TRUE(variant.options.empty());
    EXPECT_EQ(variant.defaultState, "Steel");
}

TEST(NodesChange, SortsChildrenAfterAnyChoice)
{
    qxNodesChange all;
    all.sortChildren(-2, {"A", "B"});
    EXPECT_EQ(all.visible, Texts({"A", "B"}));

    qxNodesChange odd;
    testing::internal::CaptureStderr();
    odd.sortChildren(2, {"A", "B"});
    odd.sortChildren(-3, {"A", "B"});
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              "qxNodeVariant::callVariantsNodesChanged: choice (2) out of range!\n"
              "qxNodeVariant::callVariantsNodesChanged: choice (-3) out of range!\n");
    EXPECT_TRUE(odd.visible.empty() && odd.invisible.empty());
}
