#include "qxVariantGroup.h"

#include "Cameras/qxMainView.h"
#include "CaptureFixture.h"
#include "Scene/qxTransformStates.h"
#include "qxLights.h"
#include "qxUberCameraPool.h"

#include <OpenSG/OSGComponentTransform.h>
#include <OpenSG/OSGMultiPassMaterial.h>
#include <OpenSG/OSGSimpleAttachments.h>
#include <OpenSG/OSGSwitchMaterial.h>

enum { Nodes = 1, Materials = 2, Lights = 4, Environments = 8, Viewpoint = 16, Transforms = 32 };
const int Everything = 63;

class CaptureTest : public CaptureFixture {
protected:
    Names capture(int flags = Everything) { return captureFrom({scene.root().node()}, flags); }

    /// Captures, and answers what the set holds then.
    Names captureFrom(const std::vector<qxNodePtr> &roots, int flags, bool notify = true,
                      bool plainViewpointName = true)
    {
        qxVariants::captureVariantsFromRootNodes(
            set, roots, flags & Nodes, flags & Materials, flags & Lights, flags & Environments,
            flags & Viewpoint, flags & Transforms, notify, plainViewpointName);
        return contentsOf(*set);
    }
};

TEST_F(CaptureTest, ASwitchIsCapturedAsItStands)
{
    const TestNode wheels = scene.addSwitch("Wheels", {"Steel", "Alloy"});
    const Names none{"node Wheels=!None"};
    typedef std::pair<int, Names> Row; // a choice and what is captured while the switch is shown
    for (const Row &row : {Row{0, {"node Wheels=Steel"}}, Row{1, {"node Wheels=Alloy"}},
                           Row{-1, none}, Row{-2, none}, Row{2, {}}, Row{99, {}}}) {
        SCOPED_TRACE(row.first);
        wheels.choose(row.first).setMask(0xFFFFFFFF);
        EXPECT_EQ(capture(Nodes), row.second);
        for (const osg::UInt32 mask : {0u, 7u}) { // hidden whatever its choice
            wheels.setMask(mask);
            EXPECT_EQ(capture(Nodes), Names{"node Wheels=!Disable"}) << mask;
        }
    }
    const TestNode sky = scene.addEnvironments("Sky", {"Day"}).setMask(0); // not hidden as a node
    EXPECT_EQ(capture(Environments), Names{"node Sky=!None"});
    sky.choose(0);
    EXPECT_EQ(capture(Environments), Names{"node Sky=!Disable"});
}

TEST_F(CaptureTest, HiddenNodesAreRecordedAndNothingBelowThem)
{
    const TestNode car = scene.add("Car");
    const TestNode hood = scene.add("Hood", car);
    scene.addLight("Lamp", hood);
    scene.addSwitch("Badge", {"Gold"}, hood).choose(0);
    hood.setMask(0);
    scene.addGeometry("Door", scene.addMaterial("Paint"), car).setMask(0);
    EXPECT_EQ(capture(), (Names{"node Hood=!Disable", "node Door=!Disable"}));
    EXPECT_EQ(capture(Everything & ~Nodes), Names());
}

TEST_F(CaptureTest, AHiddenNodeWithAnActiveNamesakeIsHiddenByTheScript)
{
    const TestNode left = scene.add("Left");
    scene.add("Seat \"GT\"", left).setMask(0);
    scene.add("Seat \"GT\"", scene.add("Right"));
    scene.add("Mat", left).setMask(0);
    scene.add("Mat", left).setMask(0); // no active one: both are meant
    scene.add("a\\b\r\n\")", left).setMask(0); // Nothing of a name becomes code.
    scene.add("a\\b\r\n\")", scene.root());
    EXPECT_EQ(capture(),
              (Names{"node Mat=!Disable", "findNodePath(\"Left/Seat \\\"GT\\\"\").setActive(false)",
                     "findNodePath(\"Left/a\\\\b\\r\\n\\\")\").setActive(false)"}));
}

TEST_F(CaptureTest, MaterialGroupsWriteTheirIgnoreFlagAndTheirMaterial)
{
    const TestNode group = scene.addMaterialGroup("Body", scene.addMaterial("Paint"));
    scene.addMaterialGroup("Frame", osg::NullFC, group);
    scene.addMaterialGroup("Lost", scene.addMaterial("Rust"), group).setMask(0);
    qxMaterials::setIgnoreMaterialGroup(group, true);
    EXPECT_EQ(capture(Materials),
              (Names{"Body: Paint", "setIgnoreMaterialGroup(\"Body\",true)",
                     "setIgnoreMaterialGroup(\"Body/Frame\",false)"}));
    EXPECT_EQ(capture(Everything & ~Materials), Names{"node Lost=!Disable"});
}

