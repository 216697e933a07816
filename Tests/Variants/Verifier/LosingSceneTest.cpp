#include "../Registry/OneOfEach.h"
#include "HostFixture.h"
#include "TestFiles.h"
#include "qxOverlays.h"
#include "qxUberCameraPool.h"

#include <OpenSG/OSGSimpleAttachments.h>

#include <functional>

/// Sets over a scene that loses one thing after the other.
class LosingSceneTest : public HostFixture {
protected:
    LosingSceneTest()
    {
        qxVariantSet set;
        addOneOfEach(scene, set);
        qxVariants::createNodeVariant(scene.add("Roof").node(), false);
        qxVariants::createOverlayVariant(scene.addOverlaySwitch("Signs", {"Stop", "Go"}).node(),
                                         false);
        qxVariants::createTransformVariant("Hood", false)->nodeName = "Door";
        scene.add("Body");
        TestNode(node("Lamp")).moveTo(scene.addEnvironments("Sky", {"Day"}).child(0));
        for (const char *name : {"Front", unfound}) {
            scene.addViewpoint(name);
            scene.addOverlay(name);
        }
        qxVariants::createOverlayVariant("Odd", false)->overlayName = QString(unfound);
        scene.setClips({"Spin", "Blink"});
    }
    static void fill(qxVariantSet &set)
    {
        referToOneOfEach(set);
        set.addNodeVariant("Roof", "!Toggle");
        set.addNodeVariant("Unknown", "Alloy");
        set.addOverlayVariant("Signs", "Go");
        set.addTransformVariant("Hood", "Open");
        set.addGeometry("Body");
        set.addViewpoint("Front");
        set.addViewpoint(unfound);
        set.addOverlayVariant("Odd", "!Enable");
        set.addTargetNodeName("Body");
    }
    /// Something in the scene is called so, but the host finds it by no text.
    static constexpr char unfound[] = "Side\xFF";

    static QStringList contentOf(const qxVariantSet &set)
    {
        QStringList content;
        for (const qxStateList *states :
             {&set.nodeVariants, &set.materialVariants, &set.lightVariants, &set.overlayVariants,
              &set.transformVariants}) {
            for (const qxVariantState &each : *states)
                content += each.variant + "=" + each.state;
        }
        return content + set.geometries.list() + set.viewpoints.list() + set.animations.list();
    }

    static osg::NodePtr node(const char *name) { return qxScenegraph::findNode(name); }
    static osg::NodePtr overlay(const char *name) { return qxOverlays::findOverlay(name); }

    static void rename(const osg::NodePtr &renamed)
    {
        const osg::CPEditor edit(renamed);
        osg::setName(renamed, "Other");
    }
    static void renameMaterial(const char *name)
    {
        qxMaterials::setName(qxMaterials::findMaterial(name), "Other", true);
    }
    static void hollow(const char *name)
    {
        const osg::NodePtr hollowed = node(name);
        const osg::CPEditor edit(hollowed, osg::Node::CoreFieldMask);
        hollowed->setCore(osg::Group::create());
    }
};

TEST_F(LosingSceneTest, OptimizingDropsEntryByEntryWhatTheSceneLost)
{
    qxVariantSet *const set = qxVariants::createVariantSet("Full", false, nullptr);
    qxVariantSet *const twin = qxVariants::createVariantSet("Twin", false, nullptr);
    fill(*set);
    fill(*twin);
    struct Loss {
        const char *what;
        std::function<void()> happens;
        QStringList dropped; ///< the entries that go with it
    };
    const Loss losses[] = {
        {"nothing", [] {}, {unfound, "Odd=!Enable"}},
        {"a child that is not asked for", [] { rename(node("Steel")); }, {}},
        {"the child", [] { rename(node("Alloy")); }, {"Wheels=Alloy"}},
        {"the node of a toggle", [] { TestNode(node("Roof")).remove(); }, {"Roof=!Toggle"}},
        {"a material that is not asked for", [] { renameMaterial("Red"); }, {}},
        {"the material", [] { renameMaterial("Blue"); }, {"Paint=Blue"}},
        {"the light's core", [] { hollow("Lamp"); }, {"Lamp=!Disable"}},
        {"the geometry's node", [] { TestNode(node("Body")).remove(); }, {"Body"}},
        {"the viewpoints", [] { qxUberCameraPool::the()->clear(); }, {"Front"}},
        {"the clip", [this] { scene.setClips({"Blink"}); }, {"Spin"}},
        {"the overlay", [] { rename(overlay("Logo")); }, {"Logo=!Disable"}},
        {"the overlay's child", [] { rename(overlay("Go")); }, {"Signs=Go"}},
        {"the transform states",
         [] { TestNode(node("Door")).remove(); },
         {"Door=Open", "Hood=Open"}},
    };
    QStringList left = contentOf(*set);
    for (const Loss &loss : losses) {
        SCOPED_TRACE(loss.what);
        loss.happens();
        for (const QString &entry : loss.dropped)
            EXPECT_TRUE(left.removeOne(entry));
        notifications.clear();
        qxVariants::optimizeVariantSets();
        EXPECT_EQ(contentOf(*set), left);
        EXPECT_EQ(contentOf(*twin), left);
        EXPECT_TRUE(notifications.entries().empty());
    }
    EXPECT_EQ(left, (QStringList{"Unknown=Alloy", "Blink"}));
    EXPECT_EQ(set->targetNodeNames.size(), 1u) << "a target stays, whatever becomes of its node";
}

