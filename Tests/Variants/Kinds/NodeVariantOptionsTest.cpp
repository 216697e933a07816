#include "Internal/Scene/qxNodesChange.h"
#include "qxNodeVariant.h"

#include "KindFixture.h"

typedef HostFixture NodeVariantOptionsTest;

TEST_F(NodeVariantOptionsTest, OfASwitch)
{
    const TestNode rims = scene.addSwitch("Rims", {"Steel", "Alloy", "Steel", "", ""}).choose(1);
    qxNodeVariant variant(rims.node());
    EXPECT_TRUE(variant.name == "Rims" && variant.nodeName == "Rims");
    Texts built = stepsAnd({"Steel", "Alloy", "Group"});
    built.insert(built.begin(), {"!All", "!None"});
    EXPECT_EQ(textsOf(variant.options), built);
    EXPECT_EQ(rebuilt(variant), built);
    EXPECT_EQ(variant.defaultState, "Alloy");
    EXPECT_EQ(rebuiltDefault(variant, "!Previous"), "!Next (Loop)"); // no default: it is an action
}

TEST_F(NodeVariantOptionsTest, TheStatesFollowTheChoiceOfTheFirstNode)
{
    const struct {
        int choice;
        const char *built, *rebuilt, *current;
    } rows[] = {
        {-3, "!None", "!None", ""},
        {-2, "!None", "!None", "!All"},
        {-1, "!None", "!None", "!None"},
        {0, "A", "!Next", "A"}, // a new default counts two options before the children
        {3, "D", "!Previous (Loop)", "D"},
        {4, "E", "A", "E"},
        {5, "F", "B", "F"},
        {6, "!None", "!None", ""},
    };
    const TestNode rims = scene.addSwitch("Rims", {"A", "B", "C", "D", "E", "F"});
    scene.addSwitch("Rims", {"Steel"}).choose(0);
    for (const auto &row : rows) {
        SCOPED_TRACE(row.choice);
        qxNodeVariant variant(rims.choose(row.choice).node());
        EXPECT_EQ(variant.defaultState, row.built);
        EXPECT_EQ(rebuiltDefault(variant, "Gone"), row.rebuilt);
        EXPECT_EQ(variant.onCurrent(), row.current);
    }
    qxNodeVariant twins(scene.addSwitch("Twins", {"A", "A", "A", "A", "A", "A"}).choose(5).node());
    EXPECT_EQ(rebuiltDefault(twins, ""), "A");
}

TEST_F(NodeVariantOptionsTest, RebuiltKeepShortcutsAndFlags)
{
    scene.addSwitch("Rims", {"Steel", "Alloy"});
    qxNodeVariant variant;
    variant.nodeName = "Rims";
    variant.add(true, "Alloy", "Ctrl+2");
    variant.add("!Next", "F5");
    variant.add(true, "!All", "F6");
    variant.add("Rubber", "F7");
    // Steps that were options become actions, new ones come back plain.
    EXPECT_EQ(rebuilt(variant),
              Texts({"!All* (F6)", "!None", "!Next* (F5)", "!Next (Loop)", "!Previous",
                     "!Previous (Loop)", "Steel", "Alloy* (Ctrl+2)"}));
}

TEST_F(NodeVariantOptionsTest, OfATransformSwitchWhoseStatesLoseTheirShortcuts)
{
    const TestNode seat = scene.addTransformSwitch("Seat", 2).choose(1);
    qxNodeVariant variant(seat.node());
    EXPECT_EQ(textsOf(variant.options), stepsAnd({"Transform 0", "Transform 1"}));
    EXPECT_EQ(variant.defaultState, "!Next (Loop)");
    variant.options.clear();
    variant.add(true, "Transform 1", "F1");
    variant.add("!Previous", "F2");
    EXPECT_EQ(rebuilt(variant),
              Texts({"!Next", "!Next (Loop)", "!Previous* (F2)", "!Previous (Loop)", "Transform 0",
                     "Transform 1"}));
    EXPECT_EQ(rebuiltDefault(variant, "Transform 1"), "Transform 1");
    EXPECT_EQ(rebuiltDefault(variant, "Transform 2"), "!Next (Loop)");
}

TEST_F(NodeVariantOptionsTest, OfAPlainNode)
{
    const TestNode door = scene.add("Door").setMask(1);
    qxNodeVariant variant(door.node());
    EXPECT_EQ(textsOf(variant.options), Texts({"!Enable", "!Disable", "!Toggle*"}));
    EXPECT_EQ(variant.defaultState, "!Disable");
    variant.remove("!Toggle");
    EXPECT_EQ(rebuilt(variant), Texts({"!Enable", "!Disable", "!Toggle"}));
    door.setMask(0xFFFFFFFF);
    EXPECT_EQ(rebuiltDefault(variant, ""), "!Enable");
    EXPECT_EQ(rebuiltDefault(variant, "!Disable"), "!Disable");
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

TEST(Options, AreKeptOncePerNameAndFoundAndRemovedByIt)
{
    qxNodeVariant variant;
    variant.add("Red", "Alt+Shift+A, B");
    variant.add(true, "Red", "Ctrl+2");
    variant.add("Plain", "");
    EXPECT_EQ(textsOf(variant.options), Texts({"Red (Alt+Shift+A, B)", "Plain"}));
    qxVariantOption &red = variant.options[0];
    EXPECT_EQ(red.key, int(Qt::Key_A));
    EXPECT_EQ(red.modifiers, Qt::AltModifier | Qt::ShiftModifier);
    red.shortcut = "F5";
    red.updateShortcut();
    EXPECT_EQ(red.key, int(Qt::Key_F5));
    EXPECT_EQ(red.modifiers, Qt::NoModifier);

    qxNodeVariant other;
    EXPECT_FALSE(other.isAction("!Toggle"));
    for (const char *name : {"!Toggle", "Green", "Blue"})
        other.add(name, "");
    other.add(true, "Flip", "");
    other.add(true, "", "");
    EXPECT_FALSE(other.isAction("!Toggle"));
    EXPECT_TRUE(other.isAction("Flip"));
    EXPECT_EQ(other.find("Flip"), &other.options[3]);
    EXPECT_EQ(other.find(""), nullptr);
    EXPECT_FALSE(other.isAction(""));

    other.remove("green");
    EXPECT_EQ(other.options.size(), 5u);
    other.remove(other.options[1].name); // a name that goes with its option
    EXPECT_EQ(textsOf(other.options), Texts({"!Toggle", "Blue", "Flip*", "*"}));
}
