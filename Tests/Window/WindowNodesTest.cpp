#include "qxVariant.h"
#include "qxVariantKinds.h"
#include "qxVariantSet.h"
#include "qxVariants.h"

#include "Cameras/qxMainView.h"
#include "Window/qxNodeMenu.h"
#include "Window/qxSceneTreeModel.h"
#include "WindowFixture.h"
#include "qxDragData.h"
#include "qxNames.h"
#include "qxPanelEvents.h"

#include <QMimeData>
#include <QSignalSpy>

/// What is picked in the view and in the tree, and what can be done with it.
class WindowNodesTest : public WindowFixture {
protected:
    /// A square "Red" in front of the camera, and one that its switch hides.
    QPoint middle() const { return window->sceneView()->rect().center(); }
    void click(const QPoint &place, Qt::KeyboardModifiers modifiers = Qt::NoModifier,
               Qt::MouseButton button = Qt::LeftButton) const
    {
        QTest::mouseClick(window->sceneView(), button, modifiers, place);
    }
    /// The nodes that are selected in the tree, from top to bottom.
    QStringList picked() const
    {
        QStringList names;
        for (const QModelIndex &row : tree().selectionModel()->selectedRows())
            names << row.data().toString();
        return names;
    }
    qxSceneTreeModel &model() const { return *static_cast<qxSceneTreeModel *>(tree().model()); }
    QString told() const { return window->findChild<QLabel *>("picked")->text(); }
    void pickInTree(const QString &name) const
    {
        tree().setCurrentIndex(model().indexOf(qxNames::findNode(name)));
    }
    /// With all that is above it.
    static bool isShown(const QString &name)
    {
        osg::NodePtr node = qxNames::findNode(name);
        while (node != osg::NullFC && node->getTravMask() != 0)
            node = node->getParent();
        return node == osg::NullFC;
    }
    static QRect areaOf(const QImage &picture, bool (*isPart)(QRgb))
    {
        QRect area;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                if (isPart(picture.pixel(x, y)))
                    area |= QRect(x, y, 1, 1);
            }
        }
        return area;
    }
    QStringList offeredBy(const QString &submenu) const
    {
        QMenu *const menu = action(submenu)->menu();
        Q_EMIT menu->aboutToShow();
        QStringList texts;
        for (const QAction *each : menu->actions())
            texts << each->text();
        return texts;
    }
    QLineEdit &search() const
    {
        return *window->findChild<QDockWidget *>("scene")->findChild<QLineEdit *>();
    }
};

TEST_F(WindowNodesTest, WhatIsPickedIsOutlinedInTheViewAndSelectedInTheTree)
{
    const auto isLine = [](QRgb colour) {
        return qRed(colour) > 220 && qAbs(qGreen(colour) - 170) < 30 && qBlue(colour) < 70;
    };
    openSigns();
    QTest::keyClick(window->sceneView(), Qt::Key_F);
    for (int i = 0; i < 5; ++i)
        QTest::keyClick(window->sceneView(), Qt::Key_Minus);
    const QImage plain = finishedPicture();
    EXPECT_TRUE(areaOf(plain, isLine).isEmpty());
    const QPoint place = middle() + QPoint(-20, 20); // of a triangle with a side through the middle
    const QRgb colour = plain.pixel(place);
    click(place);
    EXPECT_EQ(picked(), QStringList("Geometry"));
    EXPECT_EQ(told(), "Sign/Red/Geometry (Mesh)");
    const QImage outlined = finishedPicture();
    EXPECT_EQ(outlined.pixel(place), colour) << "it is a line around it";
    const QRect line = areaOf(outlined, isLine);
    EXPECT_TRUE(line.contains(place) && plain.rect().adjusted(9, 9, -9, -9).contains(line));
    drag(Qt::LeftButton, QPoint(60, 0));
    EXPECT_NE(areaOf(finishedPicture(), isLine), line) << "it follows the camera";
    action("Presentation")->trigger();
    EXPECT_TRUE(areaOf(finishedPicture(), isLine).isEmpty()) << "the scene alone";
    action("Presentation")->trigger();
    EXPECT_FALSE(areaOf(finishedPicture(), isLine).isEmpty());
    QTest::keyClick(window->sceneView(), Qt::Key_Escape);
    EXPECT_EQ(picked(), QStringList());
    EXPECT_TRUE(areaOf(finishedPicture(), isLine).isEmpty());
    pickInTree("Sign");
    EXPECT_FALSE(areaOf(finishedPicture(), isLine).isEmpty());
    click(QPoint(3, 3));
    EXPECT_EQ(picked(), QStringList()) << "the background clears";
    EXPECT_EQ(told(), "");
}

