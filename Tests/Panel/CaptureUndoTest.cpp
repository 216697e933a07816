#include "qxNodeVariant.h"
#include "qxVariantWriter.h"

#include "../Scenarios/ShownScene.h"
#include "PanelFixture.h"
#include "Undo/qxCaptureRecord.h"
#include "qxPanelEvents.h"

#include <QSignalSpy>

#include <functional>

/// All that a capture may touch: nodes, materials, viewpoints, and the whole registry.
static std::string everything()
{
    return shownScene() + qxVariantWriter().write().toStdString();
}

/// A scene, how it changes between the capture of the set "Red" and the next capture, and what is
/// asked of that one.
struct Scenario {
    const char *name;
    std::function<void(TestScene &)> build;
    std::function<void(TestScene &)> change;

    friend void PrintTo(const Scenario &scenario, std::ostream *out) { *out << scenario.name; }
};

class CaptureUndoTest : public PanelFixture {
public:
    static void captureInto(qxVariantSet &set)
    {
        qxVariants::captureVariantsFromRootNodes(&set, {qxScenegraph::getRootNode()}, true, true,
                                                 true, true, true, true, true, true);
    }
    static void paint(const char *node, const osg::MaterialPtr &material)
    {
        qxVariants::changeMaterial(qxScenegraph::findNode(node), material);
    }

protected:
    QString capture(const char *group, void (*into)(qxVariantSet &) = captureInto)
    {
        qxCaptureRecord record;
        return edits.captureSet("Captured", group, record, into);
    }
    void update(void (*into)(qxVariantSet &) = captureInto)
    {
        qxCaptureRecord record;
        edits.captureAgain("Blue", record, into);
    }

    qxSetEdits edits;
};

class EachCaptureUndoTest : public CaptureUndoTest, public testing::WithParamInterface<Scenario> {};

std::vector<Scenario> scenarios()
{
    const auto paint = [](const char *node, const char *material) {
        CaptureUndoTest::paint(node, qxMaterials::findMaterial(material));
    };
    const auto bodies = [](TestScene &scene) {
        const TestMaterial red = scene.addMaterial("Red");
        scene.addMaterial("Blue");
        scene.addGeometry("Body", red);
        scene.addGeometry("Door", red);
        scene.addMaterialGroup("Roof", red);
    };
    return {
        {"Nothing", [](TestScene &) {}, [](TestScene &) {}},
        {"NewVariants", [](TestScene &) {},
         [](TestScene &scene) {
             scene.addSwitch("Wheels", {"Steel", "Alloy"}).choose(1);
             scene.add("Hood").setMask(0);
             scene.addLight("Lamp");
             scene.addSwitchMaterial("Paints", {"Matt", "Gloss"});
             scene.addGeometry("Seat", qxMaterials::findMaterial("Paints"));
         }},
        {"OtherMaterials", bodies,
         [paint](TestScene &) {
             paint("Body", "Blue");
             paint("Roof", "Blue");
         }},
        {"ExtendedSwitch",
         [](TestScene &scene) {
             scene.addMaterial("Green");
             scene.addGeometry("Body", scene.addSwitchMaterial("Paints", {"Red", "Blue"}));
         },
         [paint](TestScene &) { paint("Body", "Green"); }},
        {"NamelessMaterial", bodies,
         [](TestScene &scene) { scene.addGeometry("Mirror", scene.addMaterial("")); }},
        {"NodesOfOnePath", bodies,
         [paint](TestScene &scene) {
             scene.addGeometry("Body", qxMaterials::findMaterial("Blue"));
             paint("Door", "Blue");
         }},
    };
}

INSTANTIATE_TEST_SUITE_P(CaptureUndoTest, EachCaptureUndoTest, testing::ValuesIn(scenarios()),
                         [](const auto &each) { return std::string(each.param.name); });

TEST_P(EachCaptureUndoTest, AllThatItDidIsUndone)
{
    GetParam().build(scene);
    captureInto(set("Red"));
    GetParam().change(scene);
    const std::string before = everything();
    for (const bool isUpdate : {false, true}) {
        SCOPED_TRACE(isUpdate ? "update" : "capture");
        isUpdate ? update() : void(capture("Studio"));
        const std::string after = everything();
        EXPECT_NE(before, after);
        edits.stack()->undo();
        EXPECT_EQ(everything(), before);
        edits.stack()->redo();
        EXPECT_EQ(everything(), after);
        EXPECT_EQ(edits.stack()->count(), 1);
        edits.stack()->undo();
        EXPECT_EQ(everything(), before);
    }
}

