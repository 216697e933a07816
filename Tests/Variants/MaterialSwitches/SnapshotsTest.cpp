#include "qxMaterialVariant.h"
#include "qxVariants.h"

#include "SwitchesFixture.h"
#include "qxController.h"
#include "qxMaterials.h"
#include "qxScenegraph.h"

#include <OpenSG/OSGMultiPassMaterial.h>
#include <OpenSG/OSGSimpleAttachments.h>
#include <OpenSG/OSGSwitchMaterial.h>

namespace {

typedef std::vector<std::string> Names;

class SnapshotsTest : public SwitchesFixture {};

// Whether the two bodies of the tests below are geometries or material groups.
class EachKindOfNode : public SwitchesFixture, public testing::WithParamInterface<bool> {
protected:
    TestNode addBody(const std::string &name, const osg::MaterialPtr &material)
    {
        return GetParam() ? scene.addMaterialGroup(name, material)
                          : scene.addGeometry(name, material);
    }
};

INSTANTIATE_TEST_SUITE_P(SnapshotsTest, EachKindOfNode, testing::Bool());

TEST_P(EachKindOfNode, TwoSetsThatSawDifferentMaterialsShareASwitchMaterial)
{
    const TestNode body = addBody("Body", scene.addMaterial("Red"));
    capture("Summer");
    EXPECT_EQ(materialOf(body), "Red"); // nothing to reconcile yet
    EXPECT_EQ(snapshot("Summer", "Body"), "Red");
    EXPECT_TRUE(qxVariants::_materialVariants.empty());

    paint(body, scene.addMaterial("Blue"));
    capture("Winter");

    EXPECT_EQ(materialOf(body), "Red Switch");
    EXPECT_EQ(heldOn(body), (Names{"Red", "Blue"}));
    EXPECT_EQ(shownOn(body), "Blue");
    EXPECT_EQ(snapshot("Summer", "Body"), "Red Switch");
    EXPECT_EQ(snapshot("Winter", "Body"), "Red Switch");
    EXPECT_EQ(state("Summer", "Red Switch"), "Red");
    EXPECT_EQ(state("Winter", "Red Switch"), "Blue");
    expectShown("Summer", {body}, {"Red"});
    expectShown("Winter", {body}, {"Blue"});
}

TEST_P(EachKindOfNode, TheStateOfASwitchMaterialIsCapturedWithoutAnyOtherSet)
{
    const TestNode body = addBody("Body", scene.addSwitchMaterial("Paints", {"Red", "Blue"}));
    choose(body, "Blue");
    capture("Only");
    EXPECT_EQ(state("Only", "Paints"), "Blue");
    choose(body, "Red");
    expectShown("Only", {body}, {"Blue"});
}

TEST_F(SnapshotsTest, SwitchMaterialsWithinTheMaterialOfAGroupAreCapturedToo)
{
    scene.addSwitchMaterial("Paints", {"Red", "Blue"});
    const TestMaterial nested = scene.addSwitchMaterial("Nested", {"Paints"});
    const osg::MultiPassMaterialPtr passes = osg::MultiPassMaterial::create();
    osg::setName(passes, "Passes");
    passes->addMaterial(scene.addSwitchMaterial("Lacquers", {"Matt", "Gloss"}));
    scene.addMaterialGroup("Nesting", nested);
    scene.addMaterialGroup("Layers", passes);
    capture("Only");
    EXPECT_EQ(state("Only", "Nested"), "Paints");
    EXPECT_EQ(state("Only", "Paints"), "Red");
    EXPECT_EQ(state("Only", "Lacquers"), "Matt");
}

TEST_F(SnapshotsTest, NodesWithTheSameChangeShareOneSwitchMaterial)
{
    const TestMaterial red = scene.addMaterial("Red");
    const TestMaterial blue = scene.addMaterial("Blue");
    std::vector<TestNode> bodies;
    for (int i = 0; i < 50; ++i)
        bodies.push_back(scene.addGeometry("Body " + std::to_string(i), red));
    const TestNode other = scene.addGeometry("Other", red);
    capture("Summer");
    for (const TestNode &body : bodies)
        paint(body, blue);
    capture("Winter");

    for (const TestNode &body : bodies)
        EXPECT_EQ(materialOf(body), "Red Switch");
    EXPECT_EQ(materialOf(other), "Red");
    EXPECT_EQ(qxVariants::_materialVariants.size(), 1u);
    for (const TestNode &body : bodies)
        paint(body, scene.addMaterial("Green"));
    for (const TestNode &body : bodies)
        paint(body, qxMaterials::findMaterial("Green"));
    capture("Autumn"); // the switch material that nobody shows any more takes the new one in
    EXPECT_EQ(heldOn(bodies.back()), (Names{"Red", "Blue", "Green"}));
    EXPECT_EQ(qxVariants::_materialVariants.size(), 1u);
}

TEST_F(SnapshotsTest, NamesOfNewSwitchMaterialsComeFromTheHost)
{
    scene.addSwitchMaterial("Red Switch", {"Other"});
    qxVariants::createMaterialVariant(QString("Red Switch 2"), false); // its material is gone
    const TestNode body = scene.addGeometry("Body", scene.addMaterial("Red"));
    capture("Summer");
    paint(body, scene.addMaterial("Blue"));
    capture("Winter");

    EXPECT_EQ(heard("MaterialGetUniqueName").front().keys(), (Names{"Switch", "newname"}));
    EXPECT_EQ(heard("MaterialGetUniqueName").front().field("Switch"), "Red Switch");
    EXPECT_EQ(materialOf(body), "Red Switch 2 2");
    EXPECT_EQ(qxMaterials::findMaterials(materialOf(body).c_str()).size(), 1u);
}

TEST_F(SnapshotsTest, ASwitchMaterialOfTheUserIsExtended)
{
    const TestNode body = scene.addGeometry("Body", scene.addMaterial("Red"));
    capture("Summer");
    paint(body, scene.addSwitchMaterial("Paints", {"Blue", "Green"}));
    choose(body, "Green");
    capture("Winter");

    EXPECT_EQ(materialOf(body), "Paints");
    EXPECT_EQ(heldOn(body), (Names{"Blue", "Green", "Red"}));
    EXPECT_NE(qxVariants::findMaterialVariant("Paints")->find("Red"), nullptr);
    EXPECT_EQ(heard("updateMaterials").size(), 1u);
    EXPECT_EQ(snapshot("Summer", "Body"), "Paints");
    expectShown("Summer", {body}, {"Red"});
    expectShown("Winter", {body}, {"Green"});
}

// A material variant wraps a plain material and takes over all its nodes, those of a set as well.
TEST_F(SnapshotsTest, AWrappedMaterialIsTakenAsItIs)
{
    const TestMaterial red = scene.addMaterial("Red");
    const TestNode left = scene.addGeometry("Left", red);
    const TestNode right = scene.addGeometry("Right", red);
    capture("Summer");
    qxMaterialVariant *variant = qxVariants::createMaterialVariant(red.material(), false);
    variant->add(scene.addMaterial("Blue"), "");
    variant->onSelect("Blue");
    capture("Winter");

    EXPECT_EQ(materialOf(left), "Red Switch");
    EXPECT_EQ(materialOf(right), "Red Switch");
    expectShown("Summer", {left, right}, {"Red", "Red"});
    expectShown("Winter", {left, right}, {"Blue", "Blue"});
}

TEST_F(SnapshotsTest, ASwitchMaterialIsDuplicatedWhenOthersWouldChangeAlong)
{
    const TestNode left = scene.addGeometry("Left", scene.addMaterial("Red"));
    const TestMaterial paints = scene.addSwitchMaterial("Paints", {"Blue", "Green"});
    const TestNode right = scene.addGeometry("Right", paints);
    capture("Summer"); // left red, right blue
    qxVariants::createVariantSet("By hand", false, nullptr)->addMaterialVariant("Paints", "Green");
    paint(left, paints);
    capture("Winter");

    EXPECT_EQ(materialOf(right), "Paints");
    EXPECT_EQ(materialOf(left), "Paints 2");
    EXPECT_EQ(heldOn(left), (Names{"Blue", "Green", "Red"}));
    EXPECT_EQ(snapshot("Summer", "Left"), "Paints 2");
    EXPECT_EQ(snapshot("Summer", "Right"), "Paints");
    select("By hand"); // goes on driving both
    EXPECT_EQ(shownOn({left, right}), (Names{"Green", "Green"}));
    expectShown("Summer", {left, right}, {"Red", "Blue"});
    expectShown("Winter", {left, right}, {"Blue", "Blue"});
}

TEST_F(SnapshotsTest, ASwitchMaterialIsDuplicatedWhenItIsSharedBeyondTheRoots)
{
    const TestMaterial red = scene.addMaterial("Red");
    const TestNode car = scene.add("Car");
    const TestNode inside = scene.addGeometry("Inside", red, car);
    const TestNode outside = scene.addGeometry("Outside", scene.addMaterial("Grey"));
    capture("Summer", {car.node()});
    const TestMaterial paints = scene.addSwitchMaterial("Paints", {"Blue", "Green"});
    for (const TestNode &node : {inside, outside})
        paint(node, paints);
    capture("Winter", {car.node()});

    EXPECT_EQ(materialOf(inside), "Paints 2");
    EXPECT_EQ(materialOf(outside), "Paints");
    choose(outside, "Green");
    expectShown("Summer", {inside, outside}, {"Red", "Green"});
}

TEST_F(SnapshotsTest, NodesThatTheRunDoesNotComeToComeAlongWhenTheyNeedTheSame)
{
    const TestMaterial red = scene.addMaterial("Red");
    const TestNode shown = scene.addGeometry("Shown", red);
    const TestNode hidden = scene.addGeometry("Hidden", red);
    capture("Summer");
    const TestMaterial paints = scene.addSwitchMaterial("Paints", {"Blue"});
    for (const TestNode &node : {shown, hidden})
        paint(node, paints);
    hidden.setMask(0);
    capture("Winter");

    EXPECT_EQ(materialOf(shown), "Paints");
    hidden.setMask(0xFFFFFFFF);
    expectShown("Summer", {shown, hidden}, {"Red", "Red"});
    capture("Autumn");
    EXPECT_EQ(snapshot("Summer", "Hidden"), "Paints");
    EXPECT_EQ(materialOf(hidden), "Paints");
}

TEST_F(SnapshotsTest, ASwitchMaterialInsideOfAnotherOneIsNotPutToAnotherUse)
{
    const TestNode body =
        scene.addGeometry("Body", scene.addSwitchMaterial("Paints", {"Red", "Blue"}));
    capture("Summer");
    paint(body, scene.addMaterial("Green"));
    const TestNode other = scene.addGeometry("Other", scene.addSwitchMaterial("All", {"Paints"}));
    capture("Winter");

    EXPECT_EQ(materialOf(body), "Paints 2");
    EXPECT_EQ(shownOn({body, other}), (Names{"Green", "Red"}));
    expectShown("Summer", {body}, {"Red"});
}

TEST_F(SnapshotsTest, AMaterialTakenOutOfASwitchMaterialLeavesTheOthersToIt)
{
    const TestMaterial red = scene.addMaterial("Red");
    const TestNode left = scene.addGeometry("Left", red);
    const TestNode right = scene.addGeometry("Right", red);
    capture("1");
    for (const TestNode &node : {left, right})
        paint(node,
              qxMaterials::findMaterial("Blue") != osg::NullFC
                  ? qxMaterials::findMaterial("Blue")
                  : scene.addMaterial("Blue").material());
    capture("2"); // both share "Red Switch"
    paint(left, scene.addMaterial("Green"));
    capture("3");

    EXPECT_EQ(materialOf(right), "Red Switch");
    EXPECT_EQ(materialOf(left), "Red Switch 2");
    expectShown("1", {left, right}, {"Red", "Red"});
    expectShown("3", {left, right}, {"Green", "Blue"});
    expectShown("2", {left, right}, {"Blue", "Blue"});
}

TEST_F(SnapshotsTest, ClonesFollowTheFirstOfThem)
{
    const TestNode body = scene.addGeometry("Body", scene.addMaterial("Red"));
    const TestNode clone = scene.addClone(body, scene.add("Trailer"));
    const TestNode group = scene.addMaterialGroup("Group", scene.addMaterial("Red"));
    scene.addClone(group, scene.add("Second Trailer"));
    capture("Summer");
    paint(body, scene.addMaterial("Blue"));
    paint(group, qxMaterials::findMaterial("Blue"));
    capture("Winter");

    EXPECT_EQ(snapshot("Summer", "Body"), "Red Switch");
    EXPECT_EQ(snapshot("Summer", "Trailer/Body"), "(none)");
    EXPECT_EQ(snapshot("Summer", "Second Trailer/Group"), "Red"); // a clone is left alone
    expectShown("Summer", {body, clone, group}, {"Red", "Red", "Red"});
}

TEST_F(SnapshotsTest, OfNodesWithOnePathTheFirstOneCounts)
{
    const TestNode first = scene.addGeometry("Twin", scene.addMaterial("Red"));
    const TestNode second = scene.addGeometry("Twin", scene.addMaterial("Green"));
    capture("Summer");
    paint(first, scene.addMaterial("Blue"));
    paint(second, scene.addMaterial("Grey"));
    capture("Winter");
    EXPECT_EQ(heldOn(first), (Names{"Red", "Blue"}));
    EXPECT_EQ(materialOf(second), materialOf(first));
    EXPECT_EQ(qxVariants::_materialVariants.size(), 1u);
}

TEST_F(SnapshotsTest, WhatSetsSawThatIsGoneByNowIsSkipped)
{
    const TestNode body = scene.addGeometry("Body", scene.addMaterial("Red"));
    qxVariants::createVariantSet("Gone", false, nullptr)->addMaterialSnapshot("Body", "Rust");
    qxVariantSet *lost = qxVariants::createVariantSet("Lost", false, nullptr);
    lost->addMaterialSnapshot("Body", "Paints"); // but no state in it
    qxVariants::createVariantSet("Unnamed", false, nullptr)->addMaterialSnapshot("Body", "");
    scene.addSwitchMaterial("Paints", {"Blue"});
    capture("Winter");

    EXPECT_EQ(materialOf(body), "Red");
    EXPECT_EQ(snapshot("Gone", "Body"), "Rust");
    EXPECT_EQ(snapshot("Lost", "Body"), "Paints");
    EXPECT_TRUE(qxVariants::_materialVariants.empty());
    EXPECT_TRUE(heard("MaterialGetUniqueName").empty());
}

TEST_F(SnapshotsTest, UnnamedMaterialsGetANameToBeFoundAgain)
{
    const TestNode left = scene.addGeometry("Left", scene.addMaterial(""));
    const TestNode right = scene.addGeometry("Right", scene.addMaterial(""));
    scene.addMaterial("Material 2");
    capture("Summer");
    EXPECT_EQ(snapshot("Summer", "Left"), "Material");
    EXPECT_EQ(snapshot("Summer", "Right"), "Material 3");
    paint(left, scene.addMaterial("Red"));
    capture("Winter");
    expectShown("Summer", {left, right}, {"Material", "Material 3"});
}

TEST_F(SnapshotsTest, AStateThatIsAnActionIsKeptAsItIs)
{
    const TestMaterial paints = scene.addSwitchMaterial("Paints", {"Red", "Blue"});
    const TestNode left = scene.addGeometry("Left", paints);
    const TestNode right = scene.addGeometry("Right", paints);
    capture("Summer")->addMaterialVariant("Paints", "!Next (Loop)");
    paint(left, scene.addMaterial("Green"));
    capture("Winter");

    EXPECT_EQ(heldOn(left), (Names{"Red", "Blue", "Green"}));
    EXPECT_EQ(state("Summer", "Paints 2"), "!Next (Loop)");
    expectShown("Summer", {left, right}, {"Red", "Blue"});
}

TEST_F(SnapshotsTest, OtherModulesHearOnceThatMaterialsChanged)
{
    const TestNode left = scene.addGeometry("Left", scene.addMaterial("Red"));
    const TestNode right = scene.addGeometry("Right", scene.addMaterial("Green"));
    const int before = materialMessages;
    capture("Summer");
    EXPECT_EQ(materialMessages, before);
    paint(left, scene.addMaterial("Blue"));
    paint(right, scene.addMaterial("Grey"));
    capture("Winter");
    EXPECT_EQ(materialMessages, before + 1);
}

TEST_F(SnapshotsTest, RestoringReconcilesTheSceneAndLeavesNoSetBehind)
{
    const TestNode body = scene.addGeometry("Body", scene.addMaterial("Red"));
    const TestNode other = scene.addGeometry("Other", scene.addSwitchMaterial("Paints", {"Grey"}));
    const TestNode hidden = scene.addGeometry("Hidden", scene.addMaterial("Red"));
    const TestNode dome =
        scene.addGeometry("Dome", scene.addEnvironmentMaterial("Sky"),
                          scene.addEnvironments("Environments", {"Day"}).child(0));
    qxVariants::createVariantSet("Temp", false, nullptr)->comment = "the user's";
    capture("Summer")->addMaterialSnapshot("Environments/Day/Dome", "Sky");
    qxVariants::clearMaterialVariants();
    for (const TestNode &node : {body, hidden})
        paint(node, scene.addMaterial("Blue"));
    paint(dome, scene.addEnvironmentMaterial("Clouds"));
    hidden.setMask(0);
    notifications.clear();
    qxVariants::restoreSwitchNodes();

    EXPECT_EQ(heldOn(body), (Names{"Red", "Blue"}));
    EXPECT_EQ(shownOn({body, dome}), (Names{"Blue", "Clouds"}));
    EXPECT_EQ(materialOf(hidden), "Blue");
    EXPECT_EQ(materialOf(other), "Paints"); // nothing to reconcile there
    EXPECT_EQ(qxVariants::findMaterialVariant("Paints"), nullptr);
    EXPECT_EQ(notifications.names().front(), "variantSetAdded");
    EXPECT_EQ(notifications.names().back(), "variantSetRemoved");
    EXPECT_EQ(heard("materialVariantAdded").size(), 2u);
    EXPECT_EQ(qxVariants::_variantSets.size(), 2u);
    EXPECT_EQ(qxVariants::findVariantSet("Temp")->comment, "the user's");
    expectShown("Summer", {body, dome}, {"Red", "Sky"});
}

TEST_F(SnapshotsTest, ASetThatAListenerRemovesInBetweenDoesNoHarm)
{
    const TestNode left = scene.addGeometry("Left", scene.addMaterial("Red"));
    const TestNode right = scene.addGeometry("Right", scene.addMaterial("Green"));
    capture("Summer");
    for (const TestNode &node : {left, right})
        paint(node, scene.addMaterial("Blue " + node.name()));
    const int listener = qxController::addListener([](const char *name, qxMessage *, int) {
        if (std::string(name) == "materialVariantAdded")
            qxVariants::clearAll(*std::make_unique<qxMessage>());
    });
    qxVariants::restoreSwitchNodes();
    qxController::removeListener(listener);
    EXPECT_TRUE(qxVariants::_variantSets.empty());
    EXPECT_EQ(shownOn({left, right}), (Names{"Blue Left", "Blue Right"}));
}

} // namespace
