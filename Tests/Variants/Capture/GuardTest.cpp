#include "qxVariantSet.h"

#include "CaptureFixture.h"
#include "Core/qxMainWindow.h"
#include "qxScenegraph.h"

#include <OpenSG/OSGSimpleAttachments.h>

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

namespace {

/// What a message box looked like while it was open.
struct SeenBox {
    int count = 0;
    QString title;
    QString text;
    QString yes;
    QString no;
    bool modal = false;
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    Qt::CursorShape cursor = Qt::BlankCursor;
};

class GuardTest : public CaptureFixture {
protected:
    typedef std::function<void(QMessageBox &box)> Answer;

    static void press(QMessageBox &box, QMessageBox::StandardButton button)
    {
        box.button(button)->click();
    }
    static void rename(QMessageBox &box) { press(box, QMessageBox::Yes); }
    static void cancel(QMessageBox &box) { press(box, QMessageBox::No); }
    static void close(QMessageBox &box) { box.close(); }

    /// Runs the guard and answers the box that it opens.
    bool verify(const Answer &answer)
    {
        QTimer timer;
        QObject::connect(&timer, &QTimer::timeout, [&] {
            auto *const box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            if (!box)
                return;
            look(*box);
            answer(*box);
        });
        timer.start(1);
        return qxVariants::verifyNodeNames();
    }

    void look(QMessageBox &box)
    {
        ++seen.count;
        seen.title = box.windowTitle();
        seen.text = box.text();
        seen.yes = box.button(QMessageBox::Yes)->text();
        seen.no = box.button(QMessageBox::No)->text();
        seen.modal = box.isModal();
        seen.icon = box.icon();
        seen.cursor = QApplication::overrideCursor()->shape();
    }

    bool isReferredTo(const osg::NodePtr &node)
    {
        std::vector<osg::NodePtr> nodes{osg::NullFC, node};
        return qxVariants::containsAmbiguousVSets(nodes);
    }

    qxVariantSet *newSet() { return qxVariants::createVariantSet("Sport", false, nullptr); }

    SeenBox seen;
    const QString plain = "Some nodes have the same name and/or node path. In order to continue, "
                          "the names of those nodes will be changed.\n ";
    const QString warning = "\nWarning: Renaming might break existing variant sets!\n";
};

TEST_F(GuardTest, ASceneWithoutAmbiguousNodesAsksNothing)
{
    scene.addSwitch("Wheels", {"Steel"});
    EXPECT_TRUE(verify(cancel));
    EXPECT_EQ(seen.count, 0);
}

TEST_F(GuardTest, TheQuestionIsModalAndSaysWhatWillHappen)
{
    scene.addSwitch("Wheels", {});
    scene.addSwitch("Wheels", {});
    EXPECT_FALSE(verify(cancel));
    EXPECT_EQ(seen.count, 1);
    EXPECT_EQ(seen.title, "Ambiguous node names detected");
    EXPECT_EQ(seen.text, plain);
    EXPECT_EQ(seen.yes, "Rename");
    EXPECT_EQ(seen.no, "Cancel");
    EXPECT_TRUE(seen.modal);
    EXPECT_EQ(seen.icon, QMessageBox::Question);
    EXPECT_EQ(seen.cursor, Qt::ArrowCursor);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(GuardTest, RenamedNodesGetNamesThatNoOtherNodeHas)
{
    const TestNode first = scene.addSwitch("Wheels", {"Steel", "Steel"});
    const TestNode second = scene.addSwitch("Wheels", {});
    const TestNode clone = scene.addClone(second);
    const TestNode third = scene.addSwitch("Wheels", {});
    scene.add("Wheels 2", scene.add("Car"));
    EXPECT_TRUE(verify(rename));
    EXPECT_EQ(first.name(), "Wheels");
    EXPECT_EQ(first.child(0).name(), "Steel");
    EXPECT_EQ(first.child(1).name(), "Steel 2");
    EXPECT_EQ(second.name(), "Wheels 3");
    EXPECT_EQ(clone.name(), "Wheels 3"); // stays a clone, so that nothing is ambiguous any more
    EXPECT_EQ(third.name(), "Wheels 4");
    EXPECT_TRUE(verify(cancel));
    EXPECT_EQ(seen.count, 1);
}

TEST_F(GuardTest, NodesThatAreRemovedWhileTheUserIsAskedAreNotRenamed)
{
    scene.addSwitch("Wheels", {});
    const TestNode second = scene.addSwitch("Wheels", {});
    const TestNode third = scene.addSwitch("Wheels", {});
    EXPECT_TRUE(verify([&](QMessageBox &box) {
        scene.root().node()->subChild(second);
        rename(box);
    }));
    EXPECT_EQ(third.name(), "Wheels 2");
}

TEST_F(GuardTest, CancellingAndClosingRenameNothing)
{
    scene.addSwitch("Wheels", {});
    const TestNode second = scene.addSwitch("Wheels", {});
    EXPECT_FALSE(verify(cancel));
    EXPECT_FALSE(verify(close));
    EXPECT_EQ(seen.count, 2);
    EXPECT_EQ(second.name(), "Wheels");
}

TEST_F(GuardTest, TheWarningAppearsWhenASetRefersToANode)
{
    scene.addSwitch("Wheels", {});
    scene.addSwitch("Wheels", {});
    newSet()->addNodeVariant("Wheels", "!None");
    verify(cancel);
    EXPECT_EQ(seen.text, plain + warning);
}

TEST_F(GuardTest, ASetRefersToANodeByVariantByPathAndAsAChosenChild)
{
    const TestNode wheels = scene.addSwitch("Wheels", {"Steel", "Alloy"});
    const TestNode body = scene.add("Body", scene.add("Car"));
    const TestNode copied = scene.add("Tyre", scene.addSwitch("Tyres", {}));
    scene.addSwitch("Spare", {}).node()->addChild(scene.addClone(copied));
    qxVariantSet *const set = newSet();
    for (const TestNode &node : {wheels, wheels.child(0), wheels.child(1), body, copied})
        EXPECT_FALSE(isReferredTo(node)) << node.name();

    set->addNodeVariant("Wheels", "Alloy");
    set->addMaterialSnapshot("Car/Body", "Paint");
    set->addNodeVariant("Spare", "Tyre"); // below this switch stands a clone only
    set->addNodeVariant("Elsewhere", "Steel");
    set->addLightVariant("Lamp", "Steel");
    EXPECT_TRUE(isReferredTo(wheels));
    EXPECT_FALSE(isReferredTo(wheels.child(0)));
    EXPECT_TRUE(isReferredTo(wheels.child(1)));
    EXPECT_TRUE(isReferredTo(body));
    EXPECT_TRUE(isReferredTo(copied));
    const TestNode unnamed = scene.addSwitch("x", {});
    osg::setName(unnamed.node(), std::string());
    set->addNodeVariant("", ""); // means no node
    EXPECT_FALSE(isReferredTo(unnamed));
    std::vector<osg::NodePtr> none;
    EXPECT_FALSE(qxVariants::containsAmbiguousVSets(none));
}

} // namespace
