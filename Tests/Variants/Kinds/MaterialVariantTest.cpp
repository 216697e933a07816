#include "Internal/Scene/qxSceneEdits.h"
#include "qxMaterialVariant.h"

#include "KindFixture.h"

#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGMaterialPool.h>
#include <OpenSG/OSGSimpleMaterial.h>

typedef KindFixture MaterialVariantTest;

const char *const closing = "materialVariantSelected";

TEST_F(MaterialVariantTest, APlainMaterialIsWrappedAndReplacedOnItsNodes)
{
    const TestMaterial paint = scene.addMaterial("Paint");
    const TestNode hood = scene.addGeometry("Hood", paint);
    const TestNode doors = scene.addMaterialGroup("Doors", paint);
    const TestNode seat = scene.addGeometry("Seat", scene.addMaterial("Leather"));
    const qxMaterialVariant variant(paint.material());
    EXPECT_EQ(variant.name, "Paint Switch");
    EXPECT_EQ(variant.switchMaterialName, "Paint Switch");
    EXPECT_EQ(variant.defaultState, "Paint");
    EXPECT_EQ(textsOf(variant.options), stepsAnd({"Paint"}));
    const TestMaterial wrapped = qxMaterials::findMaterial("Paint Switch");
    EXPECT_EQ(wrapped.held(), Texts({"Paint"}));
    EXPECT_EQ(wrapped.choice(), 0u);
    for (const TestNode &node : {hood, doors})
        EXPECT_EQ(qxNodeUtils::getMaterial(node), wrapped.material());
    EXPECT_EQ(qxMaterials::getName(qxNodeUtils::getMaterial(seat)), "Leather");
    EXPECT_EQ(moduleMessages, std::vector<unsigned int>({0x10000}));
}

TEST_F(MaterialVariantTest, AMaterialThatOnlyItsNodeHoldsIsNotLost)
{
    const osg::MaterialPtr paint = osg::SimpleMaterial::create();
    qxMaterials::setName(paint, "Paint", true);
    const TestNode hood = scene.addGeometry("Hood", paint);
    ASSERT_EQ(paint.getRefCount(), 1);
    const qxMaterialVariant variant(paint);
    EXPECT_EQ(TestMaterial(qxNodeUtils::getMaterial(hood)).held(), Texts({"Paint"}));
    EXPECT_EQ(paint.getRefCount(), 1);

    qxScenegraph::getMaterialPool()->sub(qxNodeUtils::getMaterial(hood));
    qxSceneEdits::setMaterial(osg::GeometryPtr::dcast(hood.core()), paint);
    EXPECT_EQ(qxMaterials::getName(qxNodeUtils::getMaterial(hood)), "Paint");
    EXPECT_EQ(paint.getRefCount(), 1);
}

TEST_F(MaterialVariantTest, ASwitchMaterialGivesItsMaterialsAsOptions)
{
    const TestMaterial finish = scene.addSwitchMaterial("Finish", {"Red", "Blue", "Red"}).choose(1);
    EXPECT_EQ(textsOf(qxMaterialVariant(finish.material()).options), stepsAnd({"Red", "Blue"}));
    EXPECT_EQ(qxMaterialVariant(finish.material()).defaultState, "Blue");
    const qxMaterialVariant beyond(finish.choose(7).material());
    EXPECT_TRUE(beyond.defaultState.isEmpty() && beyond.onCurrent().isEmpty());
    const qxMaterialVariant nameless(scene.addMaterial("").material());
    EXPECT_TRUE(nameless.name.isEmpty() && nameless.options.empty());
}

TEST_F(MaterialVariantTest, SelectingChoosesAndAnnounces)
{
    const TestMaterial finish = scene.addSwitchMaterial("Finish", {"Red", "Blue", "Green"});
    qxMaterialVariant variant(finish.material());
    variant.name = "Body";
    const std::vector<std::pair<const char *, std::string>> states{
        {"Blue", "Blue"},        {"!Next", "Green"},   {"!Next", "Green"},
        {"!Next (Loop)", "Red"}, {"!Previous", "Red"}, {"!Previous (Loop)", "Green"}};
    for (const auto &state : states) {
        EXPECT_EQ(select(variant, state.first, closing),
                  Texts({"1 variantsMaterialChanged variantName=Body materialName=" + state.second
                         + " materialBaseName=Finish"}));
        EXPECT_EQ(variant.onCurrent().toStdString(), state.second);
    }
    finish.choose(9);
    EXPECT_EQ(select(variant, "!Previous (Loop)", closing).size(), 1u);
    for (const char *unknown : {"Yellow", "!All", "!previous", "!Previous ", ""})
        EXPECT_EQ(select(variant, unknown, closing), Texts()) << unknown;
    EXPECT_EQ(finish.choice(), 2u);
}

