#include "qxNodeVariant.h"
#include "qxVariantSetsDock.h"
#include "qxVariantsDock.h"

#include "PanelFixture.h"
#include "qxSetsView.h"

#include <QLineEdit>
#include <QMainWindow>
#include <QPlainTextEdit>
#include <QTest>
#include <QToolButton>
#include <QTreeView>
#include <QUndoStack>

/// The docks in a window, used by hand.
class DockTest : public PanelFixture {
protected:
    DockTest()
    {
        wheels.choose(0);
        qxNodeVariant *const variant = qxVariants::createNodeVariant(wheels, true);
        set("Red").add(variant, "Steel");
        set("Blue").add(variant, "Alloy");
        set("Blue").hotkey = "Ctrl+B";
        set("Blue").updateShortcut();
        window.addDockWidget(Qt::RightDockWidgetArea, &sets);
        window.addDockWidget(Qt::LeftDockWidgetArea, &variants);
        window.resize(900, 700);
        window.show();
        QApplication::setActiveWindow(&window);
        settle();
    }

    QTreeView &list() { return *sets.findChild<QTreeView *>(); }
    /// Puts the cursor on a set as a click does.
    void click(const char *name)
    {
        sets.view()->showSet(name);
        const QRect place = list().visualRect(list().currentIndex());
        QTest::mouseClick(list().viewport(), Qt::LeftButton, Qt::NoModifier, place.center());
    }

    TestNode wheels = scene.addSwitch("Wheels", {"Steel", "Alloy"});
    QMainWindow window;
    qxVariantSetsDock sets{nullptr};
    qxVariantsDock variants{nullptr};
};

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
