#include "qxVariantWriter.h"

#include "PanelFixture.h"
#include "qxCaptureRecord.h"

#include <functional>

class SetEditsTest : public PanelFixture {
protected:
    void comment(const char *name, const char *text)
    {
        edits.editSet(name, "Comment", [text](qxVariantSet &set) { set.comment = text; });
    }

    qxSetEdits edits;
};

TEST_F(SetEditsTest, ARemovedSetComesBackWithAllThatItHeld)
{
    qxVariantSet &red = set("Red");
    red.addNodeVariant("Wheels", "Steel");
    red.addMaterialVariant("Paint", "Gloss");
    red.addLightVariant("Lamp", "!Enable");
    red.addOverlayVariant("Logo", "Large");
    red.addTransformVariant("Door", "Open");
    red.addMaterialSnapshot("Body/Hood", "Paint");
    red.addViewpoint("Front");
    red.addAnimation("Sunset");
    red.addGeometry("Seat");
    red.addTargetNodeName("Body");
    red.values.insert("price", "12");
    red.hotkey = "Ctrl+R";
    red.updateShortcut();
    red.comment = "warm";
    red.script = "print(1)";
    red.defaultViewpoint = "Side";
    red.sequentialAnimation = !red.sequentialAnimation;
    red.animationIndex = 2;
    red.setClippingState(1);
    red.setPreview("picture");
    red.setInclInfo(true, false, true, false, true);
    const QByteArray before = qxVariantWriter().write();
    edits.removeSets({"Red", "Leather"});
    const QByteArray without = qxVariantWriter().write();
    EXPECT_EQ(qxVariants::findVariantSet("Red"), nullptr);
    edits.stack()->undo();
    EXPECT_EQ(qxVariantWriter().write().toStdString(), before.toStdString());
    EXPECT_EQ(set("Red").key, int(Qt::Key_R));
    EXPECT_EQ(set("Red").animationIndex, 2);
    edits.stack()->redo();
    EXPECT_EQ(qxVariantWriter().write().toStdString(), without.toStdString());
}

TEST_F(SetEditsTest, ATakenNameGetsANumber)
{
    edits.renameSet("Blue", "Red");
    EXPECT_TRUE(setsOf("Outside").startsWith("Red,Red ")) << setsOf("Outside").toStdString();
    edits.stack()->undo();
    EXPECT_EQ(setsOf("Outside"), "Red,Blue");
}

TEST_F(SetEditsTest, CopiesStandBehindTheirOriginalsUnderNamesOfTheirOwnWithoutAKey)
{
    addGroup("Many", {"a", "b", "c", "d"});
    edits.moveSets({"d"}, "Many", "a"); // The rows of the group are not in the registry's order.
    set("b").name = "a 2";
    set("d").hotkey = "D";
    set("d").script = "pass";
    const QString before = namesOf(qxVariants::_variantSets);
    const QStringList copies = edits.duplicateSets(names("Alone,d,a 2,a,a"));
    EXPECT_EQ(setsOf("Many"), "d,d 2,a,a 3,a 2,a 2 2,c");
    EXPECT_EQ(namesOf(qxVariants::_variantSets),
              "Red,Blue,Leather,Alone,Alone 2,a,a 3,a 2,a 2 2,c,d,d 2");
    EXPECT_EQ(set("d 2").script, "pass");
    EXPECT_EQ(set("d 2").hotkey, "");
    edits.stack()->undo();
    EXPECT_EQ(namesOf(qxVariants::_variantSets), before);
    EXPECT_EQ(edits.stack()->count(), 2);
}

TEST_F(SetEditsTest, EveryEditIsAnnouncedOnce)
{
    const auto expectAnnounced = [this](const char *name, std::size_t times, const auto &edit) {
        const std::size_t before = heard(name).size();
        edit();
        EXPECT_EQ(heard(name).size(), before + times) << edits.stack()->undoText().toStdString();
    };
    qxCaptureRecord record;
    qxCaptureRecord another;
    const std::function<void()> each[] = {
        [&] { comment("Red", "warm"); },
        [&] { edits.stack()->undo(); },
        [&] { edits.duplicateSets(names("Red,Blue,Alone")); },
        [&] { edits.moveSets(names("Red,Alone"), "Inside", QString()); },
        [&] { edits.shiftSets(names("Red,Blue"), true); },
        [&] { edits.captureSet("Captured", "Inside", record, [](qxVariantSet &) {}); },
        [&] { edits.captureAgain("Red", another, [](qxVariantSet &red) { red.script = "pass"; }); },
    };
    for (const auto &edit : each)
        expectAnnounced("variantSetChanged", 1, edit);
    expectAnnounced("variantSetRemoved", 2, [&] { edits.removeSets(names("Red,Blue")); });
}

TEST_F(SetEditsTest, WhatOthersDidSinceStaysWhenAnEditIsUndone)
{
    comment("Red", "warm");
    comment("Blue", "cold");
    set("Red").script = "pass"; // another field
    set("Blue").comment = "icy"; // the same one
    edits.stack()->undo();
    EXPECT_EQ(set("Blue").comment, "icy");
    EXPECT_EQ(edits.stack()->count(), 1) << "what cannot be undone any more is no step";
    edits.stack()->undo();
    EXPECT_EQ(set("Red").comment, "");
    EXPECT_EQ(set("Red").script, "pass");

    comment("Red", "warm");
    edits.renameSet("Red", "Crimson");
    qxVariants::removeVariantSet("Crimson");
    edits.stack()->undo();
    edits.stack()->undo();
    EXPECT_EQ(namesOf(qxVariants::_variantSets), "Blue,Leather,Alone");
}

TEST_F(SetEditsTest, ASetComesBackWhileItsNameIsTaken)
{
    comment("Red", "warm");
    edits.removeSets({"Red"});
    qxVariants::createVariantSet("Red", false, nullptr);
    edits.stack()->undo();
    ASSERT_TRUE(setsOf("Outside").endsWith(",Blue")) << setsOf("Outside").toStdString();
    const QString back = setsOf("Outside").section(',', 0, 0);
    EXPECT_NE(back, "Red");
    EXPECT_EQ(qxVariants::findVariantSet(back)->comment, "warm");
    edits.stack()->undo();
    EXPECT_EQ(set("Red").comment, "") << "the edit was one of another set";
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