TEST_F(MaterialVariantTest, SwitchMaterialsOfOneNameAreSteppedEach)
{
    scene.addMaterial("Finish");
    const TestMaterial first = scene.addSwitchMaterial("Finish", {"Red", "Blue"});
    const TestMaterial empty = scene.addSwitchMaterial("Finish", {});
    const TestMaterial second = scene.addSwitchMaterial("Finish", {"Blue", "Green"}).choose(1);
    qxMaterialVariant variant(first.material());
    EXPECT_EQ(select(variant, "!Next (Loop)", closing).size(), 2u);
    EXPECT_TRUE(first.choice() == 1 && second.choice() == 0 && empty.choice() == 0);
    EXPECT_EQ(variant.onCurrent(), ""); // the first of that name is no switch
}

TEST_F(MaterialVariantTest, MaterialsAreAddedOnceButAnnouncedEachTime)
{
    const TestMaterial finish = scene.addSwitchMaterial("Finish", {"Red"});
    const osg::MaterialPtr blue = scene.addMaterial("Blue");
    qxMaterialVariant variant(finish.material());
    notifications.clear();
    variant.add(blue, "F1");
    variant.add(blue, "F2");
    EXPECT_EQ(finish.held(), Texts({"Red", "Blue"}));
    EXPECT_EQ(textsOf(variant.options), stepsAnd({"Red", "Blue (F1)"}));

    qxScenegraph::getMaterialPool()->sub(blue); // only the switch material holds it now
    variant.remove(blue);
    EXPECT_EQ(finish.held(), Texts({"Red"}));
    EXPECT_EQ(textsOf(variant.options), stepsAnd({"Red"}));
    EXPECT_EQ(notifications.lines(), Texts(3, "1 updateMaterials"));
}

TEST_F(MaterialVariantTest, AMaterialThatHoldsTheSwitchMaterialIsNotPutIntoIt)
{
    const TestMaterial finish = scene.addSwitchMaterial("Finish", {"Red"});
    const TestMaterial coat = scene.addSwitchMaterial("Coat", {"Finish", "Blue"});
    qxMaterialVariant variant(finish.material());
    variant.add(coat, "");
    variant.add(finish, "");
    EXPECT_EQ(finish.held(), Texts({"Red"}));
    EXPECT_EQ(textsOf(variant.options), stepsAnd({"Red", "Coat", "Finish"}));
}

TEST_F(MaterialVariantTest, RemovingByNameSkipsTheTwinThatMovesUp)
{
    const TestMaterial finish = scene.addSwitchMaterial("Finish", {"A", "B", "Blue", "C"});
    for (const char *twin : {"A", "B", "C"})
        qxMaterials::setName(qxMaterials::findMaterial(twin), "Red", true);
    qxMaterialVariant variant(finish.material());
    variant.remove(QString("Red"));
    EXPECT_EQ(finish.held(), Texts({"Red", "Blue"}));
    EXPECT_EQ(textsOf(variant.options), stepsAnd({"Blue"}));

    notifications.clear();
    variant.remove(QString("Yellow"));
    EXPECT_EQ(notifications.names(), Texts({"updateMaterials"}));
}

TEST_F(MaterialVariantTest, WithoutAnEditableSwitchMaterialNothingIsChangedOrSent)
{
    qxMaterialVariant variant;
    variant.switchMaterialName = "Gone";
    const osg::MaterialPtr red = scene.addMaterial("Red");
    variant.qxVariant::add("Red", "");
    notifications.clear();
    variant.add(scene.addMaterial("Blue").material(), "");
    variant.remove(red);
    variant.remove(QString("Red"));
    EXPECT_EQ(textsOf(variant.options), Texts({"Red"}));
    EXPECT_TRUE(notifications.entries().empty());
}

TEST_F(MaterialVariantTest, RebuiltOptionsKeepTheirShortcuts)
{
    const TestMaterial finish = scene.addSwitchMaterial("Finish", {"Red", "Blue"}).choose(1);
    qxMaterialVariant variant;
    variant.switchMaterialName = "Finish";
    variant.qxVariant::add("Red", "F1");
    variant.qxVariant::add("!Next", "F2");
    variant.qxVariant::add("Gone", "F3");
    EXPECT_EQ(rebuilt(variant),
              Texts({"!Next* (F2)", "!Next (Loop)", "!Previous", "!Previous (Loop)", "Red (F1)",
                     "Blue"}));
    EXPECT_EQ(rebuiltDefault(variant, "Red"), "Red");
    qxMaterials::setName(qxMaterials::findMaterial("Red"), "Crimson", true);
    EXPECT_EQ(rebuiltDefault(variant, "Red"), "Blue");
    finish.choose(9);
    EXPECT_EQ(rebuiltDefault(variant, "Gone"), "Gone");
    variant.switchMaterialName = "Crimson";
    EXPECT_EQ(rebuilt(variant), Texts());
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