TEST_F(CaptureTest, ClonesOfAGeometryAndNodesOfOnePathCountOnce)
{
    const TestMaterial paints = scene.addSwitchMaterial("Paints", {"Red", "Blue"}).choose(1);
    const TestNode left = scene.add("Left");
    const TestNode door = scene.addGeometry("Door", paints, left);
    const TestNode second = scene.addGeometry("Door", scene.addMaterial("Green"), left);
    scene.addClone(door).setMask(0); // not even its hiding is seen
    EXPECT_EQ(capture(), (Names{"material Paints=Blue", "Left/Door: Paints"}));
    EXPECT_EQ(qxNodeUtils::getMaterial(second), paints.material());
    EXPECT_TRUE(qxVariants::_clonedGeoms.empty());
    qxVariants::changeMaterial(second, scene.addMaterial("Grey"));
    EXPECT_EQ(captureFrom({second.node(), door.node()}, Materials), // the first one that is met
              (Names{"material Paints=Blue", "Left/Door: Grey"}));
}

TEST_F(CaptureTest, EveryPassOfWhatIsShownIsCaptured)
{
    const osg::MultiPassMaterialPtr inner = osg::MultiPassMaterial::create();
    inner->addMaterial(scene.addSwitchMaterial("Flakes", {"Fine", "Coarse"}).choose(1));
    const osg::MultiPassMaterialPtr outer = osg::MultiPassMaterial::create();
    outer->addMaterial(scene.addMaterial("Primer"));
    outer->addMaterial(scene.addSwitchMaterial("Coat", {"Red", "Blue"}));
    outer->addMaterial(inner);
    const osg::MultiPassMaterialPtr none = osg::MultiPassMaterial::create();
    osg::setName(outer, "Layers");
    osg::setName(none, "None");
    scene.addSwitchMaterial("Matt", {"Chalk", "Slate"}).choose(1);
    const TestMaterial paints = scene.addSwitchMaterial("Paints", {"Matt"});
    osg::SwitchMaterialPtr::dcast(paints.material())->addMaterial(outer);
    scene.addGeometry("Body", paints.choose(1));
    scene.addGeometry("Bare", none);
    EXPECT_EQ(capture(),
              (Names{"material Paints=Layers", "material Coat=Red", "material Flakes=Coarse",
                     "Bare: None", "Body: Paints"}));
    paints.choose(7); // out of range: nothing is shown, the variant's own default is meant
    EXPECT_EQ(capture(), (Names{"material Paints=Layers", "Bare: None", "Body: Paints"}));
    paints.choose(0);
    EXPECT_EQ(capture(),
              (Names{"material Paints=Matt", "material Matt=Slate", "Bare: None", "Body: Paints"}));
}

TEST_F(CaptureTest, LightsAreOnOrOff)
{
    scene.addLight("On");
    qxLights::setOn(scene.addLight("Off"), false);
    scene.addLight("Hidden").setMask(0);
    const Names lights{"light On=!Enable", "light Off=!Disable", "light Hidden=!Disable"};
    EXPECT_EQ(capture(Lights), lights);
    EXPECT_EQ(capture(Lights | Nodes).size(), 4u); // hidden as a node as well
    EXPECT_EQ(capture(Everything & ~Lights), Names{"node Hidden=!Disable"});
}

TEST_F(CaptureTest, TransformsAreCapturedWhileTheyStandInTheirState)
{
    const TestNode lid = scene.addPoses("Lid", {"Closed", "Open"});
    scene.addPoses("Other", {});
    EXPECT_EQ(capture(Transforms), Names{"transform Lid=Closed"});
    EXPECT_EQ(capture(Everything & ~Transforms), Names());
    osg::Matrix elsewhere;
    elsewhere.setTranslate(0, 3, 0);
    qxTransformStates::setPose(osg::ComponentTransformPtr::dcast(lid.core()), elsewhere);
    EXPECT_EQ(capture(Transforms), Names());
}

TEST_F(CaptureTest, TheViewpointIsCalledLikeTheSet)
{
    EXPECT_EQ(capture(Viewpoint), Names()); // the view shows nothing yet
    scene.addViewpoint("Sport");
    qxMainView::the().camera.fieldOfView = 0.5f;
    qxMainView::the().camera.toWorld.setTranslate(1, 2, 3);
    EXPECT_EQ(capture(Viewpoint), Names{"viewpoint Sport 2"}); // another one has its name
    EXPECT_EQ(set->defaultViewpoint, "Sport 2");
    EXPECT_EQ(qxUberCameraPool::the()->get(1)->toWorld, qxMainView::the().camera.toWorld);
    EXPECT_EQ(captureFrom({}, Viewpoint, true, false), Names{"viewpoint Sport View"});
    EXPECT_EQ(capture(Everything & ~Viewpoint), Names());
    EXPECT_EQ(set->defaultViewpoint, "");
}

TEST_F(CaptureTest, TheSetRemembersItsRootsAndWhatItIncludes)
{
    const TestNode car = scene.add("Car");
    scene.addSwitch("Wheels", {"Steel"}, car).choose(0);
    scene.addSwitch("Elsewhere", {"Steel"}).choose(0);
    EXPECT_EQ(captureFrom({car.node(), osg::NullFC, car.node()}, Nodes | Transforms),
              Names{"node Wheels=Steel"});
    EXPECT_EQ(set->targetNodeNames.list(), (QStringList{"Car", ""}));
    for (const int flag : {Nodes, Materials, Lights, Environments, Viewpoint}) {
        capture(flag | Transforms);
        bool nodes, mats, lights, env, view;
        set->getInclInfo(nodes, mats, lights, env, view);
        EXPECT_EQ(nodes * Nodes + mats * Materials + lights * Lights + env * Environments
                      + view * Viewpoint,
                  flag);
    }
}

