#include "qxMaterialVariant.h"

#include "SwitchesFixture.h"

#include <OpenSG/OSGMultiPassMaterial.h>
#include <OpenSG/OSGSimpleAttachments.h>

typedef SwitchesFixture SnapshotsTest;

TEST_F(SnapshotsTest, MaterialGroupsHaveTheStatesOfTheirSwitchMaterialsCaptured)
{
    scene.addSwitchMaterial("Inner", {"Silk", "Satin"}).choose(1);
    const TestMaterial outer = scene.addSwitchMaterial("Outer", {"Inner", "Raw"});
    const osg::MultiPassMaterialPtr passes = osg::MultiPassMaterial::create();
    osg::setName(passes, "Passes");
    passes->addMaterial(scene.addSwitchMaterial("Lacquers", {"Matt", "Gloss"}));
    qxScenegraph::getMaterialPool()->add(osg::MaterialPtr(passes));
    const TestNode body = scene.addMaterialGroup("Body", outer);
    const TestNode layers = scene.addMaterialGroup("Layers", passes);
    capture("Only");
    EXPECT_EQ(state("Only", "Outer"), "Inner");
    EXPECT_EQ(state("Only", "Inner"), "Satin");
    EXPECT_EQ(state("Only", "Lacquers"), "Matt");
    choose(body, "Raw");
    expectShown("Only", {body}, {"Satin"});
    capture("Bare", {layers}, "Bare"); // the passes stand in a switch material from now on
    select("Only");
    TestMaterial(scene.material("Lacquers")).choose(1);
    capture("Glossy");
    EXPECT_EQ(state("Glossy", "Passes Switch"), "Passes");
    EXPECT_EQ(state("Glossy", "Lacquers"), "Gloss");
}

TEST_F(SnapshotsTest, NodesWithTheSameChangeShareOneSwitchMaterialAndOtherModulesHearOnce)
{
    const Nodes bodies{addBody("A", "Red"), addBody("B", "Red"), addBody("C", "Red")};
    const TestNode other = addBody("Other", "Red");
    capture("Summer");
    EXPECT_TRUE(moduleMessages.empty());
    capture("Winter", bodies, "Blue");
    EXPECT_EQ(moduleMessages, std::vector<unsigned int>({0x10000}));
    for (const TestNode &body : bodies)
        EXPECT_EQ(materialOf(body), "Red Switch");
    EXPECT_EQ(materialOf(other), "Red");
    capture("Autumn", bodies, "Green"); // the switch material that nobody shows takes it in
    for (const TestNode &body : bodies)
        EXPECT_EQ(heldOn(body), (Names{"Red", "Blue", "Green"}));
    EXPECT_EQ(qxVariants::_materialVariants.size(), 1u);
}

TEST_F(SnapshotsTest, NamesOfNewSwitchMaterialsComeFromTheHost)
{
    scene.addSwitchMaterial("Red Switch", {"Other"});
    qxVariants::createMaterialVariant(QString("Red Switch 2"), false); // its material is gone
    const TestNode body = addBody("Body", "Red");
    capture("Summer");
    capture("Winter", {body}, "Blue");
    EXPECT_EQ(heard("MaterialGetUniqueName").front().keys(), (Names{"Switch", "newname"}));
    EXPECT_EQ(heard("MaterialGetUniqueName").front().field("Switch"), "Red Switch");
    EXPECT_EQ(materialOf(body), "Red Switch 2 2");
    EXPECT_EQ(qxMaterials::findMaterials("Red Switch 2 2").size(), 1u);
}

TEST_F(SnapshotsTest, ASwitchMaterialOfTheUserIsExtendedForAllWhoNeedItAlsoThoseOutsideOfTheRun)
{
    const TestNode shown = addBody("Shown", "Red");
    const TestNode hidden = addBody("Hidden", "Red");
    capture("Summer");
    scene.addSwitchMaterial("Paints", {"Blue", "Green"}).choose(1);
    paint({shown, hidden}, "Paints");
    hidden.setMask(0);
    capture("Winter");
    EXPECT_EQ(materialOf(shown), "Paints");
    EXPECT_EQ(heldOn(shown), (Names{"Blue", "Green", "Red"}));
    EXPECT_NE(qxVariants::findMaterialVariant("Paints")->find("Red"), nullptr);
    EXPECT_EQ(heard("updateMaterials").size(), 1u);
    EXPECT_EQ(snapshot("Summer", "Shown"), "Paints");
    hidden.setMask(0xFFFFFFFF);
    expectShown("Summer", {shown, hidden}, {"Red", "Red"});
    expectShown("Winter", {shown, hidden}, {"Green", "Green"});
    capture("Autumn");
    EXPECT_EQ(snapshot("Summer", "Hidden"), "Paints");
    EXPECT_EQ(materialOf(hidden), "Paints");
}

