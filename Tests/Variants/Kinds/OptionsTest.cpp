#include "qxAnalyzerVariant.h"
#include "qxNodeVariant.h"

#include "KindTexts.h"

#include <gtest/gtest.h>

TEST(Options, AnAddedNameKeepsItsFirstOption)
{
    qxNodeVariant variant;
    variant.add("Red", "Ctrl+1");
    variant.add(true, "Red", "Ctrl+2");

    EXPECT_EQ(textsOf(variant.options), Texts({"Red (Ctrl+1)"}));
    EXPECT_EQ(variant.options[0].key, int(Qt::Key_1));
    EXPECT_EQ(variant.options[0].modifiers, Qt::ControlModifier);
}

TEST(Options, ShortcutsKeepTheirTextAndGiveTheFirstCombination)
{
    qxNodeVariant variant;
    variant.add("Plain", "");
    variant.add("Two", "Alt+Shift+A, B");
    EXPECT_EQ(variant.options[0].key, 0);
    EXPECT_EQ(variant.options[0].modifiers, Qt::NoModifier);
    EXPECT_EQ(variant.options[1].shortcut, "Alt+Shift+A, B");
    EXPECT_EQ(variant.options[1].key, int(Qt::Key_A));
    EXPECT_EQ(variant.options[1].modifiers, Qt::AltModifier | Qt::ShiftModifier);

    variant.options[1].shortcut = "F5";
    variant.options[1].updateShortcut();
    EXPECT_EQ(variant.options[1].key, int(Qt::Key_F5));
    EXPECT_EQ(variant.options[1].modifiers, Qt::NoModifier);
}

TEST(Options, AreRemovedByExactNameAndKeepTheirOrder)
{
    qxNodeVariant variant;
    for (const char *name : {"Red", "Green", "Blue"})
        variant.add(name, "");
    variant.remove("green");
    EXPECT_EQ(variant.options.size(), 3u);
    variant.remove(variant.options[1].name); // a name that goes with its option
    EXPECT_EQ(textsOf(variant.options), Texts({"Red", "Blue"}));
}

TEST(Options, AnEmptyNameIsNeverFound)
{
    qxNodeVariant variant;
    variant.add(true, "", "");
    EXPECT_EQ(variant.options.size(), 1u);
    EXPECT_EQ(variant.find(""), nullptr);
    EXPECT_FALSE(variant.isAction(""));
}

TEST(Options, AreActionsOnlyWhenAddedAsSuch)
{
    qxNodeVariant variant;
    EXPECT_FALSE(variant.isAction("!Toggle"));
    variant.add("!Toggle", "");
    EXPECT_FALSE(variant.isAction("!Toggle"));
    variant.add(true, "Flip", "");
    EXPECT_TRUE(variant.isAction("Flip"));
    EXPECT_EQ(variant.find("Flip"), &variant.options[1]);
}

TEST(Options, TheBaseHasNoState)
{
    qxAnalyzerVariant variant;
    variant.onSelect("!Next");
    EXPECT_EQ(variant.onCurrent(), "");
}
