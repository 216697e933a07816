#include "qxVariantGroup.h"
#include "qxVariantSet.h"

#include "Cameras/qxMainView.h"
#include "CaptureFixture.h"
#include "qxLights.h"
#include "qxMaterials.h"
#include "qxScenegraph.h"
#include "qxUberCameraPool.h"

#include <OpenSG/OSGComponentTransform.h>
#include <OpenSG/OSGMultiPassMaterial.h>
#include <OpenSG/OSGSimpleAttachments.h>
#include <OpenSG/OSGSwitchMaterial.h>

#include <QImage>

namespace {

enum Flag {
    Nodes = 1,
    Materials = 2,
    Lights = 4,
    Environments = 8,
    Viewpoint = 16,
    Transforms = 32
};
const int Everything = 63;

class CaptureTest : public CaptureFixture {
protected:
    CaptureTest() : set(qxVariants::createVariantSet("Sport", false, nullptr)) {}

    void capture(int flags = Everything) { captureFrom({scene.root().node()}, flags); }

    void captureFrom(const std::vector<qxNodePtr> &roots, int flags)
    {
        qxVariants::captureVariantsFromRootNodes(set, roots, flags & Nodes, flags & Materials,
                                                 flags & Lights, flags & Environments,
                                                 flags & Viewpoint, flags & Transforms, true, true);
    }

    static Names texts(const qxStateList &states)
    {
        Names names;
        for (const qxVariantState &state : states)
            names.push_back((state.variant + "=" + state.state).toStdString());
        return names;
    }

    Names snapshot() const
    {
        Names names;
        for (auto each = set->materialSnapshots.begin(); each != set->materialSnapshots.end();
             ++each)
            names.push_back((each.key() + "=" + each.value()).toStdString());
        return names;
    }

    static TestMaterial named(const osg::MaterialPtr &material, const char *name)
    {
        osg::setName(material, name);
        return material;
    }

