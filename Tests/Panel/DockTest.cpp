#include "DockFixture.h"
#include "Sets/qxSetHotkeys.h"
#include "Sets/qxSetsModel.h"

class DockTest : public DockFixture {};

TEST_F(DockTest, KeysWorkInTheWindowAndInEveryFloatingDock)
{
    QMainWindow other;
    for (QDockWidget *floating : std::initializer_list<QDockWidget *>{&sets, &variants}) {
        floating->setFloating(true);
        for (QWidget *focused :
             std::initializer_list<QWidget *>{&window, &list(), &tree(), &other}) {
            wheels.choose(0);
            QTest::keyClick(focused, Qt::Key_B, Qt::ControlModifier);
            EXPECT_EQ(wheels.choice(), focused == &other ? 0 : 1);
        }
        floating->setFloating(false);
    }
}

TEST_F(DockTest, AKeyOfASetComesBeforeOneOfAnOption)
{
    click("Red");
    press(list(), Qt::Key_K, Qt::ControlModifier);
    EXPECT_EQ(wheels.choice(), 1) << "of the option";
    giveKey(set("Red"), "Ctrl+K");
    press(list(), Qt::Key_K, Qt::ControlModifier);
    EXPECT_EQ(wheels.choice(), 0) << "of the set";
}

TEST_F(DockTest, AKeyIsForTheFieldOrListThatHasTheFocus)
{
    click("Red");
    giveKey(set("Blue"), "x");
    search().setFocus();
    press(search(), Qt::Key_X);
    EXPECT_EQ(search().text(), "x");
    EXPECT_EQ(wheels.choice(), 0);
    search().clear();
    list().setFocus();
    press(list(), Qt::Key_X);
    EXPECT_EQ(wheels.choice(), 1);

    giveKey(set("Red"), "F2");
    settle();
    QTest::keyClick(&list(), Qt::Key_F2);
    auto *const editor = qobject_cast<QLineEdit *>(QApplication::focusWidget());
    ASSERT_NE(editor, nullptr) << "a set is being renamed";
    EXPECT_EQ(wheels.choice(), 1);
    QTest::keyClick(editor, Qt::Key_Escape);
}

TEST_F(DockTest, KeysThatTheWindowHasSelectNothing)
{
    const auto isTaken = [&](const QString &key, const QString &owner) {
        giveKey(set("Blue"), qPrintable(key));
        announce();
        for (QAbstractItemView *view : sets.view()->findChildren<QAbstractItemView *>()) {
            const auto &model = *static_cast<const qxSetsModel *>(view->model());
            const QModelIndex row = model.indexOfSet("Blue");
            EXPECT_EQ(row.data(qxSetsModel::KeyTakenRole).toBool(), !owner.isEmpty());
            const QString tip =
                QTextDocumentFragment::fromHtml(row.data(Qt::ToolTipRole).toString()).toPlainText();
            EXPECT_EQ(tip.contains("taken by \"" + owner + '"'), !owner.isEmpty())
                << tip.toStdString();
        }
        wheels.choose(0);
        tree().setFocus();
        const int code = QKeySequence(key)[0];
        press(tree(), Qt::Key(code & ~Qt::KeyboardModifierMask),
              Qt::KeyboardModifiers(code & Qt::KeyboardModifierMask));
        EXPECT_EQ(wheels.choice(), owner.isEmpty() ? 1 : 0) << key.toStdString();
    };
    isTaken("Ctrl+L", "");
    QMenu *const menu = window.menuBar()->addMenu("&Utilities")->addMenu("More");
    QAction &load = *menu->addAction("&Load");
    load.setShortcut(QKeySequence("Ctrl+L"));
    load.setEnabled(false);
    QShortcut shortcut(QKeySequence("Ctrl+Alt+G, G"), &window);
    QPushButton button("&Grow", &window);
    isTaken("Ctrl+L", "Load");
    isTaken("F2", "Rename"); // although it is for the list alone
    isTaken("Alt+U", "Utilities");
    isTaken("Alt+K", "Key"); // a field of the form
    isTaken("Alt+G", "Grow");
    isTaken("Ctrl+Alt+G", "the window");
    isTaken("Ctrl+V", "editing of text");
    load.setShortcut(QKeySequence("Ctrl+J"));
    settle();
    isTaken("Ctrl+L", "");
}