TEST_F(SnapshotsTest, ASwitchMaterialIsDuplicatedOnceWhenOthersWouldChangeAlong)
{
    const TestNode left = addBody("Left", "Red");
    const TestNode middle = addBody("Middle", "Red");
    scene.addSwitchMaterial("Paints", {"Blue", "Green"});
    const TestNode right = addBody("Right", "Paints");
    capture("Summer"); // red, red, blue
    qxVariants::createVariantSet("By hand", false, nullptr)->addMaterialVariant("Paints", "Green");
    capture("Winter", {left, middle}, "Paints");
    EXPECT_EQ(materialOf(right), "Paints");
    EXPECT_EQ(materialOf(left), "Paints 2");
    EXPECT_EQ(materialOf(middle), "Paints 2");
    expectShown("By hand", {left, right}, {"Green", "Green"}); // goes on driving all
    expectShown("Summer", {left, middle, right}, {"Red", "Red", "Blue"});
    expectShown("Winter", {left, middle, right}, {"Blue", "Blue", "Blue"});
}

TEST_F(SnapshotsTest, ASwitchMaterialIsDuplicatedWhenANodeThatNoSetSawHasItToo)
{
    const TestNode body = addBody("Body", "Red");
    capture("Summer");
    scene.addSwitchMaterial("Paints", {"Blue", "Green"});
    paint({body}, "Paints");
    const TestNode added = addBody("Added", "Paints");
    capture("Winter");
    EXPECT_EQ(materialOf(body), "Paints 2");
    choose(added, "Green");
    expectShown("Summer", {body, added}, {"Red", "Green"});
}

TEST_F(SnapshotsTest, ASwitchMaterialThatOthersShowIsLeftToThemWhenASetWantsMoreOfIt)
{
    for (const bool choosesInIt : {false, true}) {
        SCOPED_TRACE(choosesInIt);
        host.clearScene();
        const TestNode left = addBody("Left", "Red");
        const TestNode right = addBody("Right", "Red");
        capture("1");
        capture("2", {left, right}, "Blue"); // both share "Red Switch"
        paint({left}, "Blue");
        scene.addMaterial("Grey");
        qxVariantSet *const third = qxVariants::createVariantSet("3", false, nullptr);
        third->addMaterialSnapshot("Left", "Grey");
        if (choosesInIt)
            third->addMaterialVariant("Red Switch", "Red");
        capture("4");
        EXPECT_EQ(materialOf(left), "Red Switch 2");
        expectShown("1", {left, right}, {"Red", "Red"});
        expectShown("3", {left, right}, {"Grey", "Red"});
        expectShown("2", {left, right}, {"Blue", "Blue"});
    }
}

TEST_F(SnapshotsTest, ASwitchMaterialInsideOfAnotherOneIsNotPutToAnotherUse)
{
    scene.addSwitchMaterial("Paints", {"Red", "Blue"});
    scene.addSwitchMaterial("Lacquers", {"Gold"});
    const TestNode body = addBody("Body", "Paints");
    const TestNode trim = addBody("Trim", "Silver");
    capture("Summer");
    paint({body}, "Green");
    paint({trim}, "Lacquers");
    scene.addSwitchMaterial("All", {"Paints"});
    scene.addSwitchMaterial("Metals", {"Lacquers"});
    const Nodes others{addBody("Other", "All"), addBody("Another", "Metals")};
    capture("Winter");
    EXPECT_EQ(materialOf(body), "Paints 2");
    EXPECT_EQ(materialOf(trim), "Lacquers 2");
    EXPECT_EQ(shownOn({body, trim}), (Names{"Green", "Gold"}));
    expectShown("Summer", {body, trim}, {"Red", "Silver"});
    EXPECT_EQ(shownOn(others), (Names{"Red", "Gold"}));
}

TEST_F(SnapshotsTest, ClonesFollowTheFirstOfThem)
{
    const TestNode body = addBody("Body", "Red");
    const TestNode clone = scene.addClone(body, scene.add("Trailer"));
    const TestNode group = scene.addMaterialGroup("Group", scene.material("Red"));
    scene.addClone(group, scene.add("Second Trailer"));
    capture("Summer");
    capture("Winter", {body, group}, "Blue");
    EXPECT_EQ(snapshot("Summer", "Body"), "Red Switch");
    EXPECT_EQ(snapshot("Summer", "Trailer/Body"), "(none)");
    EXPECT_EQ(snapshot("Summer", "Second Trailer/Group"), "Red"); // a clone is left alone
    expectShown("Summer", {body, clone, group}, {"Red", "Red", "Red"});
}

