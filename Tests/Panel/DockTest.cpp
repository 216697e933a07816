#include "DockFixture.h"
#include "qxController.h"
#include "qxSetHotkeys.h"
#include "qxSetsModel.h"

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QTimer>
#include <QToolButton>
#include <QUndoStack>

class DockTest : public DockFixture {};

TEST_F(DockTest, ADoubleClickEnterAndTheKeySelectASet)
{
    click("Blue");
    QTest::mouseDClick(list().viewport(), Qt::LeftButton, Qt::NoModifier,
                       list().visualRect(list().currentIndex()).center());
    EXPECT_EQ(wheels.choice(), 1);
    click("Red");
    QTest::keyClick(&list(), Qt::Key_Return);
    EXPECT_EQ(wheels.choice(), 0);
    QTest::keyClick(&list(), Qt::Key_B, Qt::ControlModifier);
    EXPECT_EQ(wheels.choice(), 1);
    settle();
    EXPECT_EQ(sets.view()->currentSet(), "Blue") << "the set that was applied is shown";
}

TEST_F(DockTest, KeysWorkInTheWindowAndInEveryFloatingDock)
{
    QMainWindow other;
    for (QDockWidget *floating : std::initializer_list<QDockWidget *>{&sets, &variants}) {
        floating->setFloating(true);
        for (QWidget *focused : std::initializer_list<QWidget *>{
                 &window, &list(), variants.findChild<QTreeView *>(), &other}) {
            wheels.choose(0);
            QTest::keyClick(focused, Qt::Key_B, Qt::ControlModifier);
            EXPECT_EQ(wheels.choice(), focused == &other ? 0 : 1);
        }
        floating->setFloating(false);
    }
}

TEST_F(DockTest, AKeyWritesInATextField)
{
    set("Red").hotkey = "x";
    set("Red").updateShortcut();
    wheels.choose(1);
    qxPanelEvents::announceEditedSets();
    settle();
    auto *const search = sets.findChild<QLineEdit *>("search");
    search->setFocus();
    QTest::keyClick(search, Qt::Key_X);
    EXPECT_EQ(search->text(), "x");
    EXPECT_EQ(wheels.choice(), 1);
    list().setFocus();
    QTest::keyClick(&list(), Qt::Key_X);
    EXPECT_EQ(wheels.choice(), 0);
}

TEST_F(DockTest, RenamingInPlaceIsOneStepToUndo)
{
    sets.view()->showSet("Red");
    sets.view()->renameCurrent();
    auto *const editor = list().viewport()->findChild<QLineEdit *>();
    ASSERT_NE(editor, nullptr);
    editor->setText("Crimson");
    QTest::keyClick(editor, Qt::Key_Return);
    settle();
    EXPECT_NE(qxVariants::findVariantSet("Crimson"), nullptr);
    EXPECT_EQ(sets.view()->currentSet(), "Crimson");
    sets.undoStack()->undo();
    settle();
    EXPECT_EQ(sets.view()->currentSet(), "Red");
}

TEST_F(DockTest, AScriptWrittenInTheFormIsTakenWhenTheFieldIsLeft)
{
    click("Red");
    auto *const script = sets.findChildren<QPlainTextEdit *>().at(1);
    script->setFocus();
    QTest::keyClicks(script, "print(1)");
    EXPECT_EQ(set("Red").script, "");
    list().setFocus();
    EXPECT_EQ(set("Red").script, "print(1)");
    sets.undoStack()->undo();
    settle();
    EXPECT_EQ(set("Red").script, "");
    EXPECT_EQ(script->toPlainText(), "");
}

TEST_F(DockTest, TheGalleryShowsTheSameSetAsTheList)
{
    click("Blue");
    sets.findChild<QToolButton *>("gallery")->click();
    EXPECT_EQ(sets.view()->form(), qxSetsView::Gallery);
    auto *const gallery = qobject_cast<QAbstractItemView *>(sets.view()->currentWidget());
    EXPECT_TRUE(gallery->dragEnabled() && gallery->viewport()->acceptDrops());
    EXPECT_EQ(sets.view()->currentSet(), "Blue");
}

TEST_F(DockTest, DeletingTheSelectedSetsIsOneStep)
{
    click("Red");
    QTest::keyClick(&list(), Qt::Key_Down, Qt::ShiftModifier);
    QTest::keyClick(&list(), Qt::Key_Delete);
    settle();
    EXPECT_EQ(qxVariants::findVariantSet("Red"), nullptr);
    EXPECT_EQ(qxVariants::findVariantSet("Blue"), nullptr);
    sets.undoStack()->undo();
    EXPECT_NE(qxVariants::findVariantSet("Red"), nullptr);
    EXPECT_NE(qxVariants::findVariantSet("Blue"), nullptr);
}