    qxVariantSet *const set;
};

/// A switch with that choice and mask, and the state that is captured; empty for none.
struct SwitchCase {
    int choice;
    osg::UInt32 mask;
    const char *state;
};

class SwitchCaptureTest : public CaptureTest, public testing::WithParamInterface<SwitchCase> {};

TEST_P(SwitchCaptureTest, ASwitchIsCapturedAsItStands)
{
    scene.addSwitch("Wheels", {"Steel", "Alloy"})
        .choose(GetParam().choice)
        .setMask(GetParam().mask);
    captureFrom({scene.root().child(0).node()}, Environments);
    EXPECT_EQ(texts(set->nodeVariants), Names()); // a switch is a node, not an environment
    capture(Nodes);
    const std::string state = GetParam().state;
    EXPECT_EQ(texts(set->nodeVariants), state.empty() ? Names() : Names{"Wheels=" + state});
}

INSTANTIATE_TEST_SUITE_P(
    All, SwitchCaptureTest,
    testing::Values(SwitchCase{0, 0xFFFFFFFF, "Steel"}, SwitchCase{1, 0xFFFFFFFF, "Alloy"},
                    SwitchCase{-1, 0xFFFFFFFF, "!None"}, SwitchCase{-2, 0xFFFFFFFF, "!None"},
                    SwitchCase{2, 0xFFFFFFFF, ""}, SwitchCase{99, 0xFFFFFFFF, ""},
                    SwitchCase{1, 0, "!Disable"}, SwitchCase{1, 7, "!Disable"},
                    // what is hidden is recorded as hidden, whatever its choice
                    SwitchCase{-1, 0, "!Disable"}, SwitchCase{99, 0, "!Disable"}));

TEST_F(CaptureTest, HiddenNodesAreRecordedAndNothingBelowThem)
{
    const TestNode car = scene.add("Car");
    const TestNode hood = scene.add("Hood", car);
    scene.addLight("Lamp", hood);
    scene.addSwitch("Badge", {"Gold"}, hood).choose(0);
    hood.setMask(0);
    scene.addGeometry("Door", scene.addMaterial("Paint"), car).setMask(0);
    capture();
    EXPECT_EQ(texts(set->nodeVariants), (Names{"Hood=!Disable", "Door=!Disable"}));
    EXPECT_EQ(texts(set->lightVariants), Names());
    EXPECT_EQ(snapshot(), Names());
    EXPECT_EQ(set->script, "");
    capture(Everything & ~Nodes);
    EXPECT_EQ(texts(set->nodeVariants), Names());
    EXPECT_EQ(texts(set->lightVariants), Names());
}

TEST_F(CaptureTest, AHiddenNodeWithAnActiveNamesakeIsHiddenByTheScript)
{
    const TestNode left = scene.add("Left");
    scene.add("Seat \"GT\"", left).setMask(0);
    scene.add("Seat \"GT\"", scene.add("Right"));
    scene.add("Mat", left).setMask(0);
    scene.add("Mat", left).setMask(0); // no active one: both are meant
    scene.add("a\\b", left).setMask(0);
    scene.add("a\\b", scene.root());
    capture();
    EXPECT_EQ(set->script,
              "findNodePath(\"Left/Seat \\\"GT\\\"\").setActive(false)\n"
              "findNodePath(\"Left/a\\\\b\").setActive(false)");
    EXPECT_EQ(texts(set->nodeVariants), Names{"Mat=!Disable"});
}

TEST_F(CaptureTest, MaterialGroupsWriteTheirIgnoreFlagAndTheirMaterial)
{
    const TestNode group = scene.addMaterialGroup("Body", scene.addMaterial("Paint"));
    scene.addMaterialGroup("Frame", osg::NullFC, group);
    scene.addMaterialGroup("Lost", scene.addMaterial("Rust"), group).setMask(0);
    qxMaterials::setIgnoreMaterialGroup(group, true);
    capture(Materials);
    EXPECT_EQ(set->script,
              "setIgnoreMaterialGroup(\"Body\",true)\n"
              "setIgnoreMaterialGroup(\"Body/Frame\",false)");
    EXPECT_EQ(snapshot(), Names{"Body=Paint"});
    capture(Everything & ~Materials);
    EXPECT_EQ(snapshot(), Names());
    EXPECT_EQ(set->script, "");
    EXPECT_EQ(texts(set->nodeVariants), Names{"Lost=!Disable"});
}

TEST_F(CaptureTest, TheFirstNodeOfAPathDecidesItsMaterial)
{
    const TestMaterial red = scene.addMaterial("Red");
    scene.addGeometry("Door", red);
    const TestNode second = scene.addGeometry("Door", scene.addMaterial("Blue"));
    capture(Materials);
    EXPECT_EQ(snapshot(), Names{"Door=Red"});
    EXPECT_EQ(qxNodeUtils::getMaterial(second), red.material());
}

TEST_F(CaptureTest, ClonesOfAGeometryCountOnce)
{
    const TestMaterial paints = scene.addSwitchMaterial("Paints", {"Red", "Blue"}).choose(1);
    const TestNode left = scene.add("Left");
    const TestNode door = scene.addGeometry("Door", paints, left);
    scene.addClone(door).setMask(0); // not even its hiding is seen
    capture();
    EXPECT_EQ(snapshot(), Names{"Left/Door=Paints"});
    EXPECT_EQ(texts(set->materialVariants), Names{"Paints=Blue"});
    EXPECT_EQ(texts(set->nodeVariants), Names());
    EXPECT_TRUE(qxVariants::_clonedGeoms.empty());
}

TEST_F(CaptureTest, NestedSwitchMaterialsAreCapturedAlongTheChosenOnes)
{
    scene.addSwitchMaterial("Matt", {"Chalk", "Slate"}).choose(1);
    scene.addSwitchMaterial("Gloss", {"Piano", "Pearl"}).choose(1);
    const TestMaterial paints = scene.addSwitchMaterial("Paints", {"Matt", "Gloss"}).choose(1);
    scene.addGeometry("Body", paints);
    capture();
    EXPECT_EQ(texts(set->materialVariants), (Names{"Paints=Gloss", "Gloss=Pearl"}));
    paints.choose(7); // out of range: nothing is shown, the variant's own default is meant
    capture();
    EXPECT_EQ(texts(set->materialVariants).size(), 1u);
}

TEST_F(CaptureTest, EveryPassOfAMaterialIsCaptured)
{
    const osg::MultiPassMaterialPtr inner = osg::MultiPassMaterial::create();
    inner->addMaterial(scene.addSwitchMaterial("Flakes", {"Fine", "Coarse"}).choose(1));
    const osg::MultiPassMaterialPtr outer = osg::MultiPassMaterial::create();
    outer->addMaterial(scene.addMaterial("Primer"));
    outer->addMaterial(scene.addSwitchMaterial("Coat", {"Red", "Blue"}));
    outer->addMaterial(inner);
    scene.addGeometry("Body", named(outer, "Layers"));
    scene.addGeometry("Bare", named(osg::MultiPassMaterial::create(), "None"));
    capture();
    EXPECT_EQ(texts(set->materialVariants), (Names{"Coat=Red", "Flakes=Coarse"}));
    EXPECT_EQ(snapshot(), (Names{"Bare=None", "Body=Layers"}));
}

TEST_F(CaptureTest, LightsAreOnOrOff)
{
    scene.addLight("On");
    qxLights::setOn(scene.addLight("Off"), false);
    scene.addLight("Hidden").setMask(0);
    capture(Lights);
    EXPECT_EQ(texts(set->lightVariants), (Names{"On=!Enable", "Off=!Disable", "Hidden=!Disable"}));
    EXPECT_EQ(texts(set->nodeVariants), Names());
    capture(Lights | Nodes);
    EXPECT_EQ(texts(set->nodeVariants), Names{"Hidden=!Disable"});
    capture(Everything & ~Lights);
    EXPECT_EQ(texts(set->lightVariants), Names());
}

TEST_F(CaptureTest, TransformsAreCapturedWhileTheyStandInTheirState)
{
    const TestNode lid = scene.addPoses("Lid", {"Closed", "Open"});
    scene.addPoses("Other", {});
    capture(Transforms);
    EXPECT_EQ(texts(set->transformVariants), Names{"Lid=Closed"});
    capture(Everything & ~Transforms);
    EXPECT_EQ(texts(set->transformVariants), Names());

    const auto transform = osg::ComponentTransformPtr::dcast(lid.core());
    {
        const osg::CPEditor edit(transform, osg::ComponentTransform::TranslationFieldMask);
        transform->setTranslation(osg::Vec3f(0, 3, 0));
    }
    capture(Transforms);
    EXPECT_EQ(texts(set->transformVariants), Names());
}

TEST_F(CaptureTest, TheViewpointIsCalledLikeTheSet)
{
    capture(Viewpoint);
    EXPECT_TRUE(set->viewpoints.empty()); // the view shows nothing yet
    scene.addViewpoint("Sport");
    qxMainView::the().camera.fieldOfView = 0.5f;
    qxMainView::the().camera.toWorld.setTranslate(1, 2, 3);
    capture(Viewpoint);
    EXPECT_EQ(set->viewpoints.list(), QStringList{"Sport 2"}); // another one has its name
    EXPECT_EQ(set->defaultViewpoint, "Sport 2");
    const qxUberCamera *const stored = qxUberCameraPool::the()->get(1);
    EXPECT_EQ(stored->toWorld, qxMainView::the().camera.toWorld);
    qxVariants::captureVariantsFromRootNodes(set, {}, false, false, false, false, true, false, true,
                                             false);
    EXPECT_EQ(set->viewpoints.list(), QStringList{"Sport View"});
    capture(Everything & ~Viewpoint);
    EXPECT_TRUE(set->viewpoints.empty());
    EXPECT_EQ(set->defaultViewpoint, "");
}

TEST_F(CaptureTest, TheSetRemembersItsRootsAndWhatItIncludes)
{
    const TestNode car = scene.add("Car");
    scene.addSwitch("Wheels", {"Steel"}, car).choose(0);
    scene.addSwitch("Elsewhere", {"Steel"}).choose(0);
    captureFrom({car.node(), osg::NullFC, car.node()}, Nodes | Lights | Transforms);
    EXPECT_EQ(texts(set->nodeVariants), Names{"Wheels=Steel"});
    EXPECT_EQ(set->targetNodeNames.list(), (QStringList{"Car", ""}));
    bool nodes, mats, lights, env, view;
    set->getInclInfo(nodes, mats, lights, env, view);
    EXPECT_TRUE(nodes && lights);
    EXPECT_FALSE(mats || env || view);
}

TEST_F(CaptureTest, ASecondCaptureReplacesTheFirstAndReusesItsVariants)
{
    const TestNode wheels = scene.addSwitch("Wheels", {"Steel", "Alloy"}).choose(0);
    scene.addLight("Lamp");
    capture();
    set->comment = "gone with the next capture";
    wheels.choose(1);
    notifications.clear();
    capture(Nodes);
    EXPECT_EQ(texts(set->nodeVariants), Names{"Wheels=Alloy"});
    EXPECT_EQ(texts(set->lightVariants), Names());
    EXPECT_EQ(set->comment, "");
    EXPECT_EQ(qxVariants::_nodeVariants.size(), 1u);
    EXPECT_EQ(heard("nodeVariantAdded").size(), 0u);
}

TEST_F(CaptureTest, NewVariantsAreAnnouncedOnlyWhenAskedFor)
{
    scene.addSwitch("Wheels", {"Steel"}).choose(0);
    qxVariants::captureVariantsFromRootNodes(set, {scene.root().node()}, true, true, true, true,
                                             true, true, false, true);
    EXPECT_EQ(heard("nodeVariantAdded").size(), 0u);
    qxVariants::removeNodeVariant("Wheels");
    capture();
    EXPECT_EQ(heard("nodeVariantAdded").size(), 1u);
}

/// A scene with all kinds, inside and outside of its environment.
class EnvironmentCaptureTest : public CaptureTest {
protected:
    EnvironmentCaptureTest()
    {
        const TestNode sky = scene.addEnvironments("Sky", {"Day", "Night"}).choose(0);
        const TestMaterial blue = scene.addEnvironmentMaterial("Blue");
        scene.addSwitchMaterial("Domes", {"Blue", "Grey"});
        scene.addGeometry("Dome", qxMaterials::findMaterial("Domes"), sky.child(0));
        scene.addGeometry("Floor", blue, sky.child(0));
        scene.addSwitch("Wheels", {"Steel"}).choose(0);
        scene.addGeometry("Body", scene.addSwitchMaterial("Paints", {"Red"}));
        scene.addGeometry("Window", blue);
        scene.add("Hidden").setMask(0);
        scene.addLight("Lamp");
        scene.addPoses("Lid", {"Closed"});
    }
};

TEST_F(EnvironmentCaptureTest, TheEnvironmentAloneIsCaptured)
{
    capture(Environments);
    EXPECT_EQ(texts(set->nodeVariants), Names{"Sky=Day"});
    EXPECT_EQ(texts(set->materialVariants), Names{"Domes=Blue"});
    EXPECT_EQ(texts(set->lightVariants), Names());
    EXPECT_EQ(texts(set->transformVariants), Names());
    EXPECT_EQ(snapshot(), (Names{"Sky/Day/Floor=Blue", "Window=Blue"}));
}

TEST_F(EnvironmentCaptureTest, AllButTheEnvironmentIsCaptured)
{
    capture(Everything & ~Environments);
    EXPECT_EQ(texts(set->nodeVariants), (Names{"Wheels=Steel", "Hidden=!Disable"}));
    EXPECT_EQ(texts(set->materialVariants), Names{"Paints=Red"});
    EXPECT_EQ(snapshot(), Names{"Body=Paints"});
}

TEST_F(CaptureTest, AMissingSetIsIgnored)
{
    qxVariants::captureVariantsFromRootNodes(nullptr, {}, true, true, true, true, true, true, true,
                                             true);
    EXPECT_TRUE(qxVariants::_nodeVariants.empty());
}

TEST_F(CaptureTest, ScriptLinesAreJoinedByLineBreaks)
{
    set->appendToScript("one");
    set->appendToScript("");
    set->appendToScript("two");
    EXPECT_EQ(set->script, "one\n\ntwo");
}

/// The group and the set asked for and those that stand in the registry afterwards.
struct NewSetCase {
    const char *group;
    const char *groupMade;
    bool visible;
    std::size_t groupsAnnounced;
};

class NewSetTest : public CaptureFixture, public testing::WithParamInterface<NewSetCase> {};

TEST_P(NewSetTest, ANewSetIsMadeInItsGroup)
{
    scene.addSwitch("Wheels", {"Steel"}).choose(0);
    qxVariants::createAndCaptureVariantSet("Sport", GetParam().group);
    qxVariants::createAndCaptureVariantSet("Sport", GetParam().group);
    ASSERT_EQ(qxVariants::_variantGroups.size(), 1u);
    const qxVariantGroup *const group = qxVariants::_variantGroups[0];
    EXPECT_EQ(QString(group->name), GetParam().groupMade);
    EXPECT_EQ(group->visible, GetParam().visible);
    EXPECT_EQ(heard("variantGroupAdded").size(), GetParam().groupsAnnounced);
    EXPECT_EQ(heard("variantSetAdded").size(), 2u);
    ASSERT_EQ(group->sets.size(), 2u);
    EXPECT_EQ(QString(group->sets[1]->name), "Sport 2");
    EXPECT_EQ(group->sets[1]->nodeVariants.size(), 1u);
    EXPECT_EQ(group->sets[1]->targetNodeNames.list(), QStringList{"Root"});
    EXPECT_EQ(QImage::fromData(group->sets[1]->getPreview()).size(), QSize(264, 256));
}

INSTANTIATE_TEST_SUITE_P(All, NewSetTest,
                         testing::Values(NewSetCase{"Cars", "Cars", true, 1},
                                         NewSetCase{"", "New Group 1", true, 1},
                                         NewSetCase{nullptr, "New Group 1", true, 1},
                                         NewSetCase{"Render Queue", "Render Queue", false, 0}));

} // namespace
