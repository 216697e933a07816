#include "CaptureFixture.h"

#include <OpenSG/OSGSimpleAttachments.h>

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

class GuardTest : public CaptureFixture {
protected:
    typedef std::function<void(QMessageBox &box)> Answer;

    static void rename(QMessageBox &box) { box.button(QMessageBox::Yes)->click(); }
    static void cancel(QMessageBox &box) { box.button(QMessageBox::No)->click(); }
    static void close(QMessageBox &box) { box.close(); }

    /// Answers each question that is asked.
    bool verify(const Answer &answer)
    {
        QTimer timer;
        QObject::connect(&timer, &QTimer::timeout, [&] {
            if (auto *const box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
                ++asked;
                answer(*box);
            }
        });
        timer.start(1);
        return qxVariants::verifyNodeNames();
    }

    bool isReferredTo(const osg::NodePtr &node)
    {
        std::vector<osg::NodePtr> nodes{osg::NullFC, node};
        return qxVariants::containsAmbiguousVSets(nodes);
    }

    int asked = 0;
};

TEST_F(GuardTest, TheQuestionSaysWhatWillHappenAndMayBeAnsweredWithNo)
{
    scene.addSwitch("Wheels", {});
    const TestNode second = scene.addSwitch("Wheels", {});
    QString text = "Some nodes have the same name and/or node path. In order to continue, "
                   "the names of those nodes will be changed.\n ";
    const auto lookAndCancel = [&text](QMessageBox &box) {
        EXPECT_EQ(box.windowTitle(), "Ambiguous node names detected");
        EXPECT_EQ(box.text(), text);
        EXPECT_EQ(box.button(QMessageBox::Yes)->text(), "Rename");
        EXPECT_EQ(box.button(QMessageBox::No)->text(), "Cancel");
        EXPECT_TRUE(box.isModal());
        EXPECT_EQ(box.icon(), QMessageBox::Question);
        EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::ArrowCursor);
        cancel(box);
    };
    EXPECT_FALSE(verify(lookAndCancel));
    set->addNodeVariant("Wheels", "!None");
    text += "\nWarning: Renaming might break existing variant sets!\n";
    EXPECT_FALSE(verify(lookAndCancel));
    EXPECT_FALSE(verify(close));
    EXPECT_EQ(asked, 3);
    EXPECT_EQ(second.name(), "Wheels");
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(GuardTest, RenamedNodesGetNamesThatNoOtherNodeHas)
{
    const TestNode first = scene.addSwitch("Wheels", {"Steel", "Steel"});
    const TestNode second = scene.addSwitch("Wheels", {});
    const TestNode clone = scene.addClone(second);
    const TestNode gone = scene.addSwitch("Wheels", {});
    const TestNode third = scene.addSwitch("Wheels", {});
    scene.add("Wheels 2", scene.add("Car"));
    EXPECT_TRUE(verify([&gone](QMessageBox &box) {
        gone.remove(); // what is removed while the user is asked needs no name
        rename(box);
    }));
    EXPECT_EQ(first.name(), "Wheels");
    EXPECT_EQ(first.child(0).name(), "Steel");
    EXPECT_EQ(first.child(1).name(), "Steel 2");
    EXPECT_EQ(second.name(), "Wheels 3");
    EXPECT_EQ(clone.name(), "Wheels 3"); // stays a clone, so that nothing is ambiguous any more
    EXPECT_EQ(third.name(), "Wheels 4");
    EXPECT_TRUE(verify(cancel));
    EXPECT_EQ(asked, 1);
}

TEST_F(GuardTest, ASetRefersToANodeByVariantByPathAndAsAChosenChild)
{
    const TestNode wheels = scene.addSwitch("Wheels", {"Steel", "Alloy"});
    const TestNode body = scene.add("Body", scene.add("Car"));
    const TestNode copied = scene.add("Tyre", scene.addSwitch("Tyres", {}));
    scene.addSwitch("Spare", {}).node()->addChild(scene.addClone(copied));
    const TestNode unnamed = scene.addSwitch("x", {});
    osg::setName(unnamed.node(), std::string());
    for (const TestNode &node : {wheels, wheels.child(0), wheels.child(1), body, copied})
        EXPECT_FALSE(isReferredTo(node)) << node.name();
    set->addNodeVariant("Wheels", "Alloy");
    set->addMaterialSnapshot("Car/Body", "Paint");
    set->addNodeVariant("Spare", "Tyre"); // below this switch stands a clone only
    set->addNodeVariant("Elsewhere", "Steel");
    set->addLightVariant("Lamp", "Steel");
    set->addNodeVariant("", ""); // means no node
    for (const TestNode &node : {wheels, wheels.child(1), body, copied})
        EXPECT_TRUE(isReferredTo(node)) << node.name();
    EXPECT_FALSE(isReferredTo(wheels.child(0)));
    EXPECT_FALSE(isReferredTo(unnamed));
    std::vector<osg::NodePtr> none;
    EXPECT_FALSE(qxVariants::containsAmbiguousVSets(none));
}