TEST_F(DockTest, EnterSelectsTheHighlightedSetInTheListAsInTheGallery)
{
    QApplication::setDoubleClickInterval(0); // for what a second click may begin
    for (const bool isGallery : {false, true}) {
        showGallery(isGallery);
        auto &view = *qobject_cast<QAbstractItemView *>(sets.view()->currentWidget());
        EXPECT_TRUE(view.dragEnabled() && view.viewport()->acceptDrops());
        EXPECT_EQ(sets.view()->currentSet(), isGallery ? "Blue" : "");
        wheels.choose(0);
        sets.view()->showSet("Blue");
        QTest::mouseClick(view.viewport(), Qt::LeftButton, Qt::NoModifier,
                          view.visualRect(view.currentIndex()).center());
        settle();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        EXPECT_EQ(wheels.choice(), 1);
    }
}

TEST_F(DockTest, AnOptionIsSelectedInTheSecondDock)
{
    tree().expandAll();
    const QModelIndex row = tree().model()->index(0, 0, tree().model()->index(0, 0));
    const QModelIndex first = tree().model()->index(0, 0, row);
    ASSERT_EQ(row.data().toString(), "Wheels");
    EXPECT_EQ(row.sibling(0, 1).data().toString(), "Steel");
    tree().setCurrentIndex(tree().model()->match(first, Qt::DisplayRole, "Alloy").value(0));
    press(tree(), Qt::Key_Return);
    EXPECT_EQ(wheels.choice(), 1);
    EXPECT_EQ(row.sibling(0, 1).data().toString(), "Alloy");
    qxVariants::showConnectedVariants("Red");
    EXPECT_TRUE(tree().selectionModel()->isSelected(row));
}

TEST_F(DockTest, ASetIsAddedByKeyToTheGroupUnderTheCursor)
{
    const auto pressElsewhere = [&](Qt::Key key, Qt::KeyboardModifiers modifiers) {
        tree().setFocus();
        press(tree(), key, modifiers);
        return qxVariants::findVariantGroup("Inside")->sets.size();
    };
    click("Leather");
    EXPECT_EQ(pressElsewhere(Qt::Key_N, Qt::ControlModifier | Qt::ShiftModifier), 2U);
    sets.view()->showGroup("Inside");
    EXPECT_EQ(pressElsewhere(Qt::Key_N, Qt::ControlModifier | Qt::ShiftModifier), 3U);
    EXPECT_EQ(pressElsewhere(Qt::Key_Delete, Qt::NoModifier), 3U) << "that is for the list alone";
}

