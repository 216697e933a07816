#include "qxVariantReader.h"
#include "qxVariantWriter.h"

#include "PanelFixture.h"
#include "Undo/qxCaptureRecord.h"

#include <QSignalSpy>

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
    qxVariantReader().read(bytesOf(testData("Documents/complete.xml")).constData());
    set("Sport").animationIndex = 2;
    const QByteArray before = qxVariantWriter().write();
    edits.removeSets({"Sport", "Leather"});
    const QByteArray without = qxVariantWriter().write();
    EXPECT_EQ(qxVariants::findVariantSet("Sport"), nullptr);
    edits.stack()->undo();
    EXPECT_EQ(qxVariantWriter().write(), before);
    EXPECT_EQ(set("Sport").key, int(Qt::Key_F5));
    EXPECT_EQ(set("Sport").animationIndex, 2);
    edits.stack()->redo();
    EXPECT_EQ(qxVariantWriter().write(), without);
}

TEST_F(SetEditsTest, ATakenNameGetsANumber)
{
    edits.renameSet("Blue", "Red");
    EXPECT_EQ(setsOf("Outside"), "Red,Red 2");
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

TEST_F(SetEditsTest, EveryEditIsToldOnceAndTheModulesNotificationsAreItsOwn)
{
    typedef std::vector<std::string> Names;
    const auto undo = [this] { edits.stack()->undo(); };
    qxCaptureRecord record;
    qxCaptureRecord another;
    const struct {
        std::function<void()> edit;
        int told;
        Names announced = {};
    } cases[] = {
        {[&] { comment("Red", "warm"); }, 1},
        {undo, 1},
        {[&] { edits.renameSet("Red", "Crimson"); }, 1},
        {undo, 1},
        {[&] { edits.duplicateSets(names("Red,Blue,Alone")); }, 1},
        {[&] { edits.moveSets(names("Red,Alone"), "Inside", QString()); }, 1},
        {[&] { edits.shiftSets(names("Red,Blue"), true); }, 1},
        {[&] { edits.captureSet("Captured", "Inside", record, [](qxVariantSet &) {}); }, 1,
         Names{"variantSetAdded"}},
        {[&] {
             edits.captureAgain("Red", another, [](qxVariantSet &red) { red.script = "pass"; });
         },
         1},
        {[&] { edits.removeSets(names("Red,Blue")); }, 0,
         Names{"variantSetRemoved", "variantSetRemoved"}},
        {undo, 1},
        {[&] { edits.addGroup(); }, 1},
        {undo, 0, Names{"variantGroupRemoved"}},
        {[&] { edits.moveGroups({"Inside"}, "Outside"); }, 1},
        {[&] { edits.setGroupVisible("Inside", false); }, 1},
    };
    for (const auto &each : cases) {
        QSignalSpy told(&qxPanelChanges::the(), &qxPanelChanges::setsEdited);
        notifications.clear();
        each.edit();
        EXPECT_EQ(told.size(), each.told) << edits.stack()->undoText().toStdString();
        EXPECT_EQ(notifications.names(), each.announced) << edits.stack()->undoText().toStdString();
    }
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
    ASSERT_EQ(setsOf("Outside"), "Red 2,Blue");
    EXPECT_EQ(set("Red 2").comment, "warm");
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
