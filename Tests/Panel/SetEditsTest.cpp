#include "qxNodeVariant.h"

#include "PanelFixture.h"
#include "qxCaptureRecord.h"

#include <functional>

class SetEditsTest : public PanelFixture {
protected:
    static QStringList setsOf(const char *group)
    {
        QStringList names;
        for (const qxVariantSet *each : qxVariants::findVariantGroup(group)->sets)
            names << each->name;
        return names;
    }

    qxSetEdits edits;
};

TEST_F(SetEditsTest, ARemovedSetComesBackWithAllThatItHeld)
{
    qxVariantSet &red = set("Red");
    red.addNodeVariant("Wheels", "Steel");
    red.addTransformVariant("Door", "Open");
    red.addMaterialSnapshot("Body/Hood", "Paint");
    red.addViewpoint("Front");
    red.addTargetNodeName("Body");
    red.values.insert("price", "12");
    red.hotkey = "Ctrl+R";
    red.updateShortcut();
    red.script = "print(1)";
    red.setClippingState(1);
    red.setPreview("picture");
    red.setInclInfo(true, false, true, false, true);
    edits.removeSets({"Red", "Leather"});
    EXPECT_EQ(qxVariants::findVariantSet("Red"), nullptr);
    edits.stack()->undo();

    ASSERT_EQ(setsOf("Outside"), QStringList({"Red", "Blue"}));
    ASSERT_EQ(setsOf("Inside"), QStringList("Leather"));
    qxVariantSet &back = set("Red");
    EXPECT_EQ(back.findNodeVariant("Wheels")->state, "Steel");
    EXPECT_EQ(back.findTransformVariant("Door")->state, "Open");
    EXPECT_EQ(back.materialSnapshots.value("Body/Hood"), "Paint");
    EXPECT_EQ(back.viewpoints.list(), QStringList("Front"));
    EXPECT_EQ(back.targetNodeNames.list(), QStringList("Body"));
    EXPECT_EQ(back.values.value("price"), "12");
    EXPECT_EQ(back.key, int(Qt::Key_R));
    EXPECT_EQ(back.script, "print(1)");
    EXPECT_EQ(back.getClippingState(), 1);
    EXPECT_EQ(back.getPreview(), "picture");
    EXPECT_TRUE(back.inclNodes && back.inclLights && back.inclView);
    EXPECT_FALSE(back.inclMats || back.inclEnv);

    edits.stack()->redo();
    EXPECT_EQ(qxVariants::findVariantSet("Red"), nullptr);
    EXPECT_EQ(setsOf("Outside"), QStringList("Blue"));
}

TEST_F(SetEditsTest, ATakenNameGetsANumber)
{
    edits.renameSet("Blue", "Red");
    ASSERT_EQ(setsOf("Outside").size(), 2);
    const QString given = setsOf("Outside").at(1);
    EXPECT_NE(given, "Red");
    EXPECT_TRUE(given.startsWith("Red"));
    edits.stack()->undo();
    EXPECT_EQ(setsOf("Outside"), QStringList({"Red", "Blue"}));
    edits.renameSet("Blue", "  ");
    EXPECT_EQ(edits.stack()->count(), 1) << "a name of blanks is no name";
}

TEST_F(SetEditsTest, ACopyStandsBehindItsOriginalWithoutItsKey)
{
    set("Red").hotkey = "R";
    set("Red").script = "pass";
    const QString copy = edits.duplicateSets({"Red"}).value(0);
    EXPECT_EQ(setsOf("Outside"), QStringList({"Red", copy, "Blue"}));
    EXPECT_EQ(qxVariants::findVariantSet(copy)->script, "pass");
    EXPECT_EQ(qxVariants::findVariantSet(copy)->hotkey, "");
}

TEST_F(SetEditsTest, SetsMoveWithinTheirGroupAndComeBack)
{
    addGroup("Many", {"a", "b", "c", "d", "e"});
    const QList<QPair<QStringList, QString>> moves = {
        {{"b"}, "e"}, {{"d"}, "a"}, {{"a", "c"}, ""}, {{"e", "a"}, "c"}};
    const QStringList results[] = {{"a", "c", "d", "b", "e"},
                                   {"d", "a", "b", "c", "e"},
                                   {"b", "d", "e", "a", "c"},
                                   {"b", "e", "a", "c", "d"}};
    for (int number = 0; number < moves.size(); ++number) {
        edits.moveSets(moves[number].first, "Many", moves[number].second);
        EXPECT_EQ(setsOf("Many"), results[number]) << number;
        edits.stack()->undo();
        EXPECT_EQ(setsOf("Many"), QStringList({"a", "b", "c", "d", "e"})) << number;
    }
}

TEST_F(SetEditsTest, WhatAScriptTookAwayIsNotBroughtBackByEdits)
{
    edits.editSet("Red", "Comment", [](qxVariantSet &red) { red.comment = "warm"; });
    edits.renameSet("Red", "Crimson");
    qxVariants::removeVariantSet("Crimson");
    edits.stack()->undo();
    edits.stack()->undo();
    EXPECT_EQ(qxVariants::findVariantSet("Red"), nullptr);
    EXPECT_EQ(setsOf("Outside"), QStringList("Blue"));
}