TEST_F(WindowNodesTest, ClicksGoToTheParentOrGatherAndTheRightButtonBringsTheMenu)
{
    openSigns();
    for (const char *name : {"Geometry", "Red", "Sign", "Geometry"}) {
        click(middle());
        EXPECT_EQ(picked(), QStringList(name));
    }
    click(middle() + QPoint(8, 0));
    EXPECT_EQ(picked(), QStringList("Geometry")) << "another place is another question";
    pickInTree("Blue");
    click(middle(), Qt::ControlModifier);
    EXPECT_EQ(picked(), (QStringList{"Blue", "Geometry"}));
    EXPECT_EQ(told(), "2 nodes picked, the last one: Sign/Red/Geometry (Mesh)");
    click(middle(), Qt::ControlModifier);
    EXPECT_EQ(picked(), QStringList("Blue"));

    auto *const menu = window->findChild<qxNodeMenu *>();
    click(middle(), Qt::NoModifier, Qt::RightButton);
    EXPECT_TRUE(menu->isVisible());
    EXPECT_EQ(picked(), QStringList("Geometry"));
    menu->hide();
    QContextMenuEvent key(QContextMenuEvent::Keyboard, QPoint());
    QApplication::sendEvent(window->sceneView(), &key);
    EXPECT_TRUE(menu->isVisible());
    menu->hide();
    action("Pick the Parent")->trigger();
    EXPECT_EQ(picked(), QStringList("Red"));
    action("Copy Path")->trigger();
    EXPECT_EQ(QApplication::clipboard()->text(), "Sign/Red");
    tree().selectAll();
    const std::unique_ptr<QMimeData> data(
        model().mimeData(tree().selectionModel()->selectedIndexes()));
    EXPECT_EQ(int(qxDragData::nodesOf(*data).size()), picked().size());
    EXPECT_GE(picked().size(), 3);
}

TEST_F(WindowNodesTest, HidingAndIsolatingAreLooksThatBackUndoes)
{
    openDemo();
    const QStringList watched = {"Fenders", "Bonnet", "Headlight", "Turntable", "Wheels"};
    const auto state = [&watched] {
        QStringList shown;
        for (const QString &node : watched)
            shown << (isShown(node) ? node : QString());
        return shown.join(' ').simplified();
    };
    const QString before = state();
    ASSERT_EQ(before, "Fenders Bonnet Headlight Turntable Wheels");
    pickInTree("Bonnet");
    action("Hide")->trigger();
    EXPECT_EQ(state(), "Fenders Headlight Turntable Wheels");
    pickInTree("Fenders");
    action("Isolate")->trigger();
    EXPECT_EQ(state(), "Fenders Headlight Turntable") << "lights stay on";
    EXPECT_TRUE(action("Isolate")->isChecked());
    EXPECT_FALSE(isUnsaved()) << "it is no edit";
    EXPECT_TRUE(window->windowTitle().contains("shows another state"));
    window->goBack();
    EXPECT_EQ(state(), "Fenders Headlight Turntable Wheels");
    settle();
    EXPECT_FALSE(action("Isolate")->isChecked());
    action("Isolate")->trigger();
    action("Isolate")->trigger();
    EXPECT_EQ(state(), "Fenders Headlight Turntable Wheels") << "as it was before";
    action("Show All Again")->trigger();
    EXPECT_EQ(state(), before);
    EXPECT_FALSE(action("Show All Again")->isEnabled());
    action("Hide")->trigger();
    action("Show")->trigger();
    EXPECT_EQ(state(), before);
}

