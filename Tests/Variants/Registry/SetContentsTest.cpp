#include "qxLightVariant.h"
#include "qxMaterialVariant.h"
#include "qxNodeVariant.h"
#include "qxOverlayVariant.h"
#include "qxTransformVariant.h"
#include "qxVariantGroup.h"
#include "qxVariantSet.h"
#include "qxVariants.h"

#include "HostFixture.h"
#include "Lines.h"

namespace {

class SetContentsTest : public HostFixture {
protected:
    ~SetContentsTest() override { host.clearScene(); }

    static std::string textOf(const qxStateList &states)
    {
        std::string text;
        for (const qxVariantState &each : states)
            text += (each.variant + "=" + each.state + " ").toStdString();
        return text;
    }
    qxVariantSet set{"Sport"};
};

} // namespace

TEST_F(SetContentsTest, AVariantIsReferredToOnceAndKeepsItsPlace)
{
    qxNodeVariant *const wheels = qxVariants::createNodeVariant("Wheels", false);
    wheels->defaultState = "Steel";
    set.add(wheels, "");
    set.addNodeVariant("Door", "");
    set.addNodeVariant("Roof", "Open");
    EXPECT_EQ(textOf(set.nodeVariants), "Wheels=Steel Door= Roof=Open ");
    set.add(wheels, "Alloy");
    set.addNodeVariant("Door", "Shut");
    EXPECT_EQ(textOf(set.nodeVariants), "Wheels=Alloy Door=Shut Roof=Open ");
    set.removeNodeVariant("Door");
    set.removeNodeVariant("Door");
    EXPECT_EQ(textOf(set.nodeVariants), "Wheels=Alloy Roof=Open ");
    EXPECT_EQ(set.findNodeVariant("Roof")->state, "Open");
    EXPECT_EQ(set.findNodeVariant("roof"), nullptr);
}

TEST_F(SetContentsTest, EachKindHasItsOwnReferences)
{
    set.addNodeVariant("N", "1");
    set.addMaterialVariant("M", "1");
    set.addLightVariant("L", "1");
    set.addOverlayVariant("O", "1");
    set.addTransformVariant("T", "1");
    EXPECT_EQ(textOf(set.nodeVariants) + textOf(set.materialVariants) + textOf(set.lightVariants)
                  + textOf(set.overlayVariants) + textOf(set.transformVariants),
              "N=1 M=1 L=1 O=1 T=1 ");
    EXPECT_TRUE(set.containsNodeVariant("N") && set.containsMaterialVariant("M")
                && set.containsLightVariant("L") && set.containsOverlayVariant("O")
                && set.containsTransformVariant("T"));
    EXPECT_FALSE(set.containsNodeVariant("M") || set.containsMaterialVariant("L")
                 || set.containsLightVariant("O") || set.containsOverlayVariant("T")
                 || set.containsTransformVariant("N"));
    set.removeMaterialVariant("M");
    set.removeLightVariant("L");
    set.removeOverlayVariant("O");
    set.removeTransformVariant("T");
    EXPECT_TRUE(set.findNodeVariant("N"));
    EXPECT_FALSE(set.findMaterialVariant("M") || set.findLightVariant("L")
                 || set.findOverlayVariant("O") || set.findTransformVariant("T"));
}

TEST_F(SetContentsTest, ClearingKeepsWhatIdentifiesAndShowsTheSet)
{
    qxVariantGroup group;
    group.add(&set);
    set.addNodeVariant("N", "1");
    set.addMaterialVariant("M", "1");
    set.addLightVariant("L", "1");
    set.addOverlayVariant("O", "1");
    set.addTransformVariant("T", "1");
    set.addGeometry("Body");
    set.addViewpoint("Front");
    set.addAnimation("Spin");
    set.addTargetNodeName("Body");
    set.addMaterialSnapshot("Car/Body", "Red");
    set.addMaterialSnapshot("Car/Body", "Blue");
    EXPECT_EQ(set.materialSnapshots.value("Car/Body"), "Blue");
    set.values["price"] = "1";
    set.hotkey = "Ctrl+1";
    set.updateShortcut();
    set.comment = set.script = set.defaultViewpoint = "text";
    set.animationIndex = 3;
    set.sequentialAnimation = true;
    set.setPreview("picture");
    set.setInclInfo(true, false, true, false, true);
    set.setClippingState(3);

    set.clear();
    EXPECT_TRUE(set.nodeVariants.empty() && set.materialVariants.empty()
                && set.lightVariants.empty() && set.overlayVariants.empty()
                && set.transformVariants.empty() && set.viewpoints.empty() && set.animations.empty()
                && set.targetNodeNames.empty());
    EXPECT_TRUE(set.materialSnapshots.isEmpty() && set.values.isEmpty() && set.hotkey.isEmpty()
                && set.comment.isEmpty() && set.script.isEmpty() && set.defaultViewpoint.isEmpty());
    EXPECT_EQ(set.key, -1);
    EXPECT_EQ(set.animationIndex, 0u);
    EXPECT_FALSE(set.sequentialAnimation);

    EXPECT_EQ(set.name, "Sport");
    EXPECT_EQ(set.group, &group);
    EXPECT_EQ(set.geometries.size(), 1u);
    EXPECT_EQ(set.getPreview(), "picture");
    EXPECT_EQ(set.getClippingState(), 3);
    EXPECT_EQ(set.modifiers, Qt::ControlModifier);
    bool nodes = false, mats = true, lights = false, env = true, view = false;
    set.getInclInfo(nodes, mats, lights, env, view);
    EXPECT_TRUE(nodes && !mats && lights && !env && view);
    group.clear();
}