TEST_F(SetEditsTest, AGroupGoesWithOrWithoutItsSets)
{
    edits.removeGroup("Outside", false);
    EXPECT_EQ(qxVariants::findVariantGroup("Outside"), nullptr);
    EXPECT_EQ(set("Red").group, nullptr);
    edits.stack()->undo();
    EXPECT_EQ(setsOf("Outside"), QStringList({"Red", "Blue"}));
    edits.removeGroup("Outside", true);
    EXPECT_EQ(qxVariants::findVariantSet("Red"), nullptr);
    edits.stack()->undo();
    EXPECT_EQ(setsOf("Outside"), QStringList({"Red", "Blue"}));
}

TEST_F(SetEditsTest, EveryEditIsAnnouncedOnce)
{
    const auto announced = [this] { return heard("variantSetChanged").size(); };
    const std::size_t before = announced();
    edits.editSet("Red", "Comment", [](qxVariantSet &red) { red.comment = "warm"; });
    EXPECT_EQ(announced(), before + 1);
    edits.stack()->undo();
    EXPECT_EQ(announced(), before + 2);
    EXPECT_EQ(set("Red").comment, "");
    const std::function<void()> others[] = {
        [this] {
            edits.duplicateSets({"Red", "Blue", "Alone"});
        },
        [this] {
            edits.moveSets({"Red", "Alone"}, "Inside", QString());
        },
        [this] {
            edits.shiftSets({"Red", "Blue"}, true);
        },
        [this] {
            qxCaptureRecord record;
            edits.captureSet("Captured", "Inside", record, [](qxVariantSet &) {});
        },
        [this] {
            qxCaptureRecord record;
            edits.captureAgain("Red", record, [](qxVariantSet &red) { red.script = "pass"; });
        },
    };
    for (const std::function<void()> &edit : others) {
        const std::size_t started = announced();
        edit();
        EXPECT_EQ(announced(), started + 1) << edits.stack()->undoText().toStdString();
    }
    const auto removed = [this] { return heard("variantSetRemoved").size(); };
    const std::size_t started = removed();
    edits.removeSets({"Red", "Blue"});
    EXPECT_EQ(removed(), started + 2) << "each of them";
}

TEST_F(SetEditsTest, CopiesOfManySetsStandBehindTheirOriginalsUnderNamesOfTheirOwn)
{
    addGroup("Many", {"a", "b", "c", "d"});
    const auto order = [] {
        QStringList names;
        for (const qxVariantSet *each : qxVariants::_variantSets)
            names << each->name;
        return names.join(',');
    };
    edits.moveSets({"d"}, "Many", "a"); // The rows of the group are not in the registry's order.
    set("b").name = "a 2";
    const QString before = order();
    edits.duplicateSets({"Alone", "d", "a 2", "a", "a"});
    EXPECT_EQ(setsOf("Many"), QStringList({"d", "d 2", "a", "a 3", "a 2", "a 2 2", "c"}));
    EXPECT_EQ(order(), "Red,Blue,Leather,Alone,Alone 2,a,a 3,a 2,a 2 2,c,d,d 2");
    edits.stack()->undo();
    EXPECT_EQ(order(), before);
    EXPECT_EQ(edits.stack()->count(), 2);
}

TEST_F(SetEditsTest, WhatOthersChangedSinceStaysWhenAnEditIsUndone)
{
    edits.editSet("Red", "Comment", [](qxVariantSet &red) { red.comment = "warm"; });
    edits.editSet("Blue", "Comment", [](qxVariantSet &blue) { blue.comment = "cold"; });
    set("Red").script = "pass"; // another field
    set("Blue").comment = "icy"; // the same one
    edits.stack()->undo();
    EXPECT_EQ(set("Blue").comment, "icy");
    EXPECT_EQ(edits.stack()->count(), 1) << "what cannot be undone any more is no step";
    edits.stack()->undo();
    EXPECT_EQ(set("Red").comment, "");
    EXPECT_EQ(set("Red").script, "pass");
}

TEST_F(SetEditsTest, ASetComesBackWhileItsNameIsTaken)
{
    edits.editSet("Red", "Script", [](qxVariantSet &red) { red.script = "pass"; });
    edits.removeSets({"Red"});
    qxVariants::createVariantSet("Red", false, nullptr);
    edits.stack()->undo();
    const QStringList back = setsOf("Outside");
    ASSERT_EQ(back.size(), 2);
    EXPECT_NE(back.at(0), "Red");
    EXPECT_EQ(qxVariants::findVariantSet(back.at(0))->script, "pass");
    edits.stack()->undo();
    EXPECT_EQ(set("Red").script, "") << "the edit was one of another set";
    EXPECT_EQ(set("Red").group, nullptr);
}

TEST_F(SetEditsTest, EditsOfOneFieldInARowAreOneStep)
{
    const auto write = [this](const char *which, const QString &script) {
        edits.editSet(
            which, "Script", [&](qxVariantSet &edited) { edited.script = script; }, "script");
    };
    write("Red", "a");
    write("Red", "ab");
    EXPECT_EQ(edits.stack()->count(), 1);
    edits.stack()->setClean();
    write("Red", "abc"); // What was saved can be come back to.
    write("Blue", "b");
    EXPECT_EQ(edits.stack()->count(), 3);
    edits.stack()->undo();
    edits.stack()->undo();
    EXPECT_EQ(set("Red").script, "ab");
    EXPECT_TRUE(edits.stack()->isClean());
    edits.stack()->undo();
    EXPECT_EQ(set("Red").script, "");
    write("Red", "x");
    write("Red", "");
    EXPECT_EQ(edits.stack()->count(), 0) << "all is as before";
}
