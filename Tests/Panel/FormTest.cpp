#include "DockFixture.h"
#include "qxController.h"
#include "qxSetForm.h"

#include <QAction>
#include <QKeySequenceEdit>
#include <QLabel>
#include <QPlainTextEdit>
#include <QSignalSpy>
#include <QTableWidget>
#include <QUndoStack>

/// The form below the list, used by hand.
class FormTest : public DockFixture {
protected:
    QString note(const char *name) { return sets.findChild<QLabel *>(name)->text(); }
    QTableWidget &values() { return *sets.findChild<QTableWidget *>(); }
    void write(int row, const char *key, const char *value)
    {
        values().setItem(row, 1, new QTableWidgetItem(value));
        values().setItem(row, 0, new QTableWidgetItem(key));
        settle();
    }
    void type(const QKeySequence &key)
    {
        auto &field = *sets.findChild<QKeySequenceEdit *>();
        field.setKeySequence(key);
        emit field.editingFinished();
        settle();
    }
};

TEST_F(FormTest, AKeyThatDoesSomethingElseAlreadySaysSo)
{
    QAction reload("Re&load");
    reload.setParent(&window);
    reload.setShortcut(QKeySequence("Ctrl+L"));
    qxVariantOption &option = *qxVariants::findNodeVariant("Wheels")->find("Alloy");
    option.shortcut = "Ctrl+K";
    option.updateShortcut();
    sets.setFloating(true); // What the window does concerns it all the same.
    click("Red");
    const struct {
        const char *key;
        QStringList mentioned;
    } cases[] = {{"Ctrl+Y", {}},
                 {"Ctrl+B", {"Blue"}},
                 {"Ctrl+L", {"Reload"}},
                 {"Ctrl+K", {"Alloy", "Wheels"}}};
    for (const auto &each : cases) {
        type(QKeySequence(each.key));
        EXPECT_EQ(set("Red").hotkey, each.key);
        EXPECT_EQ(note("keyNote").isEmpty(), each.mentioned.isEmpty()) << each.key;
        for (const QString &name : each.mentioned)
            EXPECT_TRUE(note("keyNote").contains(name)) << each.key;
    }
    click("Leather");
    EXPECT_EQ(note("keyNote"), "");
}

TEST_F(FormTest, ValuesComeAndGoAndOneOfTheSameKeyIsNotLost)
{
    click("Red");
    write(0, "price", "12");
    EXPECT_EQ(set("Red").values.value("price"), "12");
    ASSERT_EQ(values().rowCount(), 2) << "an empty row for the next one";
    write(1, "price", "13");
    EXPECT_EQ(set("Red").values.value("price"), "12");
    EXPECT_TRUE(note("valuesNote").contains("price"));
    qxPanelEvents::announceEditedSets();
    settle();
    write(1, "weight", "13"); // What was typed is still there to be mended.
    EXPECT_EQ(set("Red").values.value("weight"), "13");
    EXPECT_EQ(note("valuesNote"), "");
    values().setFocus();
    values().setCurrentCell(0, 0);
    QTest::keyClick(&values(), Qt::Key_Delete);
    settle();
    EXPECT_EQ(set("Red").values.keys(), QStringList("weight"));
    sets.undoStack()->undo();
    settle();
    EXPECT_EQ(values().rowCount(), 1) << "one step for all that was done in the table";
}

TEST_F(FormTest, ValuesOfTheSameKeyAreNumberedWhenTheSetIsLeft)
{
    click("Red");
    write(0, "price", "12");
    write(1, "price", "13");
    click("Blue");
    EXPECT_EQ(set("Red").values, (QMap<QString, QString>{{"price", "12"}, {"price 2", "13"}}));
    EXPECT_TRUE(set("Blue").values.isEmpty());
    EXPECT_EQ(note("valuesNote"), "");
}

/// The field for keys waits for more of them before it says that it is done.
TEST_F(FormTest, AKeyIsTakenEvenIfTheFieldStillWaitsForMore)
{
    auto *const field = sets.findChild<QKeySequenceEdit *>();
    click("Red");
    field->setFocus();
    QTest::keyClick(field, Qt::Key_Y, Qt::ControlModifier);
    qxPanelEvents::announceEditedSets();
    settle();
    EXPECT_EQ(set("Red").hotkey, "") << "it may become another";
    sets.view()->showSet("Blue"); // As when a script selects it.
    settle();
    EXPECT_EQ(set("Red").hotkey, "Ctrl+Y");
    EXPECT_EQ(set("Blue").hotkey, "Ctrl+B");
    EXPECT_EQ(field->keySequence(), QKeySequence("Ctrl+B"));
    QTest::keyClick(field, Qt::Key_U, Qt::ControlModifier);
    list().setFocus();
    EXPECT_EQ(set("Blue").hotkey, "Ctrl+U");
}

TEST_F(FormTest, HalfTypedTextWaitsForItsSetWhateverIsAnnounced)
{
    click("Red");
    auto *const comment = sets.findChildren<QPlainTextEdit *>().at(0);
    comment->setFocus();
    QTest::keyClicks(comment, "warm");
    QSignalSpy moves(sets.view(), &qxSetsView::currentChanged);
    qxPanelEvents::announceEditedSets();
    settle();
    EXPECT_EQ(moves.count(), 0);
    EXPECT_EQ(sets.undoStack()->count(), 0);
    qxSetEdits others;
    others.renameSet("Red", "Crimson");
    settle();
    EXPECT_EQ(sets.undoStack()->count(), 0);
    list().setFocus();
    EXPECT_EQ(set("Crimson").comment, "warm");
}

TEST_F(FormTest, AGroupHasACommentAlone)
{
    sets.view()->showGroup("Outside");
    auto *const comment = sets.findChildren<QPlainTextEdit *>().at(0);
    EXPECT_TRUE(comment->isVisible());
    EXPECT_FALSE(values().isVisible());
    comment->setFocus();
    QTest::keyClicks(comment, "seen from afar");
    click("Red");
    EXPECT_EQ(qxVariants::findVariantGroup("Outside")->comment, "seen from afar");
    EXPECT_EQ(comment->toPlainText(), "");
    EXPECT_TRUE(values().isVisible());
    sets.undoStack()->undo();
    EXPECT_EQ(qxVariants::findVariantGroup("Outside")->comment, "");
}

TEST_F(FormTest, NothingIsEnabledWithoutASet)
{
    const auto isEnabled = [this] { return sets.findChild<qxSetForm *>()->isEnabled(); };
    click("Alone");
    EXPECT_TRUE(isEnabled());
    qxVariants::removeVariantSet("Alone");
    settle();
    EXPECT_EQ(isEnabled(), !sets.view()->currentSet().isEmpty());
    qxController::call("clearAllVariants", 1);
    settle();
    EXPECT_FALSE(isEnabled());
}