TEST_F(DockTest, AnOptionIsSelectedInTheSecondDockAndConnectedVariantsAreHighlighted)
{
    auto &tree = *variants.findChild<QTreeView *>();
    tree.expandAll();
    const QModelIndex wheelsRow = tree.model()->index(0, 0, tree.model()->index(0, 0));
    ASSERT_EQ(wheelsRow.data().toString(), "Wheels");
    EXPECT_EQ(wheelsRow.sibling(0, 1).data().toString(), "Steel");
    for (int row = 0; row < tree.model()->rowCount(wheelsRow); ++row) {
        const QModelIndex option = tree.model()->index(row, 0, wheelsRow);
        if (option.data().toString() == "Alloy")
            tree.setCurrentIndex(option);
    }
    QTest::keyClick(&tree, Qt::Key_Return);
    settle();
    EXPECT_EQ(wheels.choice(), 1);
    EXPECT_EQ(wheelsRow.sibling(0, 1).data().toString(), "Alloy");
    qxVariants::showConnectedVariants("Red");
    EXPECT_TRUE(tree.selectionModel()->isSelected(wheelsRow));
}

TEST_F(DockTest, TheKeyOfAnOptionSelectsItUnlessASetHasTheKey)
{
    click("Red");
    qxVariantOption &option = *qxVariants::findNodeVariant("Wheels")->find("Alloy");
    option.shortcut = "Ctrl+K";
    option.updateShortcut();
    QTest::keyClick(&list(), Qt::Key_K, Qt::ControlModifier);
    EXPECT_EQ(wheels.choice(), 1);
    set("Red").hotkey = "Ctrl+K";
    set("Red").updateShortcut();
    QTest::keyClick(&list(), Qt::Key_K, Qt::ControlModifier);
    EXPECT_EQ(wheels.choice(), 0);
}

TEST_F(DockTest, TheListsOwnKeysWinWhileItHasTheFocusAndThoseOfSetsElsewhere)
{
    set("Blue").hotkey = "F2";
    set("Blue").updateShortcut();
    sets.view()->showSet("Red");
    list().setFocus();
    QTest::keyClick(&list(), Qt::Key_F2);
    auto *const editor = qobject_cast<QLineEdit *>(QApplication::focusWidget());
    ASSERT_NE(editor, nullptr) << "Red is being renamed";
    EXPECT_EQ(wheels.choice(), 0);
    QTest::keyClick(editor, Qt::Key_Escape);
    auto *const elsewhere = variants.findChild<QTreeView *>();
    elsewhere->setFocus();
    QTest::keyClick(elsewhere, Qt::Key_F2);
    EXPECT_EQ(wheels.choice(), 1);
    EXPECT_TRUE(qxSetHotkeys::conflictOf(set("Blue"), window).contains("comes first in the list"));
}