TEST_F(SnapshotsTest, OfNodesWithOnePathTheFirstOneCounts)
{
    const TestNode first = addBody("Twin", "Red");
    const TestNode second = addBody("Twin", "Red");
    capture("Summer");
    paint({first}, "Blue");
    paint({second}, "Grey");
    qxVariants::restoreSwitchNodes();
    EXPECT_EQ(heldOn(first), (Names{"Red", "Blue"}));
    EXPECT_EQ(materialOf(second), "Grey");
}

TEST_F(SnapshotsTest, WhatSetsSawThatIsGoneByNowIsSkipped)
{
    const TestNode body = addBody("Body", "Red");
    scene.addSwitchMaterial("Paints", {"Blue"});
    for (const char *seen : {"Rust", "Paints", "Red"}) // no state of "Paints" is chosen
        qxVariants::createVariantSet(seen, false, nullptr)->addMaterialSnapshot("Body", seen);
    qxVariants::createVariantSet("Unnamed", false, nullptr)->addMaterialSnapshot("Body", "");
    capture("Winter");
    EXPECT_EQ(materialOf(body), "Red");
    EXPECT_EQ(snapshot("Rust", "Body"), "Rust");
    EXPECT_EQ(snapshot("Paints", "Body"), "Paints");
    EXPECT_TRUE(qxVariants::_materialVariants.empty());
    EXPECT_TRUE(heard("MaterialGetUniqueName").empty());
    EXPECT_TRUE(moduleMessages.empty());
}

TEST_F(SnapshotsTest, UnnamedMaterialsGetANameToBeFoundAgain)
{
    const TestNode left = scene.addGeometry("Left", scene.addMaterial(""));
    const TestNode right = scene.addGeometry("Right", scene.addSwitchMaterial("", {""}));
    scene.addMaterial("Material 2");
    capture("Summer");
    EXPECT_EQ(snapshot("Summer", "Left"), "Material");
    EXPECT_EQ(snapshot("Summer", "Right"), "Material Switch");
    capture("Winter", {left, right}, "Red");
    expectShown("Summer", {left, right}, {"Material", "Material 3"});
}

TEST_F(SnapshotsTest, AStateThatIsAnActionIsKeptAsItIs)
{
    scene.addSwitchMaterial("Paints", {"Red", "Blue"});
    const TestNode left = addBody("Left", "Paints");
    const TestNode right = addBody("Right", "Paints");
    capture("Summer")->addMaterialVariant("Paints", "!Next (Loop)");
    capture("Winter", {left}, "Green");
    EXPECT_EQ(heldOn(left), (Names{"Red", "Blue", "Green"}));
    EXPECT_EQ(state("Summer", "Paints 2"), "!Next (Loop)");
    expectShown("Summer", {left, right}, {"Red", "Blue"});
}

TEST_F(SnapshotsTest, RestoringReconcilesTheSceneAndLeavesNoSetBehind)
{
    scene.addSwitchMaterial("Paints", {"Grey"});
    scene.addEnvironmentMaterial("Sky");
    scene.addEnvironmentMaterial("Clouds");
    const TestNode body = addBody("Body", "Red");
    const TestNode other = addBody("Other", "Paints");
    const TestNode hidden = addBody("Hidden", "Red");
    const TestNode dome = scene.addGeometry(
        "Dome", scene.material("Sky"), scene.addEnvironments("Environments", {"Day"}).child(0));
    qxVariants::createVariantSet("Temp", false, nullptr)->comment = "the user's";
    capture("Summer")->addMaterialSnapshot("Environments/Day/Dome", "Sky");
    qxVariants::clearMaterialVariants();
    paint({body, hidden}, "Blue");
    paint({dome}, "Clouds");
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
    const TestNode left = addBody("Left", "Red");
    const TestNode right = addBody("Right", "Green");
    capture("Summer");
    paint({left}, "Blue");
    paint({right}, "Grey");
    const int listener = qxController::addListener([](const char *name, qxMessage *, int) {
        if (std::string(name) == "materialVariantAdded")
            qxVariants::clearAll(*std::make_unique<qxMessage>());
    });
    qxVariants::restoreSwitchNodes();
    qxController::removeListener(listener);
    EXPECT_TRUE(qxVariants::_variantSets.empty());
    EXPECT_EQ(shownOn({left, right}), (Names{"Blue", "Grey"}));
}
