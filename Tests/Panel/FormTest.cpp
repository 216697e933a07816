#include "DockFixture.h"
#include "Sets/qxSetForm.h"

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
        Q_EMIT field.editingFinished();
        settle();
    }

    QPlainTextEdit &comment = *sets.findChildren<QPlainTextEdit *>().at(0);
    QPlainTextEdit &script = *sets.findChildren<QPlainTextEdit *>().at(1);
};

TEST_F(FormTest, AKeyThatDoesSomethingElseAlreadySaysSo)
{
    QAction reload("Re&load");
    window.addAction(&reload);
    reload.setShortcut(QKeySequence("Ctrl+L"));
    sets.setFloating(true); // What the window does concerns it all the same.
    click("Red");
    const QList<QStringList> cases = {
        {"Ctrl+J"}, {"Ctrl+B", "Blue"}, {"Ctrl+L", "Reload"}, {"Ctrl+K", "Alloy", "Wheels"}};
    for (const QStringList &each : cases) {
        type(QKeySequence(each[0]));
        EXPECT_EQ(set("Red").hotkey, each[0]);
        EXPECT_EQ(note("keyNote").isEmpty(), each.size() == 1) << each[0].toStdString();
        for (const QString &mentioned : each.mid(1))
            EXPECT_TRUE(note("keyNote").contains(mentioned)) << each[0].toStdString();
    }
}

TEST_F(FormTest, ValuesComeAndGo)
{
    click("Red");
    write(0, "price", "12");
    ASSERT_EQ(values().rowCount(), 2) << "an empty row for the next one";
    write(1, "weight", "13");
    EXPECT_EQ(set("Red").values, (QMap<QString, QString>{{"price", "12"}, {"weight", "13"}}));
    values().setFocus();
    values().setCurrentCell(0, 0);
    press(values(), Qt::Key_Delete);
    EXPECT_EQ(set("Red").values.keys(), QStringList("weight"));
    undo();
    EXPECT_EQ(values().rowCount(), 1) << "one step for all that was done in the table";
}

TEST_F(FormTest, AValueOfAKeyThatIsTakenIsNotLost)
{
    click("Red");
    write(0, "price", "12");
    write(1, "price", "13");
    EXPECT_EQ(set("Red").values.value("price"), "12");
    EXPECT_TRUE(note("valuesNote").contains("price"));
    announce();
    write(1, "weight", "13"); // What was typed is still there to be mended.
    EXPECT_EQ(set("Red").values.value("weight"), "13");
    EXPECT_EQ(note("valuesNote"), "");
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
    press(*field, Qt::Key_Y, Qt::ControlModifier);
    announce();
    EXPECT_EQ(set("Red").hotkey, "") << "it may become another";
    sets.view()->showSet("Blue"); // As when a script selects it.
    settle();
    EXPECT_EQ(set("Red").hotkey, "Ctrl+Y");
    EXPECT_EQ(field->keySequence(), QKeySequence("Ctrl+B"));
    press(*field, Qt::Key_U, Qt::ControlModifier);
    list().setFocus();
    EXPECT_EQ(set("Blue").hotkey, "Ctrl+U");
}

TEST_F(FormTest, HalfTypedTextWaitsForItsSetWhateverIsAnnounced)
{
    click("Red");
    comment.setFocus();
    QTest::keyClicks(&comment, "warm");
    QSignalSpy moves(sets.view(), &qxSetsView::currentChanged);
    announce();
    EXPECT_EQ(moves.count() + sets.undoStack()->count(), 0);
    qxSetEdits others;
    others.renameSet("Red", "Crimson");
    script.setFocus(); // before the form hears of that
    EXPECT_EQ(set("Crimson").comment, "warm");
    settle();
    QTest::keyClicks(&script, "print(1)");
    others.renameSet("Crimson", "Scarlet");
    settle();
    EXPECT_EQ(set("Scarlet").script, "");
    list().setFocus();
    EXPECT_EQ(set("Scarlet").script, "print(1)");
    undo();
    EXPECT_EQ(set("Scarlet").script + script.toPlainText(), "");
}

TEST_F(FormTest, AGroupHasACommentAlone)
{
    sets.view()->showGroup("Outside");
    EXPECT_TRUE(comment.isVisible());
    EXPECT_FALSE(values().isVisible());
    comment.setFocus();
    QTest::keyClicks(&comment, "seen from afar");
    click("Red");
    EXPECT_EQ(qxVariants::findVariantGroup("Outside")->comment, "seen from afar");
    EXPECT_EQ(comment.toPlainText(), "");
    EXPECT_TRUE(values().isVisible());
    sets.undoStack()->undo();
    EXPECT_EQ(qxVariants::findVariantGroup("Outside")->comment, "");
}

TEST_F(FormTest, ANewSceneLeavesNothingToEditOrToUndo)
{
    const qxSetForm &form = *sets.findChild<qxSetForm *>();
    click("Alone");
    EXPECT_TRUE(form.isEnabled());
    press(list(), Qt::Key_Delete);
    EXPECT_EQ(form.isEnabled(), !sets.view()->currentSet().isEmpty());
    ASSERT_TRUE(sets.undoStack()->canUndo());
    qxController::call("clearAllVariants", 1);
    settle();
    EXPECT_FALSE(form.isEnabled());
    EXPECT_EQ(sets.undoStack()->count(), 0);
}