TEST_F(CaptureTest, ASecondCaptureReplacesTheFirstAndReusesItsVariantsInSilence)
{
    const TestNode wheels = scene.addSwitch("Wheels", {"Steel", "Alloy"}).choose(0);
    scene.addLight("Lamp");
    capture();
    EXPECT_EQ(heard("nodeVariantAdded").size(), 1u);
    set->comment = "gone with the next capture";
    wheels.choose(1);
    notifications.clear();
    EXPECT_EQ(capture(Nodes), Names{"node Wheels=Alloy"});
    EXPECT_EQ(set->comment, "");
    EXPECT_EQ(qxVariants::_nodeVariants.size(), 1u);
    qxVariants::removeNodeVariant("Wheels"); // a new one is announced only when that is asked for
    captureFrom({scene.root().node()}, Everything, false);
    EXPECT_EQ(qxVariants::_nodeVariants.size(), 1u);
    EXPECT_EQ(heard("nodeVariantAdded").size(), 0u);
}

TEST_F(CaptureTest, TheEnvironmentAndTheRestAreCapturedApart)
{
    const TestNode sky = scene.addEnvironments("Sky", {"Day", "Night"}).choose(0);
    const TestMaterial blue = scene.addEnvironmentMaterial("Blue");
    scene.addGeometry("Dome", scene.addSwitchMaterial("Domes", {"Blue", "Grey"}), sky.child(0));
    scene.addGeometry("Floor", blue, sky.child(0));
    scene.addSwitch("Wheels", {"Steel"}).choose(0);
    scene.addGeometry("Body", scene.addSwitchMaterial("Paints", {"Red"}));
    scene.addGeometry("Window", blue);
    scene.addMaterialGroup("Wall", scene.material("Domes"));
    const osg::MultiPassMaterialPtr layers = osg::MultiPassMaterial::create();
    osg::setName(layers, "Layers");
    layers->addMaterial(blue);
    layers->addMaterial(scene.addSwitchMaterial("Grains", {"Fine"}));
    scene.addGeometry("Ceiling", layers);
    scene.add("Hidden").setMask(0);
    scene.addLight("Lamp");
    scene.addPoses("Lid", {"Closed"});
    EXPECT_EQ(capture(Environments),
              (Names{"node Sky=Day", "material Domes=Blue", "Ceiling: Layers",
                     "Sky/Day/Floor: Blue", "Window: Blue"}));
    EXPECT_EQ(capture(Everything & ~Environments),
              (Names{"node Wheels=Steel", "node Hidden=!Disable", "material Paints=Red",
                     "material Grains=Fine", "light Lamp=!Enable", "transform Lid=Closed",
                     "Body: Paints", "Wall: Domes", "setIgnoreMaterialGroup(\"Wall\",false)"}));
    // Also where another set saw something else, and the two are reconciled on the way.
    qxVariants::createVariantSet("Other", false, nullptr)->addMaterialSnapshot("Wall", "Grey");
    EXPECT_EQ(capture(Materials),
              (Names{"material Paints=Red", "material Grains=Fine", "Body: Paints", "Wall: Domes 2",
                     "setIgnoreMaterialGroup(\"Wall\",false)"}));
}

TEST_F(CaptureTest, ANewSetIsMadeInItsGroup)
{
    scene.addSwitch("Wheels", {"Steel"}).choose(0);
    typedef std::pair<const char *, std::string> Row; // the group that is given, the one it is in
    for (const Row &row : {Row{"Cars", "Cars"}, Row{"", "New Group 1"}, Row{nullptr, "New Group 1"},
                           Row{"Render Queue", "Render Queue"}}) {
        SCOPED_TRACE(row.second);
        const bool visible = row.second != "Render Queue";
        qxVariants::clearVariantGroups();
        notifications.clear();
        qxVariants::createAndCaptureVariantSet("New", row.first);
        qxVariants::createAndCaptureVariantSet("New", row.first);
        ASSERT_EQ(qxVariants::_variantGroups.size(), 1u);
        const qxVariantGroup *const group = qxVariants::_variantGroups[0];
        EXPECT_EQ(group->name.toStdString(), row.second);
        EXPECT_EQ(group->visible, visible);
        EXPECT_EQ(heard("variantGroupAdded").size(), visible ? 1u : 0u);
        EXPECT_EQ(heard("variantSetAdded").size(), 2u);
        ASSERT_EQ(group->sets.size(), 2u);
        const qxVariantSet &second = *group->sets[1];
        EXPECT_EQ(QString(second.name), "New 2");
        EXPECT_EQ(contentsOf(second), Names{"node Wheels=Steel"});
        EXPECT_EQ(second.targetNodeNames.list(), QStringList{"Root"});
        qxVariants::clearVariantSets();
    }
}
