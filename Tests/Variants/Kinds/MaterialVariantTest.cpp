#include "Internal/qxSceneEdits.h"
#include "qxMaterialVariant.h"

#include "Core/qxModuleBus.h"
#include "HostFixture.h"
#include "KindTexts.h"
#include "qxMaterials.h"
#include "qxScenegraph.h"

#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGMaterialGroup.h>
#include <OpenSG/OSGMaterialPool.h>
#include <OpenSG/OSGSimpleMaterial.h>
#include <OpenSG/OSGSwitchMaterial.h>

namespace {

const Texts steps{"!Next*", "!Next (Loop)*", "!Previous*", "!Previous (Loop)*"};

Texts stepsAnd(const Texts &materials)
{
    Texts texts = steps;
    texts.insert(texts.end(), materials.begin(), materials.end());
    return texts;
}

Texts materialsOf(const osg::MaterialPtr &material)
{
    Texts names;
    for (const osg::MaterialPtr &each : osg::SwitchMaterialPtr::dcast(material)->getMaterials())
        names.push_back(qxMaterials::getName(each));
    return names;
}

osg::MaterialPtr materialOf(const TestNode &geometry)
{
    return osg::GeometryPtr::dcast(geometry.core())->getMaterial();
}

class MaterialVariantTest : public HostFixture {
protected:
    /// Selects the state and returns what was sent before the closing notification.
    Texts select(qxMaterialVariant &variant, const char *state)
    {
        notifications.clear();
        variant.onSelect(state);
        Texts sent = notifications.lines();
        EXPECT_EQ(sent.back(), "1 materialVariantSelected variant=" + addressOf(&variant));
        sent.pop_back();
        return sent;
    }
};

} // namespace

TEST_F(MaterialVariantTest, APlainMaterialIsWrappedAndReplacedOnItsNodes)
{
    std::vector<unsigned int> codes;
    const int listener =
        qxModuleBus::addListener([&codes](qxMessage &message) { codes.push_back(message.code()); });
    const TestMaterial paint = scene.addMaterial("Paint");
    const TestNode hood = scene.addGeometry("Hood", paint);
    const TestNode doors = scene.addMaterialGroup("Doors", paint);
    const TestNode seat = scene.addGeometry("Seat", scene.addMaterial("Leather"));

    qxMaterialVariant variant(paint.material());
    qxModuleBus::removeListener(listener);

    EXPECT_EQ(variant.name, "Paint Switch");
    EXPECT_EQ(variant.switchMaterialName, "Paint Switch");
    EXPECT_EQ(variant.defaultState, "Paint");
    EXPECT_EQ(textsOf(variant.options), stepsAnd({"Paint"}));
    const TestMaterial wrapped = qxMaterials::findMaterial("Paint Switch");
    EXPECT_EQ(materialsOf(wrapped), Texts({"Paint"}));
    EXPECT_EQ(wrapped.choice(), 0u);
    EXPECT_EQ(materialOf(hood), wrapped.material());
    EXPECT_EQ(osg::MaterialGroupPtr::dcast(doors.core())->getMaterial(), wrapped.material());
    EXPECT_EQ(qxMaterials::getName(materialOf(seat)), "Leather");
    EXPECT_EQ(codes, std::vector<unsigned int>({0x10000}));
}

TEST_F(MaterialVariantTest, AWrappedMaterialSurvivesWhenOnlyItsNodeHeldIt)
{
    const osg::MaterialPtr paint = osg::SimpleMaterial::create();
    qxMaterials::setName(paint, "Paint", true);
    const TestNode hood = scene.addGeometry("Hood", paint);
    ASSERT_EQ(paint.getRefCount(), 1);

    const qxMaterialVariant variant(paint);
    EXPECT_EQ(materialsOf(materialOf(hood)), Texts({"Paint"}));
    EXPECT_EQ(paint.getRefCount(), 1);
}

