#include "qxVariantGroup.h"

#include "HostFixture.h"
#include "OneOfEach.h"

class SetContentsTest : public HostFixture {
protected:
    static std::string textOf(const qxStateList &states)
    {
        std::string text;
        for (const qxVariantState &each : states)
            text += (each.variant + "=" + each.state + " ").toStdString();
        return text;
    }
    qxVariantSet set{"Sport"};
};

TEST_F(SetContentsTest, AnEmptyStateIsTheDefaultOneOfAVariantThatIsGiven)
{
    qxNodeVariant *const wheels = qxVariants::createNodeVariant("Wheels", false);
    wheels->defaultState = "Steel";
    set.add(wheels, "");
    set.addNodeVariant("Door", "");
    EXPECT_EQ(textOf(set.nodeVariants), "Wheels=Steel Door= ");
    set.add(wheels, "Alloy");
    set.add(static_cast<qxLightVariant *>(nullptr), "On");
    EXPECT_TRUE(set.lightVariants.empty());
    EXPECT_EQ(textOf(set.nodeVariants), "Wheels=Alloy Door= ");
    set.removeNodeVariant("Wheels");
    set.removeNodeVariant("Wheels");
    EXPECT_EQ(textOf(set.nodeVariants), "Door= ");
}

TEST_F(SetContentsTest, EachKindHasItsOwnReferences)
{
    referToOneOfEach(set);
    EXPECT_EQ(textOf(set.nodeVariants) + textOf(set.materialVariants)
                  + textOf(set.transformVariants) + textOf(set.lightVariants)
                  + textOf(set.overlayVariants),
              "Wheels=Alloy Paint=Blue Door=Open Lamp=!Disable Logo=!Disable ");
    EXPECT_TRUE(set.containsNodeVariant("Wheels") && set.containsMaterialVariant("Paint")
                && set.containsTransformVariant("Door") && set.containsLightVariant("Lamp")
                && set.containsOverlayVariant("Logo"));
    EXPECT_FALSE(set.containsNodeVariant("Paint") || set.containsMaterialVariant("Door")
                 || set.containsTransformVariant("Lamp") || set.containsLightVariant("Logo")
                 || set.containsOverlayVariant("Wheels"));
    EXPECT_TRUE(set.findMaterialVariant("Paint") && set.findTransformVariant("Door")
                && set.findLightVariant("Lamp") && set.findOverlayVariant("Logo"));
    set.removeMaterialVariant("Paint");
    set.removeTransformVariant("Door");
    set.removeLightVariant("Lamp");
    set.removeOverlayVariant("Logo");
    EXPECT_EQ(set.nodeVariants.size(), 1u);
    EXPECT_TRUE(set.materialVariants.empty() && set.transformVariants.empty()
                && set.lightVariants.empty() && set.overlayVariants.empty());
}

TEST_F(SetContentsTest, ClearingKeepsWhatIdentifiesAndShowsTheSet)
{
    qxVariantGroup group;
    group.add(&set);
    fillEverything(set);
    set.addMaterialSnapshot("Car/Body", "Blue");
    EXPECT_EQ(set.materialSnapshots.value("Car/Body"), "Blue");
    set.updateShortcut();
    set.animationIndex = 3;
    set.setInclInfo(true, true, true, true, true);
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
    set.addGeometry("Body");
    set.addGeometry("Seat");
    set.removeGeometry("Body");
    EXPECT_EQ(set.geometries.list(), QStringList("Seat"));
    EXPECT_EQ(set.getPreview().size(), 4);
    EXPECT_EQ(set.getClippingState(), 3);
    EXPECT_EQ(set.modifiers, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_TRUE(set.inclNodes && set.inclMats && set.inclLights && set.inclEnv && set.inclView);
    group.clear();
}

TEST_F(SetContentsTest, ASetIsEmptyWhenApplyingItWouldDoNothing)
{
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
    for (const auto &fill : fillings) {
        qxVariantSet other;
        fill(other);
        EXPECT_FALSE(other.isEmpty()) << &fill - fillings;
    }
}

TEST_F(SetContentsTest, ConnectedVariantsAreThoseThatExist)
{
    qxVariantSet *const known = qxVariants::createVariantSet("Known", false, nullptr);
    for (const char *variant : {"Gone", "Wheels", "Door"})
        known->addNodeVariant(variant, "1");
    qxVariants::createNodeVariant("Door", false);
    qxVariants::createNodeVariant("Wheels", false);
    qxVariants::showConnectedVariants("known");
    EXPECT_TRUE(notifications.entries().empty());
    qxVariants::showConnectedVariants("Known");
    EXPECT_EQ(notifications.lines(),
              std::vector<std::string>(
                  {"1 selectNodeVariants variant=[Wheels, Door]",
                   "1 selectMaterialVariants variant=[]", "1 selectLightVariants variant=[]",
                   "1 selectOverlayVariants variant=[]", "1 selectTransformVariants variant=[]"}));
}
