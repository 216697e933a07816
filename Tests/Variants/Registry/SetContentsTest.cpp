#include "qxNodeVariant.h"
#include "qxVariantGroup.h"
#include "qxVariantSet.h"
#include "qxVariants.h"

#include "HostFixture.h"

namespace {

typedef std::vector<std::string> Lines;

class SetContentsTest : public HostFixture {
protected:
    static std::string textOf(const qxStateList &states)
    {
        std::string text;
        for (const qxVariantState &each : states)
            text += (each.variant + "=" + each.state + " ").toStdString();
        return text;
    }
    void referToEachKind()
    {
        set.addNodeVariant("N", "1");
        set.addMaterialVariant("M", "1");
        set.addLightVariant("L", "1");
        set.addOverlayVariant("O", "1");
        set.addTransformVariant("T", "1");
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
    referToEachKind();
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
    referToEachKind();
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

TEST_F(SetContentsTest, ConnectedVariantsAreThoseThatExist)
{
    set.showConnectedVariants();
    EXPECT_EQ(notifications.lines(),
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
    EXPECT_EQ(notifications.lines().front(), "1 selectNodeVariants variant=[Wheels, Door]");
}