TEST_F(MaterialVariantTest, ASwitchMaterialIsReplacedByOneOfItsOwnWithoutLoss)
{
    const osg::MaterialPtr red = osg::SimpleMaterial::create();
    qxMaterials::setName(red, "Red", true);
    const osg::SwitchMaterialPtr finish = osg::SwitchMaterial::create();
    finish->addMaterial(red);
    const TestNode hood = scene.addGeometry("Hood", finish);
    ASSERT_EQ(finish.getRefCount(), 1); // nobody else holds the two

    qxSceneEdits::setMaterial(osg::GeometryPtr::dcast(hood.core()), red);
    EXPECT_EQ(qxMaterials::getName(materialOf(hood)), "Red");
    EXPECT_EQ(red.getRefCount(), 1);
}

TEST_F(MaterialVariantTest, ASwitchMaterialGivesItsMaterialsAsOptions)
{
    const TestMaterial finish = scene.addSwitchMaterial("Finish", {"Red", "Blue", "Red"}).choose(1);
    EXPECT_EQ(textsOf(qxMaterialVariant(finish.material()).options), stepsAnd({"Red", "Blue"}));
    EXPECT_EQ(qxMaterialVariant(finish.material()).defaultState, "Blue");
    finish.choose(7);
    EXPECT_EQ(qxMaterialVariant(finish.material()).defaultState, "");
    EXPECT_EQ(qxMaterialVariant(finish.material()).onCurrent(), "");

    const osg::MaterialRefPtr plain(osg::SimpleMaterial::create());
    const qxMaterialVariant nameless(plain.get());
    EXPECT_TRUE(nameless.name.isEmpty() && nameless.options.empty());
}

TEST_F(MaterialVariantTest, SelectingChoosesAndAnnounces)
{
    const TestMaterial finish = scene.addSwitchMaterial("Finish", {"Red", "Blue", "Green"});
    qxMaterialVariant variant(finish.material());
    variant.name = "Body";
    const std::vector<std::pair<const char *, const char *>> states{
        {"Blue", "Blue"},        {"!Next", "Green"},   {"!Next", "Green"},
        {"!Next (Loop)", "Red"}, {"!Previous", "Red"}, {"!Previous (Loop)", "Green"}};
    for (const auto &state : states) {
        EXPECT_EQ(select(variant, state.first),
                  Texts({std::string("1 variantsMaterialChanged variantName=Body materialName=")
                         + state.second + " materialBaseName=Finish"}));
        EXPECT_EQ(variant.onCurrent(), state.second);
    }
    EXPECT_EQ(select(variant, "Yellow"), Texts());
    EXPECT_EQ(select(variant, "!All"), Texts());
    EXPECT_EQ(finish.choice(), 2u);
}

TEST_F(MaterialVariantTest, SwitchMaterialsOfOneNameAreSteppedEach)
{
    scene.addMaterial("Finish");
    const TestMaterial first = scene.addSwitchMaterial("Finish", {"Red", "Blue"});
    const TestMaterial empty = scene.addSwitchMaterial("Finish", {});
    const TestMaterial second = scene.addSwitchMaterial("Finish", {"Blue", "Green"}).choose(1);
    qxMaterialVariant variant(first.material());
    EXPECT_EQ(select(variant, "!Next (Loop)").size(), 2u);
    EXPECT_EQ(first.choice(), 1u);
    EXPECT_EQ(second.choice(), 0u);
    EXPECT_EQ(empty.choice(), 0u);
    EXPECT_EQ(variant.onCurrent(), ""); // the first of that name is no switch
}

TEST_F(MaterialVariantTest, MaterialsAreAddedOnceAndAnnouncedEachTime)
{
    const TestMaterial finish = scene.addSwitchMaterial("Finish", {"Red"});
    const TestMaterial blue = scene.addMaterial("Blue");
    qxMaterialVariant variant(finish.material());
    notifications.clear();
    variant.add(blue.material(), "F1");
    variant.add(blue.material(), "F2");
    EXPECT_EQ(materialsOf(finish), Texts({"Red", "Blue"}));
    EXPECT_EQ(textsOf(variant.options), stepsAnd({"Red", "Blue (F1)"}));
    EXPECT_EQ(notifications.lines(), Texts({"1 updateMaterials", "1 updateMaterials"}));

    variant.remove(blue.material());
    EXPECT_EQ(materialsOf(finish), Texts({"Red"}));
    EXPECT_EQ(textsOf(variant.options), stepsAnd({"Red"}));
    EXPECT_EQ(heard("updateMaterials").size(), 3u);
}

