#include "qxVariantSet.h"
#include "qxVariants.h"

#include "Window/qxLogView.h"
#include "Window/qxScriptConsole.h"
#include "WindowFixture.h"

/// The window without a mouse.
class WindowKeysTest : public WindowFixture {
protected:
    QList<QWidget *> panes() const
    {
        return {window->sceneView(),
                &tree(),
                &variants(),
                &list(),
                window->findChild<QDockWidget *>("problems")->widget()->focusProxy(),
                window->findChild<qxLogView *>(),
                window->console()->input()};
    }
    /// Everything that has the focus, one after the other, until it is back at the beginning.
    QList<QWidget *> wayOf(Qt::Key key)
    {
        QList<QWidget *> way;
        for (QWidget *focus = QApplication::focusWidget(); focus && !way.contains(focus);
             focus = QApplication::focusWidget()) {
            way << focus;
            press(key);
        }
        EXPECT_EQ(QApplication::focusWidget(), way.first()) << "the focus is trapped";
        return way;
    }
};

TEST_F(WindowKeysTest, TabLeadsThroughEverythingAndBackAgain)
{
    openDesk();
    goTo("Morning");
    for (const char *inFront : {"log", "scripts"}) {
        SCOPED_TRACE(inFront);
        window->findChild<QDockWidget *>(inFront)->raise();
        settle();
        window->sceneView()->setFocus();
        const QList<QWidget *> way = wayOf(Qt::Key_Tab);
        for (QWidget *pane : panes())
            EXPECT_TRUE(way.contains(pane)) << pane->metaObject()->className();
        for (QWidget *field : window->setsDock()->findChildren<QWidget *>()) {
            const bool isForKeys = field->isVisible() && field->isEnabled()
                && field->focusPolicy() & Qt::TabFocus && !field->focusProxy();
            EXPECT_TRUE(!isForKeys || way.contains(field) || way.contains(field->parentWidget()))
                << field->metaObject()->className();
        }
        EXPECT_GE(wayOf(Qt::Key_Backtab).size(), way.size());
    }
}

TEST_F(WindowKeysTest, ControlTabGoesFromPaneToPane)
{
    openDesk();
    window->sceneView()->setFocus();
    QList<QWidget *> visited;
    for (int pane = 0; pane < panes().size(); ++pane) {
        visited << QApplication::focusWidget();
        QTest::keySequence(QApplication::focusWidget(), QKeySequence::NextChild);
        settle();
    }
    EXPECT_EQ(visited, panes());
    EXPECT_EQ(QApplication::focusWidget(), window->sceneView());
    window->findChild<QDockWidget *>("log")->close();
    for (int pane = 0; pane < 3; ++pane)
        QTest::keySequence(QApplication::focusWidget(), QKeySequence::PreviousChild);
    EXPECT_EQ(QApplication::focusWidget(), &list()) << "a closed pane is left out";
}

TEST_F(WindowKeysTest, AKeyOfASetTakesNoneOfTheWindow)
{
    openDesk();
    const QAction &back = *action("Back to the State Before");
    qxVariantSet &morning = *qxVariants::findVariantSet("Morning");
    const QString saved = path("desk.gltf");
    for (const char *key :
         {"Ctrl+S", "F", "Home", "Left", "Ctrl+A", "Tab", "Shift+Backtab", "Esc", "F10",
          "Shift+F10", "Menu", "Alt+F4", "PgDown", "Shift+End", "Ctrl+K"}) {
        morning.hotkey = key;
        morning.updateShortcut();
        QFile::remove(saved);
        const bool isOfLists = QString(key).contains(QRegularExpression("PgDown|End"));
        (isOfLists ? panes()[1] : panes()[0])->setFocus();
        press(Qt::Key(morning.key), morning.modifiers);
        settle();
        EXPECT_EQ(back.isEnabled(), key == QString("Ctrl+K")) << key << " selected the set";
        EXPECT_EQ(QFile::exists(saved), key == QString("Ctrl+S"));
    }
}

TEST_F(WindowKeysTest, TheMenuKeyOffersWhatCanBeDoneWithASet)
{
    openDesk();
    goTo("Morning");
    QStringList offered;
    QTimer::singleShot(50, window.get(), [&offered] {
        auto *const menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        ASSERT_NE(menu, nullptr);
        for (const QAction *action : menu->actions())
            offered << action->text().remove('&');
        menu->close();
    });
    // What the platform makes of the key for the widget that has the focus.
    const QPoint place = list().inputMethodQuery(Qt::ImCursorRectangle).toRect().center();
    QContextMenuEvent key(QContextMenuEvent::Keyboard, place, list().mapToGlobal(place));
    QApplication::sendEvent(QApplication::focusWidget(), &key);
    for (const QAction *action : window->setsDock()->setActions())
        EXPECT_TRUE(offered.contains(action->text().remove('&'))) << action->text().toStdString();
}

TEST_F(WindowKeysTest, TheConsoleRemembersAndCompletes)
{
    QPlainTextEdit &input = *window->console()->input();
    const auto enter = [&input](const char *text, Qt::Key key) {
        input.setPlainText(text);
        input.moveCursor(QTextCursor::End);
        QTest::keyClick(&input, key);
    };
    type("first = 'a'");
    type("second = 'b'");
    input.setFocus();
    QTest::keyClicks(&input, "half");
    for (const char *shown : {"second = 'b'", "first = 'a'", "first = 'a'"}) {
        press(Qt::Key_Up);
        EXPECT_EQ(input.toPlainText(), shown);
    }
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    EXPECT_EQ(input.toPlainText(), "half");
    enter("x = getVariantG", Qt::Key_Tab);
    EXPECT_TRUE(input.toPlainText().startsWith("x = getVariantGroups"));
    enter("for i in range(2):", Qt::Key_Return);
    press(Qt::Key_Tab);
    QTest::keyClicks(&input, "print(i)");
    press(Qt::Key_Return);
    EXPECT_EQ(input.toPlainText(), "for i in range(2):\n    print(i)\n");
    press(Qt::Key_Return);
    EXPECT_TRUE(window->console()->output()->toPlainText().endsWith("\n0\n1"));
    EXPECT_EQ(input.toPlainText(), "");
}