TEST_F(CaptureUndoTest, ASetThatGoesWhileItIsCapturedEndsTheStep)
{
    scene.addSwitch("Wheels", {"Steel", "Alloy"});
    const std::string before = everything();
    const auto captureAndRemove = [](qxVariantSet &set) {
        const QString name = set.name;
        captureInto(set);
        qxVariants::removeVariantSet(name);
    };
    EXPECT_EQ(capture("Studio", captureAndRemove), "");
    ASSERT_NE(qxVariants::findNodeVariant("Wheels"), nullptr);
    edits.stack()->undo();
    EXPECT_EQ(everything(), before) << "the rest is undone";

    const int listener = qxController::addListener([](const char *name, qxMessage *, int) {
        if (name == std::string("variantSetAdded"))
            qxVariants::removeVariantSet("Captured");
    });
    EXPECT_EQ(capture(""), "");
    qxController::removeListener(listener);
    EXPECT_EQ(everything(), before);

    update(captureAndRemove);
    edits.stack()->undo();
    EXPECT_EQ(qxVariants::findNodeVariant("Wheels"), nullptr);
    EXPECT_EQ(qxVariants::findVariantSet("Blue"), nullptr) << "a script took it away";
}

TEST_F(CaptureUndoTest, ATakenNameIsRefusedWithoutATrace)
{
    set("Red").name = "Captured";
    const std::string before = everything();
    EXPECT_EQ(capture("Studio"), "");
    EXPECT_EQ(everything(), before);
    EXPECT_EQ(edits.stack()->count(), 0);
}

TEST_F(CaptureUndoTest, VariantsThatOthersUseOrChangedStayWhenACaptureIsUndone)
{
    for (const char *name : {"Wheels", "Seats", "Mirrors"})
        scene.addSwitch(name, {"Steel", "Alloy"});
    capture("");
    set("Blue").addNodeVariant("Wheels", "Alloy");
    qxVariants::findNodeVariant("Seats")->options.front().shortcut = "S";
    notifications.clear();
    edits.stack()->undo();
    EXPECT_NE(qxVariants::findNodeVariant("Wheels"), nullptr);
    ASSERT_NE(qxVariants::findNodeVariant("Seats"), nullptr);
    EXPECT_EQ(qxVariants::findNodeVariant("Mirrors"), nullptr);
    const qxPanelEvents events;
    QSignalSpy shown(&events, &qxPanelEvents::variantsChanged);
    edits.stack()->redo();
    settle();
    EXPECT_EQ(shown.size(), 1);
    EXPECT_EQ(qxVariants::findNodeVariant("Seats")->options.front().shortcut, "S");
    EXPECT_NE(qxVariants::findNodeVariant("Mirrors"), nullptr);
    EXPECT_EQ(notifications.names(),
              std::vector<std::string>({"variantSetRemoved", "nodeVariantRemoved"}));
}

TEST_F(CaptureUndoTest, ACaptureIsNotHalfUndone)
{
    scene.addSwitch("Wheels", {"Steel", "Alloy"});
    scene.addGeometry("Body", scene.addMaterial("Red"));
    captureInto(set("Red"));
    paint("Body", scene.addMaterial("Blue"));
    update();
    set("Blue").addNodeVariant("Wheels", "Alloy");
    paint("Body", scene.addMaterial("Green"));
    capture("Studio");
    set("Captured").name = "Kept";
    const std::string left = everything();
    for (int turn = 0; turn < 2; ++turn) {
        edits.stack()->undo();
        EXPECT_EQ(everything(), left);
    }
    edits.stack()->redo();
    EXPECT_EQ(everything(), left);
}

TEST_F(CaptureUndoTest, WhatOthersDidSinceStays)
{
    const TestNode body = scene.addGeometry("Body", scene.addMaterial("Red"));
    captureInto(set("Red"));
    paint("Body", scene.addMaterial("Blue"));
    capture("");
    ASSERT_EQ(qxMaterials::getName(qxNodeUtils::getMaterial(body)), "Red Switch");
    paint("Body", scene.addMaterial("Green"));
    set("Red").addMaterialVariant("Red Switch", "Green");
    edits.stack()->undo();
    EXPECT_EQ(qxMaterials::getName(qxNodeUtils::getMaterial(body)), "Green");
    EXPECT_EQ(set("Red").findMaterialVariant("Red Switch")->state, "Green");
    EXPECT_EQ(set("Red").materialSnapshots.value("Body"), "Red");
}