TEST_F(MaterialVariantTest, AMaterialThatOnlyTheSwitchHeldIsRemovedWithItsOption)
{
    const TestMaterial finish = scene.addSwitchMaterial("Finish", {"Red", "Blue"});
    qxMaterialVariant variant(finish.material());
    const osg::MaterialPtr blue = qxMaterials::findMaterial("Blue");
    qxScenegraph::getMaterialPool()->sub(blue);
    variant.remove(blue);
    EXPECT_EQ(textsOf(variant.options), stepsAnd({"Red"}));
}

TEST_F(MaterialVariantTest, RemovingByNameSkipsTheTwinThatMovesUp)
{
    const TestMaterial finish = scene.addSwitchMaterial("Finish", {"A", "B", "Blue", "C"});
    for (const char *twin : {"A", "B", "C"})
        qxMaterials::setName(qxMaterials::findMaterial(twin), "Red", true);
    qxMaterialVariant variant(finish.material());
    variant.remove(QString("Red"));
    EXPECT_EQ(materialsOf(finish), Texts({"Red", "Blue"}));
    EXPECT_EQ(textsOf(variant.options), stepsAnd({"Blue"}));

    notifications.clear();
    variant.remove(QString("Yellow"));
    EXPECT_EQ(notifications.names(), Texts({"updateMaterials"}));
}

TEST_F(MaterialVariantTest, WithoutAnEditableSwitchMaterialNothingIsChangedOrSent)
{
    qxMaterialVariant variant;
    variant.switchMaterialName = "Gone";
    const TestMaterial red = scene.addMaterial("Red");
    variant.qxVariant::add("Red", "");
    notifications.clear();
    variant.add(scene.addMaterial("Blue").material(), "");
    variant.remove(red.material());
    variant.remove(QString("Red"));
    EXPECT_EQ(textsOf(variant.options), Texts({"Red"}));
    EXPECT_TRUE(notifications.entries().empty());
}

TEST_F(MaterialVariantTest, RebuiltOptionsKeepShortcutsAndTheDefaultThatIsStillAState)
{
    const TestMaterial finish = scene.addSwitchMaterial("Finish", {"Red", "Blue"}).choose(1);
    qxMaterialVariant variant;
    variant.switchMaterialName = "Finish";
    variant.qxVariant::add("Red", "F1");
    variant.qxVariant::add("!Next", "F2");
    variant.qxVariant::add("Gone", "F3");
    variant.defaultState = "Red";
    variant.updateVariants();
    EXPECT_EQ(textsOf(variant.options),
              Texts({"!Next* (F2)", "!Next (Loop)", "!Previous", "!Previous (Loop)", "Red (F1)",
                     "Blue"}));
    EXPECT_EQ(variant.defaultState, "Red");

    qxMaterials::setName(qxMaterials::findMaterial("Red"), "Crimson", true);
    variant.updateVariants();
    EXPECT_EQ(variant.defaultState, "Blue");
    finish.choose(9);
    variant.defaultState = "Gone";
    variant.updateVariants();
    EXPECT_EQ(variant.defaultState, "Gone");
    variant.switchMaterialName = "Crimson";
    variant.updateVariants();
    EXPECT_TRUE(variant.options.empty());
}

TEST_F(MaterialVariantTest, HidingReachesTheNodesThatUseTheSwitchMaterialOnly)
{
    const TestMaterial finish = scene.addSwitchMaterial("Finish", {"Red"});
    const TestNode hood = scene.addMaterialGroup("Hood", finish);
    const TestNode badge = scene.addGeometry("Badge", scene.addMaterial("Chrome"), hood);
    qxMaterialVariant variant(finish.material());
    variant.hideGeometry();
    EXPECT_EQ(hood.mask(), 0u);
    EXPECT_TRUE(badge.shown());
    variant.showGeometry();
    EXPECT_TRUE(hood.shown());
}