TEST_F(DockTest, SetsAndGroupsMoveAndGoByKeyAlone)
{
    const auto order = [this] { return rows(*list().model()); };
    const QString start = order();
    click("Blue");
    press(list(), Qt::Key_Up, Qt::AltModifier);
    EXPECT_EQ(order(), "0 Outside,1 Blue,1 Red,0 Inside,1 Leather,0 Alone");
    EXPECT_EQ(sets.view()->currentSet(), "Blue") << "the cursor goes along";
    sets.view()->showGroup("Outside");
    press(list(), Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(order(), "0 Inside,1 Leather,0 Outside,1 Blue,1 Red,0 Alone");

    sets.view()->selectSets({"Red", "Alone"});
    QTimer::singleShot(0, [] {
        auto *const menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        ASSERT_NE(menu, nullptr);
        QTest::keyClick(menu, Qt::Key_Down); // "Inside"
        QTest::keyClick(menu, Qt::Key_Return);
    });
    press(list(), Qt::Key_M, Qt::ControlModifier);
    EXPECT_EQ(order(), "0 Inside,1 Leather,1 Red,1 Alone,0 Outside,1 Blue");

    QApplication::setActiveWindow(&window); // which a menu without a window system does not do
    sets.view()->showGroup("Inside");
    press(list(), Qt::Key_Delete, Qt::ShiftModifier);
    EXPECT_EQ(order(), "0 Outside,1 Blue");
    for (int step = 0; step < 4; ++step)
        undo();
    EXPECT_EQ(order(), start);

    click("Red");
    press(list(), Qt::Key_Down, Qt::ShiftModifier);
    press(list(), Qt::Key_Delete);
    EXPECT_EQ(order(), "0 Outside,0 Inside,1 Leather,0 Alone");
    undo();
    EXPECT_EQ(order(), start) << "one step";
}

TEST_F(DockTest, TheSearchGivesCursorAndClosedGroupsBack)
{
    const auto group = [this](int row) { return list().model()->index(row, 0); };
    const auto count = [&] { return group(0).data(qxSetsModel::CountRole).toString(); };
    auto &found = *sets.findChild<QLabel *>("found");
    list().collapse(group(0));
    click("Alone");
    QTest::keySequence(&list(), QKeySequence::Find);
    ASSERT_EQ(QApplication::focusWidget(), &search());
    QTest::keyClicks(&search(), "side e");
    EXPECT_EQ(rows(*list().model()), "0 Outside,1 Red,1 Blue,0 Inside,1 Leather");
    EXPECT_TRUE(list().isExpanded(group(0)));
    EXPECT_TRUE(found.isVisible());
    EXPECT_EQ(found.text().left(1), "3");
    EXPECT_EQ(sets.view()->currentSet(), "");
    search().setText("no such words");
    EXPECT_FALSE(found.isVisible());
    search().setText("blue");
    EXPECT_EQ(count(), "1 of 2");
    press(search(), Qt::Key_Escape);
    EXPECT_EQ(search().text(), "");
    EXPECT_FALSE(found.isVisible());
    EXPECT_EQ(count(), "2");
    EXPECT_TRUE(!list().isExpanded(group(0)) && list().isExpanded(group(1)));
    EXPECT_EQ(sets.view()->currentSet(), "Alone") << "it was hidden for a while";
}

TEST_F(DockTest, WhatWasFoundIsSelectedByKey)
{
    wheels.choose(0);
    press(search(), Qt::Key_Return);
    EXPECT_EQ(wheels.choice(), 0) << "nothing is sought";
    QTest::keyClicks(&search(), "blu");
    press(search(), Qt::Key_Return);
    EXPECT_EQ(wheels.choice(), 1);
    search().setText("outside");
    press(search(), Qt::Key_Down);
    EXPECT_TRUE(list().hasFocus());
    EXPECT_EQ(sets.view()->currentSet(), "Red");
}

TEST_F(DockTest, WhatIsNewIsNamedAtOnceEvenIfTheViewWouldHideIt)
{
    for (const char *text : {"Add Set", "Add Group"}) {
        showGallery();
        search().setText("Red");
        sets.view()->showSet("Red");
        for (QAction *action : sets.setActions()) {
            if (action->text().remove('&') == text)
                action->trigger();
        }
        auto *const editor = sets.view()->currentWidget()->findChild<QLineEdit *>();
        ASSERT_NE(editor, nullptr) << text;
        editor->setText(text);
        press(*editor, Qt::Key_Return);
        EXPECT_EQ(search().text(), "");
    }
    EXPECT_NE(qxVariants::findVariantSet("Red"), nullptr);
    EXPECT_NE(qxVariants::findVariantSet("Add Set"), nullptr);
    EXPECT_NE(qxVariants::findVariantGroup("Add Group"), nullptr);
}
