#include "qxLightVariant.h"
#include "qxMaterialVariant.h"
#include "qxNodeVariant.h"
#include "qxOverlayVariant.h"
#include "qxTransformVariant.h"
#include "qxVariantSet.h"
#include "qxVariants.h"

#include "HostFixture.h"
#include "qxMaterials.h"
#include "qxOverlays.h"
#include "qxScenegraph.h"
#include "qxUberCameraPool.h"

#include <OpenSG/OSGSimpleAttachments.h>
#include <OpenSG/OSGSwitchMaterial.h>

#include <functional>

namespace {

/// Sets over a scene that loses one thing after the other.
class LosingSceneTest : public HostFixture {
protected:
    LosingSceneTest()
    {
        qxVariants::createNodeVariant(scene.addSwitch("Wheels", {"Steel", "Alloy"}).node(), false);
        qxVariants::createNodeVariant(scene.add("Lamp").node(), false);
        qxVariants::createMaterialVariant(
            scene.addSwitchMaterial("Paint", {"Red", "Blue"}).material(), false);
        qxVariants::createLightVariant(scene.addLight("Sun").node(), false);
        qxVariants::createOverlayVariant(scene.addOverlaySwitch("Signs", {"Stop", "Go"}).node(),
                                         false);
        qxVariants::createTransformVariant(scene.addPoses("Door", {"Shut", "Open"}).node(), false);
        qxVariants::createTransformVariant("Hood", false)->nodeName = "Door";
        scene.add("Body");
        scene.addViewpoint("Front");
        scene.setClips({"Spin"});
    }
    static void fill(qxVariantSet &set)
    {
        set.addNodeVariant("Wheels", "Alloy");
        set.addNodeVariant("Lamp", "!Toggle");
        set.addNodeVariant("Unknown", "Alloy");
        set.addMaterialVariant("Paint", "Blue");
        set.addLightVariant("Sun", "!Enable");
        set.addOverlayVariant("Signs", "Go");
        set.addTransformVariant("Door", "Open");
        set.addTransformVariant("Hood", "Open");
        set.addGeometry("Body");
        set.addViewpoint("Front");
        set.addAnimation("Spin");
        set.addTargetNodeName("Body");
    }

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

/// One loss, and the entries that go with it.
struct Loss {
    const char *what;
    std::function<void()> happens;
    QStringList dropped;
};

} // namespace

TEST_F(LosingSceneTest, OptimizingDropsEntryByEntryWhatTheSceneLost)
{
    qxVariantSet *const set = qxVariants::createVariantSet("Full", false, nullptr);
    qxVariantSet *const twin = qxVariants::createVariantSet("Twin", false, nullptr);
    fill(*set);
    fill(*twin);
    const Loss losses[] = {
        {"nothing", [] {}, {}},
        {"a child that is not asked for", [] { rename(node("Steel")); }, {}},
        {"the child", [] { rename(node("Alloy")); }, {"Wheels=Alloy"}},
        {"the node of a toggle", [] { TestNode(node("Lamp")).remove(); }, {"Lamp=!Toggle"}},
        {"a material that is not asked for", [] { renameMaterial("Red"); }, {}},
        {"the material", [] { renameMaterial("Blue"); }, {"Paint=Blue"}},
        {"the light's core", [] { hollow("Sun"); }, {"Sun=!Enable"}},
        {"the geometry's node", [] { TestNode(node("Body")).remove(); }, {"Body"}},
        {"the viewpoints", [] { qxUberCameraPool::the()->clear(); }, {"Front"}},
        {"the clip", [this] { scene.setClips({"Other"}); }, {"Spin"}},
        {"the overlay's child", [] { rename(qxOverlays::findOverlay("Go")); }, {"Signs=Go"}},
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
        EXPECT_EQ(contentOf(*set).join(' ').toStdString(), left.join(' ').toStdString());
        EXPECT_EQ(contentOf(*twin), left);
        EXPECT_TRUE(notifications.entries().empty());
    }
    EXPECT_EQ(left, QStringList("Unknown=Alloy"));
    EXPECT_EQ(set->targetNodeNames.size(), 1u) << "a target stays, whatever becomes of its node";
}

TEST_F(LosingSceneTest, ActionsStayAsLongAsTheSceneObjectDoes)
{
    qxVariantSet set;
    set.addNodeVariant("Wheels", "!Nonsense");
    set.addMaterialVariant("Paint", "!Nonsense");
    set.addOverlayVariant("Signs", "!Nonsense");
    set.addLightVariant("Sun", "nonsense");
    set.addTransformVariant("Door", "!Next");
    set.optimize();
    EXPECT_EQ(contentOf(set).join(' ').toStdString(),
              "Wheels=!Nonsense Paint=!Nonsense Sun=nonsense Signs=!Nonsense");
    TestNode(node("Wheels")).remove();
    renameMaterial("Paint");
    TestNode(qxOverlays::findOverlay("Signs")).remove();
    set.optimize();
    EXPECT_EQ(contentOf(set), QStringList("Sun=nonsense"));
}

TEST_F(LosingSceneTest, OneOfSeveralNodesOfANameIsEnoughForATransformButNotForASwitch)
{
    scene.addSwitch("Wheels", {"Steel"});
    scene.addPoses("Door", {"Ajar"});
    scene.addSwitchMaterial("Paint", {"Red"});
    qxVariantSet set;
    fill(set);
    set.addTransformVariant("Door", "Ajar");
    set.optimize();
    EXPECT_EQ(
        contentOf(set).join(' ').toStdString(),
        "Lamp=!Toggle Unknown=Alloy Sun=!Enable Signs=Go Door=Ajar Hood=Open Body Front Spin");
}

TEST_F(LosingSceneTest, ASetIsUsedUntilTheLastThingItRefersToIsGone)
{
    qxVariantSet *const set = qxVariants::createVariantSet("Full", false, nullptr);
    fill(*set);
    set->script = "pass";
    set->setClippingState(1);
    const std::function<void()> losses[] = {
        [] { TestNode(node("Wheels")).remove(); }, [] { TestNode(node("Lamp")).remove(); },
        [] { renameMaterial("Paint"); },           [] { hollow("Sun"); },
        [] { TestNode(node("Body")).remove(); },   [] { qxUberCameraPool::the()->clear(); },
        [this] { scene.setClips({"Other"}); }};
    for (const auto &happens : losses) {
        happens();
        EXPECT_TRUE(set->isUsed());
    }
    TestNode(qxOverlays::findOverlay("Signs")).remove();
    EXPECT_FALSE(set->isUsed()); // A transform state, a script and a clipping plane do not count.
}

TEST_F(LosingSceneTest, AnythingThatTheSceneHasMakesASetUsed)
{
    const std::function<void(qxVariantSet &)> fillings[] = {
        [](qxVariantSet &set) { set.addNodeVariant("Wheels", "no such child"); },
        [](qxVariantSet &set) { set.addMaterialVariant("Paint", "no such material"); },
        [](qxVariantSet &set) { set.addLightVariant("Sun", ""); },
        [](qxVariantSet &set) { set.addGeometry("Body"); },
        [](qxVariantSet &set) { set.addViewpoint("Front"); },
        [](qxVariantSet &set) { set.addAnimation("Spin"); },
        [](qxVariantSet &set) { set.addOverlayVariant("Signs", ""); }};
    for (const auto &filling : fillings) {
        qxVariantSet set;
        filling(set);
        EXPECT_TRUE(set.isUsed());
    }
    const std::function<void()> removals[] = {[] { qxVariants::removeNodeVariant("Wheels"); },
                                              [] { qxVariants::removeMaterialVariant("Paint"); },
                                              [] { qxVariants::removeLightVariant("Sun"); },
                                              [] { qxUberCameraPool::the()->clear(); },
                                              [] { qxVariants::removeOverlayVariant("Signs"); }};
    qxVariantSet set;
    for (const std::size_t index : {0, 1, 2, 6})
        fillings[index](set);
    fillings[4](set);
    for (const auto &removal : removals) {
        EXPECT_TRUE(set.isUsed());
        removal();
    }
    EXPECT_FALSE(set.isUsed()); // The scene objects are all there still, but nothing leads to them.
}