TEST_F(SetContentsTest, ASetIsEmptyWhenApplyingItWouldDoNothing)
{
    EXPECT_TRUE(set.isEmpty());
    set.comment = set.hotkey = set.defaultViewpoint = "text";
    set.addTargetNodeName("Body");
    set.addMaterialSnapshot("Body", "Red");
    set.values["price"] = "1";
    set.setPreview("picture");
    EXPECT_TRUE(set.isEmpty());

    void (*const fillings[])(qxVariantSet &) = {
        [](qxVariantSet &s) { s.addNodeVariant("N", ""); },
        [](qxVariantSet &s) { s.addMaterialVariant("M", ""); },
        [](qxVariantSet &s) { s.addLightVariant("L", ""); },
        [](qxVariantSet &s) { s.addOverlayVariant("O", ""); },
        [](qxVariantSet &s) { s.addTransformVariant("T", ""); },
        [](qxVariantSet &s) { s.addGeometry("Body"); },
        [](qxVariantSet &s) { s.addViewpoint("Front"); },
        [](qxVariantSet &s) { s.addAnimation("Spin"); },
        [](qxVariantSet &s) { s.script = " "; },
        [](qxVariantSet &s) { s.setClippingState(1); },
    };
    for (const auto fill : fillings) {
        qxVariantSet other;
        fill(other);
        EXPECT_FALSE(other.isEmpty());
    }
}

TEST_F(SetContentsTest, ASetIsUsedAsSoonAsOneThingItRefersToExists)
{
    scene.addPoses("Door", {"Open"});
    qxVariants::createTransformVariant("Door", false);
    set.addTransformVariant("Door", "Open");
    set.script = "pass";
    set.setClippingState(1);
    EXPECT_FALSE(set.isUsed());

    scene.addLight("Lamp");
    set.addLightVariant("Lamp", "!Enable");
    EXPECT_FALSE(set.isUsed()); // No variant yet.
    qxVariants::createLightVariant("Lamp", false)->lightName = "Lamp";
    EXPECT_TRUE(set.isUsed());

    qxVariantSet names;
    names.addGeometry("Body");
    names.addViewpoint("Front");
    names.addAnimation("Spin");
    EXPECT_FALSE(names.isUsed());
    scene.setClips({"Spin"});
    EXPECT_TRUE(names.isUsed());
    scene.setClips({});
    scene.addViewpoint("Front");
    EXPECT_TRUE(names.isUsed());

    qxVariantSet overlays;
    overlays.addOverlayVariant("Logo", "!Enable");
    qxVariants::createOverlayVariant("Logo", false);
    EXPECT_FALSE(overlays.isUsed());
    scene.addOverlay("Logo");
    EXPECT_TRUE(overlays.isUsed());
}

TEST_F(SetContentsTest, ConnectedVariantsAreThoseThatExist)
{
    set.showConnectedVariants();
    EXPECT_EQ(linesOf(notifications),
              Lines({"1 selectNodeVariants variant=[]", "1 selectMaterialVariants variant=[]",
                     "1 selectLightVariants variant=[]", "1 selectOverlayVariants variant=[]",
                     "1 selectTransformVariants variant=[]"}));

    notifications.clear();
    qxVariantSet *const known = qxVariants::createVariantSet("Known", false, nullptr);
    known->addNodeVariant("Gone", "1");
    known->addNodeVariant("Wheels", "1");
    known->addNodeVariant("Door", "1");
    qxVariants::createNodeVariant("Door", false);
    qxVariants::createNodeVariant("Wheels", false);
    qxVariants::showConnectedVariants("known");
    EXPECT_TRUE(notifications.entries().empty());
    qxVariants::showConnectedVariants("Known");
    EXPECT_EQ(linesOf(notifications).front(), "1 selectNodeVariants variant=[Wheels, Door]");
}