TEST_F(WindowNodesTest, ATickInTheTreeIsUndoneByBack)
{
    openSigns();
    const qxPanelEvents events;
    QSignalSpy docksFollow(&events, &qxPanelEvents::statesChanged);
    model().setData(model().indexOf(qxNames::findNode("Red")), Qt::Unchecked, Qt::CheckStateRole);
    EXPECT_FALSE(isShown("Red"));
    settle();
    EXPECT_EQ(docksFollow.count(), 1);
    window->goBack();
    EXPECT_TRUE(isShown("Red"));
}

TEST_F(WindowNodesTest, TheSearchLeavesWhatItFindsWithWhatIsAbove)
{
    openDemo();
    tree().collapseAll();
    const int all = model().rowsShown();
    pickInTree("Barrier");
    QTest::keyClick(window.get(), Qt::Key_F, Qt::ControlModifier | Qt::ShiftModifier);
    ASSERT_EQ(QApplication::focusWidget(), &search());
    QTest::keyClicks(&search(), "WHEEL switch");
    EXPECT_GT(model().matchCount(), 0);
    EXPECT_LT(model().rowsShown(), all / 4);
    const QModelIndex wheels = model().indexOf(qxNames::findNode("Wheels"));
    ASSERT_TRUE(wheels.isValid()) << "words of name and kind";
    EXPECT_TRUE(tree().isExpanded(wheels.parent()));
    EXPECT_FALSE(model().indexOf(qxNames::findNode("Barrier")).isValid());
    QStringList found;
    for (int i = 0; i < model().matchCount() + 1; ++i) {
        press(Qt::Key_Return);
        ASSERT_EQ(picked().size(), 1);
        found << picked();
        EXPECT_TRUE(found.last().contains("Wheel")) << found.last().toStdString();
    }
    EXPECT_EQ(found.first(), found.last()) << "it goes round";
    press(Qt::Key_Return, Qt::ShiftModifier);
    EXPECT_EQ(picked().first(), found[found.size() - 2]);
    const QString shown = picked().first();
    const int few = model().matchCount();
    search().setText("wheel");
    EXPECT_GT(model().matchCount(), few) << "a shorter text finds more again";
    press(Qt::Key_Escape);
    EXPECT_EQ(model().rowsShown(), all);
    EXPECT_EQ(picked().first(), shown);
    search().setText("nothing is called that");
    EXPECT_EQ(model().rowsShown(), 0);
    click(middle());
    EXPECT_EQ(picked().size(), 1) << "what is picked in the view ends the search";
    EXPECT_EQ(model().rowsShown(), all);
}