TEST_F(LosingSceneTest, StatesThatNoSwitchHasToHoldStayAsLongAsTheSceneObjectDoes)
{
    qxVariants::createMaterialVariant(QString("Trim"), false)->switchMaterialName = "Red";
    qxVariantSet set;
    for (const char *state : {"!Nonsense", "nonsense"}) { // actions; states of what is no switch
        const bool isAction = *state == '!';
        set.addNodeVariant(isAction ? "Wheels" : "Roof", state);
        set.addMaterialVariant(isAction ? "Paint" : "Trim", state);
        set.addOverlayVariant(isAction ? "Signs" : "Logo", state);
    }
    set.addLightVariant("Lamp", "nonsense");
    set.addTransformVariant("Door", "!Next");
    const auto optimize = &qxVariantSet::optimize; // one operation, which a host may bind
    (set.*optimize)();
    EXPECT_EQ(contentOf(set).join(' ').toStdString(),
              "Wheels=!Nonsense Roof=nonsense Paint=!Nonsense Trim=nonsense Lamp=nonsense "
              "Signs=!Nonsense Logo=nonsense");
    for (const osg::NodePtr &lost :
         {node("Wheels"), node("Roof"), overlay("Signs"), overlay("Logo")})
        TestNode(lost).remove();
    renameMaterial("Paint");
    renameMaterial("Red");
    set.optimize();
    EXPECT_EQ(contentOf(set), QStringList("Lamp=nonsense"));
}

TEST_F(LosingSceneTest, OneOfSeveralNodesOfANameIsEnoughForATransform)
{
    scene.addSwitch("Wheels", {"Steel"});
    scene.addPoses("Door", {"Ajar"});
    scene.addSwitchMaterial("Paint", {"Red"});
    qxVariantSet set;
    fill(set);
    set.addTransformVariant("Door", "Ajar");
    set.optimize();
    EXPECT_EQ(contentOf(set).join(' ').toStdString(),
              "Roof=!Toggle Unknown=Alloy Lamp=!Disable Logo=!Disable Signs=Go Door=Ajar Hood=Open "
              "Body Front Spin Blink");
}

TEST_F(LosingSceneTest, ASetIsUsedAsLongAsTheSceneHasSomethingOfIt)
{
    struct Use {
        const char *what;
        std::function<void(qxVariantSet &)> refer;
        std::function<void()> loss;
    };
    const Use uses[] = {
        {"a node", [](qxVariantSet &set) { set.addNodeVariant("Wheels", "no such child"); },
         [] { TestNode(node("Wheels")).remove(); }},
        {"a material", [](qxVariantSet &set) { set.addMaterialVariant("Paint", "no such one"); },
         [] { renameMaterial("Paint"); }},
        {"a light", [](qxVariantSet &set) { set.addLightVariant("Lamp", ""); },
         [] { hollow("Lamp"); }},
        {"a geometry", [](qxVariantSet &set) { set.addGeometry("Body"); },
         [] { TestNode(node("Body")).remove(); }},
        {"a viewpoint", [](qxVariantSet &set) { set.addViewpoint("Front"); },
         [] { qxUberCameraPool::the()->clear(); }},
        {"a clip", [](qxVariantSet &set) { set.addAnimation("Spin"); },
         [this] { scene.setClips({"Blink"}); }},
        {"an overlay", [](qxVariantSet &set) { set.addOverlayVariant("Signs", ""); },
         [] { TestNode(overlay("Signs")).remove(); }}};
    for (const Use &use : uses) {
        SCOPED_TRACE(use.what);
        qxVariantSet set;
        use.refer(set);
        EXPECT_TRUE(set.isUsed());
        use.loss();
        EXPECT_FALSE(set.isUsed());
    }
    qxVariantSet set; // what does not count, though all of it is there
    set.addTransformVariant("Door", "Open");
    set.script = "pass";
    set.setClippingState(1);
    set.addViewpoint(unfound);
    set.addOverlayVariant("Odd", "!Enable");
    set.addNodeVariant("Door", ""); // no variant leads to these
    set.addMaterialVariant("Red", "");
    EXPECT_FALSE(set.isUsed());
}
