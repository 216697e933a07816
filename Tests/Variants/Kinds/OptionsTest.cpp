#include "qxNodeVariant.h"

#include "KindFixture.h"

TEST(Options, AreKeptOncePerNameWithTheFirstShortcutAndItsFirstCombination)
{
    qxNodeVariant variant;
    variant.add("Red", "Alt+Shift+A, B");
    variant.add(true, "Red", "Ctrl+2");
    variant.add("Plain", "");
    EXPECT_EQ(textsOf(variant.options), Texts({"Red (Alt+Shift+A, B)", "Plain"}));
    qxVariantOption &red = variant.options[0];
    EXPECT_EQ(red.key, int(Qt::Key_A));
    EXPECT_EQ(red.modifiers, Qt::AltModifier | Qt::ShiftModifier);
    EXPECT_EQ(variant.options[1].key, 0);
    EXPECT_EQ(variant.options[1].modifiers, Qt::NoModifier);

    red.shortcut = "F5";
    red.updateShortcut();
    EXPECT_EQ(red.key, int(Qt::Key_F5));
    EXPECT_EQ(red.modifiers, Qt::NoModifier);
}

TEST(Options, AreFoundAndRemovedByExactNameAndActionsOnlyWhenAddedAsSuch)
{
    qxNodeVariant variant;
    EXPECT_FALSE(variant.isAction("!Toggle"));
    for (const char *name : {"!Toggle", "Green", "Blue"})
        variant.add(name, "");
    variant.add(true, "Flip", "");
    variant.add(true, "", "");
    EXPECT_FALSE(variant.isAction("!Toggle"));
    EXPECT_TRUE(variant.isAction("Flip"));
    EXPECT_EQ(variant.find("Flip"), &variant.options[3]);
    EXPECT_EQ(variant.find(""), nullptr);
    EXPECT_FALSE(variant.isAction(""));

    variant.remove("green");
    EXPECT_EQ(variant.options.size(), 5u);
    variant.remove(variant.options[1].name); // a name that goes with its option
    EXPECT_EQ(textsOf(variant.options), Texts({"!Toggle", "Blue", "Flip*", "*"}));
}