TEST_F(DockTest, ASetIsAddedByKeyWhereverTheFocusIs)
{
    const std::size_t count = qxVariants::_variantSets.size();
    auto *const elsewhere = variants.findChild<QTreeView *>();
    elsewhere->setFocus();
    QTest::keyClick(elsewhere, Qt::Key_N, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(qxVariants::_variantSets.size(), count + 1);
    elsewhere->setFocus();
    QTest::keyClick(elsewhere, Qt::Key_Delete);
    EXPECT_EQ(qxVariants::_variantSets.size(), count + 1) << "that is for the list alone";
}

TEST_F(DockTest, SetsAndGroupsMoveByKeyAlone)
{
    const auto order = [this] {
        settle();
        return rows(*list().model()).join(',').toStdString();
    };
    click("Blue");
    QTest::keyClick(&list(), Qt::Key_Up, Qt::AltModifier);
    EXPECT_EQ(order(), "0 Outside,1 Blue,1 Red,0 Inside,1 Leather,0 Alone");
    EXPECT_EQ(sets.view()->currentSet(), "Blue") << "the cursor goes along";
    sets.view()->showGroup("Outside");
    QTest::keyClick(&list(), Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(order(), "0 Inside,1 Leather,0 Outside,1 Blue,1 Red,0 Alone");

    sets.view()->selectSets({"Red", "Alone"});
    bool isAsked = false;
    QTimer::singleShot(0, [&] {
        auto *const menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        ASSERT_NE(menu, nullptr);
        isAsked = true;
        QTest::keyClick(menu, Qt::Key_Down); // "Inside"
        QTest::keyClick(menu, Qt::Key_Return);
    });
    QTest::keyClick(&list(), Qt::Key_M, Qt::ControlModifier);
    EXPECT_TRUE(isAsked);
    EXPECT_EQ(order(), "0 Inside,1 Leather,1 Red,1 Alone,0 Outside,1 Blue");

    QApplication::setActiveWindow(&window); // which a menu without a window system does not do
    sets.view()->showGroup("Inside");
    QTest::keyClick(&list(), Qt::Key_Delete, Qt::ShiftModifier);
    EXPECT_EQ(order(), "0 Outside,1 Blue");
    for (int step = 0; step < 4; ++step)
        sets.undoStack()->undo();
    EXPECT_EQ(order(), "0 Outside,1 Red,1 Blue,0 Inside,1 Leather,0 Alone");
}

TEST_F(DockTest, TheSearchCountsWhatItLeavesAndClosedGroupsStayClosed)
{
    list().collapse(list().model()->index(0, 0));
    auto &search = *sets.findChild<QLineEdit *>("search");
    auto &found = *sets.findChild<QLabel *>("found");
    search.setText("side e");
    EXPECT_EQ(rows(*list().model()),
              QStringList({"0 Outside", "1 Red", "1 Blue", "0 Inside", "1 Leather"}));
    EXPECT_TRUE(list().isExpanded(list().model()->index(0, 0)));
    EXPECT_TRUE(found.isVisible());
    EXPECT_TRUE(found.text().startsWith("3")) << found.text().toStdString();
    search.setText("no such words");
    EXPECT_FALSE(found.isVisible());
    search.clear();
    settle();
    EXPECT_FALSE(found.isVisible());
    EXPECT_FALSE(list().isExpanded(list().model()->index(0, 0)));
    EXPECT_TRUE(list().isExpanded(list().model()->index(1, 0)));
}

TEST_F(DockTest, TheSearchIsUsedByKeysAloneAndGivesTheCursorBack)
{
    click("Alone");
    QTest::keySequence(&list(), QKeySequence::Find);
    auto *const search = sets.findChild<QLineEdit *>("search");
    ASSERT_EQ(QApplication::focusWidget(), search);
    QTest::keyClicks(search, "blue");
    EXPECT_EQ(sets.view()->currentSet(), "");
    EXPECT_EQ(list().model()->index(0, 0).data(qxSetsModel::CountRole).toString(), "1 of 2");
    QTest::keyClick(search, Qt::Key_Escape);
    EXPECT_EQ(search->text(), "");
    EXPECT_EQ(sets.view()->currentSet(), "Alone") << "it was hidden for a while";
    EXPECT_EQ(list().model()->index(0, 0).data(qxSetsModel::CountRole).toString(), "2");
    QTest::keyClick(search, Qt::Key_Return);
    EXPECT_EQ(wheels.choice(), 0) << "nothing is sought";
    QTest::keyClicks(search, "blu");
    QTest::keyClick(search, Qt::Key_Return);
    EXPECT_EQ(wheels.choice(), 1);
    search->setText("outside");
    QTest::keyClick(search, Qt::Key_Down);
    EXPECT_TRUE(list().hasFocus());
    EXPECT_EQ(sets.view()->currentSet(), "Red");
}

TEST_F(DockTest, ANewSetJoinsTheGroupUnderTheCursor)
{
    for (const bool isOnGroup : {false, true}) {
        click("Leather");
        if (isOnGroup)
            sets.view()->showGroup("Inside");
        QTest::keyClick(&list(), Qt::Key_N, Qt::ControlModifier | Qt::ShiftModifier);
        settle();
        EXPECT_EQ(qxVariants::findVariantGroup("Inside")->sets.size(), isOnGroup ? 3U : 2U);
    }
}

TEST_F(DockTest, WhatIsNewIsNamedAtOnceEvenIfTheViewWouldHideIt)
{
    auto *const search = sets.findChild<QLineEdit *>("search");
    auto *const gallery = sets.findChild<QToolButton *>("gallery");
    for (const char *text : {"Add Set", "Add Group"}) {
        gallery->setChecked(true);
        search->setText("Red");
        sets.view()->showSet("Red");
        for (QAction *action : sets.setActions()) {
            if (action->text().remove('&') == text)
                action->trigger();
        }
        auto *const editor = sets.view()->currentWidget()->findChild<QLineEdit *>();
        ASSERT_NE(editor, nullptr) << text;
        editor->setText(text);
        QTest::keyClick(editor, Qt::Key_Return);
        settle();
        EXPECT_EQ(search->text(), "");
    }
    EXPECT_NE(qxVariants::findVariantSet("Red"), nullptr);
    EXPECT_NE(qxVariants::findVariantSet("Add Set"), nullptr);
    EXPECT_NE(qxVariants::findVariantGroup("Add Group"), nullptr);
}

TEST_F(DockTest, ANewSceneLeavesNothingToUndo)
{
    click("Red");
    QTest::keyClick(&list(), Qt::Key_Delete);
    ASSERT_TRUE(sets.undoStack()->canUndo());
    qxController::call("clearAllVariants", 1);
    EXPECT_EQ(sets.undoStack()->count(), 0);
}