TEST_F(SetContentsTest, OptimizingDropsWhatTheSceneCannotDo)
{
    qxVariants::createNodeVariant(scene.addSwitch("Wheels", {"Steel"}).node(), false);
    qxVariants::createNodeVariant(scene.addSwitch("Roof", {"Open"}).node(), false);
    qxVariants::createNodeVariant(scene.addSwitch("Seats", {"Red"}).node(), false);
    qxVariants::createNodeVariant("Lost", false)->nodeName = "Lost";
    set.addNodeVariant("Wheels", "Alloy"); // no such child
    set.addNodeVariant("Roof", "!Nonsense"); // actions are not checked
    set.addNodeVariant("Seats", "Red");
    set.addNodeVariant("Lost", "!All"); // no such node
    set.addNodeVariant("Unknown", "Anything"); // no such variant

    scene.addSwitchMaterial("Paint", {"Red"});
    qxVariants::createMaterialVariant("Paint", false)->switchMaterialName = "Paint";
    qxVariants::createMaterialVariant("Trim", false)->switchMaterialName = "Trim";
    set.addMaterialVariant("Paint", "Blue");
    set.addMaterialVariant("Trim", "!Next");
    set.addMaterialVariant("Unknown", "Blue");

    scene.addLight("Lamp");
    qxVariants::createLightVariant("Lamp", false)->lightName = "Lamp";
    qxVariants::createLightVariant("Sun", false)->lightName = "Sun";
    set.addLightVariant("Lamp", "nonsense");
    set.addLightVariant("Sun", "!Enable");

    qxVariants::createOverlayVariant(scene.addOverlaySwitch("Signs", {"Stop"}).node(), false);
    set.addOverlayVariant("Signs", "Go");
    qxVariants::createTransformVariant(scene.addPoses("Door", {"Open"}).node(), false);
    qxVariants::createTransformVariant("Hood", false)->nodeName = "Door";
    set.addTransformVariant("Door", "!Next"); // actions are checked here
    set.addTransformVariant("Hood", "Open");

    scene.addViewpoint("Front");
    scene.setClips({"Spin"});
    for (const char *name : {"Wheels", "Front", "Spin"}) {
        set.addGeometry(name);
        set.addViewpoint(name);
        set.addAnimation(name);
        set.addTargetNodeName(name);
    }
    notifications.clear();
    set.optimize();
    EXPECT_EQ(textOf(set.nodeVariants), "Roof=!Nonsense Seats=Red Unknown=Anything ");
    EXPECT_EQ(textOf(set.materialVariants), "Unknown=Blue ");
    EXPECT_EQ(textOf(set.lightVariants), "Lamp=nonsense ");
    EXPECT_EQ(textOf(set.overlayVariants), "");
    EXPECT_EQ(textOf(set.transformVariants), "Hood=Open ");
    EXPECT_EQ(set.geometries.list(), QStringList("Wheels"));
    EXPECT_EQ(set.viewpoints.list(), QStringList("Front"));
    EXPECT_EQ(set.animations.list(), QStringList("Spin"));
    EXPECT_EQ(set.targetNodeNames.size(), 3u);
    EXPECT_TRUE(notifications.entries().empty());
}

TEST_F(SetContentsTest, OptimizingAllSetsDropsFromEachWhatItWouldDropAlone)
{
    scene.addLight("Lamp");
    scene.addViewpoint("Front");
    scene.setClips({"Spin"});
    qxVariants::createOverlayVariant(scene.addOverlaySwitch("Signs", {"Stop"}).node(), false);
    for (const char *name : {"Lamp", "Sun"})
        qxVariants::createLightVariant(name, false)->lightName = name;
    for (const char *name : {"First", "Second"}) {
        qxVariantSet *const each = qxVariants::createVariantSet(name, false, nullptr);
        for (const char *light : {"Lamp", "Sun", "Unknown"})
            each->addLightVariant(light, "!Enable");
        each->addOverlayVariant("Signs", name == std::string("First") ? "Stop" : "Go");
        for (const char *listed : {"Front", "Back", ""})
            each->addViewpoint(listed);
        for (const char *listed : {"Spin", "Jump"})
            each->addAnimation(listed);
    }
    qxVariants::optimizeVariantSets();
    for (const char *name : {"First", "Second"}) {
        const qxVariantSet &each = *qxVariants::findVariantSet(name);
        EXPECT_EQ(textOf(each.lightVariants), "Lamp=!Enable Unknown=!Enable ");
        EXPECT_EQ(each.viewpoints.list(), QStringList("Front"));
        EXPECT_EQ(each.animations.list(), QStringList("Spin"));
    }
    EXPECT_EQ(textOf(qxVariants::findVariantSet("First")->overlayVariants), "Signs=Stop ");
    EXPECT_EQ(textOf(qxVariants::findVariantSet("Second")->overlayVariants), "");
}