TEST_F(WindowNodesTest, VariantsAreMadeOfWhatIsPickedAndLeadToTheirSets)
{
    openSigns();
    pickInTree("Sign");
    EXPECT_EQ(offeredBy("What Controls This"), QStringList("Node \"Sign\": Red"));
    QMenu *const users = action("What Controls This")->menu()->actions().first()->menu();
    Q_EMIT users->aboutToShow();
    QAction *const set = users->actions()[3];
    EXPECT_EQ(set->text(), "Stop / halt");
    set->trigger();
    EXPECT_EQ(window->setsDock()->view()->currentSet(), "Stop / halt");
    EXPECT_TRUE(action("Show Hidden Groups")->isChecked()) << "its group is hidden";
    users->actions().first()->trigger();
    EXPECT_EQ(variants().currentIndex().data().toString(), "Sign");

    pickInTree("Red");
    const QStringList offered = offeredBy("Make Variant");
    ASSERT_FALSE(offered.isEmpty());
    EXPECT_EQ(offered.first(), "Node: Red");
    action("Make Variant")->menu()->actions().first()->trigger();
    ASSERT_NE(qxVariantKinds::node.find("Red"), nullptr);
    EXPECT_EQ(variants().currentIndex().data().toString(), "Red");
    EXPECT_EQ(offeredBy("What Controls This"),
              (QStringList{"Node \"Red\": shown", "Node \"Sign\": Red"}));
    goTo("Away");
    pickInTree("Red");
    Q_EMIT window->findChild<qxNodeMenu *>()->aboutToShow();
    action("Add Present State to \"Away\"")->trigger();
    const auto &entries = qxVariants::findVariantSet("Away")->nodeVariants;
    ASSERT_EQ(entries.size(), 1u) << "the nearest ones alone";
    EXPECT_EQ(entries.front().variant, "Red");
    window->setsDock()->undoStack()->undo();
    window->setsDock()->undoStack()->undo();
    EXPECT_EQ(qxVariantKinds::node.find("Red"), nullptr);
}

TEST_F(WindowNodesTest, ViewpointsHaveAMenuWithKeys)
{
    openSigns();
    QUndoStack &steps = *window->setsDock()->undoStack();
    const qxMainView &view = qxMainView::the();
    const auto isAt = [&view](const char *name) { return view.viewpointName() == name; };
    EXPECT_TRUE(action("1 Near")->isChecked()) << "scenes begin there";
    QTest::keyClick(window.get(), Qt::Key_2, Qt::ControlModifier | Qt::AltModifier);
    EXPECT_FALSE(isAt("Aside")) << "it moves smoothly";
    EXPECT_TRUE(QTest::qWaitFor([&] { return isAt("Aside"); }, 60000));
    EXPECT_TRUE(action("2 Aside")->isChecked());
    action("Move Smoothly")->setChecked(false);
    QTest::keyClick(window.get(), Qt::Key_PageDown, Qt::AltModifier);
    EXPECT_TRUE(isAt("Near")) << "the next one, going round";
    action("Previous Viewpoint")->trigger();
    EXPECT_TRUE(isAt("Aside"));
    EXPECT_FALSE(action("Delete Viewpoint")->isEnabled()) << "it is part of the file";

    const auto answer = [this](const QString &name) {
        expectDialog([name](QDialog &dialog) {
            dialog.findChild<QLineEdit *>()->setText(name);
            dialog.accept();
        });
    };
    answer("Beside");
    action("Rename Viewpoint...")->trigger();
    EXPECT_EQ(qxVariants::findVariantSet("Away")->viewpoints.front(), "Beside");
    steps.undo();
    EXPECT_EQ(qxVariants::findVariantSet("Away")->viewpoints.front(), "Aside");
    window->sceneView()->setFocus();
    press(Qt::Key_Left);
    Q_EMIT action("Viewpoints")->menu()->aboutToShow();
    EXPECT_FALSE(action("Rename Viewpoint...")->isEnabled() || isAt("Aside"));
    answer("Near");
    action("Capture Viewpoint...")->trigger();
    EXPECT_EQ(action("3 Near 2")->isChecked(), true);
    action("Delete Viewpoint")->trigger();
    EXPECT_EQ(qxUberCameraPool::the()->count(), 2);
    steps.undo();
    EXPECT_EQ(qxUberCameraPool::the()->findViewpoint("Near 2"), 2);
    steps.undo();
    EXPECT_EQ(qxUberCameraPool::the()->count(), 2);
    steps.redo();
    settle();
    action("1 Near")->trigger();
    action("3 Near 2")->trigger();
    EXPECT_TRUE(isAt("Near 2"));
    action("Move Smoothly")->setChecked(true);
}
